// The main road, on a real disk: what is made, what is left alone, and what is said.
#include "creation/CreationPlan.h"
#include "creation/ProjectCreation.h"
#include "harness/Answers.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/TreeCopy.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QTest>
#include <fcntl.h>
#include <memory>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using platform::FileKind;
using platform::kindOf;

namespace {

constexpr time_t longAgo = 1000000000;
const std::atomic<bool> never = false;

void makeOld(const QString &path)
{
    const timespec times[2] = {{longAgo, 0}, {longAgo, 0}};
    if (utimensat(AT_FDCWD, platform::toNative(path).constData(), times, AT_SYMLINK_NOFOLLOW) != 0)
        qFatal("Cannot date %s", qPrintable(path));
}

time_t dateOf(const QString &path)
{
    struct stat info;
    return lstat(platform::toNative(path).constData(), &info) == 0 ? info.st_mtime : 0;
}

class Host : public CreationHost
{
public:
    QStringList calls;
    void startProcessing() override { calls << "start"; }
    void finishProcessing() override { calls << "finish"; }
    void incrementDynamicValues() override { calls << "count"; }
    void reveal(const QString &) override { calls << "reveal"; }
    void quitIfWanted() override { calls << "quit"; }
};

} // namespace

class TestCreation : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<Answers> m_presenter;
    Host m_host;

    QString files(const QString &item = {}) const
    {
        return platform::joined(VTDataController::filesFolder("Test"), item);
    }
    QString project(const QString &item = {}) const { return platform::joined(m_work->filePath("Acme/Promo"), item); }
    /// What a window would ask for that shows the stored values.
    ProjectRequest request() const { return {storedParameters(), {}, "_", "Test", files(), m_work->path()}; }
    CreationResult create() { return ProjectCreation(m_host).createProject(request()); }
    void answer(bool goOn)
    {
        m_presenter.reset(); // an old one takes its place in the program along
        m_presenter = std::make_unique<Answers>(QList<int>{goOn ? VTAlert::defaultReturn : VTAlert::alternateReturn});
    }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        m_host = Host();
        answer(false);
        storeSetting(settings::templateLocation, m_work->filePath("Library"));
        storeSetting(settings::separatorChar, "_");
        const auto record = [](const char *value, bool folder) {
            return QVariantMap{{"title", value}, {"val", value}, {"folder", folder}};
        };
        storeSetting(settings::filenameTemplate, QVariantList{record("Acme", true), record("Promo", true)});
        QVERIFY(platform::makeFolders(files()).ok());
    }
    void cleanup()
    {
        VTAlert::setPresenter(nullptr);
        QVERIFY(platform::removeTree(m_work->path()).ok());
    }

    void makesWhatThePlanSays()
    {
        writeFile(files("Template/Sub template/My TEMPLATE.txt"), "contents");
        writeFile(files("Template/notes.template"));
        writeFile(files(".hidden template"));
        writeFile(files(platform::fromNative("bad\xff\xfe template.txt")), "bytes");
        writeFile(files("one\ntwo"));
        QVERIFY(platform::makeFolders(files("Empty")).ok());
        QCOMPARE(mkfifo(platform::toNative(files("Template pipe")).constData(), 0640), 0);
        platform::setFlagsWord(files("Empty"), 12, 0x0E);
        makeOld(files("Empty"));
        makeOld(files("one\ntwo"));

        const CreationPlan plan = planCreation(files(), {{"Acme", "Promo"}}, never);
        const CreationResult result = create();

        QCOMPARE(result.errors, QStringList());
        QCOMPARE(m_host.calls, QStringList({"start", "reveal", "count", "quit", "finish"}));
        const CreationPlan made = planCreation(project(), {{}}, never);
        QStringList planned;
        QStringList found;
        plan.forEachItem([&](const PlanItem &item) { planned << platform::joined(item.folder, item.newName); });
        made.forEachItem([&](const PlanItem &item) { found << platform::joined(item.folder, item.oldName); });
        std::sort(planned.begin(), planned.end());
        std::sort(found.begin(), found.end());
        QCOMPARE(found, planned);
        QCOMPARE(result.files, made.files());
        QCOMPARE(result.folders, made.folders());
        QCOMPARE(result.renamed, plan.renamed());
        QCOMPARE(readFile(project("Promo/Sub Promo/My Promo.txt")), QByteArray("contents"));
        QCOMPARE(readFile(project(platform::fromNative("bad\xff\xfe Promo.txt"))), QByteArray("bytes"));
        QCOMPARE(kindOf(project("Promo pipe")), FileKind::Other);
        QCOMPARE(platform::flagsWordOf(project("Empty")), quint16(12));
        for (const QString &item : std::as_const(found))
            QVERIFY(dateOf(project(item)) > longAgo + 1);
        QCOMPARE(dateOf(files("Empty")), longAgo); // the template itself stays as it was
    }

    /// A link in a template may point at the studio's shared drive: nothing there may be touched.
    void neverGoesThroughALink()
    {
        const QString shared = m_work->filePath("Shared");
        writeFile(shared + "/Template on the shared drive.txt");
        for (const QString &item : {shared + "/Template on the shared drive.txt", shared})
            makeOld(item);
        QCOMPARE(symlink(shared.toUtf8().constData(), files("Template link").toUtf8().constData()), 0);
        QCOMPARE(symlink("Template link", files("loop template").toUtf8().constData()), 0);
        QCOMPARE(symlink("nowhere", files("dangling template").toUtf8().constData()), 0);

        QVERIFY(create().ok());

        QCOMPARE(platform::linkTarget(project("Promo link")), shared);
        QCOMPARE(platform::linkTarget(project("dangling Promo")), QString("nowhere"));
        QVERIFY(dateOf(project("Promo link")) > longAgo);
        QCOMPARE(dateOf(shared), longAgo);
        QCOMPARE(dateOf(shared + "/Template on the shared drive.txt"), longAgo);
    }

    void losesNothingWhenNamesCollide()
    {
        writeFile(files("Promo.txt"), "the one that has the name");
        writeFile(files("Template.txt"), "the one that wants it");
        const CreationResult result = create();
        QCOMPARE(result.errors.size(), 1);
        QVERIFY(result.errors[0].startsWith("Unable to move file "));
        QCOMPARE(readFile(project("Promo.txt")), QByteArray("the one that has the name"));
        QCOMPARE(readFile(project("Template.txt")), QByteArray("the one that wants it"));
        QVERIFY(m_host.calls.contains("count"));
    }

    /// What other programs store meanwhile belongs to other projects.
    void whatWasShownIsMade()
    {
        writeFile(files("Template.txt"));
        const ProjectRequest shown = request();
        storeSetting(settings::separatorChar, "+");
        storeSetting(settings::filenameTemplate, QVariantList{QVariantMap{{"title", "Acme"}, {"val", "Zulu"}}});
        storeSetting(settings::selectedProjectTemplate, "Another");
        QVERIFY(ProjectCreation(m_host).createProject(shown).ok());
        QCOMPARE(kindOf(project("Promo.txt")), FileKind::File);
        QCOMPARE(storedParameters()[0].value(), "Zulu");
    }

    /// Another program was faster: this project gets the next number, nothing is asked and nothing left behind.
    void aNumberIsGivenOnce()
    {
        writeFile(files("Template.txt"));
        const auto counter = [](const char *number) {
            return QVariantList{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", number}, {"folder", true}},
                                QVariantMap{{"title", "Name"}, {"val", "Promo"}, {"folder", true}}};
        };
        storeSetting(settings::filenameTemplate, counter("041"));
        const ProjectRequest shown = request();
        storeSetting(settings::filenameTemplate, counter("042"));
        writeFile(m_work->filePath("041/Promo/theirs"));
        const CreationResult result = ProjectCreation(m_host).createProject(shown);
        QVERIFY(result.ok() && m_presenter->messages.isEmpty());
        QCOMPARE(result.request.destination(), m_work->filePath("042/Promo"));
        QCOMPARE(kindOf(m_work->filePath("042/Promo/Promo.txt")), FileKind::File);
        QCOMPARE(storedParameters()[0].value(), "043");
        QCOMPARE(platform::listFolder(m_work->filePath("041/Promo"))->size(), 1);
    }

    /// Whoever looks while it is made sees an empty folder or the whole project.
    void nobodySeesHalfAProject()
    {
        constexpr int count = 400;
        for (int i = 0; i < count; ++i)
            writeFile(files(QString("Template %1").arg(i)), "x");
        std::atomic<bool> over = false;
        std::set<qsizetype> seen;
        std::thread watcher([&] {
            while (!over) {
                if (const auto entries = platform::listFolder(project()))
                    seen.insert(entries->size());
            }
        });
        const CreationResult result = create();
        over = true;
        watcher.join();
        QVERIFY(result.ok());
        seen.erase(0);
        seen.erase(count);
        QVERIFY2(seen.empty(), qPrintable(QString("%1 items").arg(seen.empty() ? 0 : *seen.begin())));
        QCOMPARE(platform::listFolder(platform::parentPath(project()))->size(), 1); // nothing hidden is left
    }

    /// Something came into the claimed folder meanwhile: it stays, and so does what is made.
    void aPlaceThatIsTakenMeanwhile()
    {
        QVERIFY(platform::makeFolders(project()).ok());
        Workplace place(project());
        QVERIFY(place.isHidden());
        writeFile(place.folder() + "/ours", "ours");
        writeFile(place.folder() + "/both", "ours");
        writeFile(project("both"), "theirs");
        const platform::Outcome placed = place.putInPlace();
        QVERIFY(placed.is(platform::Cause::Exists));
        QCOMPARE(placed.item(), project("both"));
        QCOMPARE(readFile(project("ours")), QByteArray("ours"));
        QCOMPARE(readFile(project("both")), QByteArray("theirs"));
        QCOMPARE(readFile(place.folder() + "/both"), QByteArray("ours"));
        QCOMPARE(place.shown(place.folder() + "/both"), project("both"));
    }

    /// What could not be put in its place is told of, and found again by the next start.
    void aPlaceThatIsTakenWhileItIsMade()
    {
        for (int i = 0; i < 400; ++i)
            writeFile(files(QString("Template %1").arg(i)), "ours");
        std::thread other([&] {
            while (kindOf(project()) == FileKind::Missing)
                std::this_thread::yield();
            writeFile(project("Promo 7"), "theirs");
        });
        const CreationResult result = create();
        other.join();
        QCOMPARE(result.errors.size(), 1);
        QVERIFY(result.errors[0].startsWith("Unable to move file "));
        QCOMPARE(readFile(project("Promo 7")), QByteArray("theirs"));
        QCOMPARE(platform::listFolder(project())->size(), 400);
        const QList<Leftover> left = leftovers();
        QCOMPARE(left.size(), 1);
        QCOMPARE(readFile(left[0].folder + "/Promo 7"), QByteArray("ours"));
        QVERIFY(forget(left[0]).ok());
    }

    /// TESSARO_EVERY_FAULT=1: a thousand of them.
    void nothingStaysOpen()
    {
        writeFile(files("Sub/Template.txt"), "x");
        storeSetting(settings::filenameTemplate,
                     QVariantList{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", "0001"}}});
        const auto countIn = [](const char *folder) {
            return platform::listFolder(QLatin1String(folder))->size();
        };
        QVERIFY(create().ok());
        const auto descriptors = countIn("/proc/self/fd");
        const auto threads = countIn("/proc/self/task");
        for (int i = 0; i < (qEnvironmentVariableIsSet("TESSARO_EVERY_FAULT") ? 1000 : 60); ++i) {
            ProjectRequest next = request();
            next.parameters = storedParameters();
            ProjectCreation creation(m_host);
            QVERIFY(creation.createProject(next).ok());
        }
        QCOMPARE(countIn("/proc/self/fd"), descriptors);
        QTRY_VERIFY(countIn("/proc/self/task") <= threads); // one that has just ended is still listed for a moment
    }

    void leavesNothingWhenStopped()
    {
        storeSetting(settings::filenameTemplate,
                     QVariantList{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", "041"}, {"folder", true}},
                                  QVariantMap{{"title", "Name"}, {"val", "Promo"}, {"folder", true}}});
        writeFile(files("Sub/Template.txt"), "x");
        writeFile(m_work->filePath("before"), "x");
        ProjectCreation creation(m_host);
        creation.stop() = true;
        const CreationResult result = creation.createProject(request());
        QVERIFY(result.stopped && !result.ok() && result.errors.isEmpty());
        QCOMPARE(m_host.calls, QStringList({"start", "finish"}));
        QCOMPARE(storedParameters()[0].value(), "041");
        QCOMPARE(platform::listFolder(m_work->path())->size(), 2); // the library, and what was there
        QVERIFY(create().ok());
        QCOMPARE(kindOf(m_work->filePath("041/Promo/Sub/Promo.txt")), FileKind::File);
    }

    void asksBeforeOverwriting()
    {
        writeFile(project("old"), "work");
        writeFile(files("new"));
        const CreationResult cancelled = create();
        QVERIFY(cancelled.cancelled);
        QCOMPARE(m_host.calls, QStringList({"start", "finish"}));
        QCOMPARE(readFile(project("old")), QByteArray("work"));
        QCOMPARE(kindOf(project("new")), FileKind::Missing);

        answer(true);
        QVERIFY(create().ok());
        QCOMPARE(kindOf(project("old")), FileKind::Missing);
        QCOMPARE(kindOf(project("new")), FileKind::File);
    }

    /// When the old project cannot be put away, the new one must not be mixed into it.
    void leavesAnOldProjectThatCannotBeTrashed()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is in the super-user's way.");
        writeFile(project("old"), "work");
        writeFile(files("new"));
        const QByteArray parent = platform::parentPath(project()).toUtf8();
        QCOMPARE(chmod(parent.constData(), 0555), 0);
        answer(true);
        const CreationResult result = create();
        QCOMPARE(chmod(parent.constData(), 0755), 0);
        QVERIFY(result.cancelled);
        QCOMPARE(result.errors.size(), 1);
        QCOMPARE(readFile(project("old")), QByteArray("work"));
        QCOMPARE(kindOf(project("new")), FileKind::Missing);
        QVERIFY(!m_host.calls.contains("count"));
    }

    void tellsWhatCannotBeMade_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QStringList>("messages");
        const QString copy = "Unable to copy contents of template";
        QTest::newRow("no Files folder") << "files missing" << QStringList{copy};
        QTest::newRow("Files unreadable") << "files unreadable" << QStringList{copy};
        QTest::newRow("a file where a folder level goes")
            << "file in the way" << QStringList{"Unable to create folder %1", copy};
        QTest::newRow("read-only destination") << "read-only" << QStringList{"Unable to create folder %1", copy};
    }
    void tellsWhatCannotBeMade()
    {
        QFETCH(QString, obstacle);
        QFETCH(QStringList, messages);
        if (geteuid() == 0 && (obstacle == "files unreadable" || obstacle == "read-only"))
            QSKIP("Nothing is in the super-user's way.");
        writeFile(files("item"));
        if (obstacle == "files missing")
            QVERIFY(platform::removeTree(files()).ok());
        else if (obstacle == "files unreadable")
            QCOMPARE(chmod(files().toUtf8().constData(), 0), 0);
        else if (obstacle == "file in the way")
            writeFile(m_work->filePath("Acme"), "a file");
        else
            QCOMPARE(chmod(m_work->path().toUtf8().constData(), 0555), 0);

        const CreationResult result = create();
        chmod(files().toUtf8().constData(), 0755);
        chmod(m_work->path().toUtf8().constData(), 0755);
        messages.replaceInStrings("%1", project());
        QCOMPARE(result.errors, messages);
        QCOMPARE(m_presenter->messages, messages);
        if (obstacle == "file in the way")
            QCOMPARE(readFile(m_work->filePath("Acme")), QByteArray("a file"));
    }

    void copiesAllOrSaysWhichItem()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is unreadable to the super-user.");
        writeFile(files("a"), "1");
        writeFile(files("b/secret"), "2");
        writeFile(files("b/open"), "4");
        writeFile(files("c"), "3");
        writeFile(files("shut/x"), "5");
        QCOMPARE(chmod(files("shut").toUtf8().constData(), 0), 0);
        QCOMPARE(chmod(files("b/secret").toUtf8().constData(), 0), 0);
        const CreationResult result = create();
        chmod(files("shut").toUtf8().constData(), 0755);
        QCOMPARE(result.errors, QStringList{"Unable to copy contents of template"});
        QCOMPARE(readFile(project("a")), QByteArray("1"));
        QCOMPARE(readFile(project("b/open")), QByteArray("4")); // the rest goes on
        QCOMPARE(readFile(project("c")), QByteArray("3"));
        QCOMPARE(kindOf(project("b/secret")), FileKind::Missing);
        QCOMPARE(kindOf(project("shut")), FileKind::Missing); // no empty folder stands for a full one
        VTLog::finishWriting();
        QVERIFY(readFile(VTLog::sharedController().currentLogPath())
                    .contains("Error copying file: " + files("b/secret").toUtf8() + ": Permission denied"));
    }

    void aThousandLevels()
    {
        QString folder = files();
        for (int i = 0; i < 1000; ++i)
            folder += "/level template";
        // 16,000 bytes: four times what the kernel takes in one path, so the file comes by way of a copy.
        QVERIFY(platform::makeFolders(folder).ok());
        writeFile(m_work->filePath("Template.txt"), "deep");
        QVERIFY(platform::copyItem(m_work->filePath("Template.txt"), folder + "/Template.txt").ok());
        QVERIFY(create().ok());
        QString made = project();
        for (int i = 0; i < 1000; ++i)
            made += "/level Promo";
        QCOMPARE(platform::fileSizeOf(made + "/Promo.txt"), quint64(4));
    }

    void logsTheMainRoad()
    {
        writeFile(files("Sub/Template.txt"));
        VTLog::finishWriting();
        const qsizetype before = readFile(VTLog::sharedController().currentLogPath()).size();
        QVERIFY(create().ok());
        VTLog::finishWriting();
        const QString log = readFile(VTLog::sharedController().currentLogPath()).mid(before);
        qsizetype at = 0;
        for (const QString &line :
             {"Creating template Test at " + project() + "...",
              "Renaming template files from " + project() + " to Promo",
              "Renaming template files from " + project("Sub") + " to Promo",
              "Updating timestamps for folder " + project(), "Updating timestamps for folder " + project("Sub"),
              QString("Template created successfully")}) {
            at = log.indexOf(" - " + line + "\n", at);
            QVERIFY2(at >= 0, qPrintable(line + " is missing in\n" + log));
        }
    }
};

int main(int argc, char **argv)
{
    platform::prepareLocale();
    const TemporaryHome home;
    QCoreApplication application(argc, argv);
    VTLog::createNewLog();
    settings::registerDefaults();
    TestCreation test;
    return QTest::qExec(&test, argc, argv);
}
#include "platform/base/System.h"
#include "test_creation.moc"

// A creation taken back: what goes to the Trash, what stays, and whose number it is afterwards.
#include "creation/ProjectCreation.h"
#include "creation/Undo.h"
#include "harness/Answers.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"
#include "platform/plain/CopyMonitor.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

class Host : public CreationHost
{
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
};

QStringList everything(const QString &folder)
{
    QStringList found;
    for (const FolderEntry &entry : listFolder(folder).valueOr({})) {
        found << entry.name;
        for (const QString &below : everything(joined(folder, entry.name)))
            found << joined(entry.name, below);
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

class TestUndo : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<Answers> m_presenter;

    QString files(const QString &item) const { return joined(VTDataController::filesFolder("Test"), item); }
    QString project(const QString &item = {}) const { return joined(m_work->filePath("041/Promo"), item); }
    QString number() const { return storedParameters()[0].value(); }
    Manifest create()
    {
        Host host;
        const ProjectRequest request{storedParameters(), {}, "_", "Test", files({}), m_work->path()};
        return ProjectCreation(host).createProject(request).manifest;
    }
    UndoResult undo(const Manifest &manifest)
    {
        CopyMonitor monitor;
        return undoCreation(manifest, monitor);
    }
    static QStringList inTrash() { return everything(homeTrashFiles()); }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        m_presenter.reset();
        m_presenter = std::make_unique<Answers>(QList<int>{VTAlert::defaultReturn});
        static_cast<void>(removeTree(parentPath(homeTrashFiles())));
        for (const Manifest &manifest : recentProjects())
            QVERIFY(forget(manifest).ok());
        storeSetting(settings::templateLocation, m_work->filePath("Library"));
        storeSetting(settings::filenameTemplate,
                     QVariantList{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", "041"}, {"folder", true}},
                                  QVariantMap{{"title", "Name"}, {"val", "Promo"}, {"folder", true}}});
        writeFile(files("Template.txt"), "contents");
        writeFile(files("Footage/Day 1/clip"), "film");
        writeFile(files("Footage/Day 2/clip"), "film");
        writeFile(files(fromNative("bad\xff name")), "x");
        QCOMPARE(symlink("Template.txt", toNative(files("link")).constData()), 0);
    }
    void cleanup() { QVERIFY(removeTree(m_work->path()).ok()); }

    void nothingWasTouched()
    {
        const Manifest manifest = create();
        QCOMPARE(number(), QString("042"));
        const QStringList made = everything(project());
        QCOMPARE(made.size(), 8);
        const QList<Manifest> recent = recentProjects();
        QVERIFY(recent.size() == 1 && recent[0].project == project() && recent[0].templateName == "Test");
        const UndoResult result = undo(recent[0]);
        QVERIFY2(result.outcome.ok() && result.kept.isEmpty(), qPrintable(result.outcome.description()));
        QVERIFY(result.numbersReturned && number() == "041");
        QCOMPARE(kindOf(m_work->filePath("041")), FileKind::Missing); // it had come with the project
        QCOMPARE(everything(joined(homeTrashFiles(), "Promo")), made);
        QVERIFY(recentProjects().isEmpty());
        QVERIFY(undo(manifest).outcome.is(Cause::Missing));
    }

    void whatIsWorkedOnStays_data()
    {
        QTest::addColumn<QString>("touched");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("a file was changed") << "Promo.txt"
                                            << "write" << QStringList{"Promo.txt"};
        QTest::newRow("and dated as before") << "Promo.txt"
                                             << "write and date" << QStringList{"Promo.txt"};
        QTest::newRow("deep below") << "Footage/Day 1/clip"
                                    << "write" << QStringList{"Footage", "Footage/Day 1", "Footage/Day 1/clip"};
        QTest::newRow("a file was added") << "Footage/mine"
                                          << "write" << QStringList{"Footage", "Footage/mine"};
        QTest::newRow("one was replaced by another of the same size and date")
            << "Footage/Day 2/clip"
            << "replace" << QStringList{"Footage", "Footage/Day 2", "Footage/Day 2/clip"};
        QTest::newRow("a folder took a file's place") << "Promo.txt"
                                                      << "folder" << QStringList{"Promo.txt", "Promo.txt/x"};
    }
    void whatIsWorkedOnStays()
    {
        QFETCH(QString, touched);
        QFETCH(QString, how);
        QFETCH(QStringList, left);
        const Manifest manifest = create();
        const QStringList made = everything(project());
        const QByteArray path = toNative(project(touched));
        struct stat before
        {
        };
        static_cast<void>(stat(path.constData(), &before));
        if (how == "replace" || how == "folder")
            QVERIFY(rename(path.constData(), toNative(m_work->filePath("aside")).constData()) == 0);
        writeFile(how == "folder" ? project(touched + "/x") : project(touched), how == "replace" ? "mlif" : "my work");
        const timespec dates[2] = {before.st_atim, before.st_mtim};
        if (how == "write and date" || how == "replace")
            QCOMPARE(utimensat(AT_FDCWD, path.constData(), dates, 0), 0);

        const UndoResult result = undo(manifest);
        QVERIFY2(result.outcome.ok(), qPrintable(result.outcome.description()));
        QCOMPARE(everything(project()), left);
        QCOMPARE(result.kept.size(), 1);
        QCOMPARE(result.kept[0].path, project(touched));
        QVERIFY(!result.numbersReturned && number() == "042"); // the place is taken
        QCOMPARE(readFile(project(left.constLast())), QByteArray(how == "replace" ? "mlif" : "my work"));
        // All that was made and is not left lies in the Trash, under its own path.
        const QStringList gathered = listFolder(homeTrashFiles())->size() == 1
                                         ? everything(joined(homeTrashFiles(), (*listFolder(homeTrashFiles()))[0].name))
                                         : QStringList();
        for (const QString &item : made)
            QVERIFY2(left.contains(item) || gathered.contains(item), qPrintable(item));
    }

    void theNextNumberIsTaken()
    {
        const Manifest first = create();
        const Manifest second = create();
        QCOMPARE(second.project, m_work->filePath("042/Promo"));
        const UndoResult result = undo(first);
        QVERIFY(result.outcome.ok() && result.kept.isEmpty() && !result.numbersReturned);
        QCOMPARE(number(), QString("043"));
        QVERIFY(undo(second).numbersReturned);
        QCOMPARE(number(), QString("042"));
    }

    void theOldProjectComesBack_data()
    {
        QTest::addColumn<bool>("stopped");
        QTest::newRow("undone") << false;
        QTest::newRow("stopped on the way") << true;
    }
    void theOldProjectComesBack()
    {
        QFETCH(bool, stopped);
        writeFile(project("old"), "work");
        Host host;
        ProjectCreation creation(host);
        creation.stop() = stopped;
        const CreationResult created =
            creation.createProject({storedParameters(), {}, "_", "Test", files({}), m_work->path()});
        QCOMPARE(created.stopped, stopped);
        if (!stopped) {
            QCOMPARE(kindOf(project("old")), FileKind::Missing);
            const UndoResult result = undo(created.manifest);
            QVERIFY(result.outcome.ok() && result.hadOldProject && result.oldProject.ok());
        }
        QVERIFY(created.errors.isEmpty());
        QCOMPARE(everything(project()), QStringList{"old"});
        QCOMPARE(readFile(project("old")), QByteArray("work"));
        const QString notes = parentPath(homeTrashFiles()) + "/info";
        QCOMPARE(listFolder(notes).valueOr({}).size(), stopped ? 0 : 1); // of what is in the Trash, and nothing else
        QCOMPARE(number(), QString("041"));
    }

    void withoutATrashNothingHappens()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is in the super-user's way.");
        const Manifest manifest = create();
        writeFile(project("Footage/Day 1/mine"), "work");
        const QStringList before = everything(m_work->path());
        QVERIFY(makeFolders(parentPath(homeTrashFiles())).ok());
        const QByteArray trash = toNative(parentPath(homeTrashFiles()));
        QCOMPARE(chmod(trash.constData(), 0), 0);
        const UndoResult result = undo(manifest);
        chmod(trash.constData(), 0700);
        QVERIFY(!result.outcome.ok());
        QCOMPARE(everything(m_work->path()), before);
        QVERIFY(undo(manifest).outcome.ok()); // it is still remembered
    }

    void anotherProjectAtItsPlace()
    {
        const Manifest manifest = create();
        QVERIFY(rename(toNative(project()).constData(), toNative(m_work->filePath("moved")).constData()) == 0);
        writeFile(project("x"), "another");
        QVERIFY(undo(manifest).outcome.is(Cause::Missing));
        QCOMPARE(everything(project()), QStringList{"x"});
        QVERIFY(inTrash().isEmpty());
    }

    void aDamagedManifestTouchesNothing()
    {
        const Manifest manifest = create();
        const QStringList made = everything(project());
        const QString items = withoutExtension(manifest.file) + ".items";
        const QByteArray bytes = readFile(items);
        for (const qsizetype length : {qsizetype{0}, qsizetype{6}, bytes.size() / 2, bytes.size() - 1}) {
            writeFile(items, bytes.first(length));
            QVERIFY(undo(manifest).outcome.is(Cause::Damaged));
            QCOMPARE(everything(project()), made);
        }
        writeFile(manifest.file, "something else");
        QVERIFY(recentProjects().isEmpty());
    }

    void aHundredAreRemembered()
    {
        const Manifest first = create();
        for (int i = 0; i < rememberedProjects; ++i) {
            Manifest another = first;
            another.project = QString("/projects/%1").arg(i);
            QVERIFY(remember(another, Tree{{TreeFolder()}}).ok());
        }
        const QList<Manifest> recent = recentProjects();
        QCOMPARE(recent.size(), rememberedProjects);
        QVERIFY(std::none_of(recent.begin(), recent.end(),
                             [&](const Manifest &one) { return one.project == first.project; }));
    }
};

int main(int argc, char **argv)
{
    prepareLocale();
    const TemporaryHome home;
    QCoreApplication application(argc, argv);
    VTLog::createNewLog();
    settings::registerDefaults();
    TestUndo test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_undo.moc"

// The program that is told of a new project: what it hears, and that nothing it does harms the project.
#include "creation/AfterCreation.h"
#include "harness/Answers.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileTree.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

const std::atomic<bool> never = false;

class Host : public CreationHost
{
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
};

} // namespace

class TestAfterCreation : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<Answers> m_presenter;

    QString told() const { return m_work->filePath("told"); }
    void setProgram(const QByteArray &script, qlonglong seconds) const
    {
        const QString program = m_work->filePath("my program");
        writeFile(program, "#!/bin/sh\ncd '" + toNative(m_work->path()) + "'\n" + script + '\n');
        QCOMPARE(chmod(toNative(program).constData(), 0755), 0);
        storeSetting(settings::afterCreation, program);
        storeSetting(settings::afterCreationSeconds, seconds);
    }
    CreationResult create() const
    {
        Host host;
        const ProjectRequest request{
            storedParameters(), {}, "_", "Test", VTDataController::filesFolder("Test"), m_work->filePath("Projects")};
        return ProjectCreation(host).createProject(request);
    }
    /// The processes that a program has left behind are the test's own.
    bool isRunning(int signal = 0) const { return kill(readFile(m_work->filePath("pid")).toInt(), signal) == 0; }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        m_presenter.reset();
        m_presenter = std::make_unique<Answers>();
        removeSetting(settings::afterCreation);
        storeSetting(settings::templateLocation, m_work->filePath("Library"));
        storeSetting(settings::filenameTemplate, QVariantList{QVariantMap{{"title", "Name"}, {"val", "Größe \"1\""}}});
        writeFile(joined(VTDataController::filesFolder("Test"), "Template.txt"), "contents");
        QVERIFY(makeFolders(m_work->filePath("Projects")).ok());
    }

    void becomesOfIt_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("said"); // nothing when all is well
        const auto row = [](const char *name, const char *script, const char *said) {
            QTest::newRow(name) << QByteArray(script) << QString(said);
        };
        row("reads", "cat > told", "");
        row("reads nothing", "exit 0", "");
        row("closes everything", "exec <&- >&- 2>&-", "");
        row("prints much", "yes | head -c 3000000; yes | head -c 3000000 >&2", "");
        row("fails without a word", "exit 7", "It ended with status 7.");
        row("fails with blank words", "echo >&2; exit 7", "It ended with status 7.");
        row("its last word counts", "echo one >&2; echo 'two: schön' >&2; echo >&2; exit 3", "status 3: two: schön");
        row("its word is no text", "printf 'a\\377' >&2; exit 3", "status 3: a\uFFFD");
        row("says much and fails", "yes no | head -c 3000000 >&2; exit 1", "status 1: no");
        row("is killed", "kill -9 $$", "It ended with status 9");
        row("leaves one behind that holds what it prints to", "sleep 300 & echo $! > pid", "");
        row("leaves one behind that goes on talking", "(while echo x; do sleep 0.01; done) >&2 & echo $! > pid", "");
        row("never ends", "echo $$ > pid; exec sleep 300", "timed out");
        row("never ends and does not want to", "echo $$ > pid; trap '' TERM; while :; do sleep 1; done", "timed out");
        row("is none", "", "Exec format error");
    }
    void becomesOfIt()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, said);
        setProgram(script, said == "timed out" ? 1 : 60);
        if (script.isEmpty())
            writeFile(m_work->filePath("my program"), "no program");
        const CreationResult result = create();
        const QString project = result.request.destination();
        QCOMPARE(readFile(joined(project, "Größe \"1\".txt")), QByteArray("contents"));
        QVERIFY(!result.stopped && !result.manifest.file.isEmpty());
        QCOMPARE(result.errors.size(), said.isEmpty() ? 0 : 1);
        if (said == "timed out")
            said = Outcome::failure(Cause::TimedOut, m_work->filePath("my program")).description();
        if (!said.isEmpty())
            QVERIFY2(m_presenter->reasons.value(0).contains(said), qPrintable(m_presenter->reasons.value(0)));
        if (QByteArray(QTest::currentDataTag()) == "never ends")
            QTRY_VERIFY(!isRunning()); // it was told to
        else if (!readFile(m_work->filePath("pid")).isEmpty())
            QVERIFY(isRunning(SIGKILL));
    }

    /// Whole, whatever its length, and in step with what becomes of the project.
    void whatItHears()
    {
        setProgram("cat > growing; mv growing told", 60);
        CreationResult result = create();
        const QJsonObject first = QJsonDocument::fromJson(readFile(told())).object();
        QCOMPARE(first["path"].toString(), result.request.destination());
        QCOMPARE(first["values"].toObject()["Name"].toString(), "Größe \"1\"");
        QCOMPARE(first["files"].toInt(), 1);
        result.notes = {QString(1'000'000, u'ö')}; // two megabytes, far more than a pipe holds
        QVERIFY(tellOfProject(result, never).ok());
        QCOMPARE(QJsonDocument::fromJson(readFile(told())).object()["notes"].toArray()[0].toString(), result.notes[0]);
        setProgram("exit 0", 60);
        QVERIFY(tellOfProject(result, never).ok()); // nobody waits until it is read
    }

    void aProgramThatIsGone()
    {
        storeSetting(settings::afterCreation, m_work->filePath("gone"));
        const CreationResult result = create();
        QCOMPARE(result.errors.size(), 1);
        QCOMPARE(kindOf(result.request.destination()), FileKind::Folder);
        QVERIFY(tellOfProject(result, never).is(Cause::Missing));
    }

    /// Somebody presses Ctrl+C while it runs.
    void isStopped()
    {
        const CreationResult result = create();
        setProgram("echo $$ > pid; exec sleep 300", 3600);
        std::atomic<bool> stopped = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { stopped = !readFile(m_work->filePath("pid")).isEmpty(); });
        timer.start(10);
        QVERIFY(tellOfProject(result, stopped).is(Cause::Cancelled));
        QTRY_VERIFY(!isRunning());
    }

    /// A project that could not be made is none.
    void nothingToTell()
    {
        setProgram("cat > told", 60);
        writeFile(m_work->filePath("Projects/Größe \"1\""), "in its way");
        m_presenter->answers = {VTAlert::alternateReturn};
        QVERIFY(create().cancelled);
        QCOMPARE(kindOf(told()), FileKind::Missing);
        if (geteuid() == 0)
            QSKIP("To the super-user permissions mean nothing.");
        QVERIFY(removeTree(m_work->filePath("Projects/Größe \"1\"")).ok());
        QCOMPARE(chmod(toNative(m_work->filePath("Projects")).constData(), 0500), 0);
        QVERIFY(!create().ok());
        QCOMPARE(chmod(toNative(m_work->filePath("Projects")).constData(), 0700), 0);
        QCOMPARE(kindOf(told()), FileKind::Missing);
    }
};

int main(int argc, char **argv)
{
    prepareLocale();
    const TemporaryHome home;
    QCoreApplication application(argc, argv);
    VTLog::createNewLog();
    settings::registerDefaults();
    TestAfterCreation test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_after_creation.moc"

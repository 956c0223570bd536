// Commands to which the file system says no, once, at any of their calls, or that are killed at any moment: each ends
// with the old state, with the new one, or with a word about what is missing; never with half of something and 0.
//
// TESSARO_EVERY_FAULT=1 tries every call with every error, and says what came of it; otherwise one in a few.
#include "commands/VerbState.h"
#include "platform/files/FileTree.h"
#include "platform/files/TreeCopy.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <thread>

using verbs::inLibrary;
using verbs::isOldOrNew;
using verbs::leftBehind;
using verbs::State;

namespace {

struct Ended
{
    bool inTime = false;
    bool crashed = false;
    int status = -1;
    QByteArray errors;
    QByteArray report; ///< "CALLS CALL PATH", then "DESCRIPTORS THREADS" at the end
    QByteArray callThatFailed() const { return report.split(' ').value(1); }
    int descriptors() const { return report.split('\n').value(1).split(' ').value(0).toInt(); }
    int threads() const { return report.split('\n').value(1).split(' ').value(1).toInt(); }
};

/// Whoever cannot look, lock or remove cannot clean up.
bool mayHinderCleaning(const QByteArray &call)
{
    return QList<QByteArray>{"unlinkat", "open", "readdir", "readdir64", "fstat", "fstatat", "flock"}.contains(call);
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_prepared = m_folder.filePath("prepared");
    QString m_home = m_folder.filePath("home"); ///< a copy of the prepared one for each run, always at the same path
    QString m_report = m_folder.filePath("report");

    std::unique_ptr<QProcess> start(const QStringList &words, int at = 0, int error = 0,
                                    const QString &program = QStringLiteral("Tessaro")) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home);
        environment.insert("TMPDIR", m_home + "/tmp");
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_DATA_HOME"})
            environment.remove(variable);
        environment.insert("LD_PRELOAD", QCoreApplication::applicationDirPath() + "/libtessaro_faults.so");
        environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
        environment.insert("FAULT_BELOW", m_home);
        environment.insert("FAULT_AT", QString::number(at));
        environment.insert("FAULT_ERRNO", QString::number(error));
        environment.insert("FAULT_REPORT", m_report);
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory("/");
        process->start(QCoreApplication::applicationDirPath() + u'/' + program, words);
        return process;
    }
    Ended run(const QStringList &words, int at = 0, int error = 0,
              const QString &program = QStringLiteral("Tessaro")) const
    {
        QFile::remove(m_report); // one that ends too early must not pass for the one before
        const auto process = start(words, at, error, program);
        Ended ended;
        ended.inTime = process->waitForFinished(60000);
        ended.crashed = process->exitStatus() == QProcess::CrashExit;
        ended.status = process->exitCode();
        ended.errors = process->readAllStandardError();
        ended.report = readFile(m_report);
        return ended;
    }
    void renew() const
    {
        QVERIFY(platform::removeOwnTree(m_home).ok());
        QVERIFY(platform::copyItem(m_prepared, m_home).ok());
    }
    State state() const { return verbs::stateOf(m_home); }
    void rows() { verbs::rows(m_home); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(platform::makeFolders(m_home).ok());
        QCOMPARE(run({"template", "restore", "--yes"}).status, 0);
        verbs::prepare(m_home);
        QCOMPARE(run({"settings", "set", "autoOpenFolder", "0"}).status, 0);
        QVERIFY(platform::copyItem(m_home, m_prepared).ok());
    }

    void oneCallFails_data()
    {
        rows();
        QTest::newRow("table") << QStringList{"create", "--in", m_home + "/Projects", "--from",
                                              m_home + "/In/table.csv"};
    }
    void oneCallFails()
    {
        QFETCH(QStringList, words);
        const bool all = qEnvironmentVariableIsSet("TESSARO_EVERY_FAULT");
        renew();
        const State before = state();
        const Ended undisturbed = run(words);
        QVERIFY2(undisturbed.status == 0, undisturbed.errors.constData());
        const State after = state();
        const int calls = undisturbed.report.left(undisturbed.report.indexOf(' ')).toInt();
        QVERIFY2(calls > 10, undisturbed.report.constData());
        int good = 0, told = 0;
        QStringList wrong;
        constexpr int halfOfIt = 0;
        constexpr int ofTheLog = 1; // which writes about what failed
        const QList<int> errors{EIO, EACCES, ENOSPC, ESTALE, EINTR, EDQUOT, halfOfIt};
        const int step = all ? 1 : 1 + calls / 10;
        for (int at = all ? 1 : 1 + static_cast<int>(QRandomGenerator::global()->bounded(step)); at <= calls;
             at += step) {
            for (const int error : all ? errors : QList<int>{errors[at % errors.size()]}) {
                renew();
                const Ended ended = run(words, at, error);
                const State found = state();
                QString problem;
                if (!ended.inTime)
                    problem = "hangs";
                else if (ended.crashed)
                    problem = "crashes";
                else if (ended.errors.contains("was put beside")) // said, and nothing lost
                    problem = {};
                else if (ended.status == 0 && found != after)
                    problem = "0, and not done";
                else if (ended.status != 0 && ended.errors.trimmed().isEmpty())
                    problem = "not a word";
                else if (!isOldOrNew(found, before, after) && (ended.status == 0 || words[1] != "structure"))
                    problem = "half a library";
                else if (words.contains("--from") && ended.status != 0 && !found.projects.isEmpty() &&
                         !ended.errors.contains("the creation has not made it") && !ended.errors.contains("Trash:"))
                    problem = "some of all or none: " + found.projects.keys().join(u' ');
                else if (!words.contains("--from") && // which remembers what the rows before had typed
                         found.settings != before.settings && found.settings != after.settings)
                    problem = "other settings";
                else if (!leftBehind(m_home).isEmpty() && !mayHinderCleaning(ended.callThatFailed()))
                    problem = "left behind: " + leftBehind(m_home).join(' ');
                else if (ended.descriptors() > undisturbed.descriptors() + ofTheLog ||
                         ended.threads() > undisturbed.threads() + ofTheLog)
                    problem = "open at the end";
                if (!problem.isEmpty())
                    wrong << QStringLiteral("%1: error %2 at %3").arg(problem).arg(error).arg(QString(ended.report)) +
                                 ended.errors;
                else
                    ++(ended.status == 0 ? good : told);
            }
        }
        if (all)
            QTextStream(stdout) << QTest::currentDataTag() << ": " << calls << " calls, " << good
                                << " done all the same, " << told << " told, " << wrong.size() << " wrong\n";
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }

    /// The same for what the helper does with root's rights: done, or nothing of it, and the original stands until
    /// then.
    void helperCallFails_data()
    {
        QTest::addColumn<QString>("verb");
        QTest::addColumn<bool>("isElsewhere");
        QTest::newRow("copy") << "copy" << false;
        QTest::newRow("move") << "move" << false;
        QTest::newRow("move to another drive") << "move" << true;
        QTest::newRow("remove") << "remove" << false;
    }
    void helperCallFails()
    {
        QFETCH(QString, verb);
        QFETCH(bool, isElsewhere);
        const bool all = qEnvironmentVariableIsSet("TESSARO_EVERY_FAULT");
        const QTemporaryDir elsewhere("/dev/shm/tessaro-XXXXXX");
        const QString there = isElsewhere ? elsewhere.path() : m_home + "/Out";
        const QString source = m_home + "/In/Shots";
        const QStringList words{verb, m_home + "/In", "Shots", there, "Made"};
        QMap<QString, QByteArray> whole;
        int calls = 0, good = 0, told = 0;
        QStringList wrong;
        for (int at = 0; at <= calls; at += at == 0 || all ? 1 : 1 + calls / 12) {
            for (const int error : {EIO, ENOSPC, EACCES, 0}) {
                renew();
                if (isElsewhere)
                    QVERIFY(platform::removeOwnTree(there + "/Made").ok());
                const auto before = verbs::treeOf(source);
                const Ended ended = run(words, at, error, "tree_work_victim");
                const auto left = verbs::treeOf(source);
                const auto made = verbs::treeOf(there + "/Made");
                if (at == 0) {
                    QCOMPARE(ended.status, 0);
                    whole = before;
                    calls = ended.report.left(ended.report.indexOf(' ')).toInt();
                    QVERIFY2(calls > 5, ended.report.constData());
                    break;
                }
                const bool isMade = verb == "remove" || made == whole;
                const bool isTaken = verb == "copy" || left.isEmpty();
                // A move to another drive, and a removal, may end with a part of the original, once all is there.
                const bool isKept = left == whole || verb == "remove" || (isElsewhere && made == whole);
                QString problem;
                if (ended.crashed || !ended.inTime)
                    problem = "crashes or hangs";
                else if (ended.status == 0 && !(isMade && isTaken))
                    problem = "0, and not done";
                else if (ended.status != 0 && !made.isEmpty() && made != whole)
                    problem = "half of it";
                else if (ended.status != 0 && !isKept)
                    problem = "the original is gone";
                if (!problem.isEmpty())
                    wrong << QStringLiteral("%1: error %2 at %3").arg(problem).arg(error).arg(QString(ended.report));
                else
                    ++(ended.status == 0 ? good : told);
            }
        }
        if (all)
            QTextStream(stdout) << "helper, " << QTest::currentDataTag() << ": " << calls << " calls, " << good
                                << " done all the same, " << told << " told, " << wrong.size() << " wrong\n";
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }

    void killed_data() { rows(); }
    void killed()
    {
        QFETCH(QStringList, words);
        const int rounds = qEnvironmentVariableIsSet("TESSARO_EVERY_FAULT") ? 100 : 4;
        renew();
        const State before = state();
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(run(words).status, 0);
        const qint64 needed = timer.nsecsElapsed() / 1000;
        const State after = state();
        int old = 0, done = 0;
        QStringList wrong;
        for (int i = 0; i < rounds; ++i) {
            renew();
            const auto process = start(words);
            process->waitForStarted();
            std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(needed)));
            process->kill();
            process->waitForFinished();
            const State found = state();
            old += found.library == before.library;
            done += found.library == after.library;
            if (!isOldOrNew(found, before, after))
                wrong << "library: " + QStringList(found.library.keys()).join(' ');
            if (found.settings != before.settings && found.settings != after.settings)
                wrong << "settings";
            // The place of a project is claimed by an empty folder.
            if (found.projects != after.projects && !found.projects.keys().filter(QRegularExpression("/.*/")).isEmpty())
                wrong << "project: " + QStringList(found.projects.keys()).join(' ');
            QCOMPARE(
                run(words.first() == "create" ? QStringList{"clean-up", "--yes"} : QStringList{"templates"}).status, 0);
            if (!leftBehind(m_home).filter("/Projects").isEmpty() ||
                !leftBehind(inLibrary(m_home, {})).filter(QRegularExpression("Templates/\\.")).isEmpty())
                wrong << "left: " + leftBehind(m_home).join(' ');
        }
        if (rounds > 4)
            QTextStream(stdout) << QTest::currentDataTag() << ": " << old << " old, " << done << " new\n";
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestFaults)
#include "test_faults.moc"

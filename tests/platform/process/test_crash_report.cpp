// A real crash, and what is on disk after it.
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <csignal>

class TestCrashReport : public QObject
{
    Q_OBJECT

    std::optional<TemporaryHome> m_home;

    QString onlyReport() const
    {
        const QStringList reports = QDir(m_home->path() + "/reports").entryList(QDir::Files);
        return reports.size() == 1 ? m_home->path() + "/reports/" + reports.first() : QString();
    }
    void start(QProcess &victim, const QString &how) const
    {
        QVERIFY(QDir(m_home->path()).mkpath("reports"));
        // The sanitizer has handlers of its own, and reports a crash as its own failure.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ASAN_OPTIONS",
                           "handle_segv=0:handle_abort=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0:"
                           "use_sigaltstack=0:detect_leaks=0");
        victim.setProcessEnvironment(environment);
        victim.start(CRASH_VICTIM, {m_home->path() + "/reports", how});
    }

private Q_SLOTS:
    void init() { m_home.emplace(); }

    void crashes_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("function");
        for (const auto &[name, number] : {std::pair{"SIGSEGV", SIGSEGV},
                                           {"SIGABRT", SIGABRT},
                                           {"SIGBUS", SIGBUS},
                                           {"SIGFPE", SIGFPE},
                                           {"SIGILL", SIGILL}})
            QTest::newRow(name) << number << QString("Signal: %1 ").arg(name) << "crashHere";
        QTest::newRow("exception") << SIGABRT << "Exception: St13runtime_error: the reason"
                                   << "crashHere";
        QTest::newRow("overflow") << SIGSEGV << "Signal: SIGSEGV "
                                  << "overflow";
        QTest::newRow("thread") << SIGSEGV << "Signal: SIGSEGV "
                                << "crashHere";
    }
    void crashes()
    {
        QFETCH(int, signal);
        QFETCH(QString, line);
        QFETCH(QString, function);
        QProcess victim;
        start(victim, QTest::currentDataTag());
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::CrashExit); // the signal went on to the system
        QCOMPARE(victim.exitCode(), signal);
        const QString path = onlyReport();
        static const QRegularExpression name("/Victim_\\d{4}-\\d\\d-\\d\\d-\\d{6}_.+\\.crash$");
        QVERIFY2(name.match(path).hasMatch(), qPrintable(path));
        const QByteArray report = readFile(path);
        for (const QByteArray &part : {QByteArray("Version: 7.5"), line.toUtf8(), QByteArray("busy worker"),
                                       QByteArray("crash_victim"), QByteArray("System: ")})
            QVERIFY2(report.contains(part), report.constData());
        QVERIFY2(report.contains(QDateTime::currentDateTime().toString("yyyy-MM-dd").toUtf8()), report.constData());
        QProcess resolve;
        resolve.start(TESSARO_SOURCE_DIR "/scripts/resolve-crash.sh", {path});
        QVERIFY(resolve.waitForFinished(120'000));
        const QString resolved = resolve.readAllStandardOutput();
        QVERIFY2(QRegularExpression(function + ".* at .*crash_victim\\.cpp:\\d+").match(resolved).hasMatch(),
                 qPrintable(resolved));
    }

    void killedFromOutside()
    {
        QProcess victim;
        start(victim, "waits");
        QVERIFY(victim.waitForReadyRead());
        kill(static_cast<pid_t>(victim.processId()), SIGSEGV);
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitCode(), SIGSEGV);
        QVERIFY(readFile(onlyReport()).contains("(sent)"));
    }

    /// A folder that is gone: the process ends all the same.
    void nowhereToWrite()
    {
        QProcess victim;
        start(victim, "waits");
        QVERIFY(victim.waitForReadyRead());
        QVERIFY(QDir(m_home->path() + "/reports").removeRecursively());
        kill(static_cast<pid_t>(victim.processId()), SIGABRT);
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitCode(), SIGABRT);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCrashReport)
#include "test_crash_report.moc"

// The log: its entries, its generations; which lines are on disk at once; many writers at once.
#include "harness/TemporaryHome.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/base/Users.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "support/VTException.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <thread>

namespace {

QString current()
{
    return VTLog::sharedController().currentLogPath();
}

QString generation(int n)
{
    return QString(current()).replace(".1.log", QStringLiteral(".%1.log").arg(n));
}

/// The messages of a file without header and dates; what has another form stays whole.
QStringList messagesOf(const QString &path)
{
    static const QRegularExpression date("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d [+-]\\d{4} - ");
    QStringList messages = QString::fromUtf8(readFile(path)).split(u'\n').mid(5);
    messages.removeLast();
    return messages.replaceInStrings(date, {});
}

} // namespace

class TestLog : public QObject
{
    Q_OBJECT

    /// What one line comes to in a process with the home made last: its entry, and its standard error.
    static QPair<QByteArray, QByteArray> inAnotherProcess()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"log-one-line"});
        process.waitForFinished();
        qputenv("HOME", originalHome);
        return {process.readAllStandardOutput(), process.readAllStandardError()};
    }

private Q_SLOTS:
    void initTestCase() { VTLog::createNewLog("First"); }

    void cleanupTestCase()
    {
        if (platform::isSuperUser())
            QVERIFY(platform::removeTree(current()).ok()); // it lies in the machine's own library
    }

    void writesEntries()
    {
        VTLog::createNewLog("Second");
        QVERIFY(current().endsWith("/Logs/Vantrel/First.1.log"));
        const qsizetype headerSize = readFile(current()).size();
        VTLog::appendLog(QString()); // no format, no entry
        VTLog::appendLog("%@", " \t\n a\n\nb \r\n");
        VTLog::appendLog("%@", "100% %@ %d");
        VTLog::appendLog("%@", platform::fromNative("\303\244 \377"));
        VTLog::appendLog("%@", " \n\t");
        // What is printed as well is formatted twice.
        VTLog::appendLogAndPrint("%@", "100%% %@");
        QCOMPARE(VTException::logException({"Name", "100%% %@"}, "run"), "Exception in run. Name - 100%% %@.");
        VTLog::finishWriting();
        QCOMPARE(messagesOf(current()), QStringList({"a", "", "b", "100% %@ %d", "\u00E4 \uFFFD", "", "100% (null)",
                                                     "Exception in run. Name - 100% (null)."}));
        QCOMPARE(VTLog::sharedController().bytesWritten(), quint64(readFile(current()).size() - headerSize));
        QCOMPARE(VTLog::sharedController().bytesInQueue(), 0u);
    }

    /// A message of 99 characters is on disk at once, one behind it not while more than 99 are pending; order is kept.
    void waitsForShortMessagesOnly()
    {
        VTLog::createNewLog();
        for (int round = 0; round < 200; ++round) {
            VTLog::appendLog("%@", QString(99, QChar(0xE4)));
            QCOMPARE(messagesOf(current()).size(), round + 1);
        }
        VTLog::createNewLog();
        int pending = 0;
        for (int round = 0; round < 50; ++round) { // long ones, so that a busy machine's writer is not through at once
            VTLog::finishWriting();
            VTLog::appendLog("%@", QString(200'000, u'x'));
            pending += VTLog::sharedController().bytesInQueue() > 0;
        }
        QVERIFY2(pending > 0, "Messages of more than 99 characters were waited for");
        // While much is pending, not even a short one is waited for; its turn comes after what was there first.
        VTLog::createNewLog();
        VTLog::appendLog("%@", QString(400'000, u'x'));
        VTLog::appendLog("short");
        VTLog::finishWriting();
        QCOMPARE(messagesOf(current()).value(1), "short");
    }

    void turnsFiveGenerations()
    {
        if (platform::isSuperUser())
            QSKIP("The super-user's current file lies beside no generations.");
        for (const char *message : {"1", "2", "3", "4", "5", "6", "7"}) {
            VTLog::createNewLog();
            VTLog::appendLog(message);
        }
        for (int n = 1; n <= 5; ++n)
            QCOMPARE(messagesOf(generation(n)), QStringList{QString::number(8 - n)});
        QCOMPARE(platform::kindOf(generation(6)), platform::FileKind::Missing);
    }

    void startsOverAtItsLimit()
    {
        VTLog::createNewLog();
        // An entry is date, " - ", message and line end: 25 + 3 + n + 1. Together 499,999, the last byte that fits.
        for (int i = 0; i < 4; ++i)
            VTLog::appendLog("%@", QString(100'000 - 29, u'x'));
        VTLog::appendLog("%@", QString(99'999 - 29 - 31, u'x'));
        VTLog::appendLog("ab");
        VTLog::finishWriting();
        QCOMPARE(VTLog::sharedController().bytesWritten(), 499'999u);
        VTLog::appendLog("over");
        VTLog::appendLog("next");
        VTLog::finishWriting();
        QCOMPARE(messagesOf(current()), QStringList({"Log truncated at 500KB", "next"}));
        if (!platform::isSuperUser())
            QCOMPARE(messagesOf(generation(2)).mid(5), QStringList({"ab", "over"}));
    }

    void losesNoLine()
    {
        if (platform::isSuperUser())
            QSKIP("The super-user keeps no older generation.");
        for (int n = 1; n <= 5; ++n)
            VTLog::createNewLog();
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 8; ++thread) {
            threads.emplace_back([thread] {
                for (int line = 0; line < 2000; ++line)
                    VTLog::appendLog("%d:%d:%@", thread, line, QString(line % 10 == 0 ? 250 : 40, u'x'));
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        VTLog::finishWriting();
        std::array<int, 8> next{};
        for (int n = 5; n >= 1; --n) {
            QStringList messages = messagesOf(generation(n));
            messages.removeAll("Log truncated at 500KB");
            for (const QString &message : std::as_const(messages)) {
                const size_t thread = message.section(':', 0, 0).toUInt();
                QVERIFY2(thread < next.size(), qPrintable(message));
                const int line = next[thread]++;
                QCOMPARE(message,
                         QStringLiteral("%1:%2:").arg(thread).arg(line) + QString(line % 10 == 0 ? 250 : 40, u'x'));
            }
        }
        for (const int count : next)
            QCOMPARE(count, 2000);
        QVERIFY(platform::targetExists(generation(3)));
    }

    /// Eight programs at once, among them some that only ask something, while one runs on: every line is there, whole.
    void severalProgramsShareIt()
    {
        if (platform::isSuperUser())
            QSKIP("The super-user keeps no older generation.");
        constexpr int lines = 1300;
        VTLog::createNewLog();
        VTLog::appendLog("from the one that runs on");
        std::vector<std::unique_ptr<QProcess>> programs;
        for (int i = 0; i < 8; ++i) {
            programs.push_back(std::make_unique<QProcess>());
            programs.back()->start(QCoreApplication::applicationFilePath(),
                                   {"log-many-lines", QString::number(i), QString::number(lines)});
        }
        for (const auto &program : programs)
            QVERIFY(program->waitForFinished() && program->exitCode() == 0);
        VTLog::appendLog("and on");
        QStringList all;
        for (int n = 5; n >= 1; --n) {
            if (platform::targetExists(generation(n)))
                all += messagesOf(generation(n));
        }
        QVERIFY(all.contains("from the one that runs on"));
        QVERIFY(all.contains("and on"));
        std::array<int, 8> next{};
        for (const QString &message : all.filter(QRegularExpression("^P\\d:"))) {
            const size_t program = message.section(':', 0, 0).mid(1).toUInt();
            QCOMPARE(message, QStringLiteral("P%1:%2:").arg(program).arg(next.at(program)++) + QString(60, u'x'));
        }
        for (const int count : next)
            QCOMPARE(count, lines);
        QVERIFY(platform::targetExists(generation(2))); // the limit was met while all wrote
    }

    void canBeSwitchedOff()
    {
        for (const auto &[value, isLogged] : {std::pair{QVariant("1"), false},
                                              {QVariant(true), false},
                                              {QVariant("0"), true},
                                              {QVariant(QVariantList{1}), true}}) {
            const TemporaryHome home;
            writeFile(home.file("Library/Preferences/com.vantrel.global.plist"),
                      platform::writePropertyList(QVariantMap{{"disable-logging", value}}));
            const auto [output, errors] = inAnotherProcess();
            QCOMPARE(output, isLogged ? "one line" : "");
            QCOMPARE(errors.contains("Logging is disabled"), !isLogged);
        }
    }

public:
    static inline QByteArray originalHome;
    static int logOneLine()
    {
        VTLog::createNewLog();
        const qsizetype before = platform::targetExists(current()) ? readFile(current()).size() : 0;
        VTLog::appendLog("one line");
        VTLog::finishWriting();
        const QString line = QString::fromUtf8(readFile(current()).mid(before)).section(" - ", 1).trimmed();
        return platform::writeToStandardOutput(line).ok() ? 0 : 1;
    }
    static int logManyLines(int program, int lines)
    {
        VTLog::createNewLog(QStringLiteral("First"));
        for (int line = 0; line < lines; ++line)
            VTLog::appendLog("P%d:%d:%@", program, line, QString(60, u'x'));
        VTLog::finishWriting();
        return 0;
    }
};

int main(int argc, char **argv)
{
    platform::prepareLocale();
    if (argc == 2 && qstrcmp(argv[1], "log-one-line") == 0)
        return TestLog::logOneLine();
    if (argc == 4 && qstrcmp(argv[1], "log-many-lines") == 0)
        return TestLog::logManyLines(atoi(argv[2]), atoi(argv[3]));
    const TemporaryHome home;
    TestLog::originalHome = qgetenv("HOME");
    const QCoreApplication application(argc, argv);
    TestLog test;
    return QTest::qExec(&test, argc, argv);
}
#include "platform/base/System.h"
#include "test_log.moc"

// The log: its header, its entries, its generations; which lines are on disk at once; many writers at once.
#include "platform/Console.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"
#include "platform/Users.h"
#include "support/TemporaryHome.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <thread>

namespace {

const QString date = QStringLiteral("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d [+-]\\d{4}");

QString current()
{
    return VTLog::sharedController().currentLogPath();
}

QString generation(int n)
{
    return QString(current()).replace(".1.log", QStringLiteral(".%1.log").arg(n));
}

QStringList linesOf(const QString &path)
{
    QStringList lines = QString::fromUtf8(readFile(path)).split(u'\n');
    lines.removeLast();
    return lines;
}

/// The messages of a file without header and dates; what has another form stays whole.
QStringList messagesOf(const QString &path)
{
    static const QRegularExpression entry("^" + date + " - (.*)$");
    QStringList messages;
    for (const QString &line : linesOf(path).mid(5)) {
        const auto match = entry.match(line);
        messages.append(match.hasMatch() ? match.captured(1) : line);
    }
    return messages;
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

    void keepsTheFirstName()
    {
        VTLog::createNewLog("Second");
        VTLog::appendLog("entry");
        QVERIFY(current().endsWith("/Logs/Vantrel/First.1.log"));
        QCOMPARE(messagesOf(current()), QStringList{"entry"});
        QCOMPARE(platform::kindOf(QString(current()).replace("First", "Second")), platform::FileKind::Missing);
    }

    void beginsWithAHeader()
    {
        VTLog::createNewLog();
        const QStringList header = linesOf(current());
        QCOMPARE(header.size(), 5);
        const QStringList forms{"Log started: " + date, "Version: 2\\.0\\.0", "Path: /.*/test_log",
                                "System: .+, \\d+ CPU\\(s\\), \\d+\\.\\d\\d GB RAM", "Running in (64|32)-bit mode"};
        for (int i = 0; i < 5; ++i)
            QVERIFY2(QRegularExpression("^" + forms[i] + "$").match(header[i]).hasMatch(), qPrintable(header[i]));
    }

    void writesEntries_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("written");
        QTest::newRow("trimmed") << " \t\n a b \r\n"
                                 << "a b";
        QTest::newRow("line ends inside") << "a\n\nb\r\nc"
                                          << "a\n\nb\r\nc";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("white space only") << " \n\t"
                                          << "";
        QTest::newRow("percent") << "100% %@ %d"
                                 << "100% %@ %d";
        QTest::newRow("not ASCII") << QStringLiteral("\u00E4 \U0001F600") << QStringLiteral("\u00E4 \U0001F600");
        QTest::newRow("name that is no UTF-8") << platform::fromNative("a\xFF") << QStringLiteral("a\uFFFD");
    }
    void writesEntries()
    {
        QFETCH(QString, message);
        QFETCH(QString, written);
        VTLog::createNewLog();
        const qsizetype headerSize = readFile(current()).size();
        VTLog::appendLog("%@", message);
        VTLog::finishWriting();
        const QByteArray entry = readFile(current()).mid(headerSize);
        const QRegularExpression form("^" + date + " - " + QRegularExpression::escape(written) + "\n\\z");
        QVERIFY2(form.match(QString::fromUtf8(entry)).hasMatch(), entry.constData());
        QCOMPARE(VTLog::sharedController().bytesWritten(), static_cast<quint64>(entry.size()));
        QCOMPARE(VTLog::sharedController().bytesInQueue(), 0u);
    }

    void formatsASecondTimeWhenItPrints()
    {
        VTLog::createNewLog();
        VTLog::appendLog(QString()); // no format, no entry
        VTLog::appendLogAndPrint(" %@\n", "50%@ done");
        VTLog::finishWriting();
        QCOMPARE(messagesOf(current()), QStringList{"50(null) done"});
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
        for (int round = 0; round < 500; ++round) {
            VTLog::finishWriting();
            VTLog::appendLog("%@", QString(100, u'x'));
            pending += VTLog::sharedController().bytesInQueue() > 0;
        }
        QVERIFY2(pending > 0, "Messages of 100 characters were waited for");
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
            return; // its current file lies beside no generations
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

    /// 16,000 lines by eight threads, some waited for, some not, through several generations.
    void losesNoLine()
    {
        if (platform::isSuperUser())
            return; // keeps no older generation
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
        int next[8] = {};
        static const QRegularExpression form("^([0-7]):(\\d+):x+$");
        for (int n = 5; n >= 1; --n) {
            const QStringList messages = messagesOf(generation(n));
            for (qsizetype i = 0; i < messages.size(); ++i) {
                if (i == 0 && messages[0] == "Log truncated at 500KB")
                    continue;
                const auto match = form.match(messages[i]);
                QVERIFY2(match.hasMatch(), qPrintable(messages[i]));
                QCOMPARE(match.captured(2).toInt(), next[match.captured(1).toInt()]++);
                QCOMPARE(match.captured(0).size() - match.captured(0).lastIndexOf(u':') - 1,
                         match.captured(2).endsWith('0') ? 250 : 40);
            }
        }
        for (const int count : next)
            QCOMPARE(count, 2000);
        QVERIFY(platform::targetExists(generation(3)));
        QCOMPARE(VTLog::sharedController().bytesInQueue(), 0u);
    }

    /// The switch is read once in a process, so each value has its own.
    void canBeSwitchedOff_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("isLogged");
        QTest::newRow("text 1") << QVariant("1") << false;
        QTest::newRow("true") << QVariant(true) << false;
        QTest::newRow("number 1") << QVariant(1) << false;
        QTest::newRow("text 0") << QVariant("0") << true;
        QTest::newRow("text yes") << QVariant("yes") << true;
        QTest::newRow("false") << QVariant(false) << true;
        QTest::newRow("number 0") << QVariant(0) << true;
        QTest::newRow("list") << QVariant(QVariantList{1}) << true;
    }
    void canBeSwitchedOff()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, isLogged);
        const TemporaryHome home;
        writeFile(home.file("Library/Preferences/com.vantrel.global.plist"),
                  platform::writePropertyList(QVariantMap{{"disable-logging", value}}));
        const auto [output, errors] = inAnotherProcess();
        QCOMPARE(output, isLogged ? "one line" : "");
        QCOMPARE(errors.contains("Logging is disabled"), !isLogged);
    }

    void saysWhatItCouldNotWrite()
    {
        if (platform::isSuperUser())
            return; // its log lies in the machine's own library
        const TemporaryHome home;
        writeFile(home.file("Library/Logs"));
        const QByteArrayList lines = inAnotherProcess().second.split('\n');
        QVERIFY(lines.value(0).endsWith("Unable to create folder " + home.path().toUtf8() + "/Library/Logs/Vantrel."));
        QVERIFY(lines.value(1).endsWith("Unable to log the following information: one line"));
        QVERIFY(lines.value(2).endsWith("Unable to open log for output"));
    }

public:
    static inline QByteArray originalHome;
    static int logOneLine()
    {
        VTLog::createNewLog();
        const qsizetype before = platform::targetExists(current()) ? readFile(current()).size() : 0;
        VTLog::appendLog("one line");
        VTLog::finishWriting();
        platform::writeToStandardOutput(QString::fromUtf8(readFile(current()).mid(before)).section(" - ", 1).trimmed());
        return 0;
    }
};

int main(int argc, char **argv)
{
    platform::prepareLocale();
    if (argc == 2 && qstrcmp(argv[1], "log-one-line") == 0)
        return TestLog::logOneLine();
    const TemporaryHome home;
    TestLog::originalHome = qgetenv("HOME");
    const QCoreApplication application(argc, argv);
    TestLog test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_log.moc"

// Where the program is started: without descriptors, home, bus or display, in other locales and at other times, and
// with a share that does not answer any more.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTest>
#include <unistd.h>

class TestSurroundings : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;

    QString home(const QString &path) const { return m_home->filePath(path); }
    static QString program() { return QCoreApplication::applicationDirPath() + "/Tessaro"; }
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home->path());
        environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
        for (const char *variable : {"XDG_DATA_HOME", "TZ", "LC_ALL"})
            environment.remove(variable);
        return environment;
    }
    /// The words stand in "$@".
    int runIn(const QString &shell, const QStringList &words, QByteArray *said = nullptr) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("/bin/sh", QStringList{"-c", shell, "sh", program()} + words);
        if (!process.waitForFinished(60'000))
            return -1;
        if (said)
            *said = process.readAll();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    }
    QStringList create(const QString &name) const
    {
        return {"create", "--template", "Film", "--in", home("Projects"), "--set", "Name=" + name};
    }
    bool isWhole(const QString &name) const
    {
        const QString project = home("Projects/" + name);
        return platform::listFolder(project).valueOr({}).size() == 3 && readFile(project + "/a") == "a" &&
               readFile(project + "/b").isEmpty() && readFile(project + "/Sub/" + name + ".txt") == "Sub/Template.txt";
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        const QString files = home("Library/Application Support/Vantrel/Tessaro/Templates/Film.tzt/Files/");
        for (const char *file : {"Sub/Template.txt", "a"})
            writeFile(files + file, file);
        writeFile(files + "b");
        QVERIFY(platform::makeFolders(home("Projects")).ok());
        const QVariantList list{QVariantMap{{"title", "Name"}}};
        writeFile(home("Library/Preferences/com.vantrel.Tessaro.plist"),
                  platform::writePropertyList(
                      QVariantMap{{"filenameTemplate", list}, {"firstRun", false}, {"autoOpenFolder", 0}}));
    }

    void aProjectIsMade_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<bool>("isSaid"); // that something is amiss: then the project is made all the same
        QTest::newRow("no standard input") << "exec \"$@\" <&-" << false;
        QTest::newRow("no standard output") << "exec \"$@\" >&-" << true;
        QTest::newRow("no standard error") << "exec \"$@\" 2>&-" << false;
        QTest::newRow("none of the three") << "exec \"$@\" <&- >&- 2>&-" << true;
        QTest::newRow("a full standard output") << "exec \"$@\" >/dev/full" << true;
        QTest::newRow("no bus") << "DBUS_SESSION_BUS_ADDRESS=disabled: exec \"$@\"" << false;
        QTest::newRow("a bus that is gone") << "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere exec \"$@\"" << false;
        QTest::newRow("no display") << "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; exec \"$@\"" << false;
        QTest::newRow("a locale without UTF-8") << "LC_ALL=C exec \"$@\"" << false;
        QTest::newRow("a locale that is not there") << "LC_ALL=de_DE.ISO-8859-1 exec \"$@\"" << false;
        QTest::newRow("an empty environment") << "exec env -i HOME=\"$HOME\" \"$@\"" << false;
        QTest::newRow("ignored signals") << "trap '' PIPE CHLD TERM HUP; exec \"$@\"" << false;
        QTest::newRow("a folder that is gone")
            << "mkdir -p \"$HOME/x\"; cd \"$HOME/x\"; rmdir \"$HOME/x\"; exec \"$@\"" << false;
    }
    void aProjectIsMade()
    {
        QFETCH(QString, shell);
        QFETCH(bool, isSaid);
        const QString name = QStringLiteral("F\u00e9te \u6620\u753b \U0001F3AC");
        QByteArray said;
        const int status = runIn(shell, create(name), &said);
        QVERIFY2(isWhole(name), said.constData());
        QVERIFY2((status == 0) != isSaid, said + QByteArray::number(status));
        for (const auto &file : *platform::listFolder(home("Library/Logs/Vantrel")))
            QVERIFY(!readFile(home("Library/Logs/Vantrel/" + file.name)).contains("\n" + home("Projects").toUtf8()));
    }

    void withoutAHome()
    {
        QByteArray said;
        QVERIFY(runIn("unset HOME; exec \"$@\"", {"templates"}, &said) >= 0);
        if (geteuid() == 0)
            QSKIP("Root writes everywhere");
        QVERIFY(QFile::setPermissions(home("Library/Preferences"), QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(QFile::setPermissions(home("Library/Application Support"), QFile::ReadOwner | QFile::ExeOwner));
        const int status = runIn("exec \"$@\"", create("Quiet"), &said);
        QVERIFY2(isWhole("Quiet"), said + QByteArray::number(status));
        QFile::setPermissions(home("Library/Preferences"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile::setPermissions(home("Library/Application Support"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void otherTimes_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<qint64>("now");
        QTest::addColumn<QString>("date");
        QTest::newRow("leap day") << "UTC" << 1835438400LL << "2028-02-29";
        QTest::newRow("a second before midnight, by three quarters of an hour")
            << "XXX-5:45" << 1795371299LL << "2026-11-22";
        QTest::newRow("at midnight there") << "XXX-5:45" << 1795371300LL << "2026-11-23";
        QTest::newRow("the clock set back") << "UTC" << 915148800LL << "1999-01-01";
        QTest::newRow("behind the end of 32 bits") << "UTC" << 4102444800LL << "2100-01-01";
        QTest::newRow("before 1970") << "UTC" << -86400LL << "1969-12-31";
    }
    void otherTimes()
    {
        QFETCH(QString, zone);
        QFETCH(qint64, now);
        QFETCH(QString, date);
        const QVariantList list{QVariantMap{{"title", "Day"}, {"type", 3}}};
        writeFile(home("Library/Preferences/com.vantrel.Tessaro.plist"),
                  platform::writePropertyList(
                      QVariantMap{{"filenameTemplate", list}, {"firstRun", false}, {"autoOpenFolder", 0}}));
        const QString shell = QStringLiteral("TZ=%1 FAULT_NOW=%2 LD_PRELOAD=%3/libtessaro_faults.so exec \"$@\"")
                                  .arg(zone)
                                  .arg(now)
                                  .arg(QCoreApplication::applicationDirPath());
        QByteArray said;
        const QStringList words{"create", "--template", "Film", "--in", home("Projects")};
        QVERIFY2(runIn(shell, words, &said) == 0, said.constData());
        QVERIFY2(isWhole(date), said.constData());
        QVERIFY2(runIn("exec \"$@\"", {"history"}, &said) == 0 && said.contains(date.toUtf8()), said.constData());
        QVERIFY2(runIn("exec \"$@\"", {"undo"}, &said) == 0, said.constData());
        QVERIFY(!platform::targetExists(home("Projects/" + date)));
    }

    /// The fixed folder, the library and a remembered place lie on a share whose server has stopped to answer: the
    /// window is there, and a second start is answered by it.
    void aShareThatHangs()
    {
        const QString share = QCoreApplication::applicationDirPath() + "/tessaro_share";
        if (geteuid() != 0 || !platform::targetExists(share) || !platform::targetExists("/dev/fuse"))
            QSKIP("Only root mounts a share");
        const QString mount = home("share");
        for (const QString &folder : {mount, home("behind/Projects"), home("behind/Library/Far.tzt/Files")})
            QVERIFY(platform::makeFolders(folder).ok());
        QProcess server;
        server.start(share, {home("behind"), mount, "100", home("counts"), home("hang")});
        QTRY_VERIFY(platform::targetExists(mount + "/Projects"));
        writeFile(
            home("Library/Preferences/com.vantrel.Tessaro.plist"),
            platform::writePropertyList(QVariantMap{{"filenameTemplate", QVariantList{QVariantMap{{"title", "Name"}}}},
                                                    {"firstRun", false},
                                                    {"templateLocation", mount + "/Library"},
                                                    {"useFixedProjectLocation", 1},
                                                    {"fixedProjectLocationPath", mount + "/Projects"},
                                                    {"autoOpenFolder", 0}}));
        const auto start = [this] {
            auto process = std::make_unique<QProcess>();
            QProcessEnvironment with = environment();
            with.insert("QT_QPA_PLATFORM", "offscreen");
            if (platform::targetExists(home("hang"))) {
                with.insert("TESSARO_QUIT_AFTER_FIRST_PAINT", "1");
                with.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // the first one may still hold its name
            }
            process->setProcessEnvironment(with);
            process->start(program(), QStringList{});
            return process;
        };
        const auto window = start();
        QVERIFY(window->waitForStarted());
        const auto activate = [](int timeout) {
            QDBusMessage call = QDBusMessage::createMethodCall("com.vantrel.Tessaro", "/com/vantrel/Tessaro",
                                                               "org.freedesktop.Application", "Activate");
            call << QVariantMap();
            return QDBusConnection::sessionBus().call(call, QDBus::Block, timeout).type() == QDBusMessage::ReplyMessage;
        };
        QTRY_VERIFY_WITH_TIMEOUT(activate(1000), 20'000);
        writeFile(home("hang"), "x");
        QTest::qWait(4000); // what the share's client had in mind is forgotten
        const bool isAnswered = activate(15'000);
        window->kill();
        const auto late = start();
        const bool isPainted = late->waitForReadyRead(20'000) || late->state() == QProcess::NotRunning;
        const QByteArray said = late->readAllStandardOutput();
        late->kill();
        QVERIFY(QFile::remove(home("hang")));
        window->waitForFinished();
        late->waitForFinished();
        QProcess::execute("umount", {mount});
        server.waitForFinished();
        QVERIFY2(isAnswered, "the window stands still when the share stops to answer");
        QVERIFY2(isPainted && said.contains("painted"), "no window while the share does not answer");
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestSurroundings)
#include "test_surroundings.moc"

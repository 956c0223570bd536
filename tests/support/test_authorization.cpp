// Administrator rights for real: an ordinary user, polkit, the helper as root, and the effect on disk. The test plays
// the desktop's password dialog and nothing else. Runs in the world that with-polkit.sh makes.
#include "harness/HeldFile.h"
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/process/RightsHelper.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

struct Subject
{
    QString kind;
    QVariantMap details;
};
Q_DECLARE_METATYPE(Subject)
Q_DECLARE_METATYPE(QList<Subject>)

QDBusArgument &operator<<(QDBusArgument &argument, const Subject &subject)
{
    argument.beginStructure();
    argument << subject.kind << subject.details;
    argument.endStructure();
    return argument;
}
const QDBusArgument &operator>>(const QDBusArgument &argument, Subject &subject)
{
    argument.beginStructure();
    argument >> subject.kind >> subject.details;
    argument.endStructure();
    return argument;
}

namespace {

const QString library = QStringLiteral("/run/studio/library");

/// The desktop's password dialog, with a person before it who types, dismisses it, or takes a while.
class Dialog : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PolicyKit1.AuthenticationAgent")

public:
    std::atomic<int> asked = 0;
    std::atomic<bool> isDismissed = false;
    std::atomic<int> thinksFor = 0; ///< milliseconds
    QByteArray password;            ///< set while nobody is asked

    Dialog()
    {
        qDBusRegisterMetaType<Subject>();
        qDBusRegisterMetaType<QList<Subject>>();
        qDBusRegisterMetaType<QMap<QString, QString>>();
        moveToThread(&m_thread);
        m_thread.start();
    }
    ~Dialog() override
    {
        m_thread.quit();
        m_thread.wait();
    }
    bool open(bool opened)
    {
        bool good = false;
        QMetaObject::invokeMethod(
            this, [&] { good = enlist(opened); }, Qt::BlockingQueuedConnection);
        return good;
    }

public Q_SLOTS:
    void BeginAuthentication(const QString &, const QString &, const QString &, const QMap<QString, QString> &,
                             const QString &cookie, const QList<Subject> &)
    {
        ++asked;
        QThread::msleep(static_cast<unsigned long>(thinksFor.load()));
        if (isDismissed)
            return sendErrorReply("org.freedesktop.PolicyKit1.Error.Cancelled", "dismissed");
        QProcess helper;
        helper.start("/usr/lib/polkit-1/polkit-agent-helper-1", {"administrator"});
        helper.write(cookie.toUtf8() + '\n' + password + '\n');
        helper.waitForFinished();
    }
    void CancelAuthentication(const QString &) {}

private:
    bool enlist(bool opened)
    {
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "dialog");
        if (opened)
            bus.registerObject("/dialog", this, QDBusConnection::ExportAllSlots);
        else
            bus.unregisterObject("/dialog");
        QFile stat("/proc/self/stat");
        static_cast<void>(stat.open(QIODevice::ReadOnly));
        const QByteArray fields = stat.readAll();
        const quint64 start = fields.mid(fields.lastIndexOf(')') + 2).split(' ').value(19).toULongLong();
        const Subject self{
            "unix-process",
            {{"pid", uint(getpid())}, {"start-time", QVariant::fromValue(start)}, {"uid", int(getuid())}}};
        auto call =
            QDBusMessage::createMethodCall("org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
                                           "org.freedesktop.PolicyKit1.Authority",
                                           opened ? "RegisterAuthenticationAgent" : "UnregisterAuthenticationAgent");
        call << QVariant::fromValue(self);
        if (opened)
            call << QString("C");
        call << QString("/dialog");
        return bus.call(call).type() == QDBusMessage::ReplyMessage;
    }

    QThread m_thread;
};

VTAuthorization &rights()
{
    return VTAuthorization::sharedController();
}

uid_t ownerOf(const QString &path)
{
    struct stat info
    {
    };
    return lstat(path.toUtf8(), &info) == 0 ? info.st_uid : uid_t(-1);
}

QByteArray log()
{
    VTLog::finishWriting();
    return readFile(VTLog::sharedController().currentLogPath());
}

int processesNamed(const QByteArray &name)
{
    QProcess list;
    list.start("/bin/sh", {"-c", "cat /proc/[0-9]*/comm"});
    list.waitForFinished();
    return static_cast<int>(list.readAll().split('\n').count(name));
}

} // namespace

class TestAuthorization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(getuid() != 0 && QFile::exists(library), "Runs in the world of with-polkit.sh");
        static_cast<void>(m_home.file("Library/Logs/x")); // makes the log's folder
        VTLog::createNewLog();
    }
    void init()
    {
        m_dialog.isDismissed = false;
        m_dialog.thinksFor = 0;
        m_dialog.password = "right one";
        m_dialog.asked = 0;
    }
    void cleanup()
    {
        rights().authEnd();
        QCOMPARE(prctl(PR_GET_DUMPABLE), 1);
        static_cast<void>(m_dialog.open(false));
        QTRY_COMPARE(processesNamed("tessaro-helper"), 0);
    }

    /// Run a first time before there is a system bus.
    void hasNobodyToAsk()
    {
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!rights().authStart());
        QVERIFY(!rights().authStartWithUser("administrator", QString()));
        QCOMPARE(rights().authExecTask("/bin/mkdir", {"-p", library + "/x"}), VTAuthorization::noRights);
        QCOMPARE(rights().authExecTask("/bin/no-such-tool", {}), VTAuthorization::toolMissing);
        QVERIFY(!rights().isAuthorized() && rights().canAuthorize());
        QVERIFY2(clock.elapsed() < 30'000, "It hung");
    }

    void aRefusalIsNoAnswerForEver()
    {
        QVERIFY(m_dialog.open(true));
        m_dialog.isDismissed = true;
        QVERIFY(!rights().authCreateDir(library + "/dismissed"));
        QVERIFY(rights().wasDismissed());
        m_dialog.isDismissed = false;
        m_dialog.password = "wrong one";
        QVERIFY(!rights().authCreateDir(library + "/wrong"));
        QVERIFY(!rights().wasDismissed());
        QCOMPARE(QDir(library).entryList({"dismissed", "wrong"}), QStringList());
        m_dialog.password = "right one";
        QVERIFY(rights().authCreateDir(library + "/made"));
        QVERIFY(rights().lastToolSucceeded());
        QCOMPARE(m_dialog.asked, 3);
        QCOMPARE(ownerOf(library + "/made"), 0u);
        // Asked once, for all that follows.
        QVERIFY(rights().authCreateDir(library + "/made/deeper/still"));
        QVERIFY(rights().lastToolSucceeded());
        QVERIFY(rights().isAuthorized());
        QCOMPARE(m_dialog.asked, 3);
        QCOMPARE(prctl(PR_GET_DUMPABLE), 0);
        rights().authEnd();
        QVERIFY(!rights().isAuthorized());
        QVERIFY(rights().authStart());
        QCOMPARE(m_dialog.asked, 4);
    }

    void operationsTakeEffect()
    {
        QVERIFY(m_dialog.open(true));
        const QString folder = library + "/" + QUuid::createUuid().toString(QUuid::WithoutBraces);
        const QString source = m_home.file(QString::fromUtf8("Zä 'x'\n $(id) 😀"));
        writeFile(source, "mine");
        QVERIFY(VTFileManager::createDirectory(folder, std::chrono::seconds(5)));
        QVERIFY(VTFileManager::copyFile(source, folder + "/copy", std::chrono::seconds(5)));
        QCOMPARE(readFile(folder + "/copy"), "mine");
        QCOMPARE(ownerOf(folder + "/copy"), 0u); // the place's
        QVERIFY(VTFileManager::moveFile(source, folder + "/moved", std::chrono::seconds(5)));
        QVERIFY(!QFile::exists(source));
        QVERIFY(VTFileManager::removeFile(folder + "/copy", std::chrono::seconds(5)));
        QVERIFY(VTFileManager::trashFile(folder + "/moved", std::chrono::seconds(5)));
        QCOMPARE(readFile(VTLocalPaths::trashDirectory() + "/moved"), "mine");
        QVERIFY(readFile(VTLocalPaths::trashDirectory() + "/../info/moved.trashinfo")
                    .contains("\nPath=" + folder.toUtf8() + "/moved\n"));
        QVERIFY(VTFileManager::touchFile(library + "/theirs.txt"));
        QCOMPARE(m_dialog.asked, 1);

        QVERIFY(VTFileManager::createDirectory(folder + "/a/b"));
        QVERIFY(rights().authMoveFolderContents(folder, library));
        QTRY_VERIFY(QFile::exists(library + "/a/b"));
        QVERIFY(rights().authTrashFolderContents(library + "/a"));
        QTRY_VERIFY(!QFile::exists(library + "/a/b"));
        // What the tool could not do is not called a success, and the log says why.
        QVERIFY(!VTFileManager::moveFile(library + "/missing", library + "/x"));
        QVERIFY(!rights().authMoveFile(library + "/missing", library + "/x"));
        QVERIFY(rights().authMoveFile(library + "/theirs.txt", "/run/studio/none/x") == false);
        QVERIFY(rights().authCreateDir(library + "/theirs.txt"));
        QVERIFY(!rights().lastToolSucceeded());
        QTRY_VERIFY(log().contains("Administrator tool /bin/mkdir failed (1): /bin/mkdir: "
                                   "/run/studio/library/theirs.txt: Not a directory"));
    }

    void nothingIsAskedWhereItWouldNotHelp()
    {
        QVERIFY(m_dialog.open(true));
        writeFile(m_home.file("a/x"), "a");
        writeFile(m_home.file("b/x"), "b");
        QVERIFY(!VTFileManager::copyFile(m_home.file("a"), m_home.file("b")));
        QVERIFY(!VTFileManager::copyFile(m_home.file("a/x"), m_home.path() + '/' + QString(300, 'n')));
        QVERIFY(!VTFileManager::createDirectory(library + "/none", ShouldAuth::No));
        // System folders are refused before anybody is asked.
        QVERIFY(!rights().authRemoveFile(m_home.path()));
        QVERIFY(!rights().authTrashFile(m_home.path()));
        QVERIFY(!rights().authMoveFolderContents(m_home.path(), library));
        QCOMPARE(m_dialog.asked, 0);
        QVERIFY(rights().authStart()); // and by the helper itself, whoever asks
        const auto handle = rights().authRef();
        for (const char *path : {"/etc/../etc", "/usr/", "/home", "/run/home/editor"})
            QCOMPARE(handle->run("/bin/rm", {"-Rdf", path}).error, EPERM);
        QCOMPARE(handle->run("/bin/sh", {"-c", "id"}).error, EACCES);
        QVERIFY(QFile::exists("/usr/bin/env"));
    }

    /// A drive without a place for a Trash: the item is put beside, whole, and nobody is asked for a password.
    void trashesFromAwkwardDrives()
    {
        QVERIFY(m_dialog.open(true));
        writeFile("/run/drive/mine/there.txt", "there");
        for (const char *path : {"/run/drive/mine/there.txt", "/run/full/last.txt"}) {
            const QByteArray contents = readFile(path);
            QVERIFY(VTFileManager::trashFile(path));
            QVERIFY(!QFile::exists(path));
            const QFileInfo info(path);
            const QString onDrive = info.path() + "/.Trash-" + QString::number(getuid()) + "/files/" + info.fileName();
            const QStringList beside = info.dir().entryList({info.baseName() + " (*).txt"});
            QVERIFY(QFile::exists(onDrive) || beside.size() == 1);
            QCOMPARE(readFile(QFile::exists(onDrive) ? onDrive : info.dir().filePath(beside[0])), contents);
        }
        QCOMPARE(m_dialog.asked, 0);
    }

    /// Someone waits for the dialog to plant a link where root is about to write.
    void plantedLinksAreNotFollowed()
    {
        QVERIFY(m_dialog.open(true));
        writeFile(m_home.file("src/secret"), "evil");
        QCOMPARE(chmod(m_home.file("src/secret").toUtf8(), 0), 0);
        const QString planted = m_home.file("planted/target");
        m_dialog.thinksFor = 100;
        QTimer::singleShot(50, this, [&] { QCOMPARE(symlink("/run/studio/library/theirs.txt", planted.toUtf8()), 0); });
        QVERIFY(!VTFileManager::copyFile(m_home.file("src/secret"), planted));
        QCOMPARE(readFile(library + "/theirs.txt"), "root's own\n");
        QCOMPARE(ownerOf(library + "/theirs.txt"), 0u);
    }

    void theWindowLivesWhileSomeoneThinks()
    {
        QVERIFY(m_dialog.open(true));
        m_dialog.thinksFor = 500;
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
        timer.start(10);
        QVERIFY(rights().authStart());
        QVERIFY2(ticks >= 10, qPrintable(QString::number(ticks)));
    }

    void givenNameAndPassword()
    {
        QVERIFY(!rights().authStartWithUser("administrator", "wrong secret"));
        QVERIFY(!rights().authStartWithUser("editor", "their own")); // right, but no administrator
        QVERIFY(!rights().authStartWithUser("nobody at all", "right one"));
        QVERIFY(!rights().isAuthorized());
        QVERIFY(rights().authStartWithUser("administrator", "right one"));
        QVERIFY(rights().authCreateDir(library + "/by name"));
        QVERIFY(rights().lastToolSucceeded());
        QCOMPARE(ownerOf(library + "/by name"), 0u);
        QCOMPARE(log().count("Authorization failed. Invalid username or password"), 3);
        QVERIFY(!log().contains("right one") && !log().contains("wrong secret"));
    }

    void theEndEndsTheTool()
    {
        QVERIFY(m_dialog.open(true));
        const HeldFile held(m_home.file("held"));
        QVERIFY(held.isHeld);
        QVERIFY(rights().authCopyFile(m_home.file("held"), library + "/held"));
        QTRY_COMPARE(processesNamed("tessaro-cp"), 1);
        QVERIFY(rights().authCreateDir(library + "/meanwhile")); // one tool does not wait for another
        QVERIFY(rights().lastToolSucceeded());
        rights().authEnd();
        QTRY_COMPARE(processesNamed("tessaro-cp"), 0);
        QCOMPARE(readFile(library + "/held"), QByteArray());
        QVERIFY(log().contains("Administrator tool /bin/cp failed"));
    }

    /// A guarded edit while an import copies with the rights that it was given.
    void askingAfreshEndsNoTool()
    {
        QVERIFY(m_dialog.open(true));
        for (const bool isRefused : {false, true}) {
            const HeldFile held(m_home.file("held"));
            const QString copy = library + (isRefused ? "/whole, refused" : "/whole");
            QVERIFY(rights().authCopyFile(m_home.file("held"), copy));
            QTRY_COMPARE(processesNamed("tessaro-cp"), 1);
            m_dialog.isDismissed = isRefused;
            QCOMPARE(rights().authAfresh(), !isRefused);
            QCOMPARE(rights().isAuthorized(), !isRefused);
            QCOMPARE(processesNamed("tessaro-cp"), 1);
            held.letGo();
            QVERIFY(rights().lastToolSucceeded());
            QCOMPARE(readFile(copy), readFile(m_home.file("held")));
            QTRY_COMPARE(processesNamed("tessaro-helper"), isRefused ? 0 : 1);
        }
    }

    void aHelperThatIsKilledIsNoticed()
    {
        QVERIFY(m_dialog.open(true));
        const HeldFile held(m_home.file("held"));
        QVERIFY(rights().authCopyFile(m_home.file("held"), library + "/cut"));
        QProcess kill; // as root: nobody else may
        kill.start("/usr/bin/pkexec", {"/usr/bin/pkill", "-KILL", "tessaro-helper"});
        QVERIFY(kill.waitForFinished());
        QCOMPARE(kill.exitCode(), 0);
        QVERIFY(!rights().lastToolSucceeded());
        QTRY_VERIFY(!rights().isAuthorized());
        held.letGo();
        const int asked = m_dialog.asked;
        QVERIFY(rights().authCreateDir(library + "/after"));
        QVERIFY(rights().lastToolSucceeded());
        QCOMPARE(m_dialog.asked, asked + 1);
    }

private:
    Dialog m_dialog;
    TemporaryHome m_home; ///< one for all: the log opens its file once
};

TESSARO_TEST_MAIN(QCoreApplication, TestAuthorization)
#include "test_authorization.moc"

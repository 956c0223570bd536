// The standard folders, whose they are, and the guard around them.
#include "platform/Desktop.h"
#include "platform/Users.h"
#include "support/TemporaryHome.h"
#include "support/VTLocalPaths.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>
#include <pwd.h>

using Domain = VTLocalPaths::Domain;

namespace {
constexpr uint consoleUser = 65534; // there on every machine, with a home below no guarded folder
}

class TestLocalPaths : public QObject
{
    Q_OBJECT

    /// "~" in a row stands for the home of the user at the console, who is not the super-user who was lent the rights.
    static QString expanded(const QString &path)
    {
        const QString home =
            platform::isSuperUser() ? QString::fromUtf8(getpwuid(consoleUser)->pw_dir) : qEnvironmentVariable("HOME");
        return path.startsWith(u'~') ? home + path.mid(1) : path;
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Whoever called sudo sits at the console where no login service runs.
        qputenv("SUDO_UID", QByteArray::number(consoleUser));
        if (platform::isSuperUser() &&
            VTLocalPaths::currentConsoleUser() != QString::fromUtf8(getpwuid(consoleUser)->pw_name))
            QFAIL("A login service is running: these tests are for machines without a screen");
    }

    void knowsTheFolders_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("local");
        const auto row = [](const char *expectedUser, const char *expectedLocal, auto folder) {
            QTest::newRow(expectedUser) << folder(Domain::User) << folder(Domain::Local);
            QTest::newRow(expectedLocal) << folder(Domain::Local) << QString();
        };
        row("~/Applications", "/Applications", VTLocalPaths::applicationDirectory);
        row("~/Applications/Utilities", "/Applications/Utilities", VTLocalPaths::adminApplicationDirectory);
        row("~/Library", "/Library", VTLocalPaths::libraryDirectory);
        row("~/Library/Preferences", "/Library/Preferences", VTLocalPaths::prefsDirectory);
        row("~/Library/Caches", "/Library/Caches", VTLocalPaths::cacheDirectory);
        row("~/Library/Application Support", "/Library/Application Support", VTLocalPaths::appSupportDirectory);
        row("~/Library/Logs", "/Library/Logs", VTLocalPaths::logDirectory);
        QTest::newRow("~/Documents") << VTLocalPaths::documentDirectory(Domain::User) << QString();
        QTest::newRow("~/Desktop") << VTLocalPaths::desktopDirectory() << QString();
        QTest::newRow("~/Movies") << VTLocalPaths::movieDirectory() << QString();
        QTest::newRow("~") << VTLocalPaths::userDirectory() << QString();
        QTest::newRow("/System/Library") << VTLocalPaths::systemLibraryDirectory() << QString();
        QTest::newRow("/Library/Documentation") << VTLocalPaths::localDocumentationDirectory() << QString();
    }
    void knowsTheFolders()
    {
        QFETCH(QString, user);
        QCOMPARE(user, expanded(QTest::currentDataTag()));
        QVERIFY(VTLocalPaths::documentDirectory(Domain::Local).isNull());
    }

    void namesTheUser()
    {
        QCOMPARE(VTLocalPaths::username(),
                 platform::isSuperUser() ? VTLocalPaths::currentConsoleUser() : platform::loginName());
        QSet<QString> names;
        for (int i = 0; i < 1000; ++i)
            names.insert(VTLocalPaths::tempFile());
        QCOMPARE(names.size(), 1000);
        QVERIFY(names.constBegin()->startsWith(VTLocalPaths::tempDirectory() + u'/'));
    }

    void guardsTheStandardFolders_data()
    {
        QTest::addColumn<bool>("guarded");
        QTest::addColumn<bool>("guardedExactly");
        for (const char *both : {"/",
                                 "~",
                                 "~/Desktop",
                                 "~/Documents",
                                 "~/Library",
                                 "~/Library/Application Support",
                                 "~/Applications/Utilities",
                                 "/Library/Documentation",
                                 "/System/Library",
                                 "/Users/Shared",
                                 "/Volumes",
                                 "/home",
                                 "/etc",
                                 "/bin",
                                 "/root",
                                 "/tmp",
                                 "/usr",
                                 "/var",
                                 "/boot",
                                 "/mnt"})
            QTest::newRow(both) << true << true;
        for (const char *below : {"/usr/local/bin", "/usrlocal", "/various", "/private/var/x", "/private/various",
                                  "/System/Library/Fonts", "/System", "/var/x/"})
            QTest::newRow(below) << true << false;
        // The last two characters of a path that ends in "/" do not count: "/Applications/" is "/Applicatio".
        for (const char *free : {"", "/a", "a", "//", "/Applications/", "~/", "~/Desktop/", "/usr/", "/Volumes/Disk",
                                 "/Users", "/Users/Shared/x", "~/Desktop/x", "/volumes", "/homes", "/etc/x", "usr/x"})
            QTest::newRow(free) << false << false;
        QTest::newRow("/Volumesx/") << true << true;
        QTest::newRow("/Systemx/") << true << false;
    }
    void guardsTheStandardFolders()
    {
        const QString path = expanded(QTest::currentDataTag());
        QTEST(VTLocalPaths::isPathSystemDirectory(path), "guarded");
        QTEST(VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact), "guardedExactly");
    }

    void knowsBackupVolumes_data()
    {
        QTest::addColumn<bool>("isBackup");
        QTest::newRow("/Volumes/Backup/Backups.backupdb/Mac") << true;
        QTest::newRow("/Volumes/Backups.backupdb") << true;
        QTest::newRow("/Users/x/Backups.backupdb") << false;
        QTest::newRow("/Volumes/Backup/Backups.backupdb2/Mac") << false;
        QTest::newRow("/Volumes/Backup/My Backups.backupdb") << false;
        QTest::newRow("/x/Volumes/Backups.backupdb") << false;
    }
    void knowsBackupVolumes() { QTEST(VTLocalPaths::isPathOnTimeMachineVolume(QTest::currentDataTag()), "isBackup"); }
};

TESSARO_TEST_MAIN(QCoreApplication, TestLocalPaths)
#include "test_local_paths.moc"

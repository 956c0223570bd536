// The user at the console, and the guard around the standard folders.
#include "harness/TemporaryHome.h"
#include "platform/base/Users.h"
#include "platform/desktop/Desktop.h"
#include "support/VTLocalPaths.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>
#include <pwd.h>

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

    /// A folder of the super-user's is one of the console user's, cut off as it always was.
    void redirectsTheSuperUsersFolders_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("folder");
        QTest::newRow("in the home") << "$HOME/Desk"
                                     << "~/Desk";
        QTest::newRow("by the older name") << "/var/root/Desk"
                                           << "~/Desk";
        QTest::newRow("by the older name in full") << "/private/var/root/Desk"
                                                   << "~/t/Desk";
    }
    void redirectsTheSuperUsersFolders()
    {
        if (!platform::isSuperUser())
            QSKIP("Only the super-user's folders are redirected.");
        QFETCH(QString, chosen);
        QFETCH(QString, folder);
        writeFile(qEnvironmentVariable("HOME") + "/.config/user-dirs.dirs",
                  "XDG_DESKTOP_DIR=\"" + chosen.toUtf8() + "\"\n");
        const QString desktop = VTLocalPaths::desktopDirectory();
        QVERIFY(QFile::remove(qEnvironmentVariable("HOME") + "/.config/user-dirs.dirs"));
        QCOMPARE(desktop, expanded(folder));
    }

    void guardsTheStandardFolders()
    {
        const auto guard = [](const char *path) {
            return QPair(VTLocalPaths::isPathSystemDirectory(expanded(path)),
                         VTLocalPaths::isPathSystemDirectory(expanded(path), VTLocalPaths::Match::Exact));
        };
        for (const char *both :
             {"/", "~", "~/Desktop", "~/Documents", "~/Library/Application Support", "/System/Library", "/Users/Shared",
              "/Volumes", "/home", "/etc", "/root", "/tmp", "/usr", "/var", "/Volumesx/"})
            QVERIFY2(guard(both) == QPair(true, true), both);
        for (const char *below : {"/usr/local/bin", "/usrlocal", "/private/various", "/System/Library/Fonts", "/System",
                                  "/var/x/", "/Systemx/"})
            QVERIFY2(guard(below) == QPair(true, false), below);
        // The last two characters of a path that ends in "/" do not count: "/Applications/" is "/Applicatio".
        for (const char *free : {"", "/a", "//", "/Applications/", "~/", "/usr/", "/Volumes/Disk", "/Users",
                                 "/Users/Shared/x", "~/Desktop/x", "/volumes", "/homes", "/etc/x", "usr/x"})
            QVERIFY2(guard(free) == QPair(false, false), free);
    }

    void knowsBackupVolumes()
    {
        for (const char *path : {"/Volumes/Backup/Backups.backupdb/Mac", "/Volumes/Backups.backupdb"})
            QVERIFY2(VTLocalPaths::isPathOnTimeMachineVolume(path), path);
        for (const char *path : {"/Users/x/Backups.backupdb", "/Volumes/Backup/Backups.backupdb2/Mac",
                                 "/Volumes/Backup/My Backups.backupdb", "/x/Volumes/Backups.backupdb"})
            QVERIFY2(!VTLocalPaths::isPathOnTimeMachineVolume(path), path);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestLocalPaths)
#include "test_local_paths.moc"

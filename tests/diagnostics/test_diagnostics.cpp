// What the maker can find out: the reporter, the updater and the gathered logs, each against a stand-in that the test
// builds.
#include "diagnostics/VTBugReporter.h"
#include "diagnostics/VTSoftwareUpdate.h"
#include "diagnostics/VTTroubleshootingUtils.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/archive/ZipArchive.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "support/AlertPresenter.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using platform::joined;
using platform::kindOf;
using platform::targetExists;
using Domain = VTLocalPaths::Domain;

namespace {

class Messages : public AlertPresenter
{
public:
    QStringList seen;
    void present(const Sheet &sheet, std::function<void(int)> answer) override
    {
        seen << sheet.messageText;
        answer(1);
    }
    void orderOut(const VTAlert *) override {}
};

/// A bundle whose program notes how it was called.
void makeBundle(const QString &path, const QString &version, const QString &notes)
{
    QVariantMap info{{"CFBundleExecutable", "run"}};
    if (!version.isNull())
        info.insert("CFBundleVersion", version);
    writeFile(path + "/Contents/Info.plist", platform::writePropertyList(info));
    writeFile(path + "/Contents/MacOS/run", "#!/bin/sh\necho \"$0 $@\" >>'" + notes.toUtf8() + "'\n");
    chmod((path + "/Contents/MacOS/run").toUtf8(), 0755);
}

QStringList allBelow(const QString &folder, const QString &below = {})
{
    QStringList found;
    for (const auto &entry : platform::listFolder(folder).valueOr({})) {
        const QString name = below.isEmpty() ? entry.name : joined(below, entry.name);
        if (entry.kind == platform::FileKind::Folder)
            found += allBelow(joined(folder, entry.name), name);
        else
            found << name;
    }
    return found;
}

} // namespace

class TestDiagnostics : public QObject
{
    Q_OBJECT

    std::optional<TemporaryHome> m_home;
    Messages m_messages;
    QString m_notes;

    QString home(const QString &path) const { return m_home->file(path); }
    QString report(const QString &folder, const QString &name, int minutesFromNow = 1) const
    {
        const QString path = joined(folder, name);
        writeFile(path, "report");
        const timespec times[2] = {{time(nullptr) + 60L * minutesFromNow, 0},
                                   {time(nullptr) + 60L * minutesFromNow, 0}};
        utimensat(AT_FDCWD, path.toUtf8(), times, 0);
        return path;
    }
    void setGlobal(const QVariantMap &values) const
    {
        writeFile(home("Library/Preferences/com.vantrel.global.plist"), platform::writePropertyList(values));
    }

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_messages.seen.clear();
        VTAlert::setPresenter(&m_messages);
        m_notes = home("notes");
        qputenv("TMPDIR", home("tmp/x").chopped(2).toUtf8());
        qputenv("XDG_DATA_HOME", home(".local/share/x").chopped(2).toUtf8());
    }
    void cleanup()
    {
        VTAlert::setPresenter(nullptr);
        qunsetenv("TMPDIR");
        qunsetenv("XDG_DATA_HOME");
    }

    void findsTheReport()
    {
        const QStringList folders = VTBugReporter::reportFolders();
        const QString record = home("record.plist");
        const auto check = [&] {
            return VTBugReporter::checkForCrashes("Tessaro", record);
        };
        report(folders[0], "Tessaro_1.crash");
        QVERIFY(check().isNull()); // never launched before: nothing to compare with
        writeFile(record, platform::writePropertyList(QVariantMap{{"theirs", 7LL}}));
        VTBugReporter::startBugReporter("Tessaro", record);
        QCOMPARE(platform::readPropertyList(readFile(record))->toMap()["theirs"], QVariant(7LL));
        QCOMPARE(check(), folders[0] + "/Tessaro_1.crash");
        QVERIFY(platform::removeTree(folders[0]).ok());
        report(folders[1], "Tessaro_old.crash", -600);
        report(folders[1], "TessaroOther_2.crash");
        report(folders[1], "Tess_3.crash");
        QVERIFY(check().isNull());
        // The last in listing order counts, whatever its date; letter case does not.
        report(folders[1], "tessaro_a.crash");
        QCOMPARE(check(), QString()); // "Tessaro_old" comes after it and is old
        const QString last = report(folders[1], "TESSARO_z.crash");
        QCOMPARE(check(), last);
        VTBugReporter::stopBugReporter(record);
        QVERIFY(check().isNull()); // ended cleanly
        writeFile(record, "damaged");
        QVERIFY(check().isNull());
    }

    void handsItOver()
    {
        storeSetting("launch", QDateTime::currentDateTimeUtc());
        const QString found = report(VTBugReporter::reportFolders()[1], "Tessaro_2026 x.crash");
        makeBundle(home("Reporter.app"), "1", m_notes);
        writeFile(home(".local/share/applications/com.vantrel.BugReporter.desktop"),
                  "[Desktop Entry]\nType=Application\nName=Reporter\nExec=" +
                      home("Reporter.app/Contents/MacOS/run").toUtf8() + " --open %u\n");
        for (const QVariant &off : {QVariant("1"), QVariant(true), QVariant(1LL)}) {
            setGlobal({{"disable-crash-reporter", off}});
            QString told;
            storeSetting("launch", QDateTime::currentDateTimeUtc());
            VTBugReporter::startBugReporter("Tessaro", {}, [&](const QString &path) { told = path; });
            QVERIFY(told.isNull()); // later, on the main thread
            QTRY_COMPARE(told, found);
        }
        QVERIFY(!targetExists(m_notes));
        setGlobal({{"disable-crash-reporter", "yes"}});
        QCOMPARE(VTBugReporter::checkForCrashes("Tessaro"), found);
        QTRY_VERIFY(readFile(m_notes).endsWith("run --open file://" + found.toUtf8().replace(' ', "%20") + '\n'));
    }

    void aHundredThousandReports()
    {
        const QString folder = VTBugReporter::reportFolders()[0];
        QVERIFY(platform::makeFolders(folder).ok());
        for (int i = 0; i < 100'000; ++i)
            close(open((folder + "/Other_" + QString::number(i)).toUtf8(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
        storeSetting("launch", QDateTime::currentDateTimeUtc().addSecs(-60));
        report(folder, "Tessaro_1.crash");
        QCOMPARE(VTBugReporter::checkForCrashes("Tessaro"), folder + "/Tessaro_1.crash");
    }

    void theNewerUpdaterRuns()
    {
        const QString shipped =
            platform::ApplicationBundle::main().path() + "/Contents/Resources/Vantrel Software Update.app";
        const QString working = joined(VTLocalPaths::tempDirectory(), "Vantrel Software Update.app");
        VTSoftwareUpdate::automaticallyCheckForUpdates(); // there is none: nothing happens
        QVERIFY(!VTSoftwareUpdate::launchSoftwareUpdate());
        makeBundle(shipped, "1.2", m_notes);
        writeFile(working + "/stale", "x");
        QCOMPARE(VTSoftwareUpdate::updaterPath(), working);
        QVERIFY(!targetExists(working + "/stale"));
        setGlobal({{"SUCheckAtStartup", false}});
        VTSoftwareUpdate().startup();
        QTest::qWait(100);
        QVERIFY(!targetExists(m_notes));
        setGlobal({});
        VTSoftwareUpdate().startup();
        QTRY_COMPARE(readFile(m_notes), working.toUtf8() + "/Contents/MacOS/run -checkpath " +
                                            platform::ApplicationBundle::main().path().toUtf8() + '\n');
        QVERIFY(VTSoftwareUpdate::launchSoftwareUpdate());
        QTRY_VERIFY(readFile(m_notes).endsWith("run \n"));
        QVERIFY(platform::removeTree(shipped + "/Contents/MacOS").ok()); // without a program: said in the log, no more
        VTSoftwareUpdate::automaticallyCheckForUpdates();
        makeBundle(shipped, {}, m_notes); // without a version it counts as missing
        QVERIFY(VTSoftwareUpdate::updaterPath() != working);
        QVERIFY(platform::removeTree(shipped).ok());
    }

    void gathersWhatBelongs()
    {
        using Utils = VTTroubleshootingUtils;
        using Silent = Utils::Silent;
        QVERIFY(Utils::gatherLogsForApps({"My App"}).isNull());
        QCOMPARE(m_messages.seen, QStringList("No logs found"));
        QVERIFY(Utils::gatherLogsForApps({"My App"}, Silent::Yes).isNull() && Utils::gatherLogsForApps({}).isNull());
        QCOMPARE(m_messages.seen.size(), 1);

        const QString logs = home("Library/Logs/Vantrel/x").chopped(2);
        for (const char *name : {"My App.1.log", "My App.1.task.log", "My App.2.txt", "Other.1.log"})
            writeFile(joined(logs, name), name);
        writeFile(home("elsewhere/real.log"), "linked to");
        QCOMPARE(symlink("../../../elsewhere/real.log", (logs + "/My App.link.log").toUtf8()), 0);
        report(VTBugReporter::reportFolders()[0], "My App_1.crash");
        report(VTBugReporter::reportFolders()[1], "My App_2.crash");
        report(VTBugReporter::reportFolders()[0], "My Application_1.crash");
        writeFile(home("Library/Preferences/com.vantrel.myapp.plist"), "lower case");
        writeFile(home("with space.txt"), "extra");
        // Someone else's link where the gathering folder goes: removed, not followed.
        writeFile(home("precious/kept"), "kept");
        QVERIFY(platform::removeTree(joined(VTLocalPaths::tempDirectory(), "VT_App_Logs")).ok());
        QCOMPARE(symlink(home("precious").toUtf8(), joined(VTLocalPaths::tempDirectory(), "VT_App_Logs").toUtf8()), 0);

        const QString archive = Utils::gatherLogsForApps({"My App", "My"}, Silent::No, {home("with space.txt")});
        QCOMPARE(archive, VTLocalPaths::desktopDirectory() + "/My App Logs.zip");
        QCOMPARE(m_messages.seen.last(), QString("Logs gathered successfully"));
        QCOMPARE(readFile(home("precious/kept")), "kept");
        QVERIFY(!targetExists(joined(VTLocalPaths::tempDirectory(), "VT_App_Logs")));
        QVERIFY(platform::makeFolders(home("out")).ok());
        QVERIFY(platform::extractZip(archive, home("out")).ok());
        const QString inside = home("out/VT_App_Logs") + m_home->path();
        QCOMPARE(allBelow(inside),
                 QStringList({"Library/Logs/CrashReporter/My App_1.crash",
                              "Library/Logs/DiagnosticReports/My App_2.crash", "Library/Logs/Vantrel/My App.1.log",
                              "Library/Logs/Vantrel/My App.1.task.log", "Library/Logs/Vantrel/My App.link.log",
                              "Library/Preferences/com.vantrel.myapp.plist", "with space.txt"}));
        QCOMPARE(readFile(inside + "/Library/Logs/Vantrel/My App.link.log"), "linked to");
        const QString second = Utils::gatherLogsForApps({"My App"}, Silent::Yes);
        QVERIFY2(second.contains("/My App Logs_20"), qPrintable(second)); // the first stays
        if (getuid() == 0)
            QSKIP("The super-user reads everything.");
        chmod(joined(logs, "My App.1.log").toUtf8(), 0); // one that cannot be read: no archive that lacks it
        QVERIFY(Utils::gatherLogsForApps({"My App"}, Silent::Yes).isNull());
    }

    void viewingNeedsALog()
    {
        QVERIFY(!VTTroubleshootingUtils::viewLogForApp("Nothing") &&
                !VTTroubleshootingUtils::viewTaskLogForApp("Nothing"));
        QCOMPARE(m_messages.seen, QStringList({"No log found", "No log found"}));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestDiagnostics)
#include "test_diagnostics.moc"

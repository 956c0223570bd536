#include "diagnostics/VTBugReporter.h"

#include "platform/base/Console.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/ApplicationLauncher.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "support/FileOperations.h"
#include "support/GlobalSettings.h"
#include "support/Settings.h"
#include "support/VTException.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <QDateTime>

using platform::joined;

namespace {

const QString reporterIdentifier = QStringLiteral("com.vantrel.BugReporter");

QVariantMap recordAt(const QString &path)
{
    return platform::readPropertyListFile(path).valueOr({}).toMap();
}

QDateTime recorded(const QString &plistPath, const settings::Setting &entry)
{
    return (plistPath.isNull() ? entry.value() : recordAt(plistPath).value(entry)).toDateTime();
}

void record(const QString &plistPath, const settings::Setting &entry)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (plistPath.isNull()) {
        static_cast<void>(entry.store(now)); // logged
        return;
    }
    QVariantMap entries = recordAt(plistPath); // what else stands in there stays
    entries.insert(entry, now);
    if (const auto written = platform::writePropertyListFile(plistPath, entries); !written.ok())
        VTLog::appendLog("Unable to record the launch in %@: %@", plistPath, written.sentence());
    VTBugReporter::chownPlist(plistPath);
}

/// The last report of the application in the folder, if it is newer than the launch.
QString newReportIn(const QString &folder, const QString &name, const QDateTime &launch)
{
    QString last;
    for (const auto &entry : fileoperations::entriesOf(folder)) {
        if (entry.name.startsWith(name + u'_', Qt::CaseInsensitive))
            last = joined(folder, entry.name);
    }
    const auto written = last.isNull() ? std::nullopt : platform::modificationTimeOf(last);
    return written && *written > launch ? last : QString();
}

bool isSwitchedOff()
{
    return globalsettings::isOn(QStringLiteral("disable-crash-reporter"));
}

/// Null without one.
QString shippedReporter()
{
    const QString shipped = platform::ApplicationBundle::main().resource(QStringLiteral("Bug Reporter.app"));
    return shipped.isNull() ? QString() : platform::executableOf(shipped);
}

void handOver(const QString &report)
{
    if (const QString program = shippedReporter(); !program.isNull())
        return VTTask::runTaskAndReturn(program, {report});
    const QString entry = platform::registeredApplication(reporterIdentifier);
    if (entry.isNull() || !platform::openWithDesktopEntry(entry, report).ok())
        VTLog::appendLog("There is no bug reporter to open %@ with", report);
}

QString check(const QString &givenName, const QString &plistPath)
{
    const QDateTime launch = recorded(plistPath, settings::launch);
    if (!launch.isValid())
        return {};
    const QString name = givenName.isNull()
                             ? platform::ApplicationBundle::main().informationString(QStringLiteral("CFBundleName"))
                             : givenName;
    if (const QDateTime exit = recorded(plistPath, settings::exit); exit.isValid() && exit >= launch)
        return {};
    QString report;
    for (const QString &folder : VTBugReporter::reportFolders()) {
        report = newReportIn(folder, name, launch);
        if (!report.isNull())
            break;
    }
    if (report.isNull())
        return {};
    VTLog::appendLog("Application crashed on last launch");
    if (isSwitchedOff())
        VTLog::appendLogAndPrint("Crash reporter disabled");
    else
        handOver(report);
    return report;
}

} // namespace

QStringList VTBugReporter::reportFolders()
{
    QStringList folders;
    for (const auto domain : {VTLocalPaths::Domain::User, VTLocalPaths::Domain::Local}) {
        for (const char *name : {"CrashReporter", "DiagnosticReports"})
            folders.append(joined(VTLocalPaths::logDirectory(domain), QLatin1String(name)));
    }
    return folders;
}

bool VTBugReporter::handsOver()
{
    return !isSwitchedOff() &&
           (!shippedReporter().isNull() || !platform::registeredApplication(reporterIdentifier).isNull());
}

QString VTBugReporter::checkForCrashes(const QString &name, const QString &plistPath)
{
    try {
        return check(name, plistPath);
    } catch (const std::exception &exception) {
        VTException::logException({QString::fromLatin1(typeid(exception).name()), QString::fromUtf8(exception.what())},
                                  "checkForCrashes:plistPath:");
    }
    return {};
}

void VTBugReporter::startBugReporter(const QString &name, const QString &plistPath, const Delegate &delegate)
{
    const QString report = checkForCrashes(name, plistPath);
    if (!report.isNull() && delegate)
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [delegate, report] { delegate(report); }, Qt::QueuedConnection);
    record(plistPath, settings::launch);
}

void VTBugReporter::stopBugReporter(const QString &plistPath)
{
    record(plistPath, settings::exit);
}

void VTBugReporter::chownPlist(const QString &path)
{
    const QStringList steps = path.split(u'/', Qt::SkipEmptyParts);
    const qsizetype users = steps.indexOf(QStringLiteral("Users"));
    if (users < 0 || users + 1 >= steps.size())
        return;
    const QString tool = QStringLiteral("/usr/sbin/chown");
    const bool isThere = platform::isExecutableFile(tool);
    VTTask::runTask(isThere ? tool : QStringLiteral("/bin/chown"), {steps[users + 1], path});
}

#include "diagnostics/VTTroubleshootingUtils.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"
#include "platform/base/LocalTime.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/TreeCopy.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <ctime>
#include <functional>

using platform::formatString;
using platform::joined;
using platform::Outcome;
using platform::printToConsole;
using Domain = VTLocalPaths::Domain;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VTTroubleshootingUtils)
};

QString logFolder(Domain domain)
{
    return VTLocalPaths::libraryDirectory(domain) + QStringLiteral("/Logs/Vantrel");
}

/// Collects files into one folder, each below its own path, and counts them.
class Gathering
{
public:
    Gathering(QString folder, platform::CopyMonitor &monitor)
        : m_folder(std::move(folder))
        , m_monitor(monitor)
    {
    }

    bool prepare()
    {
        // The temporary folder is everybody's: what stands there is removed, never followed, and the folder is new.
        if (const auto removed = platform::removeOwnTree(m_folder); !removed.ok())
            return fail("Error removing existing folder: %@", removed.description());
        if (const auto made = platform::makeNewFolder(m_folder); !made.ok())
            return fail("Error creating temp folder: %@", made.description());
        return true;
    }

    bool takeMatching(const QString &folder, const std::function<bool(const QString &)> &belongs)
    {
        const auto entries = platform::listFolder(folder);
        if (!entries && !entries.outcome().is(platform::Cause::Missing))
            return fail("Unable to read folder: %@", entries.outcome().description());
        for (const auto &entry : entries.valueOr({})) {
            if (belongs(entry.name) && !take(folder, entry.name))
                return false;
        }
        return true;
    }

    bool take(const QString &folder, const QString &name, const char *complaint = "Unable to copy log: %@")
    {
        const QString source = joined(folder, name);
        const QString target = joined(m_folder + folder, name);
        if (platform::kindOf(target) != platform::FileKind::Missing)
            return true; // two names matched it
        const QString real = platform::kindOf(source) == platform::FileKind::Link && platform::targetExists(source)
                                 ? platform::realPath(source)
                                 : source;
        Outcome outcome = platform::makeFolders(m_folder + folder);
        if (outcome.ok())
            outcome = platform::copyItem(real, target, nullptr, &m_monitor);
        if (!outcome.ok())
            return fail(complaint, outcome.description());
        ++m_count;
        return true;
    }

    [[nodiscard]] int count() const { return m_count; }

private:
    static bool fail(const char *message, const QString &why)
    {
        printToConsole(formatString(message, why));
        return false;
    }

    QString m_folder;
    platform::CopyMonitor &m_monitor;
    int m_count = 0;
};

QString preferenceFile(const QString &folder, const QString &application)
{
    QString plain = application;
    plain.remove(u' ');
    for (const QString &name :
         {formatString("com.vantrel.%@.plist", plain), formatString("com.vantrel.%@.plist", plain.toLower())}) {
        if (platform::targetExists(joined(folder, name)))
            return name;
    }
    return {};
}

bool gatherDomain(Gathering &gathering, Domain domain, const QStringList &names)
{
    const auto any = [&](const std::function<bool(const QString &)> &matches) {
        return std::any_of(names.begin(), names.end(), matches);
    };
    const auto isLog = [&](const QString &file) {
        return any([&](const QString &name) { return file.startsWith(name) && file.endsWith(QLatin1String(".log")); });
    };
    const auto isReport = [&](const QString &file) {
        return any([&](const QString &name) {
            return file.startsWith(name + u'_') && file.endsWith(QLatin1String(".crash"));
        });
    };
    if (!gathering.takeMatching(logFolder(domain), isLog))
        return false;
    for (const char *folder : {"CrashReporter", "DiagnosticReports"}) {
        if (!gathering.takeMatching(joined(VTLocalPaths::logDirectory(domain), QLatin1String(folder)), isReport))
            return false;
    }
    const QString preferences = VTLocalPaths::prefsDirectory(domain);
    for (const QString &name : names) {
        const QString file = preferenceFile(preferences, name);
        if (!file.isNull() && !gathering.take(preferences, file))
            return false;
    }
    return true;
}

QString archivePath(const QString &folder, const QString &application)
{
    const QString path = joined(folder, formatString("%@ Logs.zip", application));
    if (platform::kindOf(path) == platform::FileKind::Missing)
        return path;
    return platform::withoutExtension(path) +
           formatString("_%@.zip", platform::formatDate("%Y%m%d%H%M%S", std::time(nullptr)));
}

} // namespace

QString VTTroubleshootingUtils::logPath(const QString &name)
{
    return logFolder(Domain::User) + formatString("/%@.1.log", name);
}

QString VTTroubleshootingUtils::taskLogPath(const QString &name)
{
    return logFolder(Domain::User) + formatString("/%@.1.task.log", name);
}

QString VTTroubleshootingUtils::gatherLogsForApps(const QStringList &names, Silent silent,
                                                  const QStringList &additionalFiles, const QString &toFolder)
{
    if (names.isEmpty() || names.constFirst().isNull())
        return {};
    VTLog::finishWriting();
    const QString folder = joined(VTLocalPaths::tempDirectory(), QStringLiteral("VT_App_Logs"));
    platform::CopyMonitor monitor;
    const LongWork work(Text::tr("Gathering the logs"), monitor);
    Gathering gathering(folder, monitor);
    const bool gathered = platform::resultInBackground([&] {
        if (!gathering.prepare())
            return false;
        for (const Domain domain : {Domain::User, Domain::Local}) {
            if (!gatherDomain(gathering, domain, names))
                return false;
        }
        return std::all_of(additionalFiles.begin(), additionalFiles.end(), [&](const QString &file) {
            return gathering.take(platform::parentPath(file), platform::lastComponent(file), "Unable to copy file: %@");
        });
    });
    if (!gathered)
        return {};
    if (gathering.count() == 0) {
        if (silent == Silent::No)
            VTAlert::show({Text::tr("No logs found"), Text::tr("There were no logs available to gather.")});
        return {};
    }
    const QString desktop = toFolder.isNull() ? VTLocalPaths::desktopDirectory() : toFolder;
    const QString archive = archivePath(desktop, names.constFirst());
    Outcome packed = VTFileManager::fileExistsAtPath(desktop) ? Outcome() : fileoperations::createDirectory(desktop);
    if (packed.ok())
        packed = fileoperations::compressFile(folder, archive);
    static_cast<void>(platform::removeOwnTree(folder)); // it lies in the temporary folder
    if (silent == Silent::No && packed.ok())
        VTAlert::show({Text::tr("Logs gathered successfully"),
                       Text::tr("The gathered logs were placed on your desktop."),
                       {},
                       {},
                       {},
                       {},
                       true});
    else if (silent == Silent::No)
        VTAlert::show({Text::tr("Logs could not be gathered"),
                       withCause(Text::tr("Please check your file permissions."), packed)});
    return packed.ok() ? archive : QString();
}

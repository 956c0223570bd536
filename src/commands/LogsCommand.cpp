// logs, logs gather and updates check.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "diagnostics/VTSoftwareUpdate.h"
#include "diagnostics/VTTroubleshootingUtils.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LogsCommand)
};

const QString ownName = QStringLiteral("Tessaro");

} // namespace

int commands::showLog(const Invocation &invocation)
{
    const QString path = invocation.has("--task") ? VTTroubleshootingUtils::taskLogPath(ownName)
                                                  : VTTroubleshootingUtils::logPath(ownName);
    if (invocation.has("--path")) {
        print(path + u'\n');
        return ExitStatus::done;
    }
    const auto log = platform::readFile(path);
    if (!log)
        return complain(log.outcome(), log.outcome().is(platform::Cause::Missing)
                                           ? Text::tr("There is no log at %1.").arg(path)
                                           : QString());
    print(platform::fromNative(*log));
    return ExitStatus::done;
}

int commands::gatherLogs(const Invocation &invocation)
{
    QStringList files;
    for (const QString &file : invocation.values("--include")) {
        files.append(platform::absolutePath(file));
        if (!VTFileManager::fileExistsAtPath(files.constLast()))
            return complain(ExitStatus::failed, Text::tr("%1 does not exist.").arg(files.constLast()));
    }
    const QString folder = invocation.has("--to") ? platform::absolutePath(invocation.value("--to")) : QString();
    if (!folder.isNull() && !VTFileManager::isDirectoryAtPath(folder))
        return complain(ExitStatus::failed, Text::tr("%1 is not a folder.").arg(folder));
    using Silent = VTTroubleshootingUtils::Silent;
    const QString archive = VTTroubleshootingUtils::gatherLogsForApps({ownName}, Silent::Yes, files, folder);
    if (archive.isNull())
        return complain(ExitStatus::failed, Text::tr("The logs could not be gathered."));
    print(archive + u'\n');
    return ExitStatus::done;
}

int commands::checkForUpdates(const Invocation &)
{
    VTSoftwareUpdate::automaticallyCheckForUpdates();
    return ExitStatus::done;
}

#include "app/SupportCommand.h"

#include "diagnostics/VTSoftwareUpdate.h"
#include "diagnostics/VTTroubleshootingUtils.h"
#include "platform/Console.h"
#include "platform/NativePath.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>
#include <QFile>

namespace {

const QString ownName = QStringLiteral("Tessaro");

QString text(const char *source)
{
    return QCoreApplication::translate("SupportCommand", source);
}

int refuse(const QString &problem)
{
    platform::writeToStandardError(problem + u'\n');
    return ExitStatus::failed;
}

} // namespace

QString SupportCommand::problemOf(const CommandRequest &request)
{
    const bool isLogs = request.verb == CommandRequest::Verb::Logs;
    const bool isGather = isLogs && request.arguments == QStringList(QStringLiteral("gather"));
    const bool isKnown =
        isLogs ? isGather || request.arguments.isEmpty() : request.arguments == QStringList(QStringLiteral("check"));
    if (!isKnown)
        return isLogs ? text("logs takes nothing, or “gather”.") : text("updates takes “check”.");
    if (!isGather && (!request.toFolder.isNull() || !request.include.isEmpty()))
        return text("--to and --include belong to logs gather.");
    return isGather && (request.task || request.path) ? text("--task and --path do not belong to logs gather.")
                                                      : QString();
}

int SupportCommand::run()
{
    if (m_request.verb == CommandRequest::Verb::Logs)
        return m_request.arguments.isEmpty() ? showLog() : gather();
    VTSoftwareUpdate::automaticallyCheckForUpdates();
    return ExitStatus::done;
}

int SupportCommand::showLog()
{
    const QString path =
        m_request.task ? VTTroubleshootingUtils::taskLogPath(ownName) : VTTroubleshootingUtils::logPath(ownName);
    if (m_request.path) {
        platform::writeToStandardOutput(path + u'\n');
        return ExitStatus::done;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(text("There is no log at %1.").arg(path));
    platform::writeToStandardOutput(QString::fromUtf8(file.readAll()));
    return ExitStatus::done;
}

int SupportCommand::gather()
{
    QStringList files;
    for (const QString &file : m_request.include) {
        files.append(absolutePath(file));
        if (!VTFileManager::fileExistsAtPath(files.constLast()))
            return refuse(text("%1 does not exist.").arg(files.constLast()));
    }
    const QString folder = m_request.toFolder.isNull() ? QString() : absolutePath(m_request.toFolder);
    if (!folder.isNull() && !VTFileManager::isDirectoryAtPath(folder))
        return refuse(text("%1 is not a folder.").arg(folder));
    using Silent = VTTroubleshootingUtils::Silent;
    const QString archive = VTTroubleshootingUtils::gatherLogsForApps({ownName}, Silent::Yes, files, folder);
    if (archive.isNull())
        return refuse(text("The logs could not be gathered."));
    platform::writeToStandardOutput(archive + u'\n');
    return ExitStatus::done;
}

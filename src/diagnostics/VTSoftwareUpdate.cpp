#include "diagnostics/VTSoftwareUpdate.h"

#include "platform/base/NativePath.h"
#include "platform/desktop/ApplicationLauncher.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/plain/StartedThread.h"
#include "support/GlobalSettings.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <thread>

using platform::ApplicationBundle;
using platform::joined;

namespace {

const QString updaterName = QStringLiteral("Vantrel Software Update.app");

/// The leading digits: "1.2" is 1. 0 when there is no bundle or no version.
qlonglong versionOf(const QString &bundle)
{
    const QString text = ApplicationBundle(bundle).information().value(QStringLiteral("CFBundleVersion")).toString();
    qsizetype digits = 0;
    while (digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9')
        ++digits;
    return text.first(digits).toLongLong();
}

} // namespace

QString VTSoftwareUpdate::updaterPath()
{
    const QString installed = joined(VTLocalPaths::applicationDirectory(VTLocalPaths::Domain::Local),
                                     QStringLiteral("Vantrel/") + updaterName);
    const QString shipped =
        joined(ApplicationBundle::main().path(), QStringLiteral("Contents/Resources/") + updaterName);
    if (versionOf(installed) >= versionOf(shipped))
        return installed;
    // Never out of the application's own bundle: the updater may have to replace that.
    const QString copy = joined(VTLocalPaths::tempDirectory(), updaterName);
    static_cast<void>(VTFileManager::removeFile(copy, ShouldAuth::No));
    if (!VTFileManager::copyFile(shipped, copy, ShouldAuth::No))
        VTLog::appendLog("Unable to copy %@ to %@", shipped, copy);
    return copy;
}

void VTSoftwareUpdate::startup()
{
    const QVariant check = globalsettings::value(QStringLiteral("SUCheckAtStartup"));
    const bool isNumber = check.typeId() == QMetaType::Bool || check.typeId() == QMetaType::LongLong;
    if (isNumber && check.toLongLong() == 0) // only an explicit no
        return;
    if (std::thread thread = platform::startedThread(&VTSoftwareUpdate::automaticallyCheckForUpdates);
        thread.joinable())
        thread.detach();
}

void VTSoftwareUpdate::automaticallyCheckForUpdates()
{
    const QString updater = updaterPath();
    if (!platform::leadsToFolder(updater))
        return;
    const QString program = platform::executableOf(updater);
    if (program.isNull())
        return VTLog::appendLog("Unable to launch Software Update - executable path doesn't exist");
    VTTask::runTaskAndReturn(program, {QStringLiteral("-checkpath"), ApplicationBundle::main().path()});
}

bool VTSoftwareUpdate::launchSoftwareUpdate()
{
    const QString program = platform::executableOf(updaterPath());
    if (program.isNull()) {
        VTLog::appendLog("Unable to launch Software Update - path doesn't exist");
        return false;
    }
    VTTask::runTaskAndReturn(program, {});
    return true;
}

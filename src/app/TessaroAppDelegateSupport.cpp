// Logs and updates.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "diagnostics/VTSoftwareUpdate.h"
#include "diagnostics/VTTroubleshootingUtils.h"
#include "support/VTAlert.h"

namespace {

const QString ownName = QStringLiteral("Tessaro");

} // namespace

void TessaroAppDelegate::checkForUpdates()
{
    if (!VTSoftwareUpdate::manualUpdateCheck())
        VTAlert::show(
            {tr("Updates cannot be looked for"), tr("The software updater is not installed on this computer.")});
}

void TessaroAppDelegate::viewLog()
{
    VTTroubleshootingUtils::viewLogForApp(ownName);
}

void TessaroAppDelegate::viewTaskLog()
{
    VTTroubleshootingUtils::viewTaskLogForApp(ownName);
}

void TessaroAppDelegate::gatherLogs()
{
    VTTroubleshootingUtils::gatherLogsForApps({ownName});
}

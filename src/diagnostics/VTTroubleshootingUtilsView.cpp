// VTTroubleshootingUtils' windows: apart, so that what only gathers needs no desktop.
#include "diagnostics/VTTroubleshootingUtils.h"
#include "platform/desktop/Desktop.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VTTroubleshootingUtils)
};

bool view(const QString &path, const QString &hint)
{
    if (VTFileManager::fileExistsAtPath(path))
        return platform::openWithDefaultApplication(path);
    VTAlert::show({Text::tr("No log found"), hint});
    return false;
}

} // namespace

bool VTTroubleshootingUtils::viewLogForApp(const QString &name)
{
    return view(logPath(name), Text::tr("You must perform a task before viewing the log."));
}

bool VTTroubleshootingUtils::viewTaskLogForApp(const QString &name)
{
    return view(taskLogPath(name),
                Text::tr("You must run the application as a task (e.g. through Cronwick) before viewing a log."));
}

#include "templates/EditingGuard.h"

#include "support/AdministratorQuestion.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "support/VTAlert.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(EditingGuard)
};

} // namespace

bool studioAllowsEditing()
{
    if (studio::decidesTemplates()) {
        VTAlert::show(
            {Text::tr("These templates are set by your studio"),
             Text::tr("They are changed in the studio’s own folder, and come to every computer from there: %1")
                 .arg(settings::sharedSetup.text())});
        return false;
    }
    return true;
}

bool studioAllowsChanging(const QString &item)
{
    return !item.startsWith(studio::copiedTemplates() + u'/') || studioAllowsEditing();
}

bool editingIsAllowed()
{
    return studioAllowsEditing() && settingsAllowEditing();
}

bool settingsAllowEditing()
{
    return !settings::requireAdminPasswordForEditing.isOn() || administratorAgrees();
}

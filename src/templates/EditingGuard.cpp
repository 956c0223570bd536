#include "templates/EditingGuard.h"

#include "support/Settings.h"
#include "support/VTAuthorization.h"

bool editingIsAllowed()
{
    return !settings::requireAdminPasswordForEditing.isOn() || VTAuthorization::sharedController().authAfresh();
}

#include "templates/EditingGuard.h"

#include "support/AdministratorQuestion.h"
#include "support/Settings.h"

bool editingIsAllowed()
{
    return !settings::requireAdminPasswordForEditing.isOn() || administratorAgrees();
}

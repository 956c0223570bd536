#include "templates/EditingGuard.h"

#include "support/Settings.h"
#include "support/VTAuthorization.h"

bool editingIsAllowed()
{
    if (!settings::standard().equalsOne(settings::requireAdminPasswordForEditing))
        return true;
    auto &authorization = VTAuthorization::sharedController();
    authorization.authEnd();
    return authorization.authStart();
}

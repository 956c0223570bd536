#include "support/AdministratorQuestion.h"

#include "platform/desktop/DesktopPanels.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(AdministratorQuestion)
};

} // namespace

bool administratorAgrees(QWidget *window)
{
    auto &authorization = VTAuthorization::sharedController();
    if (authorization.authAfresh())
        return true;
    if (!authorization.wasDismissed())
        VTAlert::show({Text::tr("This needs an administrator’s password"),
                       platform::isSandboxed()
                           ? Text::tr("Inside the Flatpak there are no administrator rights. Tessaro’s other packages "
                                      "have them.")
                           : Text::tr("None was accepted, or this desktop has no service running that asks for one.")},
                      window);
    return false;
}

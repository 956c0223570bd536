#include "support/AdministratorQuestion.h"

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
                       Text::tr("None was accepted, or this desktop has no service running that asks for one.")},
                      window);
    return false;
}

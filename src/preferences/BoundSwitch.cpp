#include "preferences/BoundSwitch.h"

#include "support/AdministratorQuestion.h"
#include "support/Notifications.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "ui/LockedControls.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QSignalBlocker>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(BoundSwitch)
};

} // namespace

void bindSwitch(QCheckBox &box, const settings::SwitchSetting &setting)
{
    const auto show = [&box, &setting] {
        const QSignalBlocker quiet(box);
        box.setChecked(setting.isOn());
        greyWhereLocked(setting, {&box});
    };
    show();
    QObject::connect(&Notifications::hub(), &Notifications::settingsWritten, &box, show);
    QObject::connect(&box, &QCheckBox::toggled, &box,
                     [&setting](bool isOn) { static_cast<void>(setting.turn(isOn)); }); // the log says what failed
}

void bindProtection(QCheckBox &box, const settings::SwitchSetting &setting)
{
    box.setChecked(setting.isOn());
    QObject::connect(&box, &QCheckBox::clicked, &box, [&box, &setting](bool isOn) {
        // Switched on where no rights can be had, it would close the door for good: asked beforehand.
        const bool locksOut = isOn && &setting == &settings::requireAdminPassword;
        bool mayTurn = isOn && !locksOut;
        if (!mayTurn) // of the switch that would lock out more is to be said than that there are no rights
            mayTurn = locksOut ? VTAuthorization::sharedController().authAfresh() : administratorAgrees(box.window());
        const platform::Outcome turned = mayTurn ? setting.turn(isOn) : platform::Outcome();
        if (mayTurn && turned.ok())
            return;
        box.setChecked(!isOn);
        if (!turned.ok())
            VTAlert::show({Text::tr("The switch was left as it was"), turned.description()}, box.window());
        else if (locksOut)
            VTAlert::show(
                {Text::tr("The switch was left off"),
                 Text::tr("Administrator rights could not be had just now. Tessaro would not start any more.")},
                box.window());
    });
}

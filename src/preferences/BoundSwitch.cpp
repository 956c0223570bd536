#include "preferences/BoundSwitch.h"

#include "support/VTAuthorization.h"

#include <QCheckBox>

void bindSwitch(QCheckBox &box, const settings::SwitchSetting &setting)
{
    box.setChecked(setting.isOn());
    QObject::connect(&box, &QCheckBox::toggled, &box,
                     [&setting](bool isOn) { static_cast<void>(setting.turn(isOn)); }); // the log says what failed
}

void bindProtection(QCheckBox &box, const settings::SwitchSetting &setting)
{
    box.setChecked(setting.isOn());
    QObject::connect(&box, &QCheckBox::clicked, &box, [&box, &setting](bool isOn) {
        if (!isOn && !VTAuthorization::sharedController().authAfresh())
            box.setChecked(true);
        else
            static_cast<void>(setting.turn(isOn)); // the log says what failed
    });
}

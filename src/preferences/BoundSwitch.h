#pragma once

#include "support/Settings.h"

class QCheckBox;

/** The box shows the setting, and changes it. */
void bindSwitch(QCheckBox &box, const settings::SwitchSetting &setting);
/** The same for a protection: it is taken away only when an administrator agrees, asked afresh each time. */
void bindProtection(QCheckBox &box, const settings::SwitchSetting &setting);

#include "ui/LockedControls.h"

#include <QLabel>
#include <algorithm>

namespace {

constexpr const char *usualTip = "usualTip"; // there while the control is grey for this reason

} // namespace

void greyWhere(bool isLocked, const QList<QWidget *> &controls)
{
    for (QWidget *control : controls) {
        const QVariant kept = control->property(usualTip);
        if (isLocked == kept.isValid())
            continue;
        control->setProperty(usualTip, isLocked ? QVariant(control->toolTip()) : QVariant());
        control->setToolTip(isLocked ? settings::lockedText() : kept.toString());
        control->setEnabled(!isLocked);
        control->setAccessibleDescription(isLocked ? settings::lockedText() : QString());
    }
}

void greyWhereLocked(const settings::Setting &setting, const QList<QWidget *> &controls)
{
    greyWhere(setting.isLocked(), controls);
}

void sayWhereGrey(QLabel &line)
{
    const QList<QWidget *> controls = line.parentWidget()->findChildren<QWidget *>();
    line.setVisible(std::any_of(controls.begin(), controls.end(),
                                [](const QWidget *control) { return control->property(usualTip).isValid(); }));
}

#include "ui/FilePanels.h"

#include "platform/desktop/DesktopPanels.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>

void makePlain(QFileDialog &panel)
{
    if (!panel.testOption(QFileDialog::DontUseNativeDialog) && platform::desktopShowsPanels())
        return;
    panel.setOption(QFileDialog::DontUseNativeDialog);
    for (const char *name : {"fileTypeLabel", "fileTypeCombo"}) {
        if (auto *part = panel.findChild<QWidget *>(QLatin1String(name)))
            part->hide();
    }
    if (const auto *buttons = panel.findChild<QDialogButtonBox *>()) {
        for (QAbstractButton *button : buttons->buttons())
            button->setIcon({});
    }
}

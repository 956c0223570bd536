#include "preferences/VTShortcutKeyContainerView.h"

#include "preferences/VTShortcutKeyTableDelegate.h"
#include "ui_VTShortcutKeyConfig.h"

VTShortcutKeyContainerView::VTShortcutKeyContainerView(QWidget *parent)
    : QWidget(parent)
{
    Ui::VTShortcutKeyConfig ui;
    ui.setupUi(this);
    VTShortcutKeyTableDelegate::sharedController().setViews(ui.shortcutKeyTableView, ui.versionAlertText);
}

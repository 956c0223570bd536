#pragma once

#include <QList>

class QAction;
class QMenuBar;
class TessaroAppDelegate;

/** Fills the menu bar from its table. Returns the actions that must wait while a project is being created. */
[[nodiscard]] QList<QAction *> buildMenus(QMenuBar &menuBar, TessaroAppDelegate &delegate);

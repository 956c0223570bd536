#pragma once

#include "support/Settings.h"

#include <QList>

class QLabel;
class QWidget;

/** Greys the controls of a setting that the studio decides, and says so in their tool tips and to readers; gives them
   back when it does not any more. Main thread. */
void greyWhereLocked(const settings::Setting &setting, const QList<QWidget *> &controls);
void greyWhere(bool isLocked, const QList<QWidget *> &controls);
/** Shows the line that says why, as long as something on its page is grey for that reason. */
void sayWhereGrey(QLabel &line);

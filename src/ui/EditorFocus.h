#pragma once

#include <QFocusEvent>

/** Whether the focus goes to another window. An edit is not over then: it goes on when one comes back, and half a word
   is nobody's value. */
[[nodiscard]] inline bool leavesForAnotherWindow(const QEvent &event)
{
    return event.type() == QEvent::FocusOut &&
           static_cast<const QFocusEvent &>(event).reason() == Qt::ActiveWindowFocusReason;
}

#pragma once

class QWidget;

/**
 * Asks for an administrator's password afresh, for what must be agreed to each time. False: do nothing. Where nobody
 * could be asked, or no password was accepted, an alert says so in one sentence; whoever dismissed the question knows.
 * Any thread; blocks until the answer. The alert hangs on the window, or on the main one.
 */
[[nodiscard]] bool administratorAgrees(QWidget *window = nullptr);

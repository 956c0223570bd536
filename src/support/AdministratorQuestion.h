#pragma once

/**
 * Asks for an administrator's password afresh, for what must be agreed to each time. False: do nothing. Where nobody
 * could be asked, or no password was accepted, an alert says so in one sentence; whoever dismissed the question knows.
 * Any thread; blocks until the answer.
 */
[[nodiscard]] bool administratorAgrees();

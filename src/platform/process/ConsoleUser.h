#pragma once

#include <QString>

namespace platform {

/**
 * The owner of the active graphical login, by logind. Where no login service runs (a container, a server), the user who
 * called sudo or pkexec, else this process's own user. Null when logind runs and nobody is logged in graphically.
 * May block for up to two seconds on the system bus.
 */
[[nodiscard]] QString consoleUser();

} // namespace platform

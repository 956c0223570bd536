#pragma once

#include <QString>

/** Who runs this process, and who sits at the desktop. Any thread. */
namespace platform {

/** Real user id 0. */
[[nodiscard]] bool isSuperUser();

/** Login name and home folder of this process's user. The home is $HOME where set, as shells and tools understand it. */
[[nodiscard]] QString loginName();
[[nodiscard]] QString homeFolder();

/** Home folder of the named user by the user database; null when there is no such user. */
[[nodiscard]] QString homeFolderOf(const QString &userName);

/**
 * The owner of the active graphical login, by logind. Where no login service runs (a container, a server), the user who
 * called sudo or pkexec, else this process's own user. Null when logind runs and nobody is logged in graphically.
 * May block for up to two seconds on the system bus.
 */
[[nodiscard]] QString consoleUser();

} // namespace platform

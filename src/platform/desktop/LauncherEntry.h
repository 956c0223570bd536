#pragma once

#include <optional>

namespace platform {

/**
 * How far the program's work is, shown on its entry in the desktop's dock where that knows the interface
 * com.canonical.Unity.LauncherEntry (docks of several desktops do); nothing takes it away. From 0 to 1. Nobody answers,
 * and nothing waits. Main thread.
 */
void showInLauncher(std::optional<double> fraction);

} // namespace platform

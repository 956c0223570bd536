#pragma once

#include "platform/base/Outcome.h"

#include <QString>

namespace platform {

/** The program of an application's bundle; null when it has none. */
[[nodiscard]] QString executableOf(const QString &bundlePath);
/** Path of the desktop entry of the application registered under the identifier; null when there is none. */
[[nodiscard]] QString registeredApplication(const QString &bundleIdentifier);
/** Starts the application that a desktop entry describes with a file, and returns. */
Outcome openWithDesktopEntry(const QString &desktopEntry, const QString &file);

} // namespace platform

#pragma once

#include <QString>

namespace platform {

/** The program of an application's bundle; null when it has none. */
[[nodiscard]] QString executableOf(const QString &bundlePath);
/** Starts the application that a desktop entry describes with a file, and returns. False when it cannot be started. */
[[nodiscard]] bool openWithDesktopEntry(const QString &desktopEntry, const QString &file);

} // namespace platform

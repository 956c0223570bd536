#pragma once

#include <QString>

namespace platform {

/**
 * Whether the desktop treats the folder as one file: its extension is on the list of package extensions in the bundle's
 * resources, or the bundle bit is set in its flags word. False for what is no folder. Any thread.
 */
[[nodiscard]] bool isPackage(const QString &path);

} // namespace platform

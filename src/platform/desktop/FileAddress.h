#pragma once

#include <QString>

namespace platform {

/** A file: address with every byte of the name, valid UTF-8 or not. Pure. */
[[nodiscard]] QString fileAddress(const QString &path);

} // namespace platform

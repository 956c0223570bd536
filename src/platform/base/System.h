#pragma once

#include <QString>

/** This process and the machine it runs on. Any thread, unless said otherwise. */
namespace platform {

/** Path of the running executable, links resolved. */
[[nodiscard]] QString executablePath();

/** "Debian GNU/Linux 12 (bookworm)"; the kernel's name where the system does not say. */
[[nodiscard]] QString operatingSystemName();
[[nodiscard]] int processorCount();
[[nodiscard]] double memoryInGibibytes();

/** Before the application object: a UTF-8 locale, without which names that are not ASCII get lost in libraries. */
void prepareLocale();

} // namespace platform

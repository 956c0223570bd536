#pragma once

#include "platform/base/Outcome.h"

/** This process and the machine it runs on. Any thread, unless said otherwise. */
namespace platform {

/** Path of the running executable, links resolved. */
[[nodiscard]] QString executablePath();

/** This process goes on as another program, with the same words. Returns only on failure. */
Outcome becomeProgram(const QString &path, char **words);

/** "Debian GNU/Linux 12 (bookworm)"; the kernel's name where the system does not say. */
/** Tells this run of the computer from any other: the same for all processes until it is started again. Null where the
    system does not say. */
[[nodiscard]] QString runOfSystem();
[[nodiscard]] QString operatingSystemName();
[[nodiscard]] int processorCount();
[[nodiscard]] double memoryInGibibytes();

/**
 * From now on no other process of the user's can read or write this one's memory or take its descriptors. To be called
 * first: what has been opened before stays open. Not in builds with sanitizers, which look at themselves from outside.
 */
void closeToOtherProcesses();

/** The ends of tools are told, also where whoever started this program had its children ignored. */
void heedChildren();

/** Before the application object: a UTF-8 locale, without which names that are not ASCII get lost in libraries. */
void prepareLocale();

} // namespace platform

#pragma once

#include "platform/base/Outcome.h"

#include <QString>

namespace platform {

/** The folder `files` of the home Trash of the freedesktop Trash specification 1.0. Not made by asking. */
[[nodiscard]] QString homeTrashFiles();

/**
 * Moves one item to the Trash of its own file system, a link as a link: the note that tells file browsers where it came
 * from first, then one rename, so that it is there whole or not at all. A name that is taken gets a number, one that is
 * too long for its note is shortened. Never a copy to another drive: where the drive's Trash cannot be had, that is the
 * failure. Blocks; any thread.
 */
Outcome moveToTrash(const QString &path);

/** For an item that a tool has put into the home Trash: writes where it came from and when, so that any file browser
   can put it back. */
Outcome noteInTrash(const QString &target, const QString &originalPath);

} // namespace platform

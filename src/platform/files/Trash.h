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
 * failure. Says where it lies by then, for putBackFromTrash(). The note names the path that it is known by, where that
 * is given: an item that was put aside under another name on the same file system goes back to its own. Blocks; any
 * thread.
 */
Outcome moveToTrash(const QString &path, QString *inTrash = nullptr, const QString &knownAs = {});

/** What lies in the Trash comes back to the path, with its note gone. Cause::Exists where something stands there. */
Outcome putBackFromTrash(const QString &inTrash, const QString &path);

/** A free place in the Trash of the item's own file system, with its note written: for an item that only somebody with
    more rights can move there. The item itself stays. */
[[nodiscard]] Result<QString> reserveInTrash(const QString &path, const QString &knownAs = {});
/** It did not get there: the note goes. */
void giveUpPlaceInTrash(const QString &inTrash);

} // namespace platform

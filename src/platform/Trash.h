#pragma once

#include <QString>

namespace platform {

/** The folder `files` of the home Trash of the freedesktop Trash specification. Not made by asking. */
[[nodiscard]] QString homeTrashFiles();

/**
 * Moves one item to the Trash of its file system, a link as a link. True only when the item was found in a Trash
 * afterwards, by device and inode; the folders of the home Trash are made first. Blocks; any thread.
 */
[[nodiscard]] bool moveToTrash(const QString &path);

/** For an item that a tool has put into the home Trash: writes where it came from and when, so that any file browser can
    put it back. Without effect where that cannot be written. */
void noteInTrash(const QString &target, const QString &originalPath);

} // namespace platform

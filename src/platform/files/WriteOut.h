#pragma once

#include "platform/base/Outcome.h"

#include <QString>

namespace platform {

/**
 * Hands the bytes of a file, or of all files in a tree, to the drive. What is done to names afterwards comes after them
 * in the journal of the file system: without this a power cut leaves files that have their names and no contents (ext4,
 * xfs and btrfs alike, for up to half a minute). It does not wait for the drive's own memory and touches no other file,
 * which makes it some hundred times cheaper than syncing the file system. Links are not followed. A failure is a drive
 * that has lost what was written. Blocks; any thread.
 */
Outcome writeOut(const QString &path);

} // namespace platform

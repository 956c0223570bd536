#pragma once

#include "creation/Manifest.h"

namespace platform {
class CopyMonitor;
}

/** What stays of a project that was undone, and why. */
struct KeptItem
{
    enum class Why {
        Changed, ///< somebody has worked on it
        Foreign, ///< the creation has not made it
        Failed,  ///< it could not be moved to the Trash
    };
    QString path;
    Why why = Why::Changed;
};

/** "path: it has been changed", for people; the path below the folder, where one is given. */
[[nodiscard]] QString sentenceOf(const KeptItem &item, const QString &folder = {});

/** How an undo ended. */
struct UndoResult
{
    platform::Outcome outcome;    ///< why nothing was done; good when something was
    QList<KeptItem> kept;         ///< empty: the whole project is in the Trash
    bool numbersReturned = false; ///< the next project gets the number again
    bool hadOldProject = false;
    platform::Outcome oldProject; ///< of putting back the one that had its place
};

/**
 * Moves to the Trash what the creation made and nobody has touched since: an item of the same inode, size and date of
 * change. What was changed or added stays where it is, and so do the folders that hold it. Where the whole project
 * goes, its numbers are free again unless another has taken the next ones, and the project that had its place comes
 * back. Blocks; any thread. Cause::Missing where the project is not at its place any more; Cause::Cancelled.
 */
[[nodiscard]] UndoResult undoCreation(const Manifest &manifest, platform::CopyMonitor &monitor);

#pragma once

#include "platform/base/Outcome.h"

#include <QList>
#include <QString>
#include <atomic>
#include <functional>

/**
 * What walks a whole tree, by descriptor: no path is looked up twice, a link is never followed, and no depth makes a
 * path too long. Everything here blocks the calling thread and may be called on any.
 */
namespace platform {

class CopyMonitor;
struct Losses;

/**
 * Never overwrites: fails with EEXIST when anything stands at the destination. Across file systems the item is copied,
 * and the original is removed when the copy is whole and on disk; until then a failure leaves the original as it is.
 * What the other drive could not take is noted.
 */
Outcome moveItem(const QString &source, const QString &destination, CopyMonitor *monitor = nullptr,
                 Losses *losses = nullptr);
/**
 * The folder takes the place of an empty one of the same file system, in one step: nobody sees anything between the
 * two. Cause::Exists when that one is not empty any more; both stay then, as after any failure.
 */
Outcome replaceEmptyFolder(const QString &folder, const QString &empty);
/** Cause::Exists when something is in it. */
Outcome removeEmptyFolder(const QString &folder);
/** The item, with everything below it. Links are removed, never followed. What is missing is success.
    Cancelled, what is left stays. */
Outcome removeTree(const QString &path, CopyMonitor *monitor = nullptr);
/** The same for what this process has just made: folders that it has closed to itself again are opened first. */
Outcome removeOwnTree(const QString &path);

struct TreeSize
{
    quint64 bytes = 0; ///< of plain files, holes included
    quint64 items = 0;
};
/** The item and all below it; no link is followed, what cannot be read is left out. Ends early when cancelled. */
[[nodiscard]] TreeSize measureTree(const QString &path, const std::atomic<bool> &cancelled);

/**
 * Gives every item below the folder today's dates, never through a link, the folder itself left out. Each folder is
 * announced before its items are dated. Returns the items whose dates this process may not set, and folders that cannot
 * be read.
 */
[[nodiscard]] QList<Outcome> touchBelow(const QString &folder, const std::function<void(const QString &)> &entering);

} // namespace platform

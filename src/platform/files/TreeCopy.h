#pragma once

#include "platform/base/Outcome.h"

#include <QString>
#include <cstddef>
#include <vector>

/**
 * Copying of whole trees: the thing this program exists for.
 *
 * Two workers walk the tree by descriptor. Kept are names byte for byte, modes, times, extended attributes, links as
 * links, FIFOs and sockets as such (none is ever opened), holes, and as super-user owners. Blocks are shared where the
 * file system can. The immutable flag is not carried over. No link is followed out of the tree, and a folder is refused
 * as a copy into itself before anything is written.
 *
 * Blocks the calling thread; may be called on any, several times at once.
 */
namespace platform {

struct CopyMonitor;

struct NamePair
{
    QByteArray from; ///< name in the source folder
    QByteArray to;   ///< name in the destination folder
};

struct CopyReport
{
    /// How many entries, from the first on, are complete at the destination. All of them when the outcome is good.
    std::size_t copied = 0;
    Outcome outcome;
    /// The first item whose extended attributes (label colours among them) the destination could not take; null if
    /// none.
    QString attributesLost;
};

/**
 * Copies entries of one folder into another, existing one. Ends as if one had been copied after the other up to the
 * first failure: of the entry that failed and of those after it, nothing is left that this call has made. An entry
 * whose destination name is taken fails with EEXIST and what stands there stays as it was.
 */
[[nodiscard]] CopyReport copyEntries(const QString &sourceFolder, const QString &destinationFolder,
                                     const std::vector<NamePair> &entries, CopyMonitor *monitor = nullptr);

/** One item, to exactly the destination path. On failure nothing is left there that this call has made. */
Outcome copyItem(const QString &source, const QString &destination, QString *attributesLost = nullptr,
                 CopyMonitor *monitor = nullptr);

} // namespace platform

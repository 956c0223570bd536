#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/Tree.h"

#include <QStringList>
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

class CopyMonitor;

/** The items that lost something on a drive that could not take it. */
struct Loss
{
    static constexpr std::size_t named = 1000; ///< on a drive that knows no labels it may be every one of a million
    QStringList items;                         ///< the first of them
    std::size_t count = 0;
    void add(const QString &item);
};

struct Losses
{
    Loss labels; ///< extended attributes, label colours among them
    Loss modes;
    Loss owners;
    Loss dates;
};

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
    Losses losses;
};

/**
 * Copies entries of one folder into another, existing one. Ends as if one had been copied after the other up to the
 * first failure: of the entry that failed and of those after it, nothing is left that this call has made. An entry
 * whose destination name is taken fails with EEXIST and what stands there stays as it was.
 */
[[nodiscard]] CopyReport copyEntries(const QString &sourceFolder, const QString &destinationFolder,
                                     const std::vector<NamePair> &entries, CopyMonitor *monitor = nullptr);

/** One item, to exactly the destination path. On failure nothing is left there that this call has made. */
Outcome copyItem(const QString &source, const QString &destination, Losses *losses = nullptr,
                 CopyMonitor *monitor = nullptr);

/** An item of a tree that was not copied, with all below it. */
struct TreeFailure
{
    std::uint32_t folder = 0; ///< its folder's number
    std::uint32_t item = 0;
    Outcome outcome; ///< the item is the one in the source
};

struct TreeCopyReport
{
    std::vector<TreeFailure> failures; ///< in no order; nothing of these items is left at the destination
    Outcome ended;                     ///< what made going on pointless: it was cancelled, or the disk is full
    Losses losses;
};

/**
 * Copies a tree that was read from the folder into an existing one, each item at once under its new name, with the
 * present as its date and with what the place hands on to new folders. What fails is noted, and the rest goes on;
 * folders that could not be read are left out, and are no failures here. What was made is noted in the tree. The tree
 * is this call's own until it returns.
 */
[[nodiscard]] TreeCopyReport copyTree(const QString &sourceFolder, const QString &destinationFolder, Tree &tree,
                                      CopyMonitor *monitor);

} // namespace platform

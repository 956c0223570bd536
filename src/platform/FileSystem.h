#pragma once

#include "platform/FileOutcome.h"

#include <QList>
#include <QString>
#include <atomic>
#include <functional>
#include <optional>

/**
 * The file system, by path, of any length and with names of any bytes. Everything here blocks the calling thread and may
 * be called on any. Nothing here asks, logs or falls back to anything: that is for the rooms above.
 */
namespace platform {

enum class FileKind { Missing, File, Folder, Link, Other };

struct FolderEntry
{
    QString name;
    FileKind kind = FileKind::Missing; ///< of the entry itself, a link is not followed
};

struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    bool operator==(const FileIdentity &) const = default;
};

/** What stands at the path itself; Missing also when it cannot be reached. Never opens anything. */
[[nodiscard]] FileKind kindOf(const QString &path);
/** Follows links: a link whose target is missing does not exist. */
[[nodiscard]] bool targetExists(const QString &path);
/** Follows links. */
[[nodiscard]] bool leadsToFolder(const QString &path);
/** Nothing when nothing stands there. A link is not followed. */
[[nodiscard]] std::optional<FileIdentity> identityOf(const QString &path);
[[nodiscard]] QString linkTarget(const QString &path);
[[nodiscard]] bool isWritable(const QString &path);
/** Whether this user lacks the permission to move the item to another folder. */
[[nodiscard]] bool moveNeedsRights(const QString &path);
[[nodiscard]] bool isExecutableFile(const QString &path);
/** Bytes of the item that the path leads to; 0 when missing or no plain file. */
[[nodiscard]] quint64 fileSizeOf(const QString &path);
/** Bytes free to this user on the file system that holds the path; nothing when that cannot be told. */
[[nodiscard]] std::optional<quint64> freeBytesAt(const QString &path);

/**
 * The names in a folder, hidden ones included, in case-insensitive order, ties by bytes: file systems here define no
 * order, and this one is the same on every machine. Nothing when the folder cannot be read.
 */
[[nodiscard]] std::optional<QList<FolderEntry>> listFolder(const QString &path);
[[nodiscard]] QList<FolderEntry> inListingOrder(QList<FolderEntry> entries);

/** With all missing parents. A folder that exists is success. */
FileOutcome makeFolders(const QString &path);
/** The one folder, whose parent exists; fails with EEXIST when anything stands there. One atomic step. */
FileOutcome makeNewFolder(const QString &path);
/** Never overwrites: fails with EEXIST when anything stands at the destination. Across file systems copies, removes. */
FileOutcome moveItem(const QString &source, const QString &destination);
/** The item, with everything below it. Links are removed, never followed. What is missing is success. */
FileOutcome removeTree(const QString &path);
/** The same for what this process has just made: folders that it has closed to itself again are opened first. */
FileOutcome removeOwnTree(const QString &path);
/** The dates of the item itself become now; a link's own, never its target's. */
FileOutcome touchItem(const QString &path);

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
[[nodiscard]] QList<FileOutcome> touchBelow(const QString &folder, const std::function<void(const QString &)> &entering);

} // namespace platform

#pragma once

#include "platform/base/Outcome.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

/**
 * The file system, by path, of any length and with names of any bytes. Everything here blocks the calling thread and
 * may be called on any. Nothing here asks, logs or falls back to anything: that is for the rooms above.
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
/** Nothing stands at the path itself. Unlike with kindOf(), what cannot be looked at is not missing. */
[[nodiscard]] bool isMissing(const QString &path);
/** Follows links: a link whose target is missing does not exist. */
[[nodiscard]] bool targetExists(const QString &path);
/** The same where "no" must be certain: a place that cannot be looked at, as on a server that does not answer, is a
    failure. */
[[nodiscard]] Result<bool> isThereForCertain(const QString &path);
/** Follows links. */
[[nodiscard]] bool leadsToFolder(const QString &path);
/** Nothing when nothing stands there. A link is not followed. */
[[nodiscard]] std::optional<FileIdentity> identityOf(const QString &path);
/** When the item itself was made, which no copy and no program changes; nothing where the drive does not know. */
[[nodiscard]] std::optional<QDateTime> birthOf(const QString &path);
[[nodiscard]] QString linkTarget(const QString &path);
[[nodiscard]] bool isWritable(const QString &path);
/** Whether this user lacks the permission to move the item to another folder. */
[[nodiscard]] bool moveNeedsRights(const QString &path);
[[nodiscard]] bool isExecutableFile(const QString &path);
/** Whether the plain file itself may be executed by its owner, whoever asks. */
[[nodiscard]] bool hasExecuteBit(const QString &path);
/** Bytes of the item that the path leads to; 0 when missing or no plain file. */
[[nodiscard]] quint64 fileSizeOf(const QString &path);
/** When its contents last changed; links are followed. Nothing when it is missing. */
[[nodiscard]] std::optional<QDateTime> modificationTimeOf(const QString &path);
/** The path with every link on it resolved; as it is when it leads nowhere. */
[[nodiscard]] QString realPath(const QString &path);
/** Bytes free to this user on the file system that holds the path; nothing when that cannot be told. */
[[nodiscard]] std::optional<quint64> freeBytesAt(const QString &path);

/**
 * The names in a folder, hidden ones included, in case-insensitive order, ties by bytes: file systems here define no
 * order, and this one is the same on every machine. Never a part of
 * them: a folder that cannot be read to its end is a failure, and a failure is no empty folder.
 */
[[nodiscard]] Result<QList<FolderEntry>> listFolder(const QString &path);
[[nodiscard]] QList<FolderEntry> inListingOrder(QList<FolderEntry> entries);

/** With all missing parents. A folder that exists is success. What the super-user makes in a user's folder is the
    user's. */
Outcome makeFolders(const QString &path);
/** The user's own folder of mode 0700, made where it is missing; NeedsRights for one of somebody else's, NotAFolder for
    one behind a link. */
Outcome makeOwnFolder(const QString &path);
/** The one folder, whose parent exists; fails with EEXIST when anything stands there. One atomic step. */
Outcome makeNewFolder(const QString &path);
/** The dates of the item itself become now; a link's own, never its target's. */
Outcome touchItem(const QString &path);

} // namespace platform

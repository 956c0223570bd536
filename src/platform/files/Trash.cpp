#include "platform/files/Trash.h"

#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/base/UniqueDescriptor.h"
#include "platform/base/Users.h"
#include "platform/base/WholeWrite.h"
#include "platform/files/FileSystem.h"
#include "platform/files/PathAt.h"

#include <QUuid>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/// The longest name that a file system here takes (NAME_MAX of limits.h), and what the note's name adds to the item's.
constexpr qsizetype longestName = 255;
constexpr QByteArrayView noteEnding(".trashinfo");
/// After so many namesakes a name that nobody else has is taken.
constexpr int numberedNames = 1000;

/// What tells one place of a rename from another: two mounts of one device refuse it as two devices do.
struct Place
{
    quint64 device = 0;
    quint64 mount = 0;
    bool operator==(const Place &) const = default;
};

std::optional<Place> placeOf(const QString &path)
{
    const PathAt at(path);
    struct statx info
    {
    };
    if (statx(at.folder(), at.name(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_MNT_ID, &info) != 0)
        return std::nullopt;
    return Place{(quint64{info.stx_dev_major} << 32) | info.stx_dev_minor, info.stx_mnt_id};
}

/// The highest folder above the item that a rename still reaches.
QString topOf(const QString &folder, const Place &place)
{
    QString top = folder;
    for (QString above = parentPath(top); !above.isEmpty() && above != top; above = parentPath(top)) {
        if (placeOf(above) != place)
            break;
        top = above;
    }
    return top;
}

/// Where an item can go: the two folders of one Trash, and how its notes write paths.
struct Trash
{
    QString folder;
    QString pathsBelow; ///< null: notes hold absolute paths
};

/// The user's own folder of mode 0700, made where it is missing; never one behind a link or of somebody else.
Outcome makeOwnFolder(const QString &path)
{
    const PathAt at(path);
    if (mkdirat(at.folder(), at.name(), 0700) != 0 && errno != EEXIST)
        return Outcome::fromErrno(path);
    struct stat info;
    if (fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return Outcome::fromErrno(path);
    if (!S_ISDIR(info.st_mode))
        return Outcome::fromNumber(ENOTDIR, path);
    return info.st_uid == geteuid() ? Outcome() : Outcome::fromNumber(EACCES, path);
}

QString homeTrash()
{
    const QString data = fromNative(qgetenv("XDG_DATA_HOME"));
    return joined(data.startsWith(u'/') ? data : joined(homeFolder(), QStringLiteral(".local/share")),
                  QStringLiteral("Trash"));
}

Result<Trash> homeTrashMade()
{
    const QString folder = homeTrash();
    if (const Outcome made = makeFolders(parentPath(folder)); !made.ok())
        return made;
    if (const Outcome made = makeOwnFolder(folder); !made.ok())
        return made;
    return Trash{folder, {}};
}

/// The Trash of a drive: the user's folder in the administrator's .Trash, which must be a sticky folder and no link,
/// else .Trash-UID.
Result<Trash> driveTrashMade(const QString &top)
{
    const QString user = QString::number(geteuid());
    struct stat info;
    const QString shared = joined(top, QStringLiteral(".Trash"));
    const PathAt at(shared);
    if (fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(info.st_mode) &&
        (info.st_mode & S_ISVTX) != 0 && makeOwnFolder(joined(shared, user)).ok())
        return Trash{joined(shared, user), top};
    const QString own = joined(top, QStringLiteral(".Trash-") + user);
    const Outcome made = makeOwnFolder(own);
    return made.ok() ? Result<Trash>(Trash{own, top}) : Result<Trash>(made);
}

Result<Trash> trashFor(const QString &path)
{
    const QString folder = parentPath(path);
    const std::optional<Place> place = placeOf(folder);
    if (!place)
        return Outcome::fromErrno(folder);
    Result<Trash> home = homeTrashMade();
    const bool isAtHome = home && placeOf(home->folder) == place;
    Result<Trash> trash = isAtHome ? home : driveTrashMade(topOf(folder, *place));
    if (!trash)
        return trash;
    for (const char *part : {"files", "info"}) {
        if (const Outcome made = makeOwnFolder(joined(trash->folder, QLatin1String(part))); !made.ok())
            return made;
    }
    return trash;
}

/// The name cut to the given number of bytes, never within a character.
QByteArray shortened(const QByteArray &name, qsizetype atMost)
{
    qsizetype end = qMin(name.size(), atMost);
    while (end > 0 && end < name.size() && (static_cast<uchar>(name[end]) & 0xC0) == 0x80)
        --end;
    return name.first(end);
}

/// "Film.mov", "Film 2.mov", "Film 3.mov": the note's name, which is longer, must fit as well.
QByteArray nameInTrash(const QByteArray &name, int attempt)
{
    const QByteArray addition = attempt < 2               ? QByteArray()
                                : attempt < numberedNames ? ' ' + QByteArray::number(attempt)
                                                          : ' ' + QUuid::createUuid().toByteArray(QUuid::Id128);
    const qsizetype dot = name.lastIndexOf('.');
    const QByteArray ending = dot > 0 && name.size() - dot < 32 ? name.mid(dot) : QByteArray();
    const qsizetype room = longestName - noteEnding.size() - addition.size() - ending.size();
    return shortened(name.chopped(ending.size()), room) + addition + ending;
}

QByteArray noteFor(const QString &path, const QString &pathsBelow)
{
    const QString written =
        pathsBelow.isNull() ? path : path.mid(pathsBelow.endsWith(u'/') ? pathsBelow.size() : pathsBelow.size() + 1);
    return "[Trash Info]\nPath=" + toNative(written).toPercentEncoding("/") +
           "\nDeletionDate=" + formatDate(QStringLiteral("%Y-%m-%dT%H:%M:%S"), std::time(nullptr)).toLatin1() + '\n';
}

/// A new note, whole and on disk; nothing of it is left on failure. Cause::Exists when the name is taken.
Outcome writeNote(const QString &path, const QByteArray &note)
{
    const PathAt at(path);
    UniqueDescriptor file(openat(at.folder(), at.name(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return Outcome::fromErrno(path);
    if (writeWhole(file.get(), note.constData(), static_cast<std::size_t>(note.size())) && file.closeChecked() == 0)
        return {};
    const Outcome failure = Outcome::fromErrno(path);
    unlinkat(at.folder(), at.name(), 0);
    return failure;
}

Outcome moveUnder(const QByteArray &name, const QString &path, const Trash &trash)
{
    const QString note =
        joined(joined(trash.folder, QStringLiteral("info")), fromNative(name + noteEnding.toByteArray()));
    if (const Outcome written = writeNote(note, noteFor(path, trash.pathsBelow)); !written.ok())
        return written;
    const PathAt from(path);
    const PathAt to(joined(joined(trash.folder, QStringLiteral("files")), fromNative(name)));
    if (renameat2(from.folder(), from.name(), to.folder(), to.name(), RENAME_NOREPLACE) == 0)
        return {};
    Outcome failure = Outcome::fromErrno(path);
    // File systems without that flag: the note's name, which was free, has claimed the item's as well.
    if (failure.is(Cause::NotSupported) &&
        kindOf(joined(joined(trash.folder, QStringLiteral("files")), fromNative(name))) == FileKind::Missing) {
        if (renameat(from.folder(), from.name(), to.folder(), to.name()) == 0)
            return {};
        failure = Outcome::fromErrno(path);
    }
    const PathAt noteAt(note);
    unlinkat(noteAt.folder(), noteAt.name(), 0);
    return failure;
}

} // namespace

QString homeTrashFiles()
{
    return homeTrash() + QStringLiteral("/files");
}

Outcome moveToTrash(const QString &path)
{
    if (kindOf(path) == FileKind::Missing)
        return Outcome::fromNumber(ENOENT, path);
    const Result<Trash> trash = trashFor(path);
    if (!trash)
        return trash.outcome();
    if (isInside(path, trash->folder) || path == trash->folder || isInside(trash->folder, path))
        return Outcome::failure(Cause::NotSupported, path); // what lies in the Trash, or holds it, cannot go there
    const QByteArray name = toNative(lastComponent(path));
    Outcome moved;
    for (int attempt = 1; attempt <= numberedNames; ++attempt) {
        moved = moveUnder(nameInTrash(name, attempt), path, *trash);
        if (!moved.is(Cause::Exists))
            break;
    }
    return moved;
}

Outcome noteInTrash(const QString &target, const QString &originalPath)
{
    const QString info = parentPath(parentPath(target)) + QStringLiteral("/info");
    if (const Outcome made = makeFolders(info); !made.ok())
        return made;
    const QString note = joined(info, lastComponent(target) + QLatin1String(noteEnding.data(), noteEnding.size()));
    return writeNote(note, noteFor(originalPath, {}));
}

} // namespace platform

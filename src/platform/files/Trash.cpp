#include "platform/files/Trash.h"

#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/PathAt.h"
#include "platform/plain/UniqueDescriptor.h"
#include "platform/plain/WholeWrite.h"

#include <QUuid>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <functional>
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
Result<QString> topOf(const QString &folder, const Place &place)
{
    QString top = folder;
    for (QString above = parentPath(top); !above.isEmpty() && above != top; above = parentPath(top)) {
        const std::optional<Place> other = placeOf(above);
        if (!other) // else there would be a Trash in the middle of the user's folders
            return Outcome::fromErrno(above);
        if (other != place)
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
    const std::optional<Place> homePlace = home ? placeOf(home->folder) : std::nullopt;
    if (home && !homePlace)
        return Outcome::fromErrno(home->folder);
    const bool isAtHome = homePlace == place;
    const Result<QString> top = isAtHome ? Result<QString>(QString()) : topOf(folder, *place);
    if (!top)
        return top.outcome();
    Result<Trash> trash = isAtHome ? home : driveTrashMade(*top);
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

QString noteOf(const QString &inTrash)
{
    return joined(joined(parentPath(parentPath(inTrash)), QStringLiteral("info")),
                  lastComponent(inTrash) + QLatin1String(noteEnding.data(), noteEnding.size()));
}

/// Refuses to replace. File systems without that flag: the note's name, which was free, has claimed the item's as well.
Outcome rename(const QString &path, const QString &inTrash)
{
    const PathAt from(path);
    const PathAt to(inTrash);
    if (renameat2(from.folder(), from.name(), to.folder(), to.name(), RENAME_NOREPLACE) == 0)
        return {};
    const Outcome failure = Outcome::fromErrno(path);
    if (!failure.is(Cause::NotSupported) || kindOf(inTrash) != FileKind::Missing)
        return failure;
    return renameat(from.folder(), from.name(), to.folder(), to.name()) == 0 ? Outcome() : Outcome::fromErrno(path);
}

/// Finds the place and its note by trying; the step that takes the place may find it taken all the same.
Result<QString> takePlace(const QString &path, const QString &knownAs,
                          const std::function<Outcome(const QString &inTrash)> &take)
{
    const QString folder = realPath(parentPath(path)); // a link on the way may lead to another drive
    const QString item = joined(folder, lastComponent(path));
    const Result<Trash> trash = trashFor(item);
    if (!trash)
        return trash.outcome();
    if (isInside(item, trash->folder) || item == trash->folder || isInside(trash->folder, item))
        return Outcome::failure(Cause::NotSupported, path); // what lies in the Trash, or holds it, cannot go there
    const QString known = knownAs.isNull() ? item : joined(realPath(parentPath(knownAs)), lastComponent(knownAs));
    const QByteArray name = toNative(lastComponent(known));
    Outcome taken;
    for (int attempt = 1; attempt <= numberedNames; ++attempt) {
        const QString inTrash =
            joined(joined(trash->folder, QStringLiteral("files")), fromNative(nameInTrash(name, attempt)));
        taken = writeNote(noteOf(inTrash), noteFor(known, trash->pathsBelow));
        if (taken.ok()) {
            taken = take(inTrash);
            if (taken.ok())
                return inTrash;
            giveUpPlaceInTrash(inTrash);
        }
        if (!taken.is(Cause::Exists))
            break;
    }
    return taken;
}

} // namespace

QString homeTrashFiles()
{
    return homeTrash() + QStringLiteral("/files");
}

Outcome moveToTrash(const QString &path, QString *inTrash, const QString &knownAs)
{
    if (kindOf(path) == FileKind::Missing)
        return Outcome::fromNumber(ENOENT, path);
    const Result<QString> place = takePlace(path, knownAs, [&](const QString &target) { return rename(path, target); });
    if (place && inTrash)
        *inTrash = *place;
    return place.outcome();
}

Outcome putBackFromTrash(const QString &inTrash, const QString &path)
{
    const Outcome moved = moveItem(inTrash, path);
    return moved.ok() ? removeTree(noteOf(inTrash)) : moved;
}

Result<QString> reserveInTrash(const QString &path, const QString &knownAs)
{
    return takePlace(path, knownAs, [](const QString &target) {
        return kindOf(target) == FileKind::Missing ? Outcome() : Outcome::fromNumber(EEXIST, target);
    });
}

void giveUpPlaceInTrash(const QString &inTrash)
{
    const PathAt note(noteOf(inTrash));
    unlinkat(note.folder(), note.name(), 0);
}

} // namespace platform

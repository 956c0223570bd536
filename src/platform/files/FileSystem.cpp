#include "platform/files/FileSystem.h"

#include "platform/base/NativePath.h"
#include "platform/files/ListingOrder.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FolderReader.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace platform {
namespace {

FileKind kindOfMode(mode_t mode)
{
    return S_ISREG(mode)   ? FileKind::File
           : S_ISDIR(mode) ? FileKind::Folder
           : S_ISLNK(mode) ? FileKind::Link
                           : FileKind::Other;
}

bool statItem(const QString &path, struct stat &info, int flags)
{
    const PathAt at(path);
    return fstatat(at.folder(), at.name(), &info, flags) == 0;
}

bool mayAccess(const QString &path, int mode)
{
    const PathAt at(path);
    return faccessat(at.folder(), at.name(), mode, AT_EACCESS) == 0;
}

/// Only what is certain to be what has just been made, an empty folder of root's: in the user's folder the user may
/// have put another in its place.
void giveToOwnerAbove(const QString &path)
{
    const PathAt at(path);
    const UniqueDescriptor folder(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat made;
    struct stat above;
    std::vector<RawEntry> entries;
    if (!folder.isOpen() || fstat(folder.get(), &made) != 0 || made.st_uid != 0 || !readFolder(folder.get(), entries) ||
        !entries.empty() || fstatat(folder.get(), "..", &above, 0) != 0 || above.st_uid == 0)
        return;
    static_cast<void>(fchown(folder.get(), above.st_uid, above.st_gid) == 0); // root can write in it all the same
}

} // namespace

FileKind kindOf(const QString &path)
{
    struct stat info;
    return statItem(path, info, AT_SYMLINK_NOFOLLOW) ? kindOfMode(info.st_mode) : FileKind::Missing;
}

bool isMissing(const QString &path)
{
    struct stat info;
    return !statItem(path, info, AT_SYMLINK_NOFOLLOW) && (errno == ENOENT || errno == ENOTDIR);
}

bool targetExists(const QString &path)
{
    struct stat info;
    return statItem(path, info, 0);
}

Result<bool> isThereForCertain(const QString &path)
{
    if (targetExists(path))
        return true;
    return errno == ENOENT || errno == ENOTDIR ? Result<bool>(false) : Result<bool>(Outcome::fromErrno(path));
}

bool leadsToFolder(const QString &path)
{
    struct stat info;
    return statItem(path, info, 0) && S_ISDIR(info.st_mode);
}

std::optional<FileIdentity> identityOf(const QString &path)
{
    struct stat info;
    if (!statItem(path, info, AT_SYMLINK_NOFOLLOW))
        return std::nullopt;
    return FileIdentity{info.st_dev, info.st_ino};
}

std::optional<QDateTime> birthOf(const QString &path)
{
    const PathAt at(path);
    struct statx info;
    if (statx(at.folder(), at.name(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &info) != 0 ||
        (info.stx_mask & STATX_BTIME) == 0)
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(info.stx_btime.tv_sec * 1000LL + info.stx_btime.tv_nsec / 1'000'000);
}

QString linkTarget(const QString &path)
{
    const PathAt at(path);
    char buffer[PATH_MAX];
    const ssize_t length = readlinkat(at.folder(), at.name(), buffer, sizeof buffer);
    return length < 0 ? QString() : fromNative(QByteArrayView(buffer, length));
}

bool isWritable(const QString &path)
{
    return mayAccess(path, W_OK);
}

bool moveNeedsRights(const QString &path)
{
    struct stat item;
    struct stat parent;
    const QString folder = parentPath(path);
    if (!statItem(path, item, AT_SYMLINK_NOFOLLOW) || !statItem(folder, parent, 0) || !isWritable(folder))
        return true;
    // A folder's own ".." entry is rewritten; in a sticky folder like /tmp only owners take things away.
    const bool isSticky = (parent.st_mode & S_ISVTX) != 0 && item.st_uid != geteuid() && parent.st_uid != geteuid();
    return isSticky || (S_ISDIR(item.st_mode) && !isWritable(path));
}

bool isExecutableFile(const QString &path)
{
    struct stat info;
    return statItem(path, info, 0) && S_ISREG(info.st_mode) && mayAccess(path, X_OK);
}

bool hasExecuteBit(const QString &path)
{
    struct stat info;
    return statItem(path, info, AT_SYMLINK_NOFOLLOW) && S_ISREG(info.st_mode) && (info.st_mode & S_IXUSR) != 0;
}

quint64 fileSizeOf(const QString &path)
{
    struct stat info;
    return statItem(path, info, 0) && S_ISREG(info.st_mode) ? static_cast<quint64>(info.st_size) : 0;
}

std::optional<QDateTime> modificationTimeOf(const QString &path)
{
    struct stat info;
    if (!statItem(path, info, 0))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(qint64{info.st_mtim.tv_sec} * 1000 + info.st_mtim.tv_nsec / 1'000'000);
}

QString realPath(const QString &path)
{
    const std::unique_ptr<char, decltype(&free)> real(realpath(toNative(path).constData(), nullptr), free);
    return real ? fromNative(real.get()) : path;
}

std::optional<quint64> freeBytesAt(const QString &path)
{
    struct statvfs info;
    if (statvfs(toNative(path).constData(), &info) != 0)
        return std::nullopt;
    return static_cast<quint64>(info.f_bavail) * info.f_frsize;
}

QList<FolderEntry> inListingOrder(QList<FolderEntry> entries)
{
    struct Keyed
    {
        QString folded;
        FolderEntry entry;
    };
    QList<Keyed> keyed;
    keyed.reserve(entries.size());
    for (FolderEntry &entry : entries) {
        QString folded = entry.name.toCaseFolded();
        keyed.append({std::move(folded), std::move(entry)});
    }
    std::sort(keyed.begin(), keyed.end(), [](const Keyed &a, const Keyed &b) {
        const int order = a.folded.compare(b.folded);
        return order != 0 ? order < 0 : toNative(a.entry.name) < toNative(b.entry.name);
    });
    for (qsizetype i = 0; i < keyed.size(); ++i)
        entries[i] = std::move(keyed[i].entry);
    return entries;
}

Result<QList<FolderEntry>> listFolder(const QString &path)
{
    const PathAt at(path);
    const UniqueDescriptor folder(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::vector<RawEntry> raw;
    if (!folder.isOpen() || !readFolder(folder.get(), raw))
        return Outcome::fromErrno(path);
    // Nearly all folders hold plain ASCII names.
    const bool plain = std::all_of(raw.begin(), raw.end(), [](const RawEntry &entry) { return isAscii(entry.name); });
    if (plain)
        std::sort(raw.begin(), raw.end(), [](const auto &a, const auto &b) { return precedesInAscii(a.name, b.name); });
    QList<FolderEntry> entries;
    entries.reserve(static_cast<qsizetype>(raw.size()));
    for (const RawEntry &entry : raw)
        entries.append({fromNative(entry.name), kindOfMode(DTTOIF(entry.type))});
    return plain ? entries : inListingOrder(std::move(entries));
}

Outcome makeNewFolder(const QString &path)
{
    const PathAt at(path);
    if (mkdirat(at.folder(), at.name(), 0777) != 0)
        return Outcome::fromErrno(path);
    if (geteuid() == 0)
        giveToOwnerAbove(path);
    return {};
}

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

Outcome makeFolders(const QString &path)
{
    if (leadsToFolder(path))
        return {};
    QStringList missing{path};
    for (QString parent = parentPath(path); !parent.isEmpty() && parent != u'/' && kindOf(parent) == FileKind::Missing;
         parent = parentPath(parent))
        missing.prepend(parent);
    for (const QString &folder : missing) {
        const Outcome made = makeNewFolder(folder);
        // Another program may have made it in between: what counts is that a folder stands there.
        if (!made.ok() && !leadsToFolder(folder))
            return made;
    }
    return {};
}

Outcome touchItem(const QString &path)
{
    const PathAt at(path);
    return utimensat(at.folder(), at.name(), nullptr, AT_SYMLINK_NOFOLLOW) == 0 ? Outcome() : Outcome::fromErrno(path);
}

} // namespace platform

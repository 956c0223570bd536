#include "platform/files/FileSystem.h"

#include "platform/base/NativePath.h"
#include "platform/files/FolderReader.h"
#include "platform/files/PathAt.h"

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

bool isAscii(const std::string &name)
{
    return std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char foldedAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// inListingOrder() for names of ASCII characters only; not strcasecmp(), which asks the locale.
bool precedesInAscii(const RawEntry &a, const RawEntry &b)
{
    const auto [inA, inB] = std::mismatch(a.name.begin(), a.name.end(), b.name.begin(), b.name.end(),
                                          [](char x, char y) { return foldedAscii(x) == foldedAscii(y); });
    if (inA == a.name.end() || inB == b.name.end())
        return a.name.size() != b.name.size() ? a.name.size() < b.name.size() : a.name < b.name;
    return foldedAscii(*inA) < foldedAscii(*inB);
}

bool mayAccess(const QString &path, int mode)
{
    const PathAt at(path);
    return faccessat(at.folder(), at.name(), mode, AT_EACCESS) == 0;
}

} // namespace

FileKind kindOf(const QString &path)
{
    struct stat info;
    return statItem(path, info, AT_SYMLINK_NOFOLLOW) ? kindOfMode(info.st_mode) : FileKind::Missing;
}

bool targetExists(const QString &path)
{
    struct stat info;
    return statItem(path, info, 0);
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
    // Nearly all folders hold plain ASCII names, whose order needs no Unicode: half the time for a large one.
    const bool plain = std::all_of(raw.begin(), raw.end(), [](const RawEntry &entry) { return isAscii(entry.name); });
    if (plain)
        std::sort(raw.begin(), raw.end(), precedesInAscii);
    QList<FolderEntry> entries;
    entries.reserve(static_cast<qsizetype>(raw.size()));
    for (const RawEntry &entry : raw)
        entries.append({fromNative(entry.name), kindOfMode(DTTOIF(entry.type))});
    return plain ? entries : inListingOrder(std::move(entries));
}

Outcome makeNewFolder(const QString &path)
{
    const PathAt at(path);
    return mkdirat(at.folder(), at.name(), 0777) == 0 ? Outcome() : Outcome::fromErrno(path);
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

// The operations of FileSystem.h that walk a whole tree, by descriptor: no path is looked up twice, a link is never
// followed, and no depth makes a path too long.
#include "platform/FileSystem.h"

#include "platform/FolderReader.h"
#include "platform/NativePath.h"
#include "platform/PathAt.h"
#include "platform/TreeCopy.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/// What happens at a folder whose mode keeps this process out.
enum class Closed { Fails, IsOpened };

FileOutcome removeBelow(int folder, const QString &path, Closed closed);

FileOutcome removeEntry(int parent, const char *name, bool folder, const QString &path, Closed closed)
{
    if (folder) {
        if (closed == Closed::IsOpened)
            static_cast<void>(fchmodat(parent, name, 0700, 0) == 0);
        const UniqueDescriptor opened = openFolder(parent, name);
        if (!opened.isOpen() && errno != ENOENT)
            return FileOutcome::fromErrno(path);
        const FileOutcome below = opened.isOpen() ? removeBelow(opened.get(), path, closed) : FileOutcome();
        if (!below.ok())
            return below;
    }
    const bool gone = unlinkat(parent, name, folder ? AT_REMOVEDIR : 0) == 0 || errno == ENOENT;
    return gone ? FileOutcome() : FileOutcome::fromErrno(path);
}

FileOutcome removeBelow(int folder, const QString &path, Closed closed)
{
    std::vector<RawEntry> entries;
    if (!readFolder(folder, entries))
        return FileOutcome::fromErrno(path);
    for (const RawEntry &entry : entries) {
        const FileOutcome removed =
            removeEntry(folder, entry.name.c_str(), entry.type == DT_DIR, joined(path, fromNative(entry.name)), closed);
        if (!removed.ok())
            return removed;
    }
    return {};
}

FileOutcome removeItem(const QString &path, Closed closed)
{
    raiseDescriptorLimit();
    const FileKind kind = kindOf(path);
    const PathAt at(path);
    return kind == FileKind::Missing ? FileOutcome()
                                     : removeEntry(at.folder(), at.name(), kind == FileKind::Folder, path, closed);
}

/// The rename itself, refusing to overwrite. File systems without that flag get a look first.
bool renameWithoutReplacing(const PathAt &from, const PathAt &to)
{
    if (renameat2(from.folder(), from.name(), to.folder(), to.name(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    struct stat info;
    if (fstatat(to.folder(), to.name(), &info, AT_SYMLINK_NOFOLLOW) == 0) {
        errno = EEXIST;
        return false;
    }
    return renameat(from.folder(), from.name(), to.folder(), to.name()) == 0;
}

void measureEntry(int parent, const char *name, TreeSize &size)
{
    struct stat info;
    if (fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return;
    ++size.items;
    if (S_ISREG(info.st_mode))
        size.bytes += static_cast<quint64>(info.st_size);
    if (!S_ISDIR(info.st_mode))
        return;
    const UniqueDescriptor folder = openFolder(parent, name);
    std::vector<RawEntry> entries;
    if (!folder.isOpen() || !readFolder(folder.get(), entries))
        return;
    for (const RawEntry &entry : entries)
        measureEntry(folder.get(), entry.name.c_str(), size);
}

struct Toucher
{
    const std::function<void(const QString &)> &entering;
    QList<FileOutcome> failed;

    void touchEntries(int folder, const QString &path)
    {
        entering(path);
        std::vector<RawEntry> entries;
        if (!readFolder(folder, entries))
            failed.append(FileOutcome::fromErrno(path));
        for (const RawEntry &entry : entries) {
            const char *name = entry.name.c_str();
            if (entry.type == DT_DIR)
                descend(folder, name, joined(path, fromNative(entry.name)));
            if (utimensat(folder, name, nullptr, AT_SYMLINK_NOFOLLOW) != 0)
                failed.append(FileOutcome::fromErrno(joined(path, fromNative(entry.name))));
        }
    }

    void descend(int parent, const char *name, const QString &path)
    {
        const UniqueDescriptor folder = openFolder(parent, name);
        if (folder.isOpen())
            touchEntries(folder.get(), path);
        else
            failed.append(FileOutcome::fromErrno(path));
    }
};

} // namespace

FileOutcome removeTree(const QString &path)
{
    return removeItem(path, Closed::Fails);
}

FileOutcome removeOwnTree(const QString &path)
{
    return removeItem(path, Closed::IsOpened);
}

FileOutcome moveItem(const QString &source, const QString &destination)
{
    const PathAt from(source);
    const PathAt to(destination);
    if (renameWithoutReplacing(from, to))
        return {};
    if (errno != EXDEV)
        return FileOutcome::fromErrno(errno == EEXIST || errno == ENAMETOOLONG ? destination : source);
    const FileOutcome copied = copyItem(source, destination);
    return copied.ok() ? removeTree(source) : copied;
}

TreeSize measureTree(const QString &path)
{
    raiseDescriptorLimit();
    TreeSize size;
    const PathAt at(path);
    measureEntry(at.folder(), at.name(), size);
    return size;
}

QList<FileOutcome> touchBelow(const QString &folder, const std::function<void(const QString &)> &entering)
{
    raiseDescriptorLimit();
    Toucher toucher{entering, {}};
    const PathAt at(folder);
    const UniqueDescriptor opened(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen())
        toucher.touchEntries(opened.get(), folder);
    else
        toucher.failed.append(FileOutcome::fromErrno(folder));
    return toucher.failed;
}

} // namespace platform

#include "platform/files/MoveAcross.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/PathAt.h"
#include "platform/files/StagingFolder.h"
#include "platform/files/TreeCopy.h"
#include "platform/plain/FolderReader.h"

#include <QCoreApplication>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MoveAcross)
};

/// Whether this process could remove the item and all below it. Half a source that stays would be a third of a loss: it
/// is known before anything is copied.
Outcome removable(int parent, const char *name, const QString &path)
{
    struct statx info
    {
    };
    if (statx(parent, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_TYPE, &info) != 0)
        return Outcome::fromErrno(path);
    if ((info.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0)
        return Outcome::fromNumber(EPERM, path);
    if (!S_ISDIR(info.stx_mode))
        return {};
    const UniqueDescriptor folder = openFolder(parent, name);
    std::vector<RawEntry> entries;
    if (!folder.isOpen() || !readFolder(folder.get(), entries))
        return Outcome::fromErrno(path);
    if (!entries.empty() && faccessat(folder.get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        return Outcome::fromErrno(path);
    for (const RawEntry &entry : entries) {
        const Outcome below = removable(folder.get(), entry.name.c_str(), joined(path, fromNative(entry.name)));
        if (!below.ok())
            return below;
    }
    return {};
}

/// Everything of the folder's file system: there is no call for one tree alone.
Outcome writeToDisk(const QString &folder)
{
    const PathAt at(folder);
    const UniqueDescriptor opened(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.isOpen() && (syncfs(opened.get()) == 0 || errno == EINVAL || errno == ENOSYS)
               ? Outcome()
               : Outcome::fromErrno(folder);
}

Outcome compare(const QString &source, const QString &copy)
{
    const std::atomic<bool> never = false;
    const TreeSize wanted = measureTree(source, never);
    const TreeSize found = measureTree(copy, never);
    return wanted.items == found.items && wanted.bytes == found.bytes
               ? Outcome()
               : Outcome::failure(Cause::Unreachable, source,
                                  Text::tr("It changed while it was moved, or the copy is not whole"));
}

Outcome copyBeside(const StagingFolder &staging, const QString &source, const QString &staged, CopyMonitor *monitor,
                   Losses *losses)
{
    if (const Outcome copied = copyItem(source, staged, losses, monitor); !copied.ok())
        return copied;
    const Outcome same = compare(source, staged);
    return same.ok() ? writeToDisk(staging.path()) : same;
}

} // namespace

Outcome moveAcross(const QString &source, const QString &destination, CopyMonitor *monitor, Losses *losses)
{
    if (kindOf(destination) != FileKind::Missing)
        return Outcome::fromNumber(EEXIST, destination);
    raiseDescriptorLimit();
    const PathAt from(source);
    if (const Outcome mayGo = removable(from.folder(), from.name(), source); !mayGo.ok())
        return mayGo;
    const auto arrival = StagingFolder::make(parentPath(destination));
    if (!arrival)
        return arrival.outcome();
    auto departure = StagingFolder::make(parentPath(source));
    if (!departure)
        return departure.outcome(); // it could not be removed afterwards
    const QString name = lastComponent(destination);
    const QString staged = joined(arrival->path(), name);
    const Outcome copied = copyBeside(*arrival, source, staged, monitor, losses);
    if (!copied.ok())
        return copied.item() == staged ? Outcome::failure(copied.cause(), destination, copied.sentence()) : copied;
    if (const Outcome placed = arrival->moveOut(name, destination); !placed.ok())
        return placed;
    const Outcome taken = departure->takeIn(source);
    if (!taken.ok()) { // nothing of the original has gone: the copy goes
        static_cast<void>(removeOwnTree(destination));
        return taken;
    }
    return {}; // what cannot be removed of it lies in a hidden folder, and is found as abandoned
}

} // namespace platform

#include "platform/files/FileTree.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/MoveAcross.h"
#include "platform/files/PathAt.h"
#include "platform/plain/CopyMonitor.h"
#include "platform/plain/FolderReader.h"
#include "platform/plain/StartedThread.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace platform {
namespace {

/// What happens at a folder whose mode keeps this process out.
enum class Closed { Fails, IsOpened };

/// Removes one tree. Where a folder holds several others, a second worker shares them: removing is mostly waiting.
class TreeRemover
{
    /// Opens its owner's folder to the owner first; never one behind a link.
    static UniqueDescriptor openClosedFolder(int parent, const char *name)
    {
        const UniqueDescriptor held(openat(parent, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        const std::string path = "/proc/self/fd/" + std::to_string(held.get());
        if (held.isOpen() && chmod(path.c_str(), 0700) == 0)
            return openFolder(parent, name);
        errno = EACCES;
        return {};
    }

public:
    TreeRemover(Closed closed, CopyMonitor *monitor)
        : m_closed(closed)
        , m_monitor(monitor)
    {
    }

    /// The path, below which failures are named, is built only for them.
    Outcome run(int parent, const char *name, bool folder, const QString &path)
    {
        if (folder)
            emptyInStages(parent, name);
        if (m_error == 0)
            removeEntry(parent, name, folder, {}, 0);
        return m_error == 0 ? Outcome() : Outcome::fromNumber(m_error, joined(path, fromNative(m_failed)));
    }

private:
    /// Below this many folders a second worker is not worth its start.
    static constexpr std::size_t worthSharing = 4;

    bool fail(int error, const std::string &below)
    {
        const std::scoped_lock lock(m_mutex);
        if (m_error == 0) {
            m_failed = below;
            m_error = error;
        }
        return false;
    }

    /// Deeper than this a folder comes up to the top first: each level holds a descriptor and a piece of the stack.
    static constexpr int deepest = 500;

    /// All below the top but what is still deep by then, until nothing is.
    void emptyInStages(int parent, const char *name)
    {
        m_top = openFolder(parent, name);
        if (!m_top.isOpen()) // it is opened another way, or fails, in its turn
            return;
        if (m_closed == Closed::IsOpened)
            fchmod(m_top.get(), 0700);
        std::string below;
        removeBelow(m_top.get(), below, 0);
        while (!m_broughtUp.empty() && m_error == 0) {
            const std::string deep = std::move(m_broughtUp.back());
            m_broughtUp.pop_back();
            removeEntry(m_top.get(), deep.c_str(), true, deep, 1);
        }
    }

    bool bringUp(int parent, const char *name)
    {
        const std::scoped_lock lock(m_mutex);
        const std::string up = ".tessaro-deep-" + std::to_string(++m_numberUp);
        if (renameat2(parent, name, m_top.get(), up.c_str(), RENAME_NOREPLACE) != 0)
            return false;
        m_broughtUp.push_back(up);
        return true;
    }

    bool removeEntry(int parent, const char *name, bool folder, const std::string &below, int depth)
    {
        if (folder && depth > deepest && m_top.isOpen() && bringUp(parent, name))
            return true;
        if (folder) {
            UniqueDescriptor opened = openFolder(parent, name);
            if (!opened.isOpen() && errno == EACCES && m_closed == Closed::IsOpened)
                opened = openClosedFolder(parent, name);
            if (opened.isOpen() && m_closed == Closed::IsOpened)
                fchmod(opened.get(), 0700); // one that can be read may still refuse to let go of what is in it
            if (!opened.isOpen() && errno != ENOENT)
                return fail(errno, below);
            if (opened.isOpen() && !removeBelow(opened.get(), below, depth))
                return false;
        }
        if (m_monitor) {
            ++m_monitor->items;
            if (m_monitor->cancelled)
                return fail(ECANCELED, below);
        }
        const bool gone = unlinkat(parent, name, folder ? AT_REMOVEDIR : 0) == 0 || errno == ENOENT;
        return gone || fail(errno, below);
    }

    bool removeBelow(int folder, const std::string &below, int depth)
    {
        std::vector<RawEntry> entries;
        if (!readFolder(folder, entries))
            return fail(errno, below);
        const auto folders = std::stable_partition(entries.begin(), entries.end(),
                                                   [](const RawEntry &entry) { return entry.type != DT_DIR; });
        std::atomic<std::size_t> next = 0;
        const auto work = [&] {
            for (std::size_t i = next++; i < entries.size() && m_error == 0; i = next++) {
                const std::string &name = entries[i].name;
                std::string path = below;
                if (!below.empty())
                    path += '/';
                path += name;
                removeEntry(folder, name.c_str(), entries[i].type == DT_DIR, path, depth + 1);
            }
        };
        const auto shareable = static_cast<std::size_t>(entries.end() - folders);
        std::thread second;
        if (shareable >= worthSharing && !m_isShared.exchange(true))
            second = startedThread(work);
        work();
        if (second.joinable()) {
            second.join();
            m_isShared = false;
        }
        return m_error == 0;
    }

    Closed m_closed;
    CopyMonitor *m_monitor;
    std::atomic<bool> m_isShared = false;
    UniqueDescriptor m_top;
    std::mutex m_mutex; ///< for what follows
    std::vector<std::string> m_broughtUp;
    int m_numberUp = 0;
    std::atomic<int> m_error = 0;
    std::string m_failed;
};

Outcome removeItem(const QString &path, Closed closed, CopyMonitor *monitor)
{
    raiseDescriptorLimit();
    if (isMissing(path))
        return {};
    const FileKind kind = kindOf(path);
    if (kind == FileKind::Missing)
        return Outcome::fromErrno(path);
    const PathAt at(path);
    return TreeRemover(closed, monitor).run(at.folder(), at.name(), kind == FileKind::Folder, path);
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

void measureEntry(int parent, const char *name, TreeSize &size, const std::atomic<bool> &cancelled)
{
    struct stat info;
    if (cancelled || fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
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
        measureEntry(folder.get(), entry.name.c_str(), size, cancelled);
}

struct Toucher
{
    const std::function<void(const QString &)> &entering;
    QList<Outcome> failed;

    void touchEntries(int folder, const QString &path)
    {
        entering(path);
        std::vector<RawEntry> entries;
        if (!readFolder(folder, entries))
            failed.append(Outcome::fromErrno(path));
        for (const RawEntry &entry : entries) {
            const char *name = entry.name.c_str();
            if (entry.type == DT_DIR)
                descend(folder, name, joined(path, fromNative(entry.name)));
            if (utimensat(folder, name, nullptr, AT_SYMLINK_NOFOLLOW) != 0)
                failed.append(Outcome::fromErrno(joined(path, fromNative(entry.name))));
        }
    }

    void descend(int parent, const char *name, const QString &path)
    {
        const UniqueDescriptor folder = openFolder(parent, name);
        if (folder.isOpen())
            touchEntries(folder.get(), path);
        else
            failed.append(Outcome::fromErrno(path));
    }
};

} // namespace

Outcome removeTree(const QString &path, CopyMonitor *monitor)
{
    return removeItem(path, Closed::Fails, monitor);
}

Outcome removeOwnTree(const QString &path)
{
    return removeItem(path, Closed::IsOpened, nullptr);
}

Outcome moveItem(const QString &source, const QString &destination, CopyMonitor *monitor, Losses *losses)
{
    const PathAt from(source);
    const PathAt to(destination);
    if (renameWithoutReplacing(from, to))
        return {};
    if (errno == EINVAL && isInside(destination, source))
        return Outcome::failure(Cause::IntoItself, source);
    if (errno != EXDEV)
        return Outcome::fromErrno(errno == EEXIST || errno == ENAMETOOLONG ? destination : source);
    return moveAcross(source, destination, monitor, losses);
}

Outcome replaceEmptyFolder(const QString &folder, const QString &empty)
{
    const PathAt from(folder);
    const PathAt to(empty);
    return renameat(from.folder(), from.name(), to.folder(), to.name()) == 0 ? Outcome() : Outcome::fromErrno(empty);
}

Outcome removeEmptyFolder(const QString &folder)
{
    const PathAt at(folder);
    return unlinkat(at.folder(), at.name(), AT_REMOVEDIR) == 0 ? Outcome() : Outcome::fromErrno(folder);
}

TreeSize measureTree(const QString &path, const std::atomic<bool> &cancelled)
{
    raiseDescriptorLimit();
    TreeSize size;
    const PathAt at(path);
    measureEntry(at.folder(), at.name(), size, cancelled);
    return size;
}

QList<Outcome> touchBelow(const QString &folder, const std::function<void(const QString &)> &entering)
{
    raiseDescriptorLimit();
    Toucher toucher{entering, {}};
    const PathAt at(folder);
    const UniqueDescriptor opened(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen())
        toucher.touchEntries(opened.get(), folder);
    else
        toucher.failed.append(Outcome::fromErrno(folder));
    return toucher.failed;
}

} // namespace platform

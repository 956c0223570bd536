#include "platform/files/StagingFolder.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FolderReader.h"

#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr int tries = 10;
const QString prefix = QStringLiteral(".tessaro-staged-");

/// While it lives a folder that was made read-only can be moved to another one: that changes its own "..".
class MadeMovable
{
public:
    explicit MadeMovable(const QString &path)
        : m_folder(open(path))
    {
        struct stat info;
        if (!m_folder.isOpen() || fstat(m_folder.get(), &info) != 0 || (info.st_mode & S_IWUSR) != 0) {
            m_folder.reset();
            return;
        }
        m_mode = info.st_mode & 07777U;
        static_cast<void>(fchmod(m_folder.get(), m_mode | S_IWUSR) == 0); // else the move says what is wrong
    }
    ~MadeMovable()
    {
        if (m_folder.isOpen())
            static_cast<void>(fchmod(m_folder.get(), m_mode) == 0);
    }
    MadeMovable(const MadeMovable &) = delete;
    MadeMovable &operator=(const MadeMovable &) = delete;

private:
    static UniqueDescriptor open(const QString &path)
    {
        const PathAt at(path);
        return UniqueDescriptor(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    UniqueDescriptor m_folder;
    mode_t m_mode = 0;
};

void giveAllBelow(int folder, const struct stat &place)
{
    std::vector<RawEntry> entries;
    if (!readFolder(folder, entries))
        return;
    for (const RawEntry &entry : entries) {
        // Told by nobody: what stays root's can still be read by the user.
        static_cast<void>(fchownat(folder, entry.name.c_str(), place.st_uid, place.st_gid, AT_SYMLINK_NOFOLLOW) == 0);
        if (entry.type == DT_DIR)
            giveAllBelow(openFolder(folder, entry.name.c_str()).get(), place);
    }
}

UniqueDescriptor lockedFolder(const QString &path, int operation)
{
    const PathAt at(path);
    UniqueDescriptor folder(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.isOpen() && flock(folder.get(), operation) != 0)
        folder.reset();
    return folder;
}

/// Somebody who looked for abandoned folders between its making and its locking may have taken it away.
bool isStillThere(const UniqueDescriptor &lock, const QString &path)
{
    struct stat info;
    return lock.isOpen() ? fstat(lock.get(), &info) == 0 && info.st_nlink > 0 : kindOf(path) == FileKind::Folder;
}

} // namespace

Result<StagingFolder> StagingFolder::make(const QString &inFolder)
{
    Outcome failure;
    for (int i = 0; i < tries; ++i) {
        const QString path = joined(inFolder, prefix + QString::number(QRandomGenerator::global()->generate64(), 36));
        const PathAt at(path);
        if (mkdirat(at.folder(), at.name(), 0700) == 0) {
            UniqueDescriptor lock = lockedFolder(path, LOCK_EX);
            if (isStillThere(lock, path))
                return StagingFolder(path, std::move(lock));
        }
        failure = Outcome::fromErrno(inFolder);
        if (!failure.is(Cause::Exists) && !failure.is(Cause::Missing))
            break;
    }
    return failure;
}

StagingFolder::StagingFolder(StagingFolder &&other) noexcept
    : m_path(std::exchange(other.m_path, QString()))
    , m_lock(std::move(other.m_lock))
{
}

StagingFolder::~StagingFolder()
{
    if (!m_path.isNull() && !m_isToStay)
        static_cast<void>(removeOwnTree(m_path)); // what stays is found as abandoned
}

void StagingFolder::giveToOwnerOfPlace() const
{
    struct stat place;
    const PathAt at(parentPath(m_path));
    if (geteuid() != 0 || !m_lock.isOpen() || fstatat(at.folder(), at.name(), &place, 0) != 0 || place.st_uid == 0)
        return;
    giveAllBelow(m_lock.get(), place);
}

void makeMovable(const QString &folder)
{
    const PathAt at(folder);
    const UniqueDescriptor opened(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat info;
    if (opened.isOpen() && fstat(opened.get(), &info) == 0)
        static_cast<void>(fchmod(opened.get(), (info.st_mode & 07777U) | S_IWUSR) == 0); // else the move says why not
}

Outcome moveMade(const QString &item, const QString &destination)
{
    const MadeMovable movable(item);
    return moveItem(item, destination);
}

Outcome StagingFolder::takeIn(const QString &item) const
{
    return moveMade(item, joined(m_path, lastComponent(item)));
}

Outcome StagingFolder::moveOut(const QString &name, const QString &destination) const
{
    return moveMade(joined(m_path, name), destination);
}

Outcome StagingFolder::exchange(const QString &name, const QString &destination) const
{
    const QString made = joined(m_path, name);
    const MadeMovable movable(made);
    const MadeMovable movesToo(destination);
    const PathAt from(made);
    const PathAt to(destination);
    if (renameat2(from.folder(), from.name(), to.folder(), to.name(), RENAME_EXCHANGE) == 0)
        return {};
    return errno == EINVAL || errno == ENOSYS ? Outcome::failure(Cause::NotSupported, destination)
                                              : Outcome::fromErrno(destination);
}

QStringList StagingFolder::abandonedIn(const QString &folder)
{
    QStringList found;
    for (const FolderEntry &entry : listFolder(folder).valueOr({})) {
        if (entry.kind != FileKind::Folder || !entry.name.startsWith(prefix))
            continue;
        const QString staging = joined(folder, entry.name);
        const UniqueDescriptor lock = lockedFolder(staging, LOCK_EX | LOCK_NB);
        if (!lock.isOpen())
            continue; // in use
        const auto items = listFolder(staging);
        for (const FolderEntry &item : items.valueOr({}))
            found.append(joined(staging, item.name));
        if (items && items->isEmpty())
            static_cast<void>(removeEmptyFolder(staging)); // a kill right after it was made, or its item was taken out
    }
    return found;
}

} // namespace platform

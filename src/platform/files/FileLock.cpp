#include "platform/files/FileLock.h"

#include "platform/files/PathAt.h"

#include <QRandomGenerator>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace platform {
namespace {

/// Of the open file and not of the process: two threads exclude each other as two programs do.
bool tryLock(int file, FileLock::Access access)
{
    struct flock lock
    {
    };
    lock.l_type = access == FileLock::Access::Read ? F_RDLCK : F_WRLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

/// The lock's file in a user's folder belongs to that user, also when the super-user came first.
void giveToOwnerOfFolder(const UniqueDescriptor &file, const PathAt &at)
{
    struct stat folder;
    const QByteArray name = at.name();
    const QByteArray above =
        name.contains('/') ? name.first(qMax<qsizetype>(1, name.lastIndexOf('/'))) : QByteArray(".");
    if (geteuid() == 0 && fstatat(at.folder(), above.constData(), &folder, 0) == 0)
        static_cast<void>(fchown(file.get(), folder.st_uid, folder.st_gid) == 0);
}

} // namespace

Result<FileLock> FileLock::acquire(const QString &lockFile, std::chrono::milliseconds patience, Access access)
{
    const PathAt at(lockFile);
    UniqueDescriptor file(openat(at.folder(), at.name(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0644));
    if (!file.isOpen())
        return Outcome::fromErrno(lockFile);
    giveToOwnerOfFolder(file, at);
    const auto start = std::chrono::steady_clock::now();
    while (!tryLock(file.get(), access)) {
        const bool isHeld = errno == EAGAIN || errno == EACCES;
        if (!isHeld && errno != EINTR)
            return errno == ENOLCK ? Outcome::failure(Cause::NotSupported, lockFile) : Outcome::fromErrno(lockFile);
        if (std::chrono::steady_clock::now() - start > patience)
            return Outcome::failure(Cause::Busy, lockFile);
        // In short steps of uneven length: of several that wait, none looks least often.
        std::this_thread::sleep_for(std::chrono::milliseconds(1 + QRandomGenerator::global()->bounded(5)));
    }
    return FileLock(std::move(file));
}

} // namespace platform

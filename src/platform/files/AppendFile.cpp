#include "platform/files/AppendFile.h"

#include "platform/files/PathAt.h"
#include "platform/plain/WholeWrite.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

Outcome AppendFile::open(const QString &path)
{
    m_path = path;
    const PathAt at(path);
    m_file.reset(openat(at.folder(), at.name(), O_WRONLY | O_APPEND | O_CLOEXEC));
    if (!m_file.isOpen())
        return Outcome::fromErrno(path);
    static_cast<void>(flock(m_file.get(), LOCK_SH | LOCK_NB)); // without locks nobody can tell; no reason not to write
    return {};
}

bool AppendFile::isInItsPlace() const
{
    struct stat mine;
    struct stat there;
    const PathAt at(m_path);
    if (fstat(m_file.get(), &mine) != 0)
        return true;
    if (fstatat(at.folder(), at.name(), &there, 0) != 0)
        return errno != ENOENT;
    return mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
}

quint64 AppendFile::size() const
{
    struct stat info;
    return fstat(m_file.get(), &info) == 0 ? static_cast<quint64>(info.st_size) : 0;
}

bool AppendFile::isInUse(const QString &path)
{
    const PathAt at(path);
    const UniqueDescriptor file(openat(at.folder(), at.name(), O_RDONLY | O_CLOEXEC));
    return file.isOpen() && flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

Outcome AppendFile::append(const QByteArray &bytes)
{
    const bool written = writeWhole(m_file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return written ? Outcome() : Outcome::fromErrno(m_path);
}

Outcome AppendFile::waitFor(Waits waits)
{
    const bool isWritten = waits == Waits::ForTheDisk    ? fsync(m_file.get()) == 0
                           : waits == Waits::ForItsBytes ? writeOut(m_file.get(), WritesOut::Ends)
                           : waits == Waits::ForNothing  ? writeOut(m_file.get(), WritesOut::Begins)
                                                         : true;
    return isWritten ? Outcome() : Outcome::fromErrno(m_path);
}

} // namespace platform

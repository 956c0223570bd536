#include "platform/files/FileCopy.h"

#include "platform/base/WholeWrite.h"
#include "platform/files/FolderReader.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace platform {
namespace {

constexpr std::size_t pieceSize = std::size_t{64} * 1024;
/// How much is copied between two looks at the monitor: some milliseconds' worth.
constexpr off_t monitoredLength = off_t{8} << 20;

/// The file mode creation mask, read without changing it: umask() can only be asked by setting it, for all threads.
mode_t creationMask()
{
    static const mode_t mask = [] {
        std::array<char, 4096> status{};
        const UniqueDescriptor file(open("/proc/self/status", O_RDONLY | O_CLOEXEC));
        if (!file.isOpen() || read(file.get(), status.data(), status.size() - 1) <= 0)
            return mode_t{0777}; // unknown: then every mode is set explicitly
        const char *line = std::strstr(status.data(), "Umask:");
        return line ? static_cast<mode_t>(std::strtoul(line + 6, nullptr, 8)) : mode_t{0777};
    }();
    return mask;
}

bool isUnsupportedHere(int error)
{
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

/// Tells the monitor of bytes copied. False, with errno, when the copy is to stop.
bool goesOn(CopyMonitor *monitor, off_t copied)
{
    if (!monitor)
        return true;
    monitor->bytes += static_cast<quint64>(copied);
    if (!monitor->cancelled)
        return true;
    errno = ECANCELED;
    return false;
}

/// Copies by reading and writing, from both current offsets, at most the given bytes or to the end. -1 on failure.
off_t pumpBytes(int source, int destination, off_t atMost, CopyMonitor *monitor)
{
    std::vector<char> piece(pieceSize);
    off_t total = 0;
    while (total < atMost) {
        const std::size_t wanted = std::min<std::size_t>(piece.size(), static_cast<std::size_t>(atMost - total));
        const ssize_t got = read(source, piece.data(), wanted);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0 || (got > 0 && !writeWhole(destination, piece.data(), static_cast<std::size_t>(got))))
            return -1;
        if (got == 0)
            break;
        total += got;
        if (!goesOn(monitor, got))
            return -1;
    }
    return total;
}

/// Copies a stretch from both current offsets; the kernel shares the blocks where it can. Bytes copied, or -1.
off_t copyStretch(int source, int destination, off_t length, CopyMonitor *monitor)
{
    off_t total = 0;
    while (total < length) {
        const off_t wanted = monitor ? std::min(length - total, monitoredLength) : length - total;
        const ssize_t copied =
            copy_file_range(source, nullptr, destination, nullptr, static_cast<std::size_t>(wanted), 0);
        if (copied < 0 && errno == EINTR)
            continue;
        // Some shares answer 0 at once instead of saying that they cannot.
        if ((copied < 0 && isUnsupportedHere(errno)) || (copied == 0 && total == 0)) {
            const off_t pumped = pumpBytes(source, destination, length - total, monitor);
            return pumped < 0 ? -1 : total + pumped;
        }
        if (copied < 0)
            return -1;
        if (copied == 0)
            break;
        total += copied;
        if (!goesOn(monitor, copied))
            return -1;
    }
    return total;
}

/// Copies only the stretches that hold data and leaves the holes between them. 0 or errno.
int copyWithHoles(int source, int destination, off_t size, CopyMonitor *monitor)
{
    off_t data = 0;
    off_t dataCopied = 0;
    while (data < size && (data = lseek(source, data, SEEK_DATA)) >= 0 && data < size) {
        const off_t hole = lseek(source, data, SEEK_HOLE);
        if (hole < 0 || lseek(source, data, SEEK_SET) < 0 || lseek(destination, data, SEEK_SET) < 0)
            return errno;
        const off_t length = std::min(size, hole) - data;
        const off_t copied = copyStretch(source, destination, length, monitor);
        if (copied < 0)
            return errno;
        if (copied < length)
            return ESTALE;
        data += length;
        dataCopied += length;
    }
    if (data < 0 && errno != ENXIO) // ENXIO: only a hole is left, or nothing any more
        return errno;
    struct stat now;
    if (fstat(source, &now) != 0)
        return errno;
    if (now.st_size < size) // cut off between two stretches of data
        return ESTALE;
    if (!goesOn(monitor, size - dataCopied))
        return errno;
    return ftruncate(destination, size) == 0 ? 0 : errno;
}

/// 0 or errno. A file that shrinks under the copy is a failure: a shorter file would pass for the whole one.
int copyContents(int source, int destination, const struct stat &info, CopyMonitor *monitor)
{
    const off_t size = info.st_size;
    if (size == 0) // some file systems say 0 and have contents all the same
        return pumpBytes(source, destination, LONG_MAX, monitor) < 0 ? errno : 0;
    if (info.st_blocks < size / 512) {
        const off_t firstHole = lseek(source, 0, SEEK_HOLE);
        if (lseek(source, 0, SEEK_SET) < 0)
            return errno;
        if (firstHole >= 0 && firstHole < size)
            return copyWithHoles(source, destination, size, monitor);
    }
    const off_t copied = copyStretch(source, destination, size, monitor);
    return copied < 0 ? errno : copied < size ? ESTALE : 0;
}

/// True unless an attribute was lost. What only the system may set, or this user may not, is not the user's loss.
bool copyAttributes(int source, int destination)
{
    std::array<char, 1024> few;
    std::vector<char> many;
    char *names = few.data();
    ssize_t length = flistxattr(source, names, few.size());
    if (length < 0 && errno == ERANGE) {
        many.resize(XATTR_LIST_MAX);
        names = many.data();
        length = flistxattr(source, names, many.size());
    }
    bool kept = true;
    std::vector<char> value;
    for (ssize_t at = 0; at < length; at += static_cast<ssize_t>(std::strlen(names + at)) + 1) {
        value.resize(XATTR_SIZE_MAX);
        const ssize_t size = fgetxattr(source, names + at, value.data(), value.size());
        if (size < 0 || fsetxattr(destination, names + at, value.data(), static_cast<std::size_t>(size), 0) != 0)
            kept = kept && std::strncmp(names + at, "user.", 5) != 0;
    }
    return kept;
}

EntryResult copyRegular(int sourceFolder, const char *from, int destinationFolder, const char *to, CopyMonitor *monitor)
{
    EntryResult result;
    const UniqueDescriptor source = openFile(sourceFolder, from);
    struct stat info;
    if (!source.isOpen() || fstat(source.get(), &info) != 0)
        return {errno, false, false};
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    // Writable at first: attributes can be set on nothing else, whatever the mode is to be in the end.
    UniqueDescriptor destination(openat(destinationFolder, to, flags, (info.st_mode & 0777) | S_IWUSR));
    if (!destination.isOpen())
        return {errno, false, false};
    result.made = true;
    result.error = copyContents(source.get(), destination.get(), info, monitor);
    if (result.error == 0) {
        const bool modeIsSet = (info.st_mode & (creationMask() | 07000)) == 0 && (info.st_mode & S_IWUSR) != 0;
        const EntryResult metadata = copyMetadata(source.get(), destination.get(), info, modeIsSet);
        result.error = metadata.error;
        result.attributesLost = metadata.attributesLost;
    }
    // A network share or a quota may report the failed write only now.
    if (destination.closeChecked() != 0 && result.error == 0)
        result.error = errno;
    return result;
}

EntryResult copyLink(int sourceFolder, const char *from, int destinationFolder, const char *to)
{
    char target[PATH_MAX];
    const ssize_t length = readlinkat(sourceFolder, from, target, sizeof target - 1);
    if (length < 0)
        return {errno, false, false};
    target[length] = '\0';
    return symlinkat(target, destinationFolder, to) == 0 ? EntryResult{0, true, false}
                                                         : EntryResult{errno, false, false};
}

/// Owner and times of what is not opened: links, FIFOs, sockets, devices.
int setMetadataByName(int folder, const char *name, const struct stat &info)
{
    if (geteuid() == 0 && fchownat(folder, name, info.st_uid, info.st_gid, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    const timespec times[2] = {info.st_atim, info.st_mtim};
    return utimensat(folder, name, times, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
}

} // namespace

EntryResult copyMetadata(int source, int destination, const struct stat &info, bool modeIsSet)
{
    EntryResult result;
    result.attributesLost = !copyAttributes(source, destination);
    mode_t mode = info.st_mode & 07777;
    const bool foreign = info.st_uid != geteuid() || info.st_gid != getegid();
    if (foreign && geteuid() == 0) {
        if (fchown(destination, info.st_uid, info.st_gid) != 0)
            result.error = errno;
    } else if (foreign) {
        mode &= 01777; // set-user-ID and set-group-ID mean something only with the owner they were given for
    }
    if ((!modeIsSet || foreign) && fchmod(destination, mode) != 0 && result.error == 0)
        result.error = errno;
    const timespec times[2] = {info.st_atim, info.st_mtim};
    if (futimens(destination, times) != 0 && result.error == 0)
        result.error = errno;
    return result;
}

EntryResult copyEntry(int sourceFolder, const char *from, int destinationFolder, const char *to, unsigned char type,
                      CopyMonitor *monitor)
{
    if (type == DT_REG)
        return copyRegular(sourceFolder, from, destinationFolder, to, monitor);
    struct stat info;
    if (fstatat(sourceFolder, from, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return {errno, false, false};
    EntryResult result;
    if (S_ISLNK(info.st_mode))
        result = copyLink(sourceFolder, from, destinationFolder, to);
    else if (mknodat(destinationFolder, to, info.st_mode, info.st_rdev) == 0)
        result.made = true;
    else
        result.error = errno;
    if (result.error == 0)
        result.error = setMetadataByName(destinationFolder, to, info);
    if (result.error == 0 && !S_ISLNK(info.st_mode) && fchmodat(destinationFolder, to, info.st_mode & 0777, 0) != 0)
        result.error = errno;
    return result;
}

} // namespace platform

#include "platform/plain/FileCopy.h"

#include "platform/plain/FolderReader.h"
#include "platform/plain/WholeWrite.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <endian.h>
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
    monitor->bytes += static_cast<unsigned long long>(copied);
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

enum class AccessLists { Copied, LeftOut };

/// LostLabels when an attribute was lost. What only the system may set, or this user may not, is not the user's loss.
unsigned copyAttributes(int source, int destination, AccessLists accessLists)
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
    bool kept = length >= 0 || isUnsupportedHere(errno); // what cannot be listed cannot be known to be nothing
    std::vector<char> value;
    for (ssize_t at = 0; at < length; at += static_cast<ssize_t>(std::strlen(names + at)) + 1) {
        if (accessLists == AccessLists::LeftOut && std::strncmp(names + at, "system.posix_acl_", 17) == 0)
            continue;
        value.resize(XATTR_SIZE_MAX);
        const ssize_t size = fgetxattr(source, names + at, value.data(), value.size());
        if (size < 0 || fsetxattr(destination, names + at, value.data(), static_cast<std::size_t>(size), 0) != 0)
            kept = kept && std::strncmp(names + at, "user.", 5) != 0;
    }
    return kept ? LostNothing : LostLabels;
}

/// Notes what became of setting one property. Drives without rights of their own (shares mounted in user space, exFAT,
/// NTFS) refuse it on files that can be written all the same: that is a loss, and no reason to have no copy.
void noteProperty(EntryResult &result, bool isSet, Lost loss)
{
    if (isSet)
        return;
    const bool isRefused = isUnsupportedHere(errno) || errno == EACCES;
    result.lost |= isRefused ? loss : LostNothing;
    if (!isRefused && result.error == 0)
        result.error = errno;
}

/// Who this process is; asked once, as it never becomes another.
struct Self
{
    uid_t user = geteuid();
    gid_t group = getegid();
    [[nodiscard]] bool isSuperUser() const { return user == 0; }
};

const Self &self()
{
    static const Self one;
    return one;
}

bool isForeign(const struct stat &info)
{
    return info.st_uid != self().user || info.st_gid != self().group;
}

/// The mode that a copy may have: set-user-ID and set-group-ID mean something only with the owner they were given for.
mode_t modeOfCopy(const struct stat &info)
{
    return info.st_mode & (isForeign(info) && !self().isSuperUser() ? 01777 : 07777);
}

void setDates(EntryResult &result, int item, const struct stat &info)
{
    const timespec times[2] = {info.st_atim, info.st_mtim};
    noteProperty(result, futimens(item, times) == 0, LostDates);
}

void finishFile(EntryResult &result, int source, int destination, const struct stat &info, Manner manner)
{
    result.lost |= copyAttributes(source, destination, AccessLists::Copied);
    const bool isGiven = isForeign(info) && self().isSuperUser();
    if (isGiven)
        noteProperty(result, fchown(destination, info.st_uid, info.st_gid) == 0, LostOwner);
    const bool modeIsSet = (info.st_mode & (creationMask() | 07000)) == 0 && (info.st_mode & S_IWUSR) != 0;
    if (!modeIsSet || isForeign(info))
        noteProperty(result, fchmod(destination, modeOfCopy(info)) == 0, LostMode);
    if (manner == Manner::Exact)
        setDates(result, destination, info);
}

EntryResult copyRegular(const EntryCopy &entry)
{
    EntryResult result;
    struct stat info;
    const UniqueDescriptor source = openFile(entry.sourceFolder, entry.from, info);
    if (!source.isOpen())
        return {errno, false};
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    // Writable at first: attributes can be set on nothing else, whatever the mode is to be in the end.
    UniqueDescriptor destination(openat(entry.destinationFolder, entry.to, flags, (info.st_mode & 0777) | S_IWUSR));
    if (!destination.isOpen())
        return {errno, false};
    result.isMade = true;
    result.error = copyContents(source.get(), destination.get(), info, entry.monitor);
    if (result.error == 0)
        finishFile(result, source.get(), destination.get(), info, entry.manner);
    struct stat made;
    if (result.error == 0 && entry.manner == Manner::Fresh && fstat(destination.get(), &made) == 0)
        result.made = MadeItem::of(made);
    // A network share or a quota may report the failed write only now.
    if (destination.closeChecked() != 0 && result.error == 0)
        result.error = errno;
    return result;
}

EntryResult copyLink(const EntryCopy &entry)
{
    char target[PATH_MAX];
    const ssize_t length = readlinkat(entry.sourceFolder, entry.from, target, sizeof target - 1);
    if (length < 0)
        return {errno, false};
    target[length] = '\0';
    return symlinkat(target, entry.destinationFolder, entry.to) == 0 ? EntryResult{0, true} : EntryResult{errno, false};
}

/// Owner, mode and dates of what is not opened: links, FIFOs, sockets, devices.
void finishByName(EntryResult &result, const EntryCopy &entry, const struct stat &info)
{
    const int folder = entry.destinationFolder;
    if (self().isSuperUser())
        noteProperty(result, fchownat(folder, entry.to, info.st_uid, info.st_gid, AT_SYMLINK_NOFOLLOW) == 0, LostOwner);
    if (!S_ISLNK(info.st_mode))
        noteProperty(result, fchmodat(folder, entry.to, info.st_mode & 0777, 0) == 0, LostMode);
    const timespec times[2] = {info.st_atim, info.st_mtim};
    if (entry.manner == Manner::Exact)
        noteProperty(result, utimensat(folder, entry.to, times, AT_SYMLINK_NOFOLLOW) == 0, LostDates);
    struct stat made;
    if (entry.manner == Manner::Fresh && fstatat(folder, entry.to, &made, AT_SYMLINK_NOFOLLOW) == 0)
        result.made = MadeItem::of(made);
}

/// One entry of an access list as the kernel gives it (linux/posix_acl_xattr.h, little-endian).
struct ListedRight
{
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
};
constexpr std::uint16_t tagOwningGroup = 0x04;
constexpr std::uint16_t tagMask = 0x10;
constexpr std::uint16_t tagOther = 0x20;
constexpr std::size_t listHeader = 4;

} // namespace

MadeItem MadeItem::of(const struct stat &info)
{
    return {info.st_ino, static_cast<long long>(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec,
            info.st_size};
}

mode_t PlaceRights::modeOf(mode_t copied) const
{
    if (!groupIsKept && !hasAccessList)
        return copied;
    const bool isOpenToGroup = groupMayWrite && (copied & S_IRGRP) != 0 && (copied & S_IWUSR) != 0;
    const mode_t wanted = copied | (isOpenToGroup ? S_IWGRP : 0);
    return (wanted & 07700) | (groupIsKept ? S_ISGID : 0) | (wanted & 0070 & group) | (wanted & 0007 & other);
}

PlaceRights placeRightsOf(int folder)
{
    PlaceRights rights;
    struct stat info;
    rights.groupIsKept = fstat(folder, &info) == 0 && (info.st_mode & S_ISGID) != 0;
    rights.groupMayWrite = rights.groupIsKept && (creationMask() & S_IWGRP) == 0;
    std::array<char, 4096> list;
    const ssize_t size = fgetxattr(folder, "system.posix_acl_default", list.data(), list.size());
    for (std::size_t at = listHeader; size > 0 && at + sizeof(ListedRight) <= static_cast<std::size_t>(size);
         at += sizeof(ListedRight)) {
        ListedRight right;
        std::memcpy(&right, list.data() + at, sizeof right);
        const auto bits = static_cast<mode_t>(le16toh(right.rights)) & 7;
        switch (le16toh(right.tag)) {
        case tagOwningGroup: // the mask, where there is one, comes behind it and counts
        case tagMask:
            rights.group = bits << 3;
            break;
        case tagOther:
            rights.other = bits;
            break;
        default:
            break;
        }
        rights.hasAccessList = true;
    }
    rights.groupMayWrite = rights.groupMayWrite || rights.hasAccessList; // the list, not the mask of the user, decides
    return rights;
}

EntryResult finishFolder(int source, int destination, const struct stat &info, Manner manner, const PlaceRights &rights)
{
    EntryResult result;
    const bool isFresh = manner == Manner::Fresh;
    result.lost |= copyAttributes(source, destination,
                                  isFresh && rights.hasAccessList ? AccessLists::LeftOut : AccessLists::Copied);
    if (isForeign(info) && self().isSuperUser()) {
        const gid_t group = isFresh && rights.groupIsKept ? static_cast<gid_t>(-1) : info.st_gid;
        noteProperty(result, fchown(destination, info.st_uid, group) == 0, LostOwner);
    }
    const mode_t mode = isFresh ? rights.modeOf(modeOfCopy(info)) : modeOfCopy(info);
    noteProperty(result, fchmod(destination, mode) == 0, LostMode);
    struct stat made;
    if (!isFresh)
        setDates(result, destination, info);
    else if (fstat(destination, &made) == 0)
        result.made = MadeItem::of(made);
    return result;
}

EntryResult copyEntry(const EntryCopy &entry)
{
    if (entry.type == DT_REG)
        return copyRegular(entry);
    struct stat info;
    if (fstatat(entry.sourceFolder, entry.from, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return {errno, false};
    EntryResult result;
    if (S_ISLNK(info.st_mode))
        result = copyLink(entry);
    else if (mknodat(entry.destinationFolder, entry.to, info.st_mode, info.st_rdev) == 0)
        result.isMade = true;
    else
        result.error = errno;
    if (result.error == 0)
        finishByName(result, entry, info);
    return result;
}

} // namespace platform

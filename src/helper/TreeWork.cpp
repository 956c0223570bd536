#include "helper/TreeWork.h"

#include "platform/plain/FileCopy.h"
#include "platform/plain/FolderReader.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace helper {
namespace {

using platform::openFolder;
using platform::UniqueDescriptor;

constexpr mode_t privileged = S_ISUID | S_ISGID | S_ISVTX;

std::string hiddenName()
{
    std::array<unsigned char, 8> bytes{};
    // A name that is taken is refused, not replaced: that it is random only spares a second try.
    [[maybe_unused]] const ssize_t drawn = getrandom(bytes.data(), bytes.size(), 0);
    std::string name = ".tessaro-";
    for (const unsigned char byte : bytes) {
        name += static_cast<char>('a' + (byte >> 4));
        name += static_cast<char>('a' + (byte & 15));
    }
    return name;
}

/// What was opened is what has just been made, and not what somebody has put in its place: root's own, closed, empty.
bool isFresh(int folder)
{
    struct stat info;
    std::vector<platform::RawEntry> entries;
    return fstat(folder, &info) == 0 && info.st_uid == geteuid() && (info.st_mode & 0077) == 0 &&
           platform::readFolder(folder, entries) && entries.empty();
}

/// A file that stands there is replaced, a folder never.
unsigned mayReplace(const Item &to)
{
    struct stat standing;
    const bool isFile =
        fstatat(to.folder.get(), to.name.c_str(), &standing, AT_SYMLINK_NOFOLLOW) == 0 && !S_ISDIR(standing.st_mode);
    return isFile ? 0 : RENAME_NOREPLACE;
}

std::string below(const std::string &folder, const std::string &name)
{
    return folder + '/' + name;
}

} // namespace

int TreeWork::fail(int error, const std::string &shown)
{
    if (error != 0 && m_where.empty())
        m_where = shown;
    return error;
}

int TreeWork::noted(const platform::EntryResult &result, const std::string &shown)
{
    if (result.error == 0 && result.lost != platform::LostNothing && m_losses++ == 0)
        m_firstLoss = shown;
    return result.error;
}

int TreeWork::giveToPlace(int folder, const std::string &name, const struct stat &original) const
{
    if (m_owners == Owners::Kept || original.st_uid != m_caller)
        return 0;
    struct stat made;
    if (fstatat(folder, name.c_str(), &made, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    // Without its privileges first: the new owner's would be others.
    if (S_ISREG(made.st_mode) && (made.st_mode & privileged) != 0) {
        const UniqueDescriptor file(openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!file.isOpen() || fchmod(file.get(), made.st_mode & 0777) != 0)
            return errno;
    }
    const gid_t group = S_ISDIR(made.st_mode) && (made.st_mode & S_ISGID) != 0 ? static_cast<gid_t>(-1) : m_placeGroup;
    return fchownat(folder, name.c_str(), m_placeUser, group, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
}

int TreeWork::copyFolder(int fromFolder, const std::string &from, int toFolder, const std::string &to,
                         const std::string &shown)
{
    const UniqueDescriptor source = openFolder(fromFolder, from.c_str());
    struct stat info;
    if (!source.isOpen() || fstat(source.get(), &info) != 0)
        return fail(errno, shown);
    if (mkdirat(toFolder, to.c_str(), 0700) != 0)
        return fail(errno, shown);
    const UniqueDescriptor made = openFolder(toFolder, to.c_str());
    if (!made.isOpen() || !isFresh(made.get()))
        return fail(made.isOpen() ? EAGAIN : errno, shown);
    std::vector<platform::RawEntry> entries;
    if (!platform::readFolder(source.get(), entries))
        return fail(errno, shown);
    for (const platform::RawEntry &entry : entries) {
        if (const int error = copyItem(source.get(), entry.name, made.get(), entry.name, below(shown, entry.name)))
            return error;
    }
    const auto finished =
        platform::finishFolder(source.get(), made.get(), info, platform::Manner::Exact, platform::PlaceRights());
    return fail(noted(finished, shown), shown);
}

int TreeWork::copyItem(int fromFolder, const std::string &from, int toFolder, const std::string &to,
                       const std::string &shown)
{
    struct stat info;
    if (m_monitor.cancelled)
        return fail(ECANCELED, shown);
    if (fstatat(fromFolder, from.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return fail(errno, shown);
    if (S_ISCHR(info.st_mode) || S_ISBLK(info.st_mode))
        return fail(EPERM, shown);
    int error = 0;
    if (S_ISDIR(info.st_mode))
        error = copyFolder(fromFolder, from, toFolder, to, shown);
    else
        error = noted(platform::copyEntry({fromFolder, from.c_str(), toFolder, to.c_str(),
                                           static_cast<unsigned char>(IFTODT(info.st_mode)), platform::Manner::Exact,
                                           &m_monitor}),
                      shown);
    return fail(error != 0 ? error : giveToPlace(toFolder, to, info), shown);
}

/// In a folder that nobody but root can enter, so that no name in there is ever somebody else's; then one rename.
int TreeWork::copyTo(const Item &from, const Item &to, Owners owners)
{
    struct stat place;
    const int folder = to.folder.get();
    if (fstat(folder, &place) != 0)
        return fail(errno, to.folderName);
    m_owners = owners;
    m_placeUser = place.st_uid;
    m_placeGroup = place.st_gid;
    const std::string hidden = hiddenName();
    if (mkdirat(folder, hidden.c_str(), 0700) != 0)
        return fail(errno, to.shown());
    const UniqueDescriptor staging = openFolder(folder, hidden.c_str());
    int error = !staging.isOpen() ? errno : !isFresh(staging.get()) ? EAGAIN : 0;
    if (error == 0)
        error = copyItem(from.folder.get(), from.name, staging.get(), to.name, from.shown());
    if (error == 0 && renameat2(staging.get(), to.name.c_str(), folder, to.name.c_str(), mayReplace(to)) != 0)
        error = fail(errno, to.shown());
    if (error != 0 && staging.isOpen()) {
        const bool wasCancelled = m_monitor.cancelled.exchange(false); // taking away is not to be stopped half way
        static_cast<void>(removeItem(staging.get(), to.name, place.st_dev, to.shown()));
        m_monitor.cancelled = wasCancelled;
    }
    unlinkat(folder, hidden.c_str(), AT_REMOVEDIR); // whatever stands there by now: it goes only when it is empty
    return error;
}

int TreeWork::copy(const Item &from, const Item &to)
{
    return copyTo(from, to, Owners::OfThePlace);
}

int TreeWork::move(const Item &from, const Item &to)
{
    if (renameat2(from.folder.get(), from.name.c_str(), to.folder.get(), to.name.c_str(), mayReplace(to)) == 0)
        return 0;
    if (errno != EXDEV)
        return fail(errno, from.shown());
    const int error = copyTo(from, to, Owners::Kept);
    return error != 0 ? error : remove(from);
}

int TreeWork::removeItem(int folder, const std::string &name, dev_t device, const std::string &shown)
{
    if (m_monitor.cancelled)
        return fail(ECANCELED, shown);
    if (unlinkat(folder, name.c_str(), 0) == 0 || errno == ENOENT)
        return 0;
    if (errno != EISDIR && errno != EPERM)
        return fail(errno, shown);
    struct stat info;
    const UniqueDescriptor opened = openFolder(folder, name.c_str());
    if (!opened.isOpen() || fstat(opened.get(), &info) != 0)
        return fail(errno, shown);
    if (info.st_dev != device)
        return fail(EBUSY, shown);
    std::vector<platform::RawEntry> entries;
    if (!platform::readFolder(opened.get(), entries))
        return fail(errno, shown);
    for (const platform::RawEntry &entry : entries) {
        if (const int error = removeItem(opened.get(), entry.name, device, below(shown, entry.name)))
            return error;
    }
    return unlinkat(folder, name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT ? 0 : fail(errno, shown);
}

int TreeWork::remove(const Item &item)
{
    struct stat info;
    if (fstat(item.folder.get(), &info) != 0)
        return fail(errno, item.shown());
    return removeItem(item.folder.get(), item.name, info.st_dev, item.shown());
}

int TreeWork::makeOne(int folder, const std::string &name, UniqueDescriptor &made)
{
    struct stat place;
    if (fstat(folder, &place) != 0)
        return errno;
    const bool isNew = mkdirat(folder, name.c_str(), 0700) == 0;
    if (!isNew && errno != EEXIST)
        return errno;
    made = openFolder(folder, name.c_str());
    if (!made.isOpen())
        return errno;
    if (!isNew)
        return 0;
    if (!isFresh(made.get()))
        return EAGAIN;
    const bool isGiven = fchown(made.get(), place.st_uid, place.st_gid) == 0 &&
                         fchmod(made.get(), place.st_mode & (0777 | S_ISGID)) == 0;
    return isGiven ? 0 : errno;
}

int TreeWork::makeFolders(const Item &item)
{
    UniqueDescriptor above;
    int folder = item.folder.get();
    for (std::size_t at = 0; at < item.name.size();) {
        const std::size_t end = std::min(item.name.find('/', at), item.name.size());
        UniqueDescriptor made;
        if (const int error = makeOne(folder, item.name.substr(at, end - at), made))
            return fail(error, item.folderName + '/' + item.name.substr(0, end));
        above = std::move(made);
        folder = above.get();
        at = end + 1;
    }
    return 0;
}

int TreeWork::touch(const Item &item)
{
    return utimensat(item.folder.get(), item.name.c_str(), nullptr, AT_SYMLINK_NOFOLLOW) == 0 || errno == ENOENT
               ? 0
               : fail(errno, item.shown());
}

} // namespace helper

#include "platform/plain/FolderReader.h"

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

unsigned char typeByStat(int folder, const char *name)
{
    struct stat info;
    if (fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(info.st_mode));
}

} // namespace

UniqueDescriptor openFolder(int parent, const char *name)
{
    return UniqueDescriptor(openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

UniqueDescriptor openFile(int parent, const char *name, struct stat &info)
{
    UniqueDescriptor file(openat(parent, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen() && errno == EWOULDBLOCK) {
        // Held first without opening it, so that it is still the plain file that was looked at when the open may wait.
        const UniqueDescriptor held(openat(parent, name, O_PATH | O_NOFOLLOW | O_CLOEXEC));
        const std::string again = "/proc/self/fd/" + std::to_string(held.get());
        if (held.isOpen() && fstat(held.get(), &info) == 0 && S_ISREG(info.st_mode))
            file.reset(open(again.c_str(), O_RDONLY | O_CLOEXEC));
    }
    if (!file.isOpen() || fstat(file.get(), &info) != 0)
        return {};
    if (S_ISREG(info.st_mode))
        return file;
    errno = ESTALE;
    return {};
}

bool readFolder(int folder, const std::function<void(const char *, unsigned char)> &entry)
{
    // A descriptor of its own: closedir() closes what it was given, and the caller goes on to use the folder.
    const int reading = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (reading < 0)
        return false;
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(fdopendir(reading), closedir);
    if (!stream) {
        const int error = errno;
        close(reading);
        errno = error;
        return false;
    }
    for (;;) {
        errno = 0;
        const dirent *found = readdir(stream.get());
        if (!found)
            return errno == 0;
        if (std::strcmp(found->d_name, ".") == 0 || std::strcmp(found->d_name, "..") == 0)
            continue;
        const unsigned char type = found->d_type != DT_UNKNOWN ? found->d_type : typeByStat(folder, found->d_name);
        if (type != DT_UNKNOWN) // it vanished between the two looks
            entry(found->d_name, type);
    }
}

bool readFolder(int folder, std::vector<RawEntry> &entries)
{
    return readFolder(folder, [&](const char *name, unsigned char type) { entries.push_back({name, type}); });
}

} // namespace platform

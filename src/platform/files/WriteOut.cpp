#include "platform/files/WriteOut.h"

#include "platform/base/NativePath.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FolderReader.h"
#include "platform/plain/UniqueDescriptor.h"
#include "platform/plain/WholeWrite.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform {
namespace {

/// One that cannot be opened is left to the system.
int writeOutFile(int folder, const char *name, WritesOut how)
{
    const UniqueDescriptor file(openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return !file.isOpen() || writeOut(file.get(), how) ? 0 : errno;
}

int writeOutFolder(const UniqueDescriptor &folder, WritesOut how)
{
    std::vector<RawEntry> entries;
    if (!folder.isOpen() || !readFolder(folder.get(), entries))
        return 0;
    for (const RawEntry &entry : entries) {
        int error = 0;
        if (entry.type == DT_DIR)
            error = writeOutFolder(openFolder(folder.get(), entry.name.c_str()), how);
        else if (entry.type == DT_REG)
            error = writeOutFile(folder.get(), entry.name.c_str(), how);
        if (error != 0)
            return error;
    }
    return 0;
}

} // namespace

Outcome writeOut(const QString &path)
{
    const PathAt at(path);
    struct stat info;
    if (fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return Outcome::fromErrno(path);
    // All are on their way before the first is waited for.
    for (const WritesOut how : {WritesOut::Begins, WritesOut::Ends}) {
        const int error = S_ISREG(info.st_mode)   ? writeOutFile(at.folder(), at.name(), how)
                          : S_ISDIR(info.st_mode) ? writeOutFolder(openFolder(at.folder(), at.name()), how)
                                                  : 0;
        if (error != 0)
            return Outcome::fromNumber(error, path);
    }
    return {};
}

} // namespace platform

#include "platform/plain/WholeWrite.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace platform {
namespace {

template <typename Write> bool writeEveryByte(const char *bytes, std::size_t count, Write write)
{
    std::size_t done = 0;
    while (done < count) {
        const ssize_t written = write(bytes + done, count - done, static_cast<off_t>(done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written == 0)
            errno = EIO; // a file that takes nothing and says nothing would be written to for ever
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

bool writeWhole(int descriptor, const char *bytes, std::size_t count)
{
    return writeEveryByte(bytes, count,
                          [&](const char *from, std::size_t left, off_t) { return write(descriptor, from, left); });
}

bool writeWholeAt(int descriptor, const char *bytes, std::size_t count, off_t offset)
{
    return writeEveryByte(bytes, count, [&](const char *from, std::size_t left, off_t done) {
        return pwrite(descriptor, from, left, offset + done);
    });
}

bool writeOut(int descriptor, WritesOut how)
{
    const unsigned flags = how == WritesOut::Begins
                               ? SYNC_FILE_RANGE_WRITE
                               : SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    for (;;) {
        if (sync_file_range(descriptor, 0, 0, flags) == 0)
            return true;
        if (errno != EINTR)
            return errno != EIO && errno != ENOSPC && errno != EDQUOT;
    }
}

} // namespace platform

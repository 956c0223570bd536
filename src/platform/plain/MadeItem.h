#pragma once

#include <sys/stat.h>

namespace platform {

/** What a copy has made, so that it is known again: a plain value, 0 throughout where nothing was made. */
struct MadeItem
{
    static MadeItem of(const struct stat &info);

    unsigned long long inode = 0; ///< 0: nothing was made
    long long modified = 0;       ///< nanoseconds since 1970
    long long size = 0;           ///< bytes; of no meaning for a folder
    bool operator==(const MadeItem &) const = default;
};

} // namespace platform

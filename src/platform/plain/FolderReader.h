#pragma once

#include "platform/plain/UniqueDescriptor.h"

#include <functional>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace platform {

struct RawEntry
{
    std::string name;
    unsigned char type; ///< DT_REG and so on, never DT_UNKNOWN
};

/** Opens a folder below another for reading, never through a link; empty on failure, with errno. */
[[nodiscard]] UniqueDescriptor openFolder(int parent, const char *name);

/**
 * Opens a plain file below a folder for reading, never through a link and never waiting for a writer: what became a
 * FIFO since it was listed fails with ESTALE. Only a file that another process holds a lease on (a file server) is
 * waited for. Empty on failure, with errno; else with what the file is.
 */
[[nodiscard]] UniqueDescriptor openFile(int parent, const char *name, struct stat &info);

/** Reads all entries of an open folder but "." and "..", unsorted. False on failure, with errno. */
[[nodiscard]] bool readFolder(int folder, std::vector<RawEntry> &entries);
/** The same, each name and type given to a function, which takes what it keeps of them. */
[[nodiscard]] bool readFolder(int folder, const std::function<void(const char *name, unsigned char type)> &entry);

} // namespace platform

#pragma once

#include <cstddef>
#include <sys/types.h>

namespace platform {

/** Writes every byte, whatever number the system takes at a time. False on failure, with errno. Any thread. */
[[nodiscard]] bool writeWhole(int descriptor, const char *bytes, std::size_t count);
/** The same at a place in the file; the descriptor's own offset stays. */
[[nodiscard]] bool writeWholeAt(int descriptor, const char *bytes, std::size_t count, off_t offset);

enum class WritesOut { Begins, Ends };
/** What has been written to the file goes to the drive: that is begun, or waited for. False, with errno, when the drive
   has lost it; true where there is nothing to wait for. Any thread. */
[[nodiscard]] bool writeOut(int descriptor, WritesOut how);

} // namespace platform

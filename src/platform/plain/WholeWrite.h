#pragma once

#include <cstddef>
#include <sys/types.h>

namespace platform {

/** Writes every byte, whatever number the system takes at a time. False on failure, with errno. Any thread. */
[[nodiscard]] bool writeWhole(int descriptor, const char *bytes, std::size_t count);
/** The same at a place in the file; the descriptor's own offset stays. */
[[nodiscard]] bool writeWholeAt(int descriptor, const char *bytes, std::size_t count, off_t offset);

} // namespace platform

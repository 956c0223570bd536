#pragma once

#include <system_error>
#include <thread>
#include <utility>

namespace platform {

/** A thread at the work; one that is not joinable where none is to be had (a limit of the user's or the system's), and
   the work is the caller's to do. */
template <typename Work> [[nodiscard]] std::thread startedThread(Work work)
{
    try {
        return std::thread(std::move(work));
    } catch (const std::system_error &) {
        return {};
    }
}

} // namespace platform

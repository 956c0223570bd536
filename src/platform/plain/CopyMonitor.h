#pragma once

#include <atomic>
#include <mutex>
#include <string>

namespace platform {

/**
 * Watches work on many items from outside: how far it is, where it is, and whether it is to stop. Written by the
 * working threads, read by any.
 */
class CopyMonitor
{
public:
    std::atomic<unsigned long long> bytes = 0; ///< of file contents; holes count as if they had been copied
    std::atomic<unsigned long long> items = 0;
    std::atomic<unsigned long long> bytesTotal = 0; ///< of all that there is to do; 0 as long as nobody knows
    std::atomic<unsigned long long> itemsTotal = 0;
    std::atomic<bool> cancelled = false; ///< set by anyone: the copy fails with ECANCELED at its next look

    /** The name of the folder that is worked on, byte for byte. */
    void enter(const std::string &folder)
    {
        const std::scoped_lock lock(m_mutex);
        m_folder = folder;
    }
    [[nodiscard]] std::string folder() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_folder;
    }

private:
    mutable std::mutex m_mutex;
    std::string m_folder;
};

} // namespace platform

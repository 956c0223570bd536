#pragma once

#include <atomic>

namespace platform {

/**
 * While it lives, a signal that asks the process to end (Ctrl+C, a closed terminal, kill) sets the flag and the process
 * goes on, to clean up; the second one ends it as ever. One at a time.
 */
class Interruption
{
public:
    explicit Interruption(std::atomic<bool> &flag);
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;
};

} // namespace platform

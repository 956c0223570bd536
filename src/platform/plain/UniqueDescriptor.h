#pragma once

#include <utility>

namespace platform {

/** Owns one file descriptor and closes it. Movable, not copyable; -1 when empty. */
class UniqueDescriptor
{
public:
    UniqueDescriptor() = default;
    explicit UniqueDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    UniqueDescriptor(UniqueDescriptor &&other) noexcept
        : m_descriptor(other.release())
    {
    }
    UniqueDescriptor &operator=(UniqueDescriptor &&other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    ~UniqueDescriptor() { reset(); }

    [[nodiscard]] int get() const { return m_descriptor; }
    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    int release() { return std::exchange(m_descriptor, -1); }
    void reset(int descriptor = -1);
    /** Closes and returns what close() said: 0, or -1 with errno, which on a network share may be the write's error. */
    [[nodiscard]] int closeChecked();

private:
    int m_descriptor = -1;
};

/**
 * Raises this process's limit of open descriptors to the hard limit, once. A tree is walked with one or two
 * descriptors a level, and a thousand levels do not fit into the usual soft limit of 1024.
 */
void raiseDescriptorLimit();

} // namespace platform

#pragma once

#include "platform/base/Outcome.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QString>
#include <chrono>

namespace platform {

/**
 * Held while one program, and one thread of it, changes a file that several share. It lies in a file of its own beside
 * that one, which stays; the lock itself ends with this object, and with the process however that ends, so that nobody
 * ever waits for one that is gone. Movable.
 */
class FileLock
{
public:
    /** Any number read at a time while nobody changes anything. */
    enum class Access { Change, Read };

    /**
     * Waits for others, at most the given time. Cause::Busy when they hold it for longer; Cause::NotSupported where the
     * file system knows no locks; anything else is why the lock's file cannot be made.
     */
    [[nodiscard]] static Result<FileLock> acquire(const QString &lockFile, std::chrono::milliseconds patience,
                                                  Access access = Access::Change);

private:
    explicit FileLock(UniqueDescriptor file)
        : m_file(std::move(file))
    {
    }
    UniqueDescriptor m_file;
};

} // namespace platform

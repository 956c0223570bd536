#pragma once

#include <QtGlobal>
#include <atomic>
#include <sys/stat.h>

/** One entry's copy, by descriptor. The parts of TreeCopy that do not know of trees; used by it alone. */
namespace platform {

/** Watches a copy from outside: how far it is, and whether it is to stop. Written by the copying threads. */
struct CopyMonitor
{
    std::atomic<quint64> bytes = 0; ///< of file contents; holes count as if they had been copied
    std::atomic<quint64> items = 0;
    std::atomic<bool> cancelled = false; ///< set by anyone: the copy fails with ECANCELED at its next look
};

/** How one entry's copy ended. */
struct EntryResult
{
    int error = 0;               ///< errno, or 0
    bool made = false;           ///< something was made at the destination, complete or not
    bool attributesLost = false; ///< an extended attribute that the destination could not take
};

/** Copies what is no folder. The type is the DT_ constant that the source folder's listing gave. */
[[nodiscard]] EntryResult copyEntry(int sourceFolder, const char *from, int destinationFolder, const char *to,
                                    unsigned char type, CopyMonitor *monitor);

/** Mode, times, owner (as super-user) and extended attributes of an open item onto another. */
[[nodiscard]] EntryResult copyMetadata(int source, int destination, const struct stat &info, bool modeIsSet);

} // namespace platform

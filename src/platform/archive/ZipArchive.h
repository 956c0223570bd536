#pragma once

#include "platform/base/Outcome.h"

#include <QString>
#include <QStringList>

/**
 * Zip archives. Everything here blocks, may be called on any thread and needs a UTF-8 locale. The work is done by the
 * module tessaro_archive in the bundle's plug-ins, loaded at the first call.
 */
namespace platform {

class CopyMonitor;

struct ExtractReport
{
    Outcome outcome;     ///< why nothing was unpacked; good when the archive was read to its end
    QStringList refused; ///< entries that would have landed outside the destination, or where something else stands
    [[nodiscard]] bool ok() const { return outcome.ok() && refused.isEmpty(); }
};

/**
 * Unpacks a zip archive into an existing folder, with modes (no set-user-ID), times, links and label colours. Colours
 * come from AppleDouble entries under __MACOSX, of which nothing is left on disk. Entries that are absolute, hold "..",
 * go through a link or are links that lead out are refused and the rest goes on. Nothing that stands in the destination
 * is ever replaced.
 *
 * All or nothing otherwise: an archive that is damaged, cut off, encrypted, or unpacks to more than a hundred times its
 * size (and more than a gigabyte) is a problem, and what had been unpacked of it is removed again.
 */
[[nodiscard]] ExtractReport extractZip(const QString &archivePath, const QString &destination);

struct CompressReport
{
    Outcome outcome;     ///< why there is no whole archive; good when there is
    QStringList skipped; ///< what a zip archive cannot hold: sockets, FIFOs, devices
    QStringList renamed; ///< names that are no UTF-8: written with U+FFFD for each byte that does not decode
};

/**
 * Writes an item and all below it into a new zip archive, under the item's own name: modes, times, links, empty
 * folders, and the labels as the reference desktop's archiver writes them. Of any size. Items that cannot be read are a
 * problem.
 */
[[nodiscard]] CompressReport compressZip(const QString &path, const QString &archivePath,
                                         CopyMonitor *monitor = nullptr);

} // namespace platform

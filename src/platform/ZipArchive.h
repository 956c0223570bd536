#pragma once

#include <QString>
#include <QStringList>

namespace platform {

struct ExtractReport
{
    QString problem;     ///< why it ended early; null when the archive was read to its end
    QStringList refused; ///< entries that would have landed outside the destination
    [[nodiscard]] bool ok() const { return problem.isNull() && refused.isEmpty(); }
};

/**
 * Unpacks a zip archive into an existing folder, with modes (no set-user-ID), times, links and label colours. Colours
 * come from AppleDouble entries under __MACOSX, of which nothing is left on disk. Entries that are absolute, hold "..",
 * go through a link or are links that lead out are refused and the rest goes on. Blocks; any thread; needs a UTF-8
 * locale.
 *
 * The work is done by the module tessaro_archive in the bundle's plug-ins, loaded at the first call.
 */
[[nodiscard]] ExtractReport extractZip(const QString &archivePath, const QString &destination);

} // namespace platform

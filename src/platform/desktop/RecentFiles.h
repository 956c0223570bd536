#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace platform {

/**
 * The desktop's list of what was used lately, from which launchers, docks and file panels offer it again: the Desktop
 * Bookmark Specification's file recently-used.xbel. Every program writes the whole of it.
 */

/** The list with a folder at its end, in place of an earlier entry of it; the rest byte for byte. Null when the bytes
   are no such list. Pure. */
[[nodiscard]] QByteArray withRecentFolder(const QByteArray &list, const QString &folder, const QDateTime &now);

/** Puts the folder into the list. One that is not there is begun; one that cannot be read or understood is left alone,
   with a line on the console: it is a convenience. Blocks; any thread. */
void rememberForDesktop(const QString &folder);

} // namespace platform

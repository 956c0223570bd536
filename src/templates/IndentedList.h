#pragma once

#include "platform/base/Outcome.h"

#include <QStringList>

/** A list of folders as people write it: a name a line, one below another by its indentation. */
namespace indentedlist {

/**
 * The folders' paths below one place, "/" between names, each after the one that it lies in. Blanks and tabs indent, by
 * any depth; bullets, the lines of a drawn tree and a slash at the end are left out; names are cleaned as typed ones
 * are. Cause::Invalid, with a sentence that names the line, when one gives no folder's name.
 */
[[nodiscard]] platform::Result<QStringList> foldersIn(const QString &text);

/** The other way round: the last components of the paths, indented by what they have in common. */
[[nodiscard]] QString listOf(const QStringList &paths);

} // namespace indentedlist

#pragma once

#include "platform/base/Outcome.h"

#include <QDateTime>
#include <QVariantMap>

/** How the copy of a studio's set-up follows the shared folder, and how that folder is made. See support/StudioCopy. */
namespace studio {

/** How following ended: what kept it from being done, and whether something is different now. */
struct Followed
{
    platform::Outcome outcome; ///< the copy stays as it is after a failure
    bool hasChanged = false;
};

/**
 * Brings the copy up to what the folder holds: templates that differ, each whole or not at all, then the settings. With
 * no folder set the copy goes, and the user's own counts again. Cause::Missing where the folder has no set-up;
 * Cause::Unreachable and others as the server answers; Cause::Busy while another program does the same. Blocks for as
 * long as the server takes; any thread.
 */
[[nodiscard]] Followed follow();

/** When the copy was last different from before; invalid without one. */
[[nodiscard]] QDateTime lastChange();

/**
 * Writes a set-up into a folder: the settings given, what of them is locked, and every template of the library that is
 * in force. A template that stands there and differs goes to the Trash; one that is not in the library stays. Blocks;
 * any thread.
 */
platform::Outcome exportSetup(const QString &folder, const QVariantMap &settings, const QStringList &locked);

} // namespace studio

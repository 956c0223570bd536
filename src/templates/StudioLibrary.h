#pragma once

#include "platform/base/Outcome.h"

#include <QDateTime>
#include <QVariantMap>
#include <chrono>

namespace platform {
class CopyMonitor;
}

/** How the copy of a studio's set-up follows the shared folder, and how that folder is made. See support/StudioCopy. */
namespace studio {

/** How following ended: what kept it from being done, and whether something is different now. */
struct Followed
{
    platform::Outcome outcome; ///< the copy stays as it is after a failure
    bool hasChanged = false;
    bool isInPart = false; ///< the rest is as the folder has it
};

/**
 * Brings the copy up to what the folder holds: templates that differ, each whole or not at all, and the settings. They
 * are copied beside the copy first, which then is exchanged at once and not while somebody uses it; what is copied when
 * a program is ended is not copied again. A template that cannot be read stays as it was, and the rest comes. With no
 * folder set the copy goes, and the user's own counts again. Cause::Missing where the folder has no set-up;
 * Cause::Unreachable and others as the server answers; Cause::Busy while another program does the same, or uses the
 * copy. Blocks for as long as the server takes; any thread. The monitor outlives the call.
 */
[[nodiscard]] Followed follow(platform::CopyMonitor &monitor);
[[nodiscard]] Followed follow();
/** The same, shown as long work; Cause::Unreachable where the server says nothing for the given time. Main thread. */
[[nodiscard]] Followed followInTime(std::chrono::milliseconds patience);

/** What an end that was not good means, for a person: which set-up is used. */
[[nodiscard]] QString sentenceOf(const Followed &followed);

/** When the copy was last different from before; invalid without one. */
[[nodiscard]] QDateTime lastChange();

/**
 * Writes a set-up into a folder: the settings given, what of them is locked, and every template of the library that is
 * in force. A template that stands there and differs goes to the Trash; one that is not in the library stays. Blocks;
 * any thread.
 */
platform::Outcome exportSetup(const QString &folder, const QVariantMap &settings, const QStringList &locked);

} // namespace studio

#pragma once

#include "creation/CreationPlan.h"
#include "creation/Workplace.h"
#include "platform/files/TreeCopy.h"

#include <QStringList>

namespace platform {
class CopyMonitor;
}

/** What became of a plan: each item that was made is noted in the plan's tree. */
struct PlannedCopy
{
    QList<platform::Outcome> failures; ///< what is not in the project; Cause::Cancelled alone when it was stopped
    QStringList copiedByTool; ///< folders in the workplace that came without the plan, their contents not named
    platform::Losses losses;
};

/**
 * Carries the plan out in one pass, then tries what failed by the ordinary ways: the tool, with rights where these are
 * missing. Rights that were refused once are not asked for again. Blocks; not on the main thread.
 */
[[nodiscard]] PlannedCopy carryOut(CreationPlan &plan, const QString &templateFiles, const QString &folder,
                                   platform::CopyMonitor &monitor);
/** The texts of a plan that was carried out get their values; one that cannot is taken away and is a failure. Blocks;
 * not on the main thread. */
void fillTexts(CreationPlan &plan, const QString &templateFiles, const QString &folder,
               const std::atomic<bool> &cancelled, PlannedCopy &result);

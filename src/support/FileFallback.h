#pragma once

#include "platform/FileOutcome.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"

#include <functional>

/**
 * What VTFileManager does after a plain operation failed: the system's tool, with the user's own rights when rights are
 * not what is missing (or are already held), with administrator rights when they are. True when the tool did it.
 */
[[nodiscard]] bool fallBackToTool(ShouldAuth shouldAuth, const platform::FileOutcome &failure,
                                  const VTAuthorization::Command &command, const std::function<bool()> &withRights);

/** Looks until the condition is false, at most the given whole seconds; turns the event loop on the main thread. */
void waitWhile(const std::function<bool()> &condition, std::chrono::seconds timeout);

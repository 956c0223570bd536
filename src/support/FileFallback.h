#pragma once

#include "platform/base/Outcome.h"
#include "platform/plain/CopyMonitor.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"

#include <functional>

/**
 * What VTFileManager does after a plain operation failed: the system's tool, with the user's own rights when rights are
 * not what is missing (or are already held), with administrator rights when they are. Good when the tool did it, else
 * the plain operation's failure. The window stays alive meanwhile; cancelled, the tool is ended and
 * Cause::Cancelled the failure.
 */
platform::Outcome fallBackToTool(ShouldAuth shouldAuth, const platform::Outcome &failure,
                                 const VTAuthorization::Command &command, const std::function<bool()> &withRights,
                                 const platform::CopyMonitor &monitor);

/** Looks until the condition is false, at most the given whole seconds; turns the event loop on the main thread. */
void waitWhile(const std::function<bool()> &condition, std::chrono::seconds timeout);
/** Looks until the condition holds; Cause::TimedOut when it never did. */
platform::Outcome waitUntil(const std::function<bool()> &condition, std::chrono::seconds timeout, const QString &item);

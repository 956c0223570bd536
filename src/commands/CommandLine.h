#pragma once

#include "commands/Verb.h"
#include "platform/base/Outcome.h"

/** Exit status of every command. */
namespace ExitStatus {
inline constexpr int done = 0;
inline constexpr int failed = 1; ///< or partly failed
inline constexpr int wrongUsage = 2;
inline constexpr int notOverwritten = 3; ///< exists and was not overwritten, or declined, or rights refused
inline constexpr int stopped = 4;        ///< on the way, by a signal: nothing was kept
} // namespace ExitStatus

/** The exit status that goes with the cause of a failure. Pure. */
[[nodiscard]] int exitStatusOf(const platform::Outcome &outcome);

/** Reads the words after the program's name. Cause::Invalid, with a sentence and the verb's usage line, when they
   cannot be understood. Pure. */
[[nodiscard]] platform::Result<Invocation> readCommandLine(const QStringList &words);

/** Says why these words cannot be understood, in the user's language, to programs where they ask for it; the status. */
[[nodiscard]] int refuseCommandLine(const QStringList &words);

/** Carries out a command without a window; an application object without a display exists. Returns the exit status. */
[[nodiscard]] int runCommand(const Invocation &invocation);

#pragma once

#include "creation/ProjectCreation.h"

/**
 * Tells the program that the settings name ("afterCreation") of a project that has been made: its JSON, as `create
 * --json` prints it, is the program's standard input. The program runs as this user, from the folder that this one runs
 * in, without arguments; it is told to end when its time is up ("afterCreationSeconds"), when somebody presses
 * Cancel, or when the flag is set. Good without one. Else Cause::TimedOut, Cause::Cancelled, or how it ended with the
 * last line that it complained of. Main thread; the event loop turns meanwhile, and the windows are closed to input.
 */
platform::Outcome tellOfProject(const CreationResult &result, const std::atomic<bool> &stopped);

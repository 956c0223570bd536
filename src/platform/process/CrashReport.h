#pragma once

#include <QString>

namespace platform {

/**
 * Writes a report when this process crashes: on SIGSEGV, SIGABRT, SIGBUS, SIGFPE and SIGILL, and so on an uncaught
 * exception. The report "<name>_<date>_<host>.crash" in the folder, which is made when it is needed, holds version,
 * system, signal, address, the threads' names, a backtrace and the map of the loaded files, from which
 * scripts/resolve-crash.sh makes functions and lines. Then the signal goes on to the system.
 *
 * Everything that needs memory is prepared here; the handler itself makes no call that is not safe in one. It runs on a
 * stack of its own, so that the main thread's stack overflow is reported, too. A crash inside it, or ten seconds of
 * standing still, ends the process. Once, early, on the main thread.
 */
void writeCrashReports(const QString &folder, const QString &name, const QString &version);

} // namespace platform

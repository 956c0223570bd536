#pragma once

#include <QString>

namespace platform {

/** One line on standard error with time, program name and process id, in one write. Any thread. */
void printToConsole(const QString &text);

/** Text exactly as it is, in one write where the system takes it whole. */
void writeToStandardOutput(const QString &text);
void writeToStandardError(const QString &text);

} // namespace platform

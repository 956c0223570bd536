#pragma once

#include "platform/base/Outcome.h"

#include <QByteArray>
#include <QString>

namespace platform {

/** One line on standard error with time, program name and process id, in one write. Any thread. */
void printToConsole(const QString &text);

/** Text exactly as it is, in one write where the system takes it whole. What cannot be printed (a full disk behind a
    redirection) is a failure of the command. */
Outcome writeToStandardOutput(const QString &text);
/** All that comes, until its end; at most so many bytes, beyond which it is a failure. Blocks. */
[[nodiscard]] Result<QByteArray> readStandardInput(qint64 atMost);
/** A line that somebody types at the terminal, after a question on standard error; without its end. Blocks.
    Cause::NotSupported where standard input or error is no terminal, Cause::Cancelled when it ended (Ctrl+D). */
[[nodiscard]] Result<QString> askAtTerminal(const QString &question);
void writeToStandardError(const QString &text);
/** Columns of the terminal that standard error is; 0 when it is none. */
[[nodiscard]] int columnsOfStandardError();

} // namespace platform

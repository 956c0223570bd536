#pragma once

#include "commands/Verb.h"
#include "platform/base/Outcome.h"

class QJsonArray;
class QJsonObject;

/** What every command prints goes through here. Main thread. */

/** On standard output, byte for byte. What could not be printed makes the command fail. */
void print(const QString &text);
void print(const QJsonObject &object);
void print(const QJsonArray &list);
/** In one line. */
void printLine(const QJsonObject &object);

/** From now on what goes wrong is told to programs, too: a command that fails and prints nothing else prints an object
   with the status and a list of errors, each with a code that never changes. */
void tellErrorsAsJson();
/** The code of what has no cause of its own: "failed", "invalid", "declined", "cancelled". */
[[nodiscard]] const char *codeOfStatus(int status);

/** One sentence on standard error; returns the status. */
int complain(int status, const QString &sentence);
/** The failure on standard error, the sentence first, where there is one; returns the status of its cause. */
int complain(const platform::Outcome &failure, const QString &sentence = {});

/** The command's exit status: the given one, or a failure, after a complaint, when standard output took less than all.
 */
[[nodiscard]] int finished(int status);

/** Follows the studio's set-up, where one is used, for up to two seconds; says when it cannot be reached. */
void tellOfStudio();

/** What is known of a verb, for people. */
[[nodiscard]] QString helpOn(const Verb &verb);

#pragma once

#include <QString>

/**
 * Changes to the template library on disk: what the window's list and the command do. Failures are told through VTAlert
 * and logged; afterwards the caller builds the list anew, which shows what the disk holds. Block; main thread, but for
 * add().
 */
namespace library {

enum class Outcome {
    Done,
    Unchanged, ///< there was nothing to do
    Declined,  ///< the question was answered with no, or what was asked for is not possible and has been said so
    Failed,
};

struct Result
{
    Outcome outcome = Outcome::Failed;
    QString name; ///< of the template it is about
    [[nodiscard]] bool isDone() const { return outcome == Outcome::Done; }
};

/** An empty template, under the next free name. */
Result createTemplate(const QString &wantedName);
/** "Film" -> "Film Duplicate", "Film Duplicate 2". */
Result duplicateTemplate(const QString &name);
/** Asks first; the template goes to the Trash. The mark of the default template stays as it is. */
Result removeTemplate(const QString &name);
/** A template that was the default stays it under its new name. */
Result renameTemplate(const QString &name, const QString &typed);
/** Brings a bundle into the library; one of the same name goes to the Trash. One that lies in the library is left
   alone. Any thread. */
Result addTemplate(const QString &bundle);

[[nodiscard]] bool isDefaultTemplate(const QString &name);

} // namespace library

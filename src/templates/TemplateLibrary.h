#pragma once

#include "templates/TemplateChanges.h"

#include <QString>

/**
 * Changes to the template library on disk: what the window's list and the command do. Failures are told through VTAlert
 * and logged; afterwards the caller builds the list anew, which shows what the disk holds. Block; main thread, but for
 * addTemplate().
 */
namespace library {

/** What became of a change. Cause::Declined: the question was answered with no. What a person must know has been said.
 */
struct Change
{
    platform::Outcome outcome;
    QString name;           ///< of the template it is about
    bool isChanged = false; ///< false also when there was nothing to do
    DiskSteps steps = {};   ///< what was done, for ChangeHistory
};

/** An empty template, under the next free name. */
[[nodiscard]] Change createTemplate(const QString &wantedName);
/** "Film" -> "Film Duplicate", "Film Duplicate 2". */
[[nodiscard]] Change duplicateTemplate(const QString &name);
/** Asks first; the template goes to the Trash. The mark of the default template stays as it is. */
[[nodiscard]] Change removeTemplate(const QString &name);
/** A template that was the default stays it under its new name. */
[[nodiscard]] Change renameTemplate(const QString &name, const QString &typed);
/** Whether the name is that of a bundle ("Film.tzt", with or without a slash) or of one in an archive
   ("Film.tzt.zip"). */
[[nodiscard]] bool isTemplateFile(const QString &path);
/** Where an export goes to, from what a person gave: a folder gets an archive of the template's name, a name the
   ending by which it can be taken in again. */
[[nodiscard]] QString exportFile(const QString &name, const QString &given);
/** As one zip archive with the bundle in it, for people elsewhere; what stands at the place goes to the Trash. What an
   archive cannot hold is said. */
platform::Outcome exportTemplate(const QString &name, const QString &file);
/** Brings a bundle, or the one in an archive, into the library; one of the same name goes to the Trash. One that lies
   in the library is left alone. Any thread. */
[[nodiscard]] Change addTemplate(const QString &bundle);

[[nodiscard]] bool isDefaultTemplate(const QString &name);

} // namespace library

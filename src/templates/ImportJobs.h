#pragma once

#include "templates/TemplateChanges.h"

#include <QStringList>
#include <functional>

/** One import: what to bring into a template's tree, and where to. */
struct ImportJob
{
    QStringList sourceFiles; ///< absolute paths, in order
    QString destFolder;      ///< an existing folder inside the tree
};

/** How a job is seen from outside. Called on the job's thread; what touches the window hands it to the main thread. */
struct ImportHost
{
    std::function<void()> begin;                               ///< turn the spinner
    std::function<void(const QString &destFolder)> showFolder; ///< read the folder anew; null: the whole tree
    std::function<void()> end;
    std::function<void(const DiskSteps &steps)> changed = {}; ///< what was done, at the end; may be empty
};

/**
 * The two imports. Both block the calling thread, which is a worker's in the window; several may run at once. Questions
 * and messages go through VTAlert. They go on after a failure and return the first; Cause::Declined where the user left
 * something out.
 */
namespace importjobs {

/** With all contents. What stands there already is asked about, once for all if the user says so. */
platform::Outcome copyFiles(const ImportJob &job, const ImportHost &host);

/** Only the folders, with their labels; no file, and no package. */
platform::Outcome createFolderStructure(const ImportJob &job, const ImportHost &host);

/** Folders, and the first one whose contents could not be looked at. */
struct Leaves
{
    QStringList folders;
    platform::Outcome unreadable;
};

/** The folders below (links followed) that hold no further folders, depth first; the folder itself when it has none. */
[[nodiscard]] Leaves subFoldersInDirectory(const QString &folder);

/** What createFolderStructure() makes, below the destination. A folder without subfolders gives its whole absolute
   path: this must stay. */
[[nodiscard]] Leaves structurePaths(const QStringList &sources);

} // namespace importjobs

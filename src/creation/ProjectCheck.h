#pragma once

#include "creation/Manifest.h"

namespace platform {
class CopyMonitor;
}

/** What a project lacks of what its creation made. */
struct CheckFinding
{
    enum class What {
        Missing,   ///< not at its place any more; of a folder this stands for all that lay in it
        OtherKind, ///< a file where a folder was made, or the other way round
        Emptied,   ///< a file that was made with contents and has none
        Unseen,    ///< it cannot be looked at
    };
    QString path; ///< below the project
    What what = What::Missing;
};

/** "path: it is missing", for people. */
[[nodiscard]] QString sentenceOf(const CheckFinding &finding);
/** "missing", "otherKind", "emptied", "unseen": the same for programs. */
[[nodiscard]] QString wordOf(CheckFinding::What what);

struct ProjectCheck
{
    platform::Outcome outcome; ///< why nothing could be looked at
    QString project;           ///< its folder
    bool isRemembered = false; ///< compared with what its creation made; else with a template
    QString templateName;      ///< null: there is none to compare with
    qsizetype looked = 0;      ///< items
    qsizetype notLooked = 0;   ///< items of the template whose names or making depend on values
    QList<CheckFinding> findings;
    [[nodiscard]] bool isComplete() const { return outcome.ok() && findings.isEmpty(); }
};

/**
 * Looks whether all that a creation made still stands in the project. Of a project that is not remembered, by its place
 * or by its folder that was moved, what the template would make for a project of that name is looked for. Changes
 * nothing. Blocks, for as long as the drive takes; any thread. Cause::Missing, Cause::NotAFolder; Cause::Cancelled.
 *
 * templateFiles: the folder "Files" of the template to compare with; null for none.
 */
[[nodiscard]] ProjectCheck checkProject(const QString &project, const QString &templateName,
                                        const QString &templateFiles, platform::CopyMonitor &monitor);

#pragma once

#include "creation/ProjectRequest.h"
#include "platform/base/Outcome.h"

/** Why a project cannot be made from these values: what is said first, and what can be done about it. */
struct RequestProblem
{
    QString message;
    QString informativeText;
    qsizetype parameter = -1; ///< the row where it can be mended; -1: none alone
};

/** The first thing that is wrong with the values and the names that they give; nothing is looked at on disk. Pure. */
[[nodiscard]] std::optional<RequestProblem> problemOf(const ProjectRequest &request);

/** Whether a folder level is too long, too: a plan names those itself. */
enum class TooLongLevels { AreProblems, AreNamedElsewhere };
[[nodiscard]] std::optional<RequestProblem> problemOf(const ProjectRequest &request, TooLongLevels tooLong);

/**
 * The request with a value for the parameter of the title, as if it had been typed into its row. Cause::Invalid, with
 * one sentence, where there is none, it is locked, or the value is not among its choices.
 */
[[nodiscard]] platform::Result<ProjectRequest> withNamedValue(const ProjectRequest &request, const QString &title,
                                                              const QString &value, bool strictNaming);

/**
 * The project of a template of the library before anything is typed for it: rules, parameters and settings as they are
 * now, everything but the folder it goes to. Fails when the rules cannot be read. Blocks; any thread.
 */
[[nodiscard]] platform::Result<ProjectRequest> freshRequest(const QString &library, const QString &templateName);

/** "There are: a, b." */
[[nodiscard]] QString listed(const QStringList &names);

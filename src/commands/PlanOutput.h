#pragma once

#include "creation/ProjectCreation.h"

class QJsonObject;

/** How a plan, and what came of it, is printed. Pure. */

/** As a tree, for people. */
[[nodiscard]] QString drawn(const CreationPlan &plan, const QString &destination);

/** What every object of a project has, whether it was made or not. */
struct ProjectOutput
{
    const ProjectRequest &request;
    const QStringList &problems;
    const CreationResult &result;       ///< of nothing where it was not made
    const CreationPlan *plan = nullptr; ///< in place of what was made
};
[[nodiscard]] QJsonObject objectOf(const ProjectOutput &project);

#pragma once

#include "creation/ProjectCreation.h"

class QJsonObject;

/** What programs are told of a project, whether it was made or is only planned. */
struct ProjectOutput
{
    const ProjectRequest &request;
    const QStringList &problems;
    const CreationResult &result;       ///< of nothing where it was not made
    const CreationPlan *plan = nullptr; ///< in place of what was made
};
/** Keys stay as they are: scripts read them. Pure. */
[[nodiscard]] QJsonObject objectOf(const ProjectOutput &project);

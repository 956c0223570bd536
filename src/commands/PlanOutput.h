#pragma once

#include "creation/CreationPlan.h"

/** A plan as a tree, for people. Pure. */
[[nodiscard]] QString drawn(const CreationPlan &plan, const QString &destination);

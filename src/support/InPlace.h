#pragma once

#include "platform/base/Outcome.h"

#include <QString>
#include <functional>

/**
 * Making something that stands at its place whole or not at all, whatever ends the program meanwhile: in a staging
 * folder first, then by one rename. What stood there before goes to the Trash, and is there until the new one is. Where
 * no staging folder can be made (the place is not the user's) it is made in its place, as the operations do it that can
 * ask for rights. Block; any thread.
 */
namespace fileoperations {

enum class Replaces { Nothing, WhatStandsThere };
/** What becomes of what stood there; success when it is gone. The item lies at the path, and was known as the other. */
using PutAway = std::function<platform::Outcome(const QString &path, const QString &knownAs)>;

/** Moves it to the Trash, as trashFile() does. */
platform::Outcome putInTrash(const QString &path, const QString &knownAs);

struct InPlace
{
    QString destination;
    /// A folder of the same file system that may hold the staging folder; null: the destination's own.
    QString stagingParent = {};
    Replaces replaces = Replaces::Nothing;
    PutAway putAway = putInTrash;
};
/** The function makes the item at the path that it is given. Failures name the destination. */
platform::Outcome makeInPlace(const InPlace &place, const std::function<platform::Outcome(const QString &)> &make);

/** What killed programs have left in the folder goes to the Trash; the log names it. */
void putAbandonedInTrash(const QString &folder);

} // namespace fileoperations

#include "support/InPlace.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/StagingFolder.h"
#include "platform/files/WriteOut.h"
#include "support/FileOperations.h"
#include "support/VTLog.h"

using platform::Cause;
using platform::Outcome;
using platform::StagingFolder;

namespace fileoperations {
namespace {

/// Also what cannot be looked at just now: it must neither be removed nor written over as if it were nothing.
bool isThere(const QString &path)
{
    return !platform::isMissing(path);
}

/// Under the name that people know, not that of the staging folder.
Outcome shownAs(const Outcome &outcome, const QString &staged, const QString &destination)
{
    const QString &item = outcome.item();
    const bool isBelow = item == staged || item.startsWith(staged + u'/');
    return outcome.ok() || !isBelow
               ? outcome
               : Outcome::failure(outcome.cause(), destination + item.mid(staged.size()), outcome.sentence());
}

Outcome makeDirectly(const InPlace &place, const std::function<Outcome(const QString &)> &make)
{
    const bool stands = place.replaces == Replaces::WhatStandsThere && isThere(place.destination);
    const Outcome cleared = stands ? place.putAway(place.destination, place.destination) : Outcome();
    return cleared.ok() ? make(place.destination) : cleared;
}

/// File systems that cannot exchange two items in one step: the old one comes here first, and goes back if need be.
Outcome swap(const InPlace &place, const StagingFolder &staging, const QString &old)
{
    const Outcome taken = platform::moveMade(place.destination, old);
    if (!taken.ok())
        return taken;
    const Outcome moved = staging.moveOut(platform::lastComponent(place.destination), place.destination);
    if (!moved.ok())
        static_cast<void>(platform::moveMade(old, place.destination)); // else it is looked after as what is left here
    return moved;
}

/// It could not be put away, and its place is its own again.
bool putBack(const InPlace &place, const StagingFolder &staging, const QString &old, bool isExchanged)
{
    const QString name = platform::lastComponent(place.destination);
    if (isExchanged)
        return staging.exchange(name, place.destination).ok();
    return platform::moveItem(place.destination, platform::joined(staging.path(), name)).ok() &&
           platform::moveItem(old, place.destination).ok();
}

/// Old and new change places; when the old one cannot be put away, back again.
Outcome replace(const InPlace &place, StagingFolder &staging)
{
    const QString name = platform::lastComponent(place.destination);
    QString old = platform::joined(staging.path(), name);
    Outcome done = staging.exchange(name, place.destination);
    const bool isExchanged = done.ok();
    if (!isExchanged) {
        old = platform::joined(staging.path(), QStringLiteral("replaced"));
        done = swap(place, staging, old);
    }
    if (done.ok())
        done = place.putAway(old, place.destination);
    if (isThere(old) && !putBack(place, staging, old, isExchanged)) {
        VTLog::appendLog("What was %@ lies in %@ now", place.destination, staging.path());
        staging.leaveContents();
    }
    return shownAs(done, old, place.destination);
}

} // namespace

Outcome putInTrash(const QString &path, const QString &knownAs)
{
    return trashFile(path, ShouldAuth::Yes, nullptr, knownAs == path ? QString() : knownAs);
}

Outcome makeInPlace(const InPlace &place, const std::function<Outcome(const QString &)> &make)
{
    auto folder = StagingFolder::make(place.stagingParent.isNull() ? platform::parentPath(place.destination)
                                                                   : place.stagingParent);
    if (!folder)
        return makeDirectly(place, make);
    StagingFolder staging = *std::move(folder);
    const QString name = platform::lastComponent(place.destination);
    const QString staged = platform::joined(staging.path(), name);
    const Outcome made = make(staged);
    if (!made.ok())
        return shownAs(made, staged, place.destination);
    // A name that stood for empty files after a power cut would be a template that makes empty files from then on.
    const Outcome written = platform::resultInBackground([&] { return platform::writeOut(staged); });
    if (!written.ok())
        return shownAs(written, staged, place.destination);
    staging.giveToOwnerOfPlace();
    const bool stands = place.replaces == Replaces::WhatStandsThere && isThere(place.destination);
    return stands ? replace(place, staging)
                  : shownAs(staging.moveOut(name, place.destination), staged, place.destination);
}

void putAbandonedInTrash(const QString &folder)
{
    for (const QString &item : StagingFolder::abandonedIn(folder)) {
        VTLog::appendLog("A program that was ended has left %@ behind; moving it to the Trash", item);
        const Outcome trashed =
            trashFile(item, ShouldAuth::No, nullptr, platform::joined(folder, platform::lastComponent(item)));
        if (trashed.ok())
            static_cast<void>(platform::removeEmptyFolder(platform::parentPath(item)));
    }
}

} // namespace fileoperations

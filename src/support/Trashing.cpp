// The Trash: VTFileManager's one core operation that must never do half of its work.
#include "support/FileOperations.h"

#include "platform/base/LocalTime.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"
#include "support/FileFallback.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <ctime>

using platform::Cause;
using platform::isMissing;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileOperations)
};

/// The helper's part is the one rename: the place and its note are the user's own.
bool trashWithRights(const QString &path, QString *inTrash, const QString &knownAs)
{
    const platform::Result<QString> place = platform::reserveInTrash(path, knownAs);
    if (!place) {
        VTLog::appendLog("Error finding a place in the Trash: %@", place.outcome().description());
        return false;
    }
    auto &authorization = VTAuthorization::sharedController();
    if (authorization.authMoveFile(path, *place) && authorization.lastToolSucceeded() && isMissing(path)) {
        if (inTrash)
            *inTrash = *place;
        return true;
    }
    if (isMissing(*place))
        platform::giveUpPlaceInTrash(*place);
    return false;
}

/// "Film (2026-11-21 14.05.09).mov", beside the path it is known by.
QString datedName(const QString &path)
{
    const QString extension = platform::extensionOf(path);
    return VTFileManager::uniqueFilename(
        platform::withoutExtension(path) +
        platform::formatDate(QStringLiteral(" (%Y-%m-%d %H.%M.%S)"), std::time(nullptr)) +
        (extension.isEmpty() ? QString() : u'.' + extension));
}

Outcome putBeside(const QString &path, QString *inTrash, const QString &knownAs)
{
    const QString target = datedName(knownAs.isNull() ? path : knownAs);
    const Outcome moved = platform::moveItem(path, target);
    if (!moved.ok())
        return moved;
    VTLog::appendLogAndPrint(
        platform::formatString("%@ was put beside as %@, because there is no Trash for it", path, target));
    if (inTrash)
        *inTrash = target;
    return {};
}

/// There is no Trash that the item could be moved to in one step. A copy to another drive's Trash may end half way, on
/// a full disk or at a folder that cannot be emptied, so that is no way to put something away.
Outcome askInstead(const QString &path, const Outcome &failure, QString *inTrash, const QString &knownAs)
{
    const QString name = platform::forOneLine(platform::lastComponent(knownAs.isNull() ? path : knownAs));
    const int answer = VTAlert::show(
        {Text::tr("“%1” cannot be moved to the Trash").arg(name),
         withCause(Text::tr("Its drive has no Trash that you may use. It can be put beside under a name with "
                            "today's date, be deleted for good, or be kept as it is."),
                   failure),
         Text::tr("Put Beside"), Text::tr("Delete"), Text::tr("Keep"), VTAlert::otherReturn});
    if (answer == VTAlert::defaultReturn)
        return putBeside(path, inTrash, knownAs);
    return answer == VTAlert::alternateReturn ? fileoperations::removeFile(path)
                                              : Outcome::failure(Cause::Declined, failure.item(), failure.sentence());
}

} // namespace

namespace fileoperations {

Outcome trashFile(const QString &path, ShouldAuth shouldAuth, QString *inTrash, const QString &knownAs)
{
    VTFileManager::unlockFile(path);
    if (isMissing(path))
        return {};
    const Outcome trashed = platform::resultInBackground([&] { return platform::moveToTrash(path, inTrash, knownAs); });
    if (trashed.ok())
        return trashed;
    VTLog::appendLog("Error moving to the Trash: %@", trashed.description());
    if (shouldAuth == ShouldAuth::No || trashed.is(Cause::Missing))
        return trashed;
    if (VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact))
        return VTAuthorization::sharedController().authTrashFile(path) ? Outcome() : trashed; // refuses, and says so
    if (!platform::moveNeedsRights(path)) // a drive that does not answer may do so later: nothing to decide there
        return trashed.is(Cause::Unreachable) ? trashed : askInstead(path, trashed, inTrash, knownAs);
    return !platform::isSuperUser() && trashWithRights(path, inTrash, knownAs) ? Outcome() : trashed;
}

Outcome trashFile(const QString &path, seconds timeout, QString *inTrash)
{
    const Outcome trashed = trashFile(path, ShouldAuth::Yes, inTrash);
    return trashed.ok() ? waitUntil([&] { return isMissing(path); }, timeout, path) : trashed;
}

} // namespace fileoperations

// VTFileManager's core operations: create, copy, move and remove, each with its fallback and its time-out form.
#include "support/FileOperations.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/TreeCopy.h"
#include "support/FileFallback.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <thread>

using platform::Cause;
using platform::FileKind;
using platform::isMissing;
using platform::kindOf;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileOperations)
};

/// Where only the letter case changes, the old path may still resolve; a short fixed pause stands in for the wait.
constexpr std::chrono::microseconds caseRenamePause{500};

QString shownName(const QString &path)
{
    return platform::forOneLine(platform::lastComponent(path));
}

bool differOnlyInCase(const QString &source, const QString &toPath)
{
    return source.toLower() == toPath.toLower();
}

/// With a name that is taken the tools would put a folder into the folder, or replace what stands there by it.
bool wouldMergeFolders(const QString &source, const QString &toPath)
{
    return kindOf(toPath) != FileKind::Missing &&
           (kindOf(source) == FileKind::Folder || platform::leadsToFolder(toPath) || platform::leadsToFolder(source));
}

/// The tool moves a file into a folder that stands at the destination, and callers rely on it; but never onto a
/// namesake.
bool wouldMoveInto(const QString &source, const QString &toPath)
{
    return kindOf(source) != FileKind::Folder && kindOf(toPath) == FileKind::Folder &&
           isMissing(platform::joined(toPath, platform::lastComponent(source)));
}

bool isOnAnotherDrive(const QString &source, const QString &toPath)
{
    const auto from = platform::identityOf(source);
    const auto to = platform::identityOf(platform::parentPath(toPath));
    return from && to && from->device != to->device;
}

} // namespace

namespace fileoperations {

Outcome createDirectory(const QString &path, ShouldAuth shouldAuth)
{
    const Outcome made = platform::makeFolders(path);
    if (made.ok())
        return made;
    VTLog::appendLog("Error creating folder: %@. Authorizing...", made.description());
    platform::CopyMonitor own;
    const LongWork work(Text::tr("Creating %1").arg(shownName(path)), own);
    return fallBackToTool(
        shouldAuth, made, VTAuthorization::createDirCommand(path),
        [&] { return VTAuthorization::sharedController().authCreateDir(path); }, work.monitor());
}

Outcome createDirectory(const QString &path, seconds timeout)
{
    const Outcome made = createDirectory(path);
    return made.ok() ? waitUntil([&] { return platform::targetExists(path); }, timeout, path) : made;
}

Outcome copyFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    if (source.isNull()) {
        VTLog::appendLogAndPrint("Error copying file: source path is nil");
        return Outcome::failure(Cause::Invalid, source);
    }
    if (toPath.isNull()) {
        VTLog::appendLogAndPrint("Error copying file %@: destination path is nil", source);
        return Outcome::failure(Cause::Invalid, source);
    }
    VTFileManager::unlockFile(platform::parentPath(toPath));
    const bool isNew = isMissing(toPath);
    platform::CopyMonitor own;
    const LongWork work(Text::tr("Copying %1").arg(shownName(source)), own, measureOf({source}, own));
    platform::Losses losses;
    const Outcome copied =
        platform::resultInBackground([&] { return platform::copyItem(source, toPath, &losses, &work.monitor()); });
    logLosses(losses);
    if (copied.ok() || copied.is(Cause::Cancelled))
        return copied;
    VTLog::appendLog("Error copying file: %@. Authorizing...", copied.description());
    // A folder into itself: the tool would half do it before it notices.
    if (copied.is(Cause::IntoItself) || wouldMergeFolders(source, toPath))
        return copied;
    if (kindOf(toPath) == FileKind::Link) // the tool would write through it
        return copied;
    const Outcome byTool = fallBackToTool(
        shouldAuth, copied, VTAuthorization::copyCommand(source, toPath),
        [&] { return VTAuthorization::sharedController().authCopyFile(source, toPath); }, work.monitor());
    const bool wasOwnTool = platform::isSuperUser() || !copied.needsRights();
    if (byTool.ok() && wasOwnTool) // the helper says itself what it could not keep
        VTLog::appendLog("%@ was copied by %@, which keeps no labels", source, QStringLiteral("/bin/cp"));
    if (byTool.ok())
        return {};
    if (isNew && wasOwnTool) // on a full disk the tool leaves what it got to
        static_cast<void>(platform::resultInBackground([&] { return platform::removeOwnTree(toPath); }));
    return byTool.is(Cause::Cancelled) ? byTool : copied;
}

Outcome copyFile(const QString &source, const QString &toPath, seconds timeout)
{
    const Outcome copied = copyFile(source, toPath);
    return copied.ok() ? waitUntil([&] { return !isMissing(toPath); }, timeout, toPath) : copied;
}

Outcome moveFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    VTFileManager::unlockFile(toPath);
    VTFileManager::unlockFolder(platform::joined(toPath, platform::lastComponent(source)));
    if (differOnlyInCase(source, toPath)) {
        // Only when the name that stands there is the same file: another file is never overwritten by a rename.
        const bool taken = !isMissing(toPath) && platform::identityOf(source) != platform::identityOf(toPath);
        const QString between = VTFileManager::uniqueFilename(toPath);
        if (!taken && platform::moveItem(source, between).ok()) {
            if (platform::moveItem(between, toPath).ok())
                return {};
            if (!platform::moveItem(between, source).ok())
                VTLog::appendLog("Error moving file: %@ was left as %@", source, between);
        }
    }
    platform::CopyMonitor own;
    const LongWork work(Text::tr("Moving %1").arg(shownName(source)), own, measureOf({source}, own));
    platform::Losses losses;
    const Outcome moved =
        platform::resultInBackground([&] { return platform::moveItem(source, toPath, &work.monitor(), &losses); });
    logLosses(losses);
    if (moved.ok() || moved.is(Cause::Cancelled))
        return moved;
    VTLog::appendLog("Error moving file: %@. Authorizing...", moved.description());
    if (moved.is(Cause::IntoItself) || (wouldMergeFolders(source, toPath) && !wouldMoveInto(source, toPath)) ||
        (moved.is(Cause::Exists) && differOnlyInCase(source, toPath)))
        return moved;
    // To another drive the tool, with no more rights than these, would leave two halves where nothing was moved.
    if (isOnAnotherDrive(source, toPath) && (platform::isSuperUser() || !moved.needsRights()))
        return moved;
    return fallBackToTool(
        shouldAuth, moved, VTAuthorization::moveCommand(source, toPath),
        [&] { return VTAuthorization::sharedController().authMoveFile(source, toPath); }, work.monitor());
}

Outcome moveFile(const QString &source, const QString &toPath, seconds timeout)
{
    const Outcome moved = moveFile(source, toPath);
    if (!moved.ok())
        return moved;
    if (differOnlyInCase(source, toPath)) {
        std::this_thread::sleep_for(caseRenamePause);
        return {};
    }
    return waitUntil([&] { return isMissing(source); }, timeout, source);
}

Outcome removeFile(const QString &path, ShouldAuth shouldAuth)
{
    VTFileManager::unlockFile(path);
    if (isMissing(path))
        return {};
    platform::CopyMonitor own;
    const LongWork work(Text::tr("Removing %1").arg(shownName(path)), own, measureOf({path}, own));
    const Outcome removed = platform::resultInBackground([&] { return platform::removeTree(path, &work.monitor()); });
    if (removed.ok() || removed.is(Cause::Cancelled))
        return removed;
    VTLog::appendLog("Error removing file: %@. Authorizing...", removed.description());
    if (VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact))
        return VTAuthorization::sharedController().authRemoveFile(path) ? Outcome() : removed; // refuses, and says so
    return fallBackToTool(
        shouldAuth, removed, VTAuthorization::removeCommand(path),
        [&] { return VTAuthorization::sharedController().authRemoveFile(path); }, work.monitor());
}

Outcome removeFile(const QString &path, seconds timeout)
{
    const Outcome removed = removeFile(path);
    return removed.ok() ? waitUntil([&] { return isMissing(path); }, timeout, path) : removed;
}

void logLosses(const platform::Losses &losses)
{
    const std::pair<const char *, const platform::Loss *> kinds[] = {
        {"labels", &losses.labels}, {"mode", &losses.modes}, {"owner", &losses.owners}, {"dates", &losses.dates}};
    for (const auto &[kind, loss] : kinds) {
        const QString what = QString::fromLatin1(kind);
        for (const QString &item : loss->items)
            VTLog::appendLog("Unable to keep the %@ of %@ at the destination", what, item);
        const auto others = static_cast<qlonglong>(loss->count) - loss->items.size();
        if (others > 0)
            VTLog::appendLog("Unable to keep the %@ of %@ more items at the destination", what,
                             QString::number(others));
    }
}

} // namespace fileoperations

LongWork::Measure measureOf(const QStringList &paths, platform::CopyMonitor &monitor)
{
    return [paths, &monitor](const std::atomic<bool> &over) {
        platform::TreeSize all;
        for (const QString &path : paths) {
            const platform::TreeSize size = platform::measureTree(path, over);
            all.items += size.items;
            all.bytes += size.bytes;
        }
        if (over)
            return;
        monitor.itemsTotal = all.items;
        monitor.bytesTotal = all.bytes;
    };
}

QString withCause(const QString &informativeText, const Outcome &failure)
{
    return failure.ok() ? informativeText : informativeText + QStringLiteral("\n\n") + failure.description();
}

QString checkDestination(const Outcome &failure)
{
    return withCause(Text::tr("Please check that you have write permissions for the destination directory."), failure);
}

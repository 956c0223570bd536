// VTFileManager's core operations: create, copy, move, remove and trash, each with its fallback and its time-out form.
#include "support/VTFileManager.h"

#include "platform/FileSystem.h"
#include "platform/MainThread.h"
#include "platform/NativePath.h"
#include "platform/Packages.h"
#include "platform/Trash.h"
#include "platform/TreeCopy.h"
#include "platform/Users.h"
#include "support/FileFallback.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <cerrno>
#include <thread>

using platform::FileKind;
using platform::FileOutcome;
using platform::kindOf;

namespace {

constexpr std::chrono::milliseconds mainThreadPoll{10};
constexpr std::chrono::milliseconds workerPoll{300};
/// Where only the letter case changes, the old path may still resolve; a short fixed pause stands in for the wait.
constexpr std::chrono::microseconds caseRenamePause{500};

bool isMissing(const QString &path)
{
    return kindOf(path) == FileKind::Missing;
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

} // namespace

bool fallBackToTool(ShouldAuth shouldAuth, const FileOutcome &failure, const VTAuthorization::Command &command,
                    const std::function<bool()> &withRights)
{
    if (shouldAuth == ShouldAuth::No)
        return false;
    auto &authorization = VTAuthorization::sharedController();
    // The super-user lacks no rights, and only the tool's own status tells what became of it.
    if (failure.needsRights() && !platform::isSuperUser())
        return withRights() && authorization.lastToolSucceeded();
    return VTTask::terminationCodeFromTask(command.tool, command.arguments) == 0;
}

void waitWhile(const std::function<bool()> &condition, std::chrono::seconds timeout)
{
    const auto start = std::chrono::steady_clock::now();
    const auto elapsed = [&] {
        return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    };
    while (condition() && elapsed() < timeout) {
        if (!platform::MainThread::isCurrent())
            std::this_thread::sleep_for(workerPoll);
        else if (QCoreApplication::instance())
            platform::MainThread::turnLoop(mainThreadPoll);
        else
            std::this_thread::sleep_for(mainThreadPoll);
    }
}

bool VTFileManager::fileExistsAtPath(const QString &path)
{
    return platform::targetExists(path);
}

bool VTFileManager::isDirectoryAtPath(const QString &path)
{
    return platform::leadsToFolder(path);
}

bool VTFileManager::isPackageAtPath(const QString &path)
{
    return platform::isPackage(path);
}

bool VTFileManager::isSymbolicLinkAtPath(const QString &path)
{
    return kindOf(path) == FileKind::Link;
}

bool VTFileManager::createDirectory(const QString &path, ShouldAuth shouldAuth)
{
    const FileOutcome made = platform::makeFolders(path);
    if (made.ok())
        return true;
    VTLog::appendLog("Error creating folder: %@. Authorizing...", made.description());
    return fallBackToTool(shouldAuth, made, VTAuthorization::createDirCommand(path),
                          [&] { return VTAuthorization::sharedController().authCreateDir(path); });
}

bool VTFileManager::createDirectory(const QString &path, Seconds timeout)
{
    if (!createDirectory(path))
        return false;
    waitWhile([&] { return !fileExistsAtPath(path); }, timeout);
    return fileExistsAtPath(path);
}

bool VTFileManager::copyFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    if (source.isNull()) {
        VTLog::appendLogAndPrint("Error copying file: source path is nil");
        return false;
    }
    if (toPath.isNull()) {
        VTLog::appendLogAndPrint("Error copying file %@: destination path is nil", source);
        return false;
    }
    unlockFile(platform::parentPath(toPath));
    const bool isNew = isMissing(toPath);
    QString attributesLost;
    const FileOutcome copied =
        platform::resultInBackground([&] { return platform::copyItem(source, toPath, &attributesLost); });
    if (!attributesLost.isNull())
        VTLog::appendLog("Unable to keep the labels of %@ at the destination", attributesLost);
    if (copied.ok())
        return true;
    VTLog::appendLog("Error copying file: %@. Authorizing...", copied.description());
    // EINVAL: a folder into itself, which the tool would half do before it notices.
    if (copied.errorNumber() == EINVAL || wouldMergeFolders(source, toPath))
        return false;
    if (fallBackToTool(shouldAuth, copied, VTAuthorization::copyCommand(source, toPath),
                       [&] { return VTAuthorization::sharedController().authCopyFile(source, toPath); }))
        return true;
    const bool wasOwnTool = platform::isSuperUser() || !copied.needsRights();
    if (isNew && wasOwnTool) // on a full disk the tool leaves what it got to
        static_cast<void>(platform::resultInBackground([&] { return platform::removeOwnTree(toPath); }));
    return false;
}

bool VTFileManager::copyFile(const QString &source, const QString &toPath, Seconds timeout)
{
    if (!copyFile(source, toPath))
        return false;
    waitWhile([&] { return isMissing(toPath); }, timeout);
    return !isMissing(toPath);
}

namespace {

/// The tool moves a file into a folder that stands at the destination, and callers rely on it; but never onto a namesake.
bool wouldMoveInto(const QString &source, const QString &toPath)
{
    return kindOf(source) != FileKind::Folder && kindOf(toPath) == FileKind::Folder &&
           isMissing(platform::joined(toPath, platform::lastComponent(source)));
}

} // namespace

bool VTFileManager::moveFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    unlockFile(toPath);
    unlockFolder(platform::joined(toPath, platform::lastComponent(source)));
    if (differOnlyInCase(source, toPath)) {
        // Only when the name that stands there is the same file: another file is never overwritten by a rename.
        const bool taken = !isMissing(toPath) && platform::identityOf(source) != platform::identityOf(toPath);
        const QString between = uniqueFilename(toPath);
        if (!taken && platform::moveItem(source, between).ok()) {
            if (platform::moveItem(between, toPath).ok())
                return true;
            if (!platform::moveItem(between, source).ok())
                VTLog::appendLog("Error moving file: %@ was left as %@", source, between);
        }
    }
    const FileOutcome moved = platform::resultInBackground([&] { return platform::moveItem(source, toPath); });
    if (moved.ok())
        return true;
    VTLog::appendLog("Error moving file: %@. Authorizing...", moved.description());
    if (moved.errorNumber() == EINVAL || (wouldMergeFolders(source, toPath) && !wouldMoveInto(source, toPath)) ||
        (moved.errorNumber() == EEXIST && differOnlyInCase(source, toPath)))
        return false;
    return fallBackToTool(shouldAuth, moved, VTAuthorization::moveCommand(source, toPath),
                          [&] { return VTAuthorization::sharedController().authMoveFile(source, toPath); });
}

bool VTFileManager::moveFile(const QString &source, const QString &toPath, Seconds timeout)
{
    if (!moveFile(source, toPath))
        return false;
    if (differOnlyInCase(source, toPath)) {
        std::this_thread::sleep_for(caseRenamePause);
        return true;
    }
    waitWhile([&] { return !isMissing(source); }, timeout);
    return isMissing(source);
}

bool VTFileManager::removeFile(const QString &path, ShouldAuth shouldAuth)
{
    unlockFile(path);
    if (isMissing(path))
        return true;
    const FileOutcome removed = platform::resultInBackground([&] { return platform::removeTree(path); });
    if (removed.ok())
        return true;
    VTLog::appendLog("Error removing file: %@. Authorizing...", removed.description());
    if (VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact))
        return VTAuthorization::sharedController().authRemoveFile(path); // refuses, and says so
    return fallBackToTool(shouldAuth, removed, VTAuthorization::removeCommand(path),
                          [&] { return VTAuthorization::sharedController().authRemoveFile(path); });
}

bool VTFileManager::removeFile(const QString &path, Seconds timeout)
{
    if (!removeFile(path))
        return false;
    waitWhile([&] { return !isMissing(path); }, timeout);
    return isMissing(path);
}

bool VTFileManager::trashFile(const QString &path, ShouldAuth shouldAuth)
{
    unlockFile(path);
    if (isMissing(path))
        return true;
    if (platform::resultInBackground([&] { return platform::moveToTrash(path); }))
        return true;
    if (shouldAuth == ShouldAuth::No)
        return false;
    auto &authorization = VTAuthorization::sharedController();
    if (VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact))
        return authorization.authTrashFile(path); // refuses, and says so
    const QString target = authorization.trashTarget(path);
    const VTAuthorization::Command command = VTAuthorization::moveCommand(path, target);
    if (platform::isWritable(platform::parentPath(path)) &&
        VTTask::terminationCodeFromTask(command.tool, command.arguments) == 0) {
        platform::noteInTrash(target, path);
        return true;
    }
    if (platform::isSuperUser() || !platform::moveNeedsRights(path))
        return false;
    const QString free = authorization.trashTarget(path); // the tool may have begun to fill the first
    if (!authorization.authMoveFile(path, free) || !authorization.lastToolSucceeded())
        return false;
    platform::noteInTrash(free, path);
    return true;
}

bool VTFileManager::trashFile(const QString &path, Seconds timeout)
{
    if (!trashFile(path))
        return false;
    waitWhile([&] { return !isMissing(path); }, timeout);
    return isMissing(path);
}

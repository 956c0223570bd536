// VTFileManager's operations on the contents of folders.
#include "support/VTFileManager.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/TreeCopy.h"
#include "support/FileOperations.h"
#include "support/VTLog.h"

#include <functional>

using platform::Cause;
using platform::FileKind;
using platform::FolderEntry;
using platform::joined;
using platform::Outcome;

using fileoperations::entriesOf;

namespace {

bool isFileBrowsersOwn(const QString &name)
{
    return name == QLatin1String(".DS_Store") || name == QLatin1String("Icon\r");
}

QStringList trashMatching(const QString &folder, const std::function<bool(const QString &)> &matches)
{
    QStringList trashed;
    for (const FolderEntry &entry : entriesOf(folder)) {
        const QString path = joined(folder, entry.name);
        if (entry.kind == FileKind::Folder) {
            trashed += trashMatching(path, matches);
        } else if (matches(entry.name)) {
            static_cast<void>(VTFileManager::trashFile(path)); // listed whether or not it went
            trashed.append(path);
        }
    }
    return trashed;
}

/// All items from the first on, in batches that end at a failure; an item that failed gets its tool, then it goes on.
Outcome copyItems(const QString &source, const QString &toPath, std::vector<platform::NamePair> names,
                  std::chrono::seconds timeout, platform::CopyMonitor *monitor)
{
    while (!names.empty()) {
        const platform::CopyReport report = platform::copyEntries(source, toPath, names, monitor);
        fileoperations::logLosses(report.losses);
        if (report.outcome.ok() || report.outcome.is(Cause::Cancelled))
            return report.outcome;
        if (report.copied >= names.size()) { // one of the two folders itself cannot be opened
            VTLog::appendLog("Error copying file: %@. Authorizing...", report.outcome.description());
            return report.outcome;
        }
        const platform::NamePair failed = names[report.copied];
        const QString destination = joined(toPath, platform::fromNative(failed.to));
        const Outcome copied =
            fileoperations::copyFile(joined(source, platform::fromNative(failed.from)), destination, timeout);
        if (!copied.ok())
            return copied;
        names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(report.copied) + 1);
    }
    return {};
}

} // namespace

QList<FolderEntry> fileoperations::entriesOf(const QString &folder)
{
    const auto entries = platform::listFolder(folder);
    if (!entries && !entries.outcome().is(Cause::Missing))
        VTLog::appendLog("Unable to read folder: %@", entries.outcome().description());
    return entries.valueOr({});
}

Outcome fileoperations::copyContentsOfDirectory(const QString &source, const QString &toPath, seconds timeout,
                                                platform::CopyMonitor *monitor)
{
    return platform::resultInBackground([&] {
        const auto entries = platform::listFolder(source);
        if (!entries)
            return entries.outcome();
        std::vector<platform::NamePair> names;
        for (const FolderEntry &entry : *entries) {
            const QByteArray name = platform::toNative(entry.name);
            names.push_back({name, name});
        }
        VTFileManager::unlockFile(toPath);
        return copyItems(source, toPath, std::move(names), timeout, monitor);
    });
}

bool VTFileManager::copyContentsOfDirectory(const QString &source, const QString &toPath, Seconds timeout)
{
    const bool isReadable = platform::resultInBackground([&] { return platform::listFolder(source).ok(); });
    if (!isReadable)
        VTLog::appendLog("Unable to read folder %@", source);
    return !isReadable || fileoperations::copyContentsOfDirectory(source, toPath, timeout).ok();
}

QString VTFileManager::createDirectoryStructure(const QString &path, const QString &destination)
{
    const QString folder = isDirectoryAtPath(path) && !isPackageAtPath(path) ? path : platform::parentPath(path);
    const QString result = joined(destination, folder);
    if (!fileExistsAtPath(result))
        static_cast<void>(createDirectory(result)); // the caller looks whether it stands there
    return result;
}

bool VTFileManager::trashDirectoryContents(const QString &folder, ShouldAuth shouldAuth)
{
    bool all = true;
    for (const FolderEntry &entry : entriesOf(folder))
        all = trashFile(joined(folder, entry.name), shouldAuth) && all;
    return all;
}

QStringList VTFileManager::trashFilesNamed(const QString &name, const QString &inFolder)
{
    return trashMatching(inFolder, [&](const QString &found) { return found == name; });
}

QStringList VTFileManager::trashFilesOfType(const QString &type, const QString &inFolder)
{
    return trashMatching(
        inFolder, [&](const QString &found) { return platform::extensionOf(found).toLower() == type.toLower(); });
}

platform::Result<bool> fileoperations::isFolderEmpty(const QString &folder)
{
    const auto entries = platform::listFolder(folder);
    if (!entries)
        return entries.outcome();
    Outcome unreadable;
    for (const FolderEntry &entry : *entries) {
        if (isFileBrowsersOwn(entry.name))
            continue;
        if (entry.kind != FileKind::Folder)
            return false;
        const auto isEmpty = isFolderEmpty(joined(folder, entry.name));
        if (isEmpty && !*isEmpty)
            return false;
        if (!isEmpty)
            unreadable = isEmpty.outcome();
    }
    return unreadable.ok() ? platform::Result<bool>(true) : unreadable;
}

bool VTFileManager::isFolderEmpty(const QString &folder)
{
    return fileoperations::isFolderEmpty(folder).valueOr(true);
}

bool VTFileManager::removeFolderIfEmpty(const QString &folder)
{
    // One that cannot be looked into is not removed, with rights or without: it may hold anything.
    return fileoperations::isFolderEmpty(folder).valueOr(false) && removeFile(folder);
}

// VTFileManager's operations on the contents of folders.
#include "support/VTFileManager.h"

#include "platform/FileSystem.h"
#include "platform/MainThread.h"
#include "platform/NativePath.h"
#include "platform/TreeCopy.h"
#include "support/FileFallback.h"
#include "support/VTLog.h"

#include <functional>

using platform::FileKind;
using platform::FolderEntry;
using platform::joined;

namespace {

QList<FolderEntry> entriesOf(const QString &folder)
{
    return platform::listFolder(folder).value_or(QList<FolderEntry>());
}

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
bool copyItems(const QString &source, const QString &toPath, std::vector<platform::NamePair> names,
               std::chrono::seconds timeout)
{
    while (!names.empty()) {
        const platform::CopyReport report = platform::copyEntries(source, toPath, names);
        if (!report.attributesLost.isNull())
            VTLog::appendLog("Unable to keep the labels of %@ at the destination", report.attributesLost);
        if (report.outcome.ok())
            return true;
        if (report.copied >= names.size()) { // one of the two folders itself cannot be opened
            VTLog::appendLog("Error copying file: %@. Authorizing...", report.outcome.description());
            return false;
        }
        const platform::NamePair failed = names[report.copied];
        const QString destination = joined(toPath, platform::fromNative(failed.to));
        if (!VTFileManager::copyFile(joined(source, platform::fromNative(failed.from)), destination, timeout))
            return false;
        names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(report.copied) + 1);
    }
    return true;
}

} // namespace

bool VTFileManager::copyContentsOfDirectory(const QString &source, const QString &toPath, Seconds timeout)
{
    return platform::resultInBackground([&] {
        std::vector<platform::NamePair> names;
        for (const FolderEntry &entry : entriesOf(source)) {
            const QByteArray name = platform::toNative(entry.name);
            names.push_back({name, name});
        }
        unlockFile(toPath);
        return copyItems(source, toPath, std::move(names), timeout);
    });
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
    return trashMatching(inFolder, [&](const QString &found) {
        return platform::extensionOf(found).toLower() == type.toLower();
    });
}

bool VTFileManager::isFolderEmpty(const QString &folder)
{
    for (const FolderEntry &entry : entriesOf(folder)) {
        if (isFileBrowsersOwn(entry.name))
            continue;
        if (entry.kind != FileKind::Folder || !isFolderEmpty(joined(folder, entry.name)))
            return false;
    }
    return true;
}

bool VTFileManager::removeFolderIfEmpty(const QString &folder)
{
    return isFolderEmpty(folder) && removeFile(folder);
}

#include "app/TemplateMigration.h"

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

using platform::joined;

void migration::importFirstVersionTemplate()
{
    const QString old =
        joined(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User), QStringLiteral("Tessaro/Template"));
    const QString bundle = VTDataController::bundlePath(QStringLiteral("Tessaro 1.0 Template"));
    if (!VTFileManager::fileExistsAtPath(old) || VTFileManager::fileExistsAtPath(bundle))
        return;
    VTLog::appendLog("Found Tessaro 1.x template. Importing...");
    // A library that this would be the first to make is a new one, and receives the shipped templates, too.
    VTDataController::sharedController().populateDefaultTemplates();
    const QString files = joined(VTFileManager::uniqueFilename(bundle), QStringLiteral("Files"));
    static_cast<void>(VTFileManager::createDirectory(files, std::chrono::seconds(20)));
    for (const auto &entry : platform::listFolder(old).value_or(QList<platform::FolderEntry>())) {
        if (entry.name.startsWith(u'.'))
            continue;
        if (!VTFileManager::moveFile(joined(old, entry.name), joined(files, entry.name), std::chrono::seconds(10)))
            VTLog::appendLog("Unable to move %@ to %@", joined(old, entry.name), files);
    }
    const QString product = platform::parentPath(old);
    if (VTFileManager::isFolderEmpty(product))
        static_cast<void>(VTFileManager::trashFile(product));
}

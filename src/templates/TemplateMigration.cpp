#include "templates/TemplateMigration.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/StudioCopy.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

using platform::joined;

void migration::importFirstVersionTemplate()
{
    if (studio::decidesTemplates()) // it waits for a library of the user's own
        return;
    const QString old =
        joined(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User), QStringLiteral("Tessaro/Template"));
    const QString bundle = VTDataController::bundlePath(QStringLiteral("Tessaro 1.0 Template"));
    if (!VTFileManager::fileExistsAtPath(old) || VTFileManager::fileExistsAtPath(bundle))
        return;
    VTLog::appendLog("Found Tessaro 1.x template. Importing...");
    // A library that this would be the first to make is a new one, and receives the shipped templates, too.
    static_cast<void>(
        VTDataController::sharedController().populateDefaultTemplates()); // said and logged where it failed
    const QString files = joined(VTFileManager::uniqueFilename(bundle), QStringLiteral("Files"));
    static_cast<void>(VTFileManager::createDirectory(files, std::chrono::seconds(20))); // without it the moves fail
    for (const auto &entry : fileoperations::entriesOf(old)) {
        if (entry.name.startsWith(u'.'))
            continue;
        if (!VTFileManager::moveFile(joined(old, entry.name), joined(files, entry.name), std::chrono::seconds(10)))
            VTLog::appendLog("Unable to move %@ to %@", joined(old, entry.name), files);
    }
    const QString product = platform::parentPath(old);
    if (fileoperations::isFolderEmpty(product).valueOr(false))
        static_cast<void>(VTFileManager::trashFile(product)); // a folder without contents that stays does no harm
}

#include "templates/TemplateLibrary.h"

#include "platform/FileSystem.h"
#include "platform/FormatString.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>

using platform::formatString;
using platform::joined;
using platform::lastComponent;
using platform::withoutExtension;

namespace library {
namespace {

constexpr std::chrono::seconds patience{20};
constexpr std::chrono::seconds importPatience{10};

QString text(const char *source)
{
    return QCoreApplication::translate("TemplateLibrary", source);
}

void tell(const QString &message, const QString &informative)
{
    VTAlert::alertSheetWithMessageText(message, informative, VTDataController::sharedController().window());
}

QString checkDestination()
{
    return text("Please check that you have write permissions for the destination directory.");
}

QString nameOf(const QString &bundle)
{
    return withoutExtension(lastComponent(bundle));
}

} // namespace

Result createTemplate(const QString &wantedName)
{
    const QString bundle = VTFileManager::uniqueFilename(VTDataController::bundlePath(wantedName));
    VTLog::appendLog("Creating new template %@...", bundle);
    const QString files = bundle + QStringLiteral("/Files");
    const bool made = VTFileManager::createDirectory(files, patience);
    if (!made)
        tell(formatString(text("Unable to create directory %@"), files), checkDestination());
    return {made ? Outcome::Done : Outcome::Failed, nameOf(bundle)};
}

Result duplicateTemplate(const QString &name)
{
    VTLog::appendLog("Duplicating template %@...", name);
    const QString source = VTDataController::bundlePath(name);
    const QString destination =
        VTFileManager::uniqueFilename(VTDataController::bundlePath(formatString("%@ Duplicate", name)));
    const bool copied = VTFileManager::copyFile(source, destination, patience);
    if (!copied)
        tell(formatString(text("Unable to copy file %@ to %@"), source, destination), checkDestination());
    return {copied ? Outcome::Done : Outcome::Failed, nameOf(destination)};
}

Result removeTemplate(const QString &name)
{
    const int answer = VTAlert::alertSheetWithMessageText(
        formatString(text("Are you sure you wish to remove the template '%@'?"), name), text("Remove"), text("Cancel"),
        {}, text("The template file will be placed in your Trash."), VTDataController::sharedController().window(),
        VTAlert::Block::Yes);
    if (answer != VTAlert::defaultReturn)
        return {Outcome::Declined, name};
    VTLog::appendLog("Removing template %@", name);
    if (VTFileManager::trashFile(VTDataController::bundlePath(name), patience))
        return {Outcome::Done, name};
    tell(formatString(text("Unable to remove template %@"), name),
         text("Please check that you have write permissions for this file."));
    return {Outcome::Failed, name};
}

Result renameTemplate(const QString &name, const QString &typed)
{
    const QString cleaned = VTFileManager::validateFilename(typed);
    if (cleaned.isEmpty()) {
        tell(text("Invalid filename"), text("You must enter a filename without invalid characters."));
        return {Outcome::Declined, name};
    }
    if (cleaned == name)
        return {Outcome::Unchanged, name};
    const QString source = VTDataController::bundlePath(name);
    const QString destination = VTDataController::bundlePath(cleaned);
    if (platform::kindOf(destination) != platform::FileKind::Missing && cleaned.toLower() != name.toLower()) {
        tell(text("Template already exists"),
             formatString(
                 text("You cannot rename this template to %@ because there is already a template with this name."),
                 cleaned));
        return {Outcome::Declined, name};
    }
    if (!VTFileManager::moveFile(source, destination, patience)) {
        tell(formatString(text("Unable to move file %@ to %@"), source, destination), checkDestination());
        return {Outcome::Failed, name};
    }
    if (isDefaultTemplate(name))
        settings::standard().setValue(settings::defaultTemplate, cleaned);
    return {Outcome::Done, cleaned};
}

Result addTemplate(const QString &given)
{
    const QString bundle = given.size() > 1 && given.endsWith(u'/') ? given.chopped(1) : given;
    VTLog::appendLog("Adding template file %@", bundle);
    const QString location = VTDataController::templateLocation();
    if (bundle.startsWith(location))
        return {Outcome::Unchanged, nameOf(bundle)};
    const QString destination = joined(location, lastComponent(bundle));
    if (!VTFileManager::isDirectoryAtPath(bundle)) {
        // Before anything is moved aside for it.
        tell(formatString(text("%@ is not a template"), bundle),
             text("A template is a folder whose name ends in “.tzt”. Please choose such a folder."));
        return {Outcome::Failed, nameOf(bundle)};
    }
    if (!VTFileManager::fileExistsAtPath(location))
        static_cast<void>(VTFileManager::createDirectory(location));
    if (platform::identityOf(bundle) == platform::identityOf(destination)) // the library by another name
        return {Outcome::Unchanged, nameOf(bundle)};
    if (platform::kindOf(destination) != platform::FileKind::Missing)
        static_cast<void>(
            VTFileManager::trashFile(destination, importPatience)); // if it stays, the copy fails and says so
    if (VTFileManager::copyFile(bundle, destination, importPatience))
        return {Outcome::Done, nameOf(destination)};
    tell(formatString(text("Unable to copy file %@ to %@"), bundle, destination), checkDestination());
    return {Outcome::Failed, nameOf(destination)};
}

bool isDefaultTemplate(const QString &name)
{
    return !name.isEmpty() && settings::standard().string(settings::defaultTemplate) == name;
}

} // namespace library

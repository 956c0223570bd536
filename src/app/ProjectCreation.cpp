#include "app/ProjectCreation.h"

#include "app/CreationPlan.h"
#include "parameters/ProjectNaming.h"
#include "platform/MainThread.h"
#include "platform/NativePath.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <cerrno>

using platform::FileKind;
using platform::formatString;

namespace {

constexpr std::chrono::seconds patience{20};

QString text(const char *source)
{
    return QCoreApplication::translate("ProjectCreation", source);
}

QString checkPermissions()
{
    return text("Please check that you have write permissions for the destination directory.");
}

} // namespace

CreationResult ProjectCreation::createTemplate(const QString &templateName, const QString &atPath)
{
    m_host.startProcessing();
    VTLog::appendLog("Creating template %@ at %@...", templateName, atPath);

    const Claim claim = claimDestination(atPath);
    if (claim == Claim::Cancelled) {
        m_result.cancelled = true;
        m_host.finishProcessing();
        return m_result;
    }
    if (claim == Claim::Failed)
        tell(formatString(text("Unable to create folder %@"), atPath), checkPermissions());

    // From here on nothing ends the sequence: what could be made is renamed, dated and counted, and each failure told.
    copyTemplate(VTDataController::filesFolder(templateName), atPath);
    renameTemplateFiles(atPath, projectNameFromParameters());
    updateTimestamps(atPath);
    m_host.reveal(atPath);
    m_host.incrementDynamicValues();
    m_host.quitIfWanted();
    VTLog::appendLog("Template created successfully");
    m_host.finishProcessing();
    return m_result;
}

/// Makes the project's own folder, its parents first. Made in one step that fails when anything stands there, so that of
/// two programs that create the same project at once only one goes on and the other asks.
ProjectCreation::Claim ProjectCreation::claimDestination(const QString &destination)
{
    for (;;) {
        if (platform::kindOf(destination) != FileKind::Missing && !putAwayExisting(destination))
            return Claim::Cancelled;
        const QString parent = platform::parentPath(destination);
        if (!VTFileManager::isDirectoryAtPath(parent) && !VTFileManager::createDirectory(parent, patience))
            return Claim::Failed;
        const platform::FileOutcome made = platform::makeNewFolder(destination);
        if (made.ok())
            return Claim::Made;
        if (made.errorNumber() != EEXIST)
            return VTFileManager::createDirectory(destination, patience) ? Claim::Made : Claim::Failed;
    }
}

/// Asks, and moves the existing project to the Trash. False: it stays, and so nothing may be created.
bool ProjectCreation::putAwayExisting(const QString &destination)
{
    VTLog::appendLog("Project already exists; asking the user what to do...");
    const int answer = VTAlert::alertSheetWithMessageText(
        text("A project with this name already exists. Are you sure you wish to overwrite it?"), text("Overwrite"),
        text("Cancel"), {}, text("The old project will be placed in the trash."), m_host.window(), VTAlert::Block::Yes);
    if (answer != VTAlert::defaultReturn) {
        VTLog::appendLog("User chose to cancel.");
        return false;
    }
    if (VTFileManager::trashFile(destination, patience))
        return true;
    tell(formatString(text("Unable to move %@ to the Trash"), destination),
         text("The old project was left as it is, and no new one was created. Please check that you have write "
              "permissions for the folder it lies in."));
    return false;
}

void ProjectCreation::copyTemplate(const QString &files, const QString &destination)
{
    const bool readable = platform::resultInBackground([&] { return platform::listFolder(files).has_value(); });
    if (!readable)
        VTLog::appendLog("Error copying file: %@ is missing or cannot be read", files);
    const bool copied = readable && VTFileManager::isDirectoryAtPath(destination) &&
                        VTFileManager::copyContentsOfDirectory(files, destination, patience);
    if (!copied)
        tell(text("Unable to copy contents of template"), checkPermissions());
}

void ProjectCreation::renameTemplateFiles(const QString &folder, const QString &newName)
{
    platform::performInBackground([&] { renameBelow(folder, newName); });
}

void ProjectCreation::renameBelow(const QString &folder, const QString &newName)
{
    VTLog::appendLog("Renaming template files from %@ to %@", folder, newName);
    for (const auto &entry : platform::listFolder(folder).value_or(QList<platform::FolderEntry>())) {
        const bool isFolder = entry.kind == FileKind::Folder;
        ++(isFolder ? m_result.folders : m_result.files);
        if (isFolder) // children first, so that their paths stay valid
            renameBelow(platform::joined(folder, entry.name), newName);
        renameEntry(folder, entry, newName);
    }
}

void ProjectCreation::renameEntry(const QString &folder, const platform::FolderEntry &entry, const QString &newName)
{
    const QString wanted = nameInProject(entry.name, newName);
    if (wanted == entry.name)
        return;
    const QString from = platform::joined(folder, entry.name);
    const QString to = platform::joined(folder, wanted);
    // A sibling that has the name already is never replaced: the move's last resort is a tool that would do so.
    const bool taken = platform::kindOf(to) != FileKind::Missing && platform::identityOf(to) != platform::identityOf(from);
    if (taken)
        VTLog::appendLog("Error moving file: %@ is taken", to);
    if (!taken && VTFileManager::moveFile(from, to))
        ++m_result.renamed;
    else
        tell(formatString(text("Unable to move file %@ to %@"), from, to), checkPermissions());
}

void ProjectCreation::updateTimestamps(const QString &folder)
{
    platform::performInBackground([&] {
        const auto entering = [](const QString &path) { VTLog::appendLog("Updating timestamps for folder %@", path); };
        // In this process, without a tool for each item; what it may not touch goes through the tool with rights.
        for (const platform::FileOutcome &untouched : platform::touchBelow(folder, entering)) {
            const bool mayHelp = untouched.needsRights() && platform::kindOf(untouched.item()) != FileKind::Link;
            if (!mayHelp || !VTFileManager::touchFile(untouched.item()))
                VTLog::appendLog("Error updating timestamp: %@", untouched.description());
        }
    });
}

void ProjectCreation::tell(const QString &message, const QString &informativeText)
{
    m_result.errors.append(message);
    VTAlert::alertSheetWithMessageText(message, informativeText, m_host.window());
}

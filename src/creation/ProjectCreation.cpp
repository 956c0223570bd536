#include "creation/ProjectCreation.h"

#include "creation/CreationPlan.h"
#include "parameters/ParameterStore.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::Cause;
using platform::FileKind;
using platform::formatString;
using platform::Outcome;

namespace {

constexpr std::chrono::seconds patience{20};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCreation)
};

QStringList missingLevels(QString folder)
{
    QStringList missing;
    for (; !folder.isEmpty() && folder != u'/' && platform::kindOf(folder) == FileKind::Missing;
         folder = platform::parentPath(folder))
        missing.prepend(folder);
    return missing;
}

} // namespace

CreationResult ProjectCreation::createProject(const ProjectRequest &request)
{
    m_result.request = request;
    m_host.startProcessing();
    takeNextNumbers(storedParameters());
    VTLog::appendLog("Creating template %@ at %@...", request.templateName, m_result.request.destination());

    const Outcome claimed = claimDestination();
    if (claimed.is(Cause::Declined)) {
        m_result.cancelled = true;
        m_host.finishProcessing();
        return m_result;
    }
    const QString destination = m_result.request.destination();
    if (!claimed.ok())
        tell(formatString(Text::tr("Unable to create folder %@"), destination), checkDestination(claimed));

    // From here on no failure ends the sequence: what could be made is renamed, dated and counted, and each failure
    // told. Only when it is stopped nothing stays.
    if (!build()) {
        takeBack();
        m_host.finishProcessing();
        return m_result;
    }
    m_host.reveal(destination);
    VTLog::appendLog("Incrementing dynamic values");
    m_host.incrementDynamicValues();
    m_host.quitIfWanted();
    VTLog::appendLog("Template created successfully");
    m_host.finishProcessing();
    return m_result;
}

/// False when it was stopped. That is asked for the last time before the project is put in place: from then on it
/// stands, and its numbers are taken.
bool ProjectCreation::build()
{
    const QString destination = m_result.request.destination();
    m_place.emplace(destination);
    if (m_place->isHidden())
        m_note.emplace(m_place->folder(), destination);
    copyTemplate(m_result.request.templateFiles, m_place->folder());
    renameTemplateFiles(m_place->folder(), m_result.request.name());
    updateTimestamps(m_place->folder());
    if (m_monitor.cancelled)
        return false;
    const Outcome placed = m_place->putInPlace();
    m_note.reset();
    if (placed.ok())
        return true;
    VTLog::appendLog("Error moving file: %@", placed.description());
    tell(formatString(Text::tr("Unable to move file %@ to %@"), m_place->folder(), destination),
         checkDestination(placed));
    return true;
}

void ProjectCreation::takeBack()
{
    m_result.stopped = true;
    const Outcome taken = platform::resultInBackground([&] { return m_place->takeAway(); });
    m_note.reset();
    if (taken.ok()) { // what is left of a project keeps its number
        const Outcome returned = changeParameters([&](FilenameParameters list) -> platform::Result<FilenameParameters> {
            return withNumbersReturned(std::move(list), m_result.request);
        });
        static_cast<void>(returned); // the log says what the settings could not take
    }
    for (; taken.ok() && !m_levelsMade.isEmpty(); m_levelsMade.removeLast()) {
        if (!platform::removeEmptyFolder(m_levelsMade.constLast()).ok()) // another project is in it by now
            break;
    }
    VTLog::appendLog("The creation was stopped");
    if (m_hasPutAway)
        tell(formatString(Text::tr("The old project %@ is in the Trash"), m_result.request.destination()),
             Text::tr("It was put there before the creation was stopped."));
    if (!taken.ok())
        tell(formatString(Text::tr("Something of the stopped project is left in %@"), m_result.request.destination()),
             taken.description());
}

void ProjectCreation::takeNextNumbers(const FilenameParameters &stored)
{
    const QString before = m_result.request.relativePath();
    m_result.request = withNextNumbers(m_result.request, stored);
    if (const QString now = m_result.request.relativePath(); now != before)
        VTLog::appendLog("Another program has taken the number of %@; this project is %@", before, now);
}

/// Makes the project's own folder, its parents first. It is made in one step that fails when anything stands there, so
/// that of two programs that create the same project at once only one goes on and the other asks. Cause::Declined:
/// nothing may be created.
Outcome ProjectCreation::claimDestination()
{
    for (;;) {
        const QString destination = m_result.request.destination();
        if (platform::kindOf(destination) != FileKind::Missing && !putAwayExisting(destination))
            return Outcome::failure(Cause::Declined, destination);
        const Outcome made = claimOnce();
        if (made.is(Cause::Busy)) // the numbers are another's by now
            takeNextNumbers(storedParameters());
        else if (made.ok())
            return made;
        // Something that stands there and cannot be looked at (a mount that is gone) would be asked about for ever.
        else if (!made.is(Cause::Exists) || platform::kindOf(destination) == FileKind::Missing)
            return fileoperations::createDirectory(destination, patience);
    }
}

/// One try: folder and numbers become this project's in one step, so that of any number of programs at once each has
/// numbers of its own. Where the folder cannot be made the numbers are taken all the same, as its failure does not end
/// the creation. Cause::Exists: something stands there; Cause::Busy: the numbers have been taken by another.
Outcome ProjectCreation::claimOnce()
{
    const QString destination = m_result.request.destination();
    Outcome made;
    const Outcome stored =
        changeParameters([&](const FilenameParameters &list) -> platform::Result<FilenameParameters> {
            if (withNextNumbers(m_result.request, list).parameters != m_result.request.parameters)
                return made = Outcome::failure(Cause::Busy, destination);
            m_levelsMade = missingLevels(platform::parentPath(destination));
            made = platform::makeFolders(platform::parentPath(destination));
            if (made.ok())
                made = platform::makeNewFolder(destination);
            if (made.is(Cause::Exists) && platform::kindOf(destination) != FileKind::Missing)
                return made;
            return withNumbersTaken(list, m_result.request);
        });
    static_cast<void>(stored); // the log says what the settings could not take
    return made;
}

/// Asks, and moves the existing project to the Trash. False: it stays, and so nothing may be created.
bool ProjectCreation::putAwayExisting(const QString &destination)
{
    VTLog::appendLog("Project already exists; asking the user what to do...");
    const int answer =
        VTAlert::show({Text::tr("A project with this name already exists. Are you sure you wish to overwrite it?"),
                       Text::tr("The old project will be placed in the trash."),
                       Text::tr("Overwrite"),
                       Text::tr("Cancel"),
                       {},
                       VTAlert::alternateReturn});
    if (answer != VTAlert::defaultReturn) {
        VTLog::appendLog("User chose to cancel.");
        return false;
    }
    const Outcome trashed = fileoperations::trashFile(destination, patience);
    m_hasPutAway = m_hasPutAway || trashed.ok();
    if (trashed.ok())
        return true;
    tell(formatString(Text::tr("Unable to move %@ to the Trash"), destination),
         withCause(Text::tr("The old project was left as it is, and no new one was created. Please check that you have "
                            "write permissions for the folder it lies in."),
                   trashed));
    return false;
}

void ProjectCreation::copyTemplate(const QString &files, const QString &destination)
{
    const Outcome copied = VTFileManager::isDirectoryAtPath(destination)
                               ? fileoperations::copyContentsOfDirectory(files, destination, patience, &m_monitor)
                               : Outcome::failure(Cause::Missing, destination);
    if (copied.ok() || copied.is(Cause::Cancelled))
        return;
    const Outcome shown = m_place->shown(copied);
    VTLog::appendLog("Error copying file: %@", shown.description());
    tell(Text::tr("Unable to copy contents of template"), checkDestination(shown));
}

void ProjectCreation::renameTemplateFiles(const QString &folder, const QString &newName)
{
    platform::performInBackground([&] { renameBelow(folder, newName); });
}

void ProjectCreation::renameBelow(const QString &folder, const QString &newName)
{
    if (m_monitor.cancelled)
        return;
    VTLog::appendLog("Renaming template files from %@ to %@", m_place->shown(folder), newName);
    const auto entries = platform::listFolder(folder);
    const bool isThere = platform::kindOf(folder) == FileKind::Folder;
    if (!entries && isThere) { // a project that could not be made has been told of
        const QString why = m_place->shown(entries.outcome()).description();
        VTLog::appendLog("Unable to read folder: %@", why);
        tell(formatString(Text::tr("Unable to look for names to replace in %@"), m_place->shown(folder)), why);
    }
    for (const auto &entry : entries.valueOr({})) {
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
    const bool taken =
        platform::kindOf(to) != FileKind::Missing && platform::identityOf(to) != platform::identityOf(from);
    if (taken)
        VTLog::appendLog("Error moving file: %@ is taken", m_place->shown(to));
    const Outcome moved = taken ? Outcome::failure(Cause::Exists, to) : fileoperations::moveFile(from, to);
    if (moved.ok())
        ++m_result.renamed;
    else
        tell(formatString(Text::tr("Unable to move file %@ to %@"), m_place->shown(from), m_place->shown(to)),
             checkDestination(m_place->shown(moved)));
}

void ProjectCreation::updateTimestamps(const QString &folder)
{
    if (m_monitor.cancelled)
        return;
    platform::performInBackground([&] {
        const auto entering = [this](const QString &path) {
            VTLog::appendLog("Updating timestamps for folder %@", m_place->shown(path));
        };
        // In this process, without a tool for each item; what it may not touch goes through the tool with rights.
        for (const Outcome &untouched : platform::touchBelow(folder, entering)) {
            const bool mayHelp = untouched.needsRights() && platform::kindOf(untouched.item()) != FileKind::Link;
            if (!mayHelp || !VTFileManager::touchFile(untouched.item()))
                VTLog::appendLog("Error updating timestamp: %@", m_place->shown(untouched).description());
        }
    });
}

void ProjectCreation::tell(const QString &message, const QString &informativeText)
{
    m_result.errors.append(message);
    VTAlert::show({message, informativeText});
}

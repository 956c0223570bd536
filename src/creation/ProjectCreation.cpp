#include "creation/ProjectCreation.h"

#include "creation/AfterCreation.h"

#include "parameters/ParameterStore.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"
#include "support/FileOperations.h"
#include "support/LongWork.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::Cause;
using platform::FileKind;
using platform::formatString;
using platform::joined;
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
    takeNextNumbers(storedParameters(scopeOf(m_result.request)));
    VTLog::appendLog("Creating template %@ at %@...", request.templateName, m_result.request.destination());

    const bool isAllowed = isAllowedByRules();
    const Outcome claimed =
        isAllowed ? claimDestination() : Outcome::failure(Cause::Declined, m_result.request.destination());
    if (claimed.is(Cause::Declined)) {
        m_result.cancelled = !m_result.refused;
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
    if (isAlone())
        tellProgram();
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
    m_place.emplace(destination, m_hiddenFolder);
    if (m_place->isHidden() && !m_note) // the folder was made at a second try
        m_note.emplace(m_place->folder(), destination, m_result.request.templateFiles, m_levelsMade);
    m_place->make();
    if (!m_place->isHidden())
        m_note.reset();
    const LongWork work(Text::tr("Creating %1").arg(platform::forOneLine(m_result.request.name())), m_monitor,
                        [this](const std::atomic<bool> &over) { // part of a batch, this is never asked
                            const quint64 bytes = platform::measureTree(m_result.request.templateFiles, over).bytes;
                            m_monitor.bytesTotal = over ? 0 : bytes;
                        });
    copyTemplate();
    finishNames();
    updateDates();
    if (m_monitor.cancelled || m_isGivenUp || (m_mustBeWhole && !m_result.errors.isEmpty()))
        return false;
    if (m_note)
        m_note->reachDisk();
    const Outcome placed = m_place->putInPlace();
    if (m_note)
        placed.ok() ? m_note->placed() : m_note->leaveSomethingBehind();
    m_note.reset();
    remember();
    if (!m_stored.ok())
        tell(Text::tr("What was typed, and the numbers that were taken, could not be stored"),
             withCause(Text::tr("The next project may get the same number."), m_stored));
    if (placed.ok())
        return true;
    VTLog::appendLog("Error moving file: %@", placed.description());
    tell(formatString(Text::tr("Unable to move file %@ to %@"), m_place->folder(), destination),
         checkDestination(placed));
    return true;
}

/// Whatever becomes of the program, the project stands.
void ProjectCreation::tellProgram()
{
    if (const Outcome told = tellOfProject(m_result, m_monitor.cancelled); !told.ok())
        tell(Text::tr("The program that runs after each creation has failed"),
             withCause(Text::tr("The project was created; nothing was undone."), told));
}

void ProjectCreation::takeBack()
{
    m_result.stopped = true;
    const Outcome taken = platform::resultInBackground([&] { return m_place->takeAway(); });
    if (m_note && !taken.ok())
        m_note->leaveSomethingBehind();
    m_note.reset();
    if (taken.ok() && m_result.request.isRemembered) { // what is left of a project keeps its number
        const auto giveBack = [&](FilenameParameters list) -> platform::Result<FilenameParameters> {
            return withNumbersReturned(std::move(list), m_result.request);
        };
        const Outcome returned = changeParameters(scopeOf(m_result.request), giveBack);
        static_cast<void>(returned); // the log says what the settings could not take
    }
    for (; taken.ok() && !m_levelsMade.isEmpty(); m_levelsMade.removeLast()) {
        if (!platform::removeEmptyFolder(m_levelsMade.constLast()).ok()) // another project is in it by now
            break;
    }
    VTLog::appendLog("The creation was stopped");
    if (m_hasPutAway && taken.ok())
        bringBackOld();
    if (!taken.ok())
        tell(formatString(Text::tr("Something of the stopped project is left in %@"), m_result.request.destination()),
             taken.description());
}

void ProjectCreation::bringBackOld()
{
    const QString destination = m_result.request.destination();
    Outcome back = platform::makeFolders(platform::parentPath(destination));
    if (back.ok())
        back = m_oldInTrash.isNull() ? Outcome::failure(Cause::Missing, destination)
                                     : platform::putBackFromTrash(m_oldInTrash, destination);
    if (!back.ok())
        tell(formatString(Text::tr("The old project %@ is in the Trash"), destination),
             withCause(Text::tr("It was put there before the creation was stopped."), back));
}

/// So that it can be found again and undone. A project stands without that, too.
void ProjectCreation::remember()
{
    const ProjectRequest &request = m_result.request;
    const auto identity = platform::identityOf(request.destination());
    if (!identity)
        return;
    m_result.manifest = {{},
                         request.destination(),
                         request.templateName,
                         QDateTime::currentDateTime(),
                         *identity,
                         request.isRemembered ? request.parameters : FilenameParameters(),
                         m_levelsMade,
                         m_oldInTrash,
                         m_batch};
    const Outcome kept = platform::resultInBackground([&] { return ::remember(m_result.manifest, m_plan.tree); });
    if (kept.ok())
        return;
    m_result.manifest.file.clear();
    VTLog::appendLog("Unable to remember the project for its undoing: %@", kept.description());
}

/// Not so where the numbers of a batch count on although the stored ones do not.
bool ProjectCreation::followsStoredNumbers() const
{
    return isAlone() || m_result.request.isRemembered;
}

void ProjectCreation::takeNextNumbers(const FilenameParameters &stored)
{
    if (!followsStoredNumbers())
        return;
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
            takeNextNumbers(storedParameters(scopeOf(m_result.request)));
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
    const Outcome stored = changeParameters(
        scopeOf(m_result.request), [&](const FilenameParameters &list) -> platform::Result<FilenameParameters> {
            if (followsStoredNumbers() &&
                withNextNumbers(m_result.request, list).parameters != m_result.request.parameters)
                return made = Outcome::failure(Cause::Busy, destination);
            m_levelsMade = missingLevels(platform::parentPath(destination));
            m_hiddenFolder = Workplace::hiddenFolderFor(destination);
            m_note.emplace(m_hiddenFolder, destination, m_result.request.templateFiles, m_levelsMade);
            made = platform::makeFolders(platform::parentPath(destination));
            if (made.ok())
                made = platform::makeNewFolder(destination);
            if (!made.ok())
                m_note.reset();
            if (made.is(Cause::Exists) && platform::kindOf(destination) != FileKind::Missing)
                return made;
            if (!m_result.request.isRemembered)
                return Outcome::failure(Cause::Declined, destination);
            return withNumbersTaken(list, m_result.request);
        });
    const bool isWanted = m_result.request.isRemembered && !made.is(Cause::Busy) && !made.is(Cause::Exists);
    m_stored = isWanted ? stored : Outcome();
    return made;
}

/// Asks, and moves the existing project to the Trash. False: it stays, and so nothing may be created.
bool ProjectCreation::putAwayExisting(const QString &destination)
{
    if (!isAlone()) { // it has come since the batch was looked at
        tell(Text::tr("A project with this name already exists: %1").arg(destination), {});
        return false;
    }
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
    QString inTrash;
    const Outcome trashed = fileoperations::trashFile(destination, patience, &inTrash);
    m_hasPutAway = m_hasPutAway || trashed.ok();
    if (trashed.ok())
        m_oldInTrash = inTrash;
    if (trashed.ok())
        return true;
    if (trashed.is(Cause::Declined)) { // there is no Trash for it, and it was to be kept then
        VTLog::appendLog("User chose to keep the old project.");
        return false;
    }
    tell(formatString(Text::tr("Unable to move %@ to the Trash"), destination),
         withCause(Text::tr("The old project was left as it is, and no new one was created. Please check that you have "
                            "write permissions for the folder it lies in."),
                   trashed));
    return false;
}

void ProjectCreation::tell(const QString &message, const QString &informativeText)
{
    if (isAlone()) {
        m_result.errors.append(message);
        VTAlert::show({message, informativeText});
    } else {
        m_result.errors.append(informativeText.isEmpty() ? message : message + QStringLiteral(". ") + informativeText);
    }
}

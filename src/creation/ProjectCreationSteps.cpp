// The steps of a creation between its folder and its place: copy, names, dates.
#include "creation/PlannedCopy.h"
#include "creation/ProjectCreation.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QSet>

using platform::Cause;
using platform::FileKind;
using platform::formatString;
using platform::joined;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCreation)
};

QString notKept(const platform::Losses &losses)
{
    QStringList kinds;
    for (const auto &[loss, name] : {std::pair(&losses.labels, Text::tr("labels")),
                                     {&losses.modes, Text::tr("permissions")},
                                     {&losses.owners, Text::tr("owners")},
                                     {&losses.dates, Text::tr("dates")}}) {
        if (loss->count > 0)
            kinds.append(name);
    }
    return kinds.join(QStringLiteral(", "));
}

constexpr qsizetype mostFailuresShown = 5;

QString whyNotCopied(const QList<Outcome> &failures)
{
    QString why = checkDestination(failures.constFirst());
    for (const Outcome &failure : failures.mid(1, mostFailuresShown - 1))
        why += u'\n' + failure.description();
    const auto others = static_cast<int>(qMax<qsizetype>(0, failures.size() - mostFailuresShown));
    return others == 0 ? why : why + u'\n' + Text::tr("and %n more; the log names each", nullptr, others);
}

} // namespace

void ProjectCreation::plan()
{
    PlanInput input = m_result.request.planInput();
    input.mostRepeated = m_mostRepeated;
    m_plan = planCreation(m_result.request.templateFiles, input, m_monitor.cancelled);
    m_plannedWith = m_result.request.parameters;
}

/// Of a template with rules nothing is begun that they do not allow to be finished.
bool ProjectCreation::isAllowedByRules()
{
    const ProjectRequest &request = m_result.request;
    if (!request.rules || request.rules->isEmpty())
        return true;
    platform::performInBackground([this] { plan(); });
    if (m_plan.isCutOff && m_mostRepeated < mostRepeated) {
        m_result.isTooMany = !wantsMany();
        if (m_result.isTooMany)
            return false;
        m_mostRepeated = mostRepeated;
        platform::performInBackground([this] { plan(); });
    }
    m_result.refused = hasFlaws();
    return !m_result.refused;
}

bool ProjectCreation::wantsMany()
{
    const QString question = formatString(Text::tr("%@ would get more than %ld items from repeats"),
                                          m_result.request.relativePath(), qlonglong{mostRepeatedUnasked});
    if (!isAlone()) {
        tell(question, {});
        return false;
    }
    return VTAlert::show({question,
                          Text::tr("Is that what you want?"),
                          Text::tr("Create Them"),
                          Text::tr("Cancel"),
                          {},
                          VTAlert::alternateReturn}) == VTAlert::defaultReturn;
}

/// Says them.
bool ProjectCreation::hasFlaws()
{
    QString why = m_plan.firstFlaw();
    if (m_plan.isCutOff)
        why = formatString(Text::tr("Its repeats would make more than %ld items."), qlonglong{mostRepeated});
    if (why.isNull())
        return false;
    if (const auto others = m_plan.flaws.size(); others > 1)
        why += u'\n' + Text::tr("Others like this: %1").arg(others - 1);
    tell(Text::tr("The template’s rules and the values do not fit; nothing was created"), why);
    return true;
}

void ProjectCreation::copyTemplate()
{
    const ProjectRequest &request = m_result.request;
    if (m_plannedWith != request.parameters) {
        platform::performInBackground([this] { plan(); });
        if (hasFlaws()) // another program has taken the number that was planned with
            m_isGivenUp = true;
    }
    PlannedCopy copy;
    platform::performInBackground([&] {
        dropLeftOut(m_plan);
        if (isAlone())
            m_monitor.itemsTotal = m_plan.tree.itemCount();
        if (m_monitor.cancelled || m_isGivenUp)
            return;
        if (VTFileManager::isDirectoryAtPath(m_place->folder()))
            copy = carryOut(m_plan, request.templateFiles, m_place->folder(), m_monitor);
        else
            copy.failures.append(Outcome::failure(Cause::Missing, request.destination()));
        fillTexts(m_plan, request.templateFiles, m_place->folder(), m_monitor.cancelled, copy);
    });
    m_copiedByTool = copy.copiedByTool;
    noteLosses(copy.losses);
    if (copy.failures.isEmpty() || m_monitor.cancelled || m_isGivenUp)
        return;
    for (Outcome &failure : copy.failures) {
        failure = m_place->shown(failure);
        VTLog::appendLog("Error copying file: %@", failure.description());
    }
    tell(Text::tr("Unable to copy contents of template"), whyNotCopied(copy.failures));
}

/// Once for each drive: the project stands, and the next one there will lose the same.
void ProjectCreation::noteLosses(const platform::Losses &losses)
{
    fileoperations::logLosses(losses);
    static QSet<quint64> told;
    const auto drive = platform::identityOf(m_place->folder());
    const QString kept = notKept(losses);
    if (kept.isEmpty() || !drive || told.contains(drive->device))
        return;
    told.insert(drive->device);
    m_result.notes.append(
        formatString(Text::tr("The drive at %@ does not keep everything. The project is complete, but "
                              "for the template's %@."),
                     m_result.request.location, kept));
}

/// The items have their names since they were copied; what is left is to tell of those that could not have theirs, and
/// to name what a tool has copied as a whole.
void ProjectCreation::finishNames()
{
    if (m_monitor.cancelled)
        return;
    const QString newName = m_result.request.name();
    const platform::Tree &tree = m_plan.tree;
    tree.forEachFolder([&](std::uint32_t number) {
        if (!isMade(number))
            return;
        const QString folder = joined(m_result.request.destination(), tree.pathOf(number));
        VTLog::appendLog("Renaming template files from %@ to %@", folder, newName);
        count(tree.folders[number]);
    });
    m_plan.forEachItem([&](const PlanItem &item) {
        if (item.remark == PlanItem::Remark::None)
            return;
        const QString folder = joined(m_result.request.destination(), item.folder);
        const QString wanted = joined(folder, nameInProject(item.oldName, newName));
        const Cause cause = item.remark == PlanItem::Remark::NameTaken ? Cause::Exists : Cause::NameTooLong;
        const Outcome failure = Outcome::failure(cause, wanted);
        VTLog::appendLog("Error moving file: %@", failure.description());
        tell(formatString(Text::tr("Unable to move file %@ to %@"), joined(folder, item.oldName), wanted),
             checkDestination(failure));
    });
    for (const QString &folder : std::as_const(m_copiedByTool))
        renameTemplateFiles(folder, newName);
}

bool ProjectCreation::isMade(std::uint32_t folder) const
{
    if (folder == 0)
        return true;
    const platform::TreeFolder &own = m_plan.tree.folders[folder];
    const auto &made = m_plan.tree.folders[own.parent].made;
    return own.error == 0 && !made.empty() && made[own.itemInOwn].inode != 0;
}

void ProjectCreation::count(const platform::TreeFolder &folder)
{
    for (std::size_t i = 0; i < folder.made.size(); ++i) {
        if (folder.made[i].inode == 0)
            continue;
        const platform::TreeItem &item = folder.items[i];
        ++(item.folder != 0 ? m_result.folders : m_result.files);
        if (item.newName != item.name)
            ++m_result.renamed;
    }
}

/// What has just been made has the present as its date; so has not what a tool has copied.
void ProjectCreation::updateDates()
{
    if (m_monitor.cancelled)
        return;
    m_plan.tree.forEachFolder([&](std::uint32_t number) {
        if (isMade(number))
            VTLog::appendLog("Updating timestamps for folder %@",
                             joined(m_result.request.destination(), m_plan.tree.newPathOf(number)));
    });
    for (const QString &folder : std::as_const(m_copiedByTool))
        updateTimestamps(folder);
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

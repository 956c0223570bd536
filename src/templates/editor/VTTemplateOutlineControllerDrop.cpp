// The structure editor's drag and drop: what may land where, and moving items inside the tree.
#include "templates/editor/VTTemplateOutlineController.h"

#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Trash.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"

#include <QCoreApplication>

using platform::formatString;
using platform::isInside;
using platform::joined;
using platform::lastComponent;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VTTemplateOutlineController)
};

constexpr std::chrono::seconds patience{20};

bool isThere(const QString &path)
{
    return platform::kindOf(path) != platform::FileKind::Missing;
}

void tellUnableToMove(const QString &source, const QString &target, const platform::Outcome &failure)
{
    VTAlert::show({formatString(Text::tr("Unable to move file %@ to %@"), source, target), checkDestination(failure)});
}

bool mayOverwrite(const QString &name)
{
    return VTAlert::show({formatString(Text::tr("%@ already exists. Overwrite?"), name),
                          Text::tr("What is there goes to the Trash."),
                          Text::tr("Overwrite"),
                          Text::tr("Ignore"),
                          {},
                          VTAlert::alternateReturn}) == VTAlert::defaultReturn;
}

} // namespace

DropOperation VTTemplateOutlineController::validateDrop(const TemplateDrop &drop, const TemplateNode *target) const
{
    const TemplateNode *folder = target && !target->isFolderItem() ? target->parent() : target;
    const bool isOutside = folder && (folder->isLink() || folder->isBehindLink());
    if (m_baseFilename.isNull() || isOutside)
        return DropOperation::Refused;
    if (drop.isFromOutside)
        return drop.paths.isEmpty() ? DropOperation::Refused : DropOperation::Copy;
    if (drop.archive.isEmpty())
        return DropOperation::Refused;
    return !target || target->isFolderItem() ? DropOperation::Move : DropOperation::Refused;
}

QString VTTemplateOutlineController::destinationFolder(const QString &target) const
{
    const TemplateNode *node = nodeAtPath(target);
    const TemplateNode *folder = !node || node->isFolderItem() ? node : node->parent();
    return folder ? folder->filename() : filesFolder();
}

bool VTTemplateOutlineController::acceptDrop(const TemplateDrop &drop, const QString &target)
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return false;
    const QString folder = destinationFolder(target);
    if (drop.isFromOutside) {
        if (drop.paths.isEmpty())
            return false;
        VTLog::appendLog("User dropped new files. Adding to template...");
        selectOnly(target);
        copyFilesOnThread({drop.paths, folder});
        return true;
    }
    VTLog::appendLog("User reordered existing files in template.");
    const TemplateNodes dragged = nodesFromArchive(drop.archive);
    if (dragged.empty())
        return false;
    selectOnly(target);
    QStringList toReread;
    QStringList moved;
    DiskChange change{tr("Move"), {}};
    for (const auto &node : dragged) {
        const TemplateNode *live = nodeAtPath(node->filename());
        const QString parent = live && live->parent() ? live->parent()->filename() : QString();
        if (moveInside(*node, folder, moved, change.steps) && !parent.isNull())
            toReread.append(parent);
    }
    record(change);
    m_hasMoved = !change.steps.isEmpty();
    const bool knowsAll = static_cast<std::size_t>(toReread.size()) == dragged.size() && !target.isNull();
    if (!knowsAll) {
        populateTemplateStructure();
        return true;
    }
    toReread.append(folder);
    toReread.removeDuplicates();
    for (const QString &changed : std::as_const(toReread))
        rereadFolder(changed);
    return true;
}

/// Moves one item on disk. False when it was skipped: it is there already, or the user said no. What stands in the way
/// goes to the Trash, and comes back when the item cannot be moved after all.
bool VTTemplateOutlineController::moveInside(const TemplateNode &dragged, const QString &folder, QStringList &moved,
                                             DiskSteps &steps)
{
    const QString &source = dragged.filename();
    const QString landing = joined(folder, lastComponent(source));
    if (source == folder || source == landing)
        return false;
    const bool wentAlong =
        std::any_of(moved.begin(), moved.end(), [&](const QString &above) { return isInside(source, above); });
    if (wentAlong)
        return false;
    if (!isThere(source) || isInside(folder, source) || isInside(source, landing)) {
        const auto cause = isThere(source) ? platform::Cause::IntoItself : platform::Cause::Missing;
        tellUnableToMove(source, landing, platform::Outcome::failure(cause, source));
        return true;
    }
    DiskSteps replaced;
    if (isThere(landing)) {
        if (!mayOverwrite(lastComponent(source)))
            return false;
        // If it stays, the move fails and says so.
        static_cast<void>(changes::putInTrash(landing, replaced));
    }
    // A file is moved onto the folder itself; the fallback of the plain move puts it inside. This must stay. A package
    // is a folder on disk, which that fallback would not take.
    const bool isFolder = dragged.isFolderItem() || platform::leadsToFolder(source);
    const QString target = isFolder ? landing : folder;
    const platform::Outcome outcome = fileoperations::moveFile(source, target, patience);
    if (outcome.ok()) {
        moved.append(source);
        steps += replaced;
        steps.append({DiskStep::Kind::Moved, source, landing});
        return true;
    }
    for (const DiskStep &step : std::as_const(replaced))
        static_cast<void>(
            platform::putBackFromTrash(step.other, step.path)); // else it lies in the Trash, and the log says so
    tellUnableToMove(source, target, outcome);
    return true;
}

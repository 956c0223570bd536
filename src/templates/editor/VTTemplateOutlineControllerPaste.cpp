// The structure editor's clipboard, lists of folders as text, and names given to several items at once.
#include "templates/editor/VTTemplateOutlineController.h"

#include "creation/ItemNames.h"
#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/InPlace.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "templates/IndentedList.h"
#include "templates/editor/RenameSheet.h"
#include "ui/FilePanels.h"
#include "ui/VTOutlineView.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

using platform::formatString;
using platform::joined;
using platform::lastComponent;
using platform::parentPath;

namespace {

constexpr std::chrono::seconds patience{20};
/// Beside the nodes: they are to be moved, not copied.
const QString cutType = QStringLiteral("application/x-tessaro-cut");

/// Whether something else stands there: on some file systems it may be the item itself under a name in other letters.
bool isAnother(const QString &there, const QString &item)
{
    return platform::kindOf(there) != platform::FileKind::Missing &&
           platform::identityOf(there) != platform::identityOf(item);
}

/// By how deep they lie, the deepest first: what is renamed above them would change their path.
QList<QList<qsizetype>> byDepth(const QStringList &paths)
{
    QMap<qsizetype, QList<qsizetype>> levels;
    for (qsizetype i = 0; i < paths.size(); ++i)
        levels[-paths[i].count(u'/')].append(i);
    return levels.values();
}

} // namespace

QMimeData *VTTemplateOutlineController::selectionAsData() const
{
    QMimeData *data = m_model.mimeData(selectedIndexes());
    QList<QUrl> addresses;
    for (const QString &path : selectedPaths())
        addresses.append(QUrl::fromEncoded("file://" + platform::toNative(path).toPercentEncoding("/")));
    data->setUrls(addresses); // for file managers
    data->setText(indentedlist::listOf(selectedPaths()));
    return data;
}

void VTTemplateOutlineController::copyItems()
{
    if (auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        return line->copy(); // of what is being typed
    finishEditing();
    if (!selectedPaths().isEmpty())
        QApplication::clipboard()->setMimeData(selectionAsData());
}

void VTTemplateOutlineController::cutItems()
{
    if (auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        return line->cut();
    finishEditing();
    if (selectedPaths().isEmpty())
        return;
    QMimeData *data = selectionAsData();
    data->setData(cutType, "1");
    QApplication::clipboard()->setMimeData(data);
}

void VTTemplateOutlineController::paste()
{
    if (auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        return line->paste();
    finishEditing();
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (m_baseFilename.isNull() || !data)
        return;
    const QString folder = importDestination();
    const TemplateDrop drop = TemplateTreeModel::dropOf(*data);
    if (!drop.archive.isEmpty() && data->hasFormat(cutType)) {
        const bool moved = acceptDrop(drop, folder == filesFolder() ? QString() : folder) && m_hasMoved;
        const QMimeData *now = QApplication::clipboard()->mimeData();
        if (moved && now && now->hasFormat(cutType))
            QApplication::clipboard()->clear();
        return;
    }
    const QString text = data->text();
    if (drop.archive.isEmpty() && drop.paths.isEmpty() && text.trimmed().isEmpty())
        return;
    if (!editingIsAllowed())
        return;
    if (!drop.archive.isEmpty())
        pasteCopies(drop.archive, folder);
    else if (!drop.paths.isEmpty())
        copyFilesOnThread({drop.paths, folder});
    else
        pasteFolders(text, folder);
}

void VTTemplateOutlineController::pasteCopies(const QByteArray &archive, QString folder)
{
    const TemplateNodes nodes = nodesFromArchive(archive);
    // What has just been copied is still selected: its copy is meant to stand beside it, not in it.
    if (std::any_of(nodes.begin(), nodes.end(), [&](const auto &node) { return node->filename() == folder; }))
        folder = parentPath(folder);
    Q_EMIT needsWholeTree();
    DiskChange change{tr("Paste"), {}};
    changes::Copies copies;
    for (const auto &node : nodes) {
        const QString copy = VTFileManager::uniqueFilename(joined(folder, lastComponent(node->filename())));
        VTLog::appendLog("Copying template file %@ to %@", node->filename(), copy);
        const platform::Outcome copied =
            fileoperations::makeInPlace({copy, m_baseFilename}, [&](const QString &staged) {
                return fileoperations::copyFile(node->filename(), staged, patience);
            });
        if (copied.is(platform::Cause::Cancelled))
            break;
        if (copied.ok()) {
            change.steps.append({DiskStep::Kind::Made, copy});
            copies.append({node->filename(), copy});
        } else {
            VTAlert::show(
                {formatString(tr("Unable to copy file %@ to %@"), node->filename(), copy), checkDestination(copied)});
        }
    }
    record(change, copies);
    showPasted(change, folder);
}

void VTTemplateOutlineController::pasteFolders(const QString &text, const QString &folder)
{
    const auto folders = indentedlist::foldersIn(text);
    if (!folders) {
        VTAlert::show({tr("The text is no list of folders"), folders.outcome().description()});
        return;
    }
    Q_EMIT needsWholeTree();
    DiskChange change{tr("Paste"), {}};
    for (const QString &relative : *folders) {
        const QString path = joined(folder, relative);
        if (platform::kindOf(path) == platform::FileKind::Folder)
            continue; // its folders go into the one that is there
        VTLog::appendLog("Adding new folder %@", path);
        const bool isTaken = platform::kindOf(path) != platform::FileKind::Missing; // a link leads out of the template
        const platform::Outcome made = isTaken ? platform::Outcome::failure(platform::Cause::Exists, path)
                                               : fileoperations::createDirectory(path, patience);
        if (!made.ok()) {
            VTAlert::show({formatString(tr("Unable to create folder %@"), path), checkDestination(made)});
            break;
        }
        const bool goesAlong = std::any_of(change.steps.begin(), change.steps.end(),
                                           [&](const DiskStep &step) { return platform::isInside(path, step.path); });
        if (!goesAlong)
            change.steps.append({DiskStep::Kind::Made, path});
    }
    record(change);
    showPasted(change, folder);
}

void VTTemplateOutlineController::showPasted(const DiskChange &change, const QString &folder)
{
    if (folder == filesFolder())
        populateTemplateStructure();
    else
        rereadFolder(folder);
    if (!change.steps.isEmpty()) {
        m_views.outlineView->expand(m_model.indexOf(nodeAtPath(folder)));
        selectOnly(change.steps.constFirst().path);
    }
}

void VTTemplateOutlineController::renameSeveral()
{
    const QModelIndexList indexes = selectedIndexes();
    const QStringList paths = selectedPaths();
    QList<RenamedItem> items;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const bool isFolder = TemplateTreeModel::nodeAt(indexes[i])->isFolderItem();
        const QString name = lastComponent(paths[i]);
        items.append({name, isFolder ? name.size() : platform::withoutExtension(name).size()});
    }
    auto *sheet = new RenameSheet(
        items, [paths](const QStringList &names) { return problemOfNames(paths, names); },
        m_views.outlineView->window());
    whenLeft<RenameSheet>(*sheet, *this, [this, paths](RenameSheet &left, bool accepted) {
        const QString problem = accepted ? problemOfNames(paths, left.names()) : QString();
        if (!problem.isNull()) // since it was typed
            VTAlert::show({tr("Unable to rename the items"), problem});
        else if (accepted && editingIsAllowed())
            renameAll(paths, left.names());
    });
    sheet->open();
}

/// What would go wrong with the names, in a sentence; null when nothing would. Names that stay are not looked at.
QString VTTemplateOutlineController::problemOfNames(const QStringList &paths, const QStringList &names)
{
    QStringList targets;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString &name = names[i];
        const QString target = joined(parentPath(paths[i]), name);
        const bool changes = target != paths[i];
        if (changes && (name.isEmpty() || cleanedItemName(name) != name ||
                        platform::toNative(name).size() > platform::longestName))
            return tr("“%1” cannot be a name.").arg(platform::forOneLine(name));
        if (targets.contains(target, changes ? Qt::CaseInsensitive : Qt::CaseSensitive))
            return tr("Two of them would be called “%1”.").arg(platform::forOneLine(name));
        targets.append(target);
        if (changes && !paths.contains(target) && isAnother(target, paths[i]))
            return tr("There is another item called “%1”.").arg(platform::forOneLine(name));
    }
    return {};
}

/// All or none. Where one gets the name that another gives up they go by names of their own in between. What cannot be
/// renamed takes back what was.
void VTTemplateOutlineController::renameAll(const QStringList &paths, const QStringList &names)
{
    DiskChange change{tr("Rename"), {}, DiskChange::Parts::BelongTogether};
    const auto move = [&](const QString &from, const QString &to) {
        if (isAnother(to, from)) // what another program has put there is not written over
            return platform::Outcome::failure(platform::Cause::Exists, to);
        const platform::Outcome moved = fileoperations::moveFile(from, to, patience);
        if (moved.ok())
            change.steps.append({DiskStep::Kind::Moved, from, to});
        return moved;
    };
    QStringList between;
    for (const QString &path : paths)
        between.append(VTFileManager::uniqueFilename(
            joined(parentPath(path), QStringLiteral(".being renamed %1").arg(between.size()))));
    platform::Outcome outcome;
    for (QList<qsizetype> level : byDepth(paths)) {
        level.removeIf([&](qsizetype i) { return names[i] == lastComponent(paths[i]); });
        const auto target = [&](qsizetype i) {
            return joined(parentPath(paths[i]), names[i]);
        };
        const bool crosses = std::any_of(level.begin(), level.end(), [&](qsizetype i) {
            return paths.contains(target(i), Qt::CaseInsensitive) &&
                   target(i).compare(paths[i], Qt::CaseInsensitive) != 0;
        });
        for (const qsizetype i : level)
            outcome = outcome.ok() && crosses ? move(paths[i], between[i]) : outcome;
        for (const qsizetype i : level)
            outcome = outcome.ok() ? move(crosses ? between[i] : paths[i], target(i)) : outcome;
    }
    if (!outcome.ok()) {
        const DiskSteps done = change.steps;
        for (auto step = done.crbegin(); step != done.crend(); ++step)
            static_cast<void>(fileoperations::moveFile(step->other, step->path, patience)); // the log names what stays
        change.steps.clear();
        VTAlert::show({tr("Unable to rename the items"), checkDestination(outcome)});
    }
    record(change);
    populateTemplateStructure();
}

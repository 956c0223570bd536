// The structure editor's actions: add, import, remove, duplicate, rename, reveal, open, colour.
#include "templates/editor/VTTemplateOutlineController.h"

#include "creation/ItemNames.h"
#include "parameters/ParameterStore.h"
#include "platform/base/FormatString.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/InPlace.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "ui/FilePanels.h"
#include "ui/ImportPanel.h"
#include "ui/VTOutlineView.h"

#include <QMenu>
#include <QToolButton>

using platform::formatString;
using platform::joined;

namespace {

constexpr std::chrono::seconds patience{20};

QString withExtensionOf(const QString &stem, const QString &path)
{
    const QString extension = platform::extensionOf(path);
    return extension.isEmpty() ? stem : stem + u'.' + extension;
}

} // namespace

/// Rules that cannot follow are listed as those of items that are gone, and the log says why.
void VTTemplateOutlineController::record(DiskChange change, const changes::Copies &copies)
{
    const platform::Outcome followed = changes::takeRulesAlong(change.steps, copies);
    if (!followed.ok())
        VTLog::appendLog("The rules do not follow: %@", followed.description());
    m_history.add(change);
    rereadRules();
}

void VTTemplateOutlineController::changeRules(const QString &name, const std::function<void(TemplateRules &)> &edit)
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return rereadRules(); // shows what they are
    DiskChange change{name, {}};
    std::optional<TemplateRules> made;
    const platform::Outcome changed = changes::changeRules(
        m_baseFilename,
        [&](const QVariantMap &current) -> platform::Result<QVariantMap> {
            auto rules = rulesFromVariant(current);
            if (!rules)
                return rules.outcome();
            TemplateRules wanted = *rules;
            edit(wanted);
            const QVariantMap stored = variantFromRules(wanted);
            const auto readable = rulesFromVariant(stored); // nothing is stored that would be refused afterwards
            if (readable)
                made = *readable;
            return readable ? platform::Result<QVariantMap>(stored) : readable.outcome();
        },
        change.steps);
    if (!changed.ok())
        VTAlert::show({tr("The rules cannot be changed"), changed.description()});
    else if (made) // whoever asks before they have been read again would take back what is being typed after them
        m_rules.rules = *made;
    m_history.add(change);
    rereadRules();
}

void VTTemplateOutlineController::setRulesAside()
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return;
    const auto aside = rulefile::setAside(m_baseFilename);
    VTAlert::show(aside ? VTAlert::Texts{tr("The rules were put aside"), *aside}
                        : VTAlert::Texts{tr("The rules cannot be put aside"), aside.outcome().description()});
    rereadRules();
}

/// On a thread, as the tree is.
void VTTemplateOutlineController::rereadRules()
{
    const auto read = std::make_shared<ReadRules>();
    const quint64 reading = ++m_ruleReadings;
    const QString bundle = m_baseFilename;
    if (bundle.isNull())
        return showRules({});
    const auto work = [read, bundle] {
        const auto rules = readRules(bundle);
        *read = {rules.valueOr({}), rules.outcome(), {}, true};
        for (const ItemRule &rule : read->rules.items) {
            if (platform::isMissing(joined(bundle, QStringLiteral("Files/") + rule.path)))
                read->gone.append(rule.path);
        }
    };
    platform::performBeside(work, [this, lives = QPointer(this), read, reading] {
        if (lives && reading == m_ruleReadings)
            showRules(*read);
    });
}

void VTTemplateOutlineController::showRules(const ReadRules &read)
{
    m_rules = read;
    const TemplateRules &rules = read.rules;
    QHash<QString, ItemRule> byPath;
    for (const ItemRule &rule : rules.items)
        byPath.insert(joined(filesFolder(), rule.path), rule);
    m_model.setRules(byPath, rules.fillsNames);
    QStringList titles;
    for (const FilenameParameter &parameter :
         storedParameters({{}, parametersFromVariant(rules.parameters), {}, rules.hidden}))
        titles.append(parameter.title());
    m_model.setTitles(titles + QStringList{QStringLiteral("Project"), QStringLiteral("Level:1")});
    Q_EMIT rulesChanged();
}

QString VTTemplateOutlineController::selectedItem() const
{
    const QStringList paths = selectedPaths();
    const QString files = filesFolder() + u'/';
    return paths.size() == 1 && paths.constFirst().startsWith(files) ? paths.constFirst().mid(files.size()) : QString();
}

void VTTemplateOutlineController::showAddPopUp()
{
    finishEditing(); // a question about the name that was being typed comes first
    const QWidget *button = m_views.addPopUp;
    m_views.addMenu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

QList<VTTemplateOutlineController::Target> VTTemplateOutlineController::targets() const
{
    QList<Target> found;
    for (const QModelIndex &index : selectedIndexes()) {
        const TemplateNode *node = TemplateTreeModel::nodeAt(index);
        const bool takesItems = node->isFolderItem() && !node->isLink(); // where a link leads is not the template
        const TemplateNode *folder = takesItems ? node : node->parent();
        found.append(folder ? Target{folder->filename(), false} : Target{filesFolder(), true});
    }
    return found;
}

/// What all kinds of adding have in common: in each place, or at the top, then the first one's name is edited.
void VTTemplateOutlineController::insertInto(QList<Target> places, const QString &name,
                                             const std::function<QString(const QString &folder)> &insert)
{
    Q_EMIT needsWholeTree();
    QString first;
    DiskChange change{name, {}};
    if (places.isEmpty())
        places.append({filesFolder(), true});
    for (const Target &place : std::as_const(places)) {
        const QString made = insert(place.path);
        if (first.isNull())
            first = made;
        if (!made.isNull())
            change.steps.append({DiskStep::Kind::Made, made});
        if (place.isTop)
            populateTemplateStructure();
        else
            rereadFolder(place.path);
    }
    record(change);
    reloadOutlineView();
    if (!first.isNull())
        editItem(first);
}

void VTTemplateOutlineController::addFolder()
{
    finishEditing();
    addFolderTo(targets());
}

void VTTemplateOutlineController::addFolderBeside()
{
    finishEditing();
    QList<Target> places;
    if (const QModelIndexList selected = selectedIndexes(); !selected.isEmpty()) {
        const TemplateNode *above = TemplateTreeModel::nodeAt(selected.constLast())->parent();
        places.append(above ? Target{above->filename(), false} : Target{filesFolder(), true});
    }
    addFolderTo(places);
}

void VTTemplateOutlineController::addFolderTo(const QList<Target> &places)
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return;
    insertInto(places, tr("New Folder"), [](const QString &folder) {
        const QString path = VTFileManager::uniqueFilename(joined(folder, tr("New Folder")));
        VTLog::appendLog("Adding new folder %@", path);
        const platform::Outcome made = fileoperations::createDirectory(path, patience);
        if (made.ok())
            return path;
        VTAlert::show({formatString(tr("Unable to create folder %@"), path), checkDestination(made)});
        return QString();
    });
}

void VTTemplateOutlineController::addProject(const QString &source)
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return;
    if (source.isNull()) {
        VTLog::appendLog("Error inserting project: source path not specified");
        return;
    }
    VTLog::appendLog("Creating duplicate of project %@...", source);
    finishEditing();
    insertInto(targets(), tr("New Item"), [&](const QString &folder) {
        // Not translated: creating a project replaces the word in the name.
        const QString path =
            VTFileManager::uniqueFilename(joined(folder, withExtensionOf(QStringLiteral("Template"), source)));
        VTLog::appendLog("Creating project at %@", path);
        const platform::Outcome copied = fileoperations::copyFile(source, path, patience);
        if (copied.ok())
            return path;
        VTAlert::show({formatString(tr("Unable to create project %@"), path), checkDestination(copied)});
        return QString();
    });
}

void VTTemplateOutlineController::showImportFileDialog()
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return;
    VTLog::appendLog("Showing Import Files dialog");
    showImportPanel(false);
}

void VTTemplateOutlineController::showImportFolderStructureDialog()
{
    if (m_baseFilename.isNull() || !editingIsAllowed())
        return;
    VTLog::appendLog("Showing Import Folder Structure dialog");
    showImportPanel(true);
}

void VTTemplateOutlineController::showImportPanel(bool foldersOnly)
{
    auto *panel = new ImportPanel(m_views.outlineView->window(),
                                  foldersOnly ? ImportPanel::Takes::Folders : ImportPanel::Takes::FilesAndFolders);
    panel->setWindowTitle(foldersOnly ? tr("Import Folder Structure") : tr("Import Files and Folders"));
    whenLeft<ImportPanel>(*panel, *this, [this, foldersOnly](ImportPanel &left, bool accepted) {
        const ImportJob job{left.chosen(), importDestination()};
        if (accepted && !m_baseFilename.isNull())
            foldersOnly ? createFolderStructureOnThread(job) : copyFilesOnThread(job);
    });
    panel->open();
}

QString VTTemplateOutlineController::importDestination() const
{
    const QModelIndexList selected = selectedIndexes();
    if (selected.isEmpty())
        return filesFolder();
    const TemplateNode *node = TemplateTreeModel::nodeAt(selected.first());
    const bool takesItems = node->isFolderItem() && !node->isLink();
    return takesItems ? node->filename() : platform::parentPath(node->filename());
}

void VTTemplateOutlineController::removeFiles()
{
    finishEditing();
    const QStringList paths = selectedPaths();
    if (paths.isEmpty())
        return;
    // Before anything is asked: the tree may be read anew meanwhile.
    const QModelIndex last = selectedIndexes().constLast();
    const TemplateNode *above = TemplateTreeModel::nodeAt(last)->parent();
    const QString folder = above ? above->filename() : QString();
    const int row = last.row();
    if (!editingIsAllowed())
        return;
    const QString what = paths.size() == 1 ? tr("this item") : tr("these items");
    const int answer = VTAlert::show({formatString(tr("Are you sure you wish to remove %@?"), what),
                                      tr("What is removed goes to the Trash. Undo brings it back."),
                                      tr("Remove"),
                                      tr("Cancel"),
                                      {},
                                      VTAlert::alternateReturn});
    if (answer != VTAlert::defaultReturn)
        return;
    DiskChange change{tr("Remove"), {}};
    for (const QString &path : paths) {
        VTLog::appendLog("Removing template file %@", path);
        const platform::Outcome removed = changes::putInTrash(path, change.steps);
        if (!removed.ok() && !removed.is(platform::Cause::Declined))
            VTAlert::show({formatString(tr("Unable to remove file %@"), path), checkDestination(removed)});
    }
    record(change);
    if (paths.size() == 1)
        rereadParentOf(paths.first());
    else
        populateTemplateStructure();
    if (selectedIndexes().isEmpty())
        selectNear(folder, row);
}

/// The neighbour of what has gone, else its folder: the keyboard stays where it was.
void VTTemplateOutlineController::selectNear(const QString &folder, int row)
{
    const QModelIndex parent = m_model.indexOf(nodeAtPath(folder));
    const int rows = m_model.rowCount(parent);
    const QModelIndex near = rows > 0 ? m_model.index(qMin(row, rows - 1), 0, parent) : parent;
    if (near.isValid())
        selectOnly(TemplateTreeModel::nodeAt(near)->filename());
}

void VTTemplateOutlineController::duplicateFiles()
{
    finishEditing();
    const QStringList paths = selectedPaths();
    if (paths.isEmpty() || !editingIsAllowed())
        return;
    DiskChange change{tr("Duplicate"), {}};
    changes::Copies copies;
    for (const QString &path : paths) {
        const QString copy = VTFileManager::uniqueFilename(
            withExtensionOf(platform::withoutExtension(path) + QStringLiteral(" Duplicate"), path));
        VTLog::appendLog("Duplicating template file %@ to %@", path, copy);
        const platform::Outcome copied =
            fileoperations::makeInPlace({copy, m_baseFilename}, [&](const QString &staged) {
                return fileoperations::copyFile(path, staged, patience);
            });
        if (copied.is(platform::Cause::Cancelled))
            break;
        if (copied.ok()) {
            change.steps.append({DiskStep::Kind::Made, copy});
            copies.append({path, copy});
        } else {
            VTAlert::show({formatString(tr("Unable to copy file %@ to %@"), path, copy), checkDestination(copied)});
        }
    }
    record(change, copies);
    if (paths.size() == 1) // one reading at the end, however many there are
        rereadParentOf(paths.first());
    else
        populateTemplateStructure();
}

void VTTemplateOutlineController::rename(const QString &path, const QString &typed)
{
    if (typed.isEmpty()) // the item may be of a template that is not shown any more, and is renamed all the same
        return;
    const QString cleaned = cleanedItemName(typed);
    if (cleaned.isEmpty()) {
        VTAlert::show({tr("Invalid filename"), tr("You must enter a filename without invalid characters.")});
        return;
    }
    if (cleaned == platform::lastComponent(path) || !studioAllowsChanging(path))
        return;
    const QString renamed = joined(platform::parentPath(path), cleaned);
    // In other letters it may be the item itself, or, where these tell names apart, another one.
    const bool isItself =
        renamed.toLower() == path.toLower() && platform::identityOf(renamed) == platform::identityOf(path);
    if (platform::kindOf(renamed) != platform::FileKind::Missing && !isItself) {
        VTAlert::show(
            {tr("Item already exists"),
             formatString(
                 tr("You cannot rename this item to %@ because there is already a file or folder with this name."),
                 cleaned)});
        return;
    }
    VTLog::appendLog("User renamed %@ to %@", path, renamed);
    const platform::Outcome moved = fileoperations::moveFile(path, renamed, patience);
    TemplateNode *node = nodeAtPath(path); // looked up again: moving turned the event loop
    if (!moved.ok()) {
        VTLog::appendLog("Unable to rename item");
        VTAlert::show(
            {tr("Unable to rename item"),
             withCause(tr("Please check your have write permissions for this item and its parent directory."), moved)});
        return;
    }
    record({tr("Rename"), {{DiskStep::Kind::Moved, path, renamed}}});
    if (node) {
        node->rename(renamed);
        ++m_readings; // what is being read has the old name
        reloadOutlineViewItem(node);
    }
}

void VTTemplateOutlineController::revealFilesInFinder()
{
    for (const QString &path : selectedPaths())
        platform::revealInFileBrowser(path);
}

void VTTemplateOutlineController::openSelectedFiles()
{
    for (const QString &path : selectedPaths()) {
        VTLog::appendLog("Opening %@", path);
        platform::openWithDefaultApplication(path);
    }
}

void VTTemplateOutlineController::colorCodeFiles(int tag)
{
    const int index = tag * 2; // the labels are the even indexes
    DiskChange change{tr("Label"), {}};
    const QStringList paths = selectedPaths();
    if (paths.isEmpty() || !studioAllowsChanging(paths.constFirst()))
        return;
    for (const QString &path : paths) {
        VTLog::appendLog("Color coding %@", path);
        if (platform::kindOf(path) == platform::FileKind::Link)
            continue; // the label would be its target's
        const int before = VTFileManager::finderColorIndexForPath(path);
        VTFileManager::setFinderColorIndex(index, path);
        if (before != index)
            change.steps.append({DiskStep::Kind::Labelled, path, {}, before, index});
    }
    record(change);
    m_views.outlineView->clearSelection();
    m_views.outlineView->viewport()->update();
}

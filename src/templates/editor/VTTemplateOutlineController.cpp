// The structure editor: set-up, reading the tree, and keeping the user's place in it.
#include "templates/editor/VTTemplateOutlineController.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Packages.h"
#include "support/FileOperations.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "ui/FileIcons.h"
#include "ui/Spinner.h"
#include "ui/VTOutlineView.h"

#include <QMenu>
#include <QScrollBar>
#include <QToolButton>

using platform::joined;

/// What the user sees of the tree, by paths, so that it outlives the nodes.
struct VTTemplateOutlineController::ViewState
{
    QSet<QString> expanded;
    QStringList selected;
    QString current;
    int scroll = 0;
};

namespace {

QModelIndexList inRowOrder(QModelIndexList indexes)
{
    const auto rowsOf = [](QModelIndex index) {
        QList<int> rows;
        for (; index.isValid(); index = index.parent())
            rows.prepend(index.row());
        return rows;
    };
    std::sort(indexes.begin(), indexes.end(), [&](const QModelIndex &a, const QModelIndex &b) {
        const QList<int> first = rowsOf(a);
        const QList<int> second = rowsOf(b);
        return std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end());
    });
    return indexes;
}

/// A folder that takes longer is shown when it comes, and the window goes on meanwhile.
constexpr std::chrono::seconds patienceOfReading{3};

template <typename Call> std::function<void()> onlyWhile(QObject *lives, Call call)
{
    return [lives = QPointer(lives), call] {
        if (lives)
            call();
    };
}

bool expandsAll()
{
    return settings::autoExpandFolders.isOn();
}

} // namespace

VTTemplateOutlineController::VTTemplateOutlineController(ChangeHistory &history, QObject *parent)
    : QObject(parent)
    , m_history(history)
    , m_model({[this](const QString &path, const QString &typed) { rename(path, typed); },
               [this](const TemplateDrop &drop, const TemplateNode *target) { return validateDrop(drop, target); },
               [this](const TemplateDrop &drop, const QString &target) {
                   acceptDrop(drop, target);
               }})
{
}

VTTemplateOutlineController::~VTTemplateOutlineController()
{
    waitForImports();
}

void VTTemplateOutlineController::setViews(const Views &views)
{
    m_views = views;
    auto *outline = views.outlineView;
    outline->setModel(&m_model);
    outline->setDragDropMode(QAbstractItemView::DragDrop);
    outline->setDefaultDropAction(Qt::MoveAction);
    connect(outline, &QAbstractItemView::doubleClicked, this, &VTTemplateOutlineController::openSelectedFiles);
    connect(outline->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VTTemplateOutlineController::announceSelection);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &VTTemplateOutlineController::announceSelection);
}

void VTTemplateOutlineController::awakeFromNib()
{
    m_views.outlineView->setWatchDelegate(this);
    // After the name that was typed there has been taken in.
    connect(m_views.outlineView->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &VTTemplateOutlineController::catchUp, Qt::QueuedConnection);
    m_views.outlineView->addWatchKeys(WatchKeys::deleteKeys(), "removeFiles");
    fillAddMenu();
    announceSelection();
}

void VTTemplateOutlineController::fillAddMenu()
{
    const QString shipped = platform::ApplicationBundle::main().resource(QStringLiteral("Projects"));
    const QString own = joined(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User),
                               QStringLiteral("Vantrel/Tessaro/Project Templates"));
    QAction *before = m_views.addMenu->actions().value(0);
    for (const QString &folder : {shipped, own}) {
        for (const auto &entry : fileoperations::entriesOf(folder)) {
            if (entry.name.startsWith(u'.'))
                continue;
            const QString path = joined(folder, entry.name);
            const auto kind = platform::isPackage(path) ? fileicons::Kind::Package : fileicons::Kind::File;
            QString title = platform::forDisplay(platform::withoutExtension(entry.name));
            auto *item = new QAction(fileicons::forName(entry.name, kind), title.replace(u'&', QStringLiteral("&&")),
                                     m_views.addMenu);
            connect(item, &QAction::triggered, this, [this, path] { addProject(path); });
            m_views.addMenu->insertAction(before, item);
        }
    }
}

QString VTTemplateOutlineController::filesFolder() const
{
    return joined(m_baseFilename, QStringLiteral("Files"));
}

void VTTemplateOutlineController::finishEditing()
{
    m_views.outlineView->finishEditing();
    m_model.takeTypedNames();
}

bool VTTemplateOutlineController::isEditing() const
{
    return m_views.outlineView->isEditing();
}

/// Reading would take the editor away from under the one who types, and the letters that follow would be commands.
bool VTTemplateOutlineController::putsOffReading()
{
    m_isBehind = m_isBehind || isEditing();
    return isEditing();
}

void VTTemplateOutlineController::catchUp()
{
    if (m_isBehind && !isEditing())
        populateTemplateStructure();
}

void VTTemplateOutlineController::loadDataFromFile(const QString &bundle)
{
    finishEditing();
    ++m_generation;
    const bool isAnother = bundle != m_baseFilename;
    if (isAnother)
        Q_EMIT needsWholeTree();
    m_baseFilename = bundle;
    if (isAnother) // those of the other one are not this one's
        showRules({});
    if (bundle.isNull() || isAnother)
        m_model.setNodes({});
    if (!bundle.isNull())
        populateTemplateStructure();
}

void VTTemplateOutlineController::populateTemplateStructure()
{
    if (m_baseFilename.isNull())
        return;
    VTLog::appendLog("Loading template data from %@", m_baseFilename);
    rereadRules();
    const quint64 generation = ++m_generation;
    readInTime(filesFolder(), [this, generation](TemplateNodes nodes) { showTree(generation, std::move(nodes)); });
}

/// One reading of a folder at a time: where a server does not answer, it holds one thread. What comes late is shown if
/// nothing has been read or renamed since; else it is read once more.
void VTTemplateOutlineController::readInTime(const QString &folder, const std::function<void(TemplateNodes)> &show)
{
    const quint64 reading = ++m_readings;
    if (m_beingRead.contains(folder))
        return;
    m_beingRead.insert(folder);
    const auto read = std::make_shared<TemplateNodes>();
    const auto work = [folder, read] {
        *read = nodesInFolder(folder, nullptr);
    };
    const auto late = [this, folder, read, reading, show] {
        m_beingRead.remove(folder);
        reading == m_readings ? show(std::move(*read)) : populateTemplateStructure();
    };
    if (!platform::performWithin(patienceOfReading, work, onlyWhile(this, late)))
        return;
    m_beingRead.remove(folder);
    reading == m_readings ? show(std::move(*read)) : populateTemplateStructure();
}

void VTTemplateOutlineController::showTree(quint64 generation, TemplateNodes nodes)
{
    if (generation != m_generation || putsOffReading()) // another was chosen, or a later reading is on its way
        return;
    m_isBehind = false;
    const ViewState state = viewState();
    m_model.setNodes(std::move(nodes));
    reloadOutlineView();
    restore(state, {});
    VTLog::appendLog("Template data loaded");
}

void VTTemplateOutlineController::reloadOutlineView()
{
    if (expandsAll())
        m_views.outlineView->expandAll();
    m_views.outlineView->viewport()->update();
}

void VTTemplateOutlineController::reloadOutlineViewItem(const TemplateNode *node)
{
    m_model.itemChanged(*node);
    if (expandsAll())
        m_views.outlineView->expandRecursively(m_model.indexOf(node));
}

TemplateNode *VTTemplateOutlineController::itemFromFilename(const QString &path) const
{
    return nodeWithFilename(path, dataArray());
}

/// By whole components, unlike itemFromFilename(): what the program needs to find, it finds.
TemplateNode *VTTemplateOutlineController::nodeAtPath(const QString &path) const
{
    const TemplateNodes *level = &dataArray();
    while (level) {
        const TemplateNodes *next = nullptr;
        for (const auto &node : *level) {
            if (node->filename() == path)
                return node.get();
            if (node->isFolderItem() && path.startsWith(node->filename() + u'/'))
                next = &static_cast<const VTFolderItem &>(*node).children();
        }
        level = next;
    }
    return nullptr;
}

QModelIndexList VTTemplateOutlineController::selectedIndexes() const
{
    return inRowOrder(m_views.outlineView->selectionModel()->selectedRows());
}

QStringList VTTemplateOutlineController::selectedPaths() const
{
    QStringList paths;
    for (const QModelIndex &index : selectedIndexes())
        paths.append(TemplateTreeModel::nodeAt(index)->filename());
    return paths;
}

void VTTemplateOutlineController::announceSelection()
{
    Q_EMIT selectionChanged(m_views.outlineView->selectionModel()->selectedRows().size(), !m_baseFilename.isNull());
}

VTTemplateOutlineController::ViewState VTTemplateOutlineController::viewState() const
{
    const auto *outline = m_views.outlineView;
    ViewState state;
    state.selected = selectedPaths();
    if (outline->currentIndex().isValid())
        state.current = TemplateTreeModel::nodeAt(outline->currentIndex())->filename();
    state.scroll = outline->verticalScrollBar()->value();
    if (expandsAll())
        return state;
    QList<QModelIndex> open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            const QModelIndex index = m_model.index(row, 0, parent);
            if (!outline->isExpanded(index))
                continue;
            state.expanded.insert(TemplateTreeModel::nodeAt(index)->filename());
            open.append(index);
        }
    }
    return state;
}

void VTTemplateOutlineController::restore(const ViewState &state, const QModelIndex &below)
{
    auto *outline = m_views.outlineView;
    QList<QModelIndex> open{below};
    while (!open.isEmpty() && !state.expanded.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            const QModelIndex index = m_model.index(row, 0, parent);
            if (!state.expanded.contains(TemplateTreeModel::nodeAt(index)->filename()))
                continue;
            outline->expand(index);
            open.append(index);
        }
    }
    QItemSelection selection;
    for (const QString &path : state.selected) {
        if (const QModelIndex index = m_model.indexOf(nodeAtPath(path)); index.isValid() && isInSight(index))
            selection.select(index, index);
    }
    outline->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (const QModelIndex current = m_model.indexOf(nodeAtPath(state.current)); current.isValid())
        outline->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    outline->verticalScrollBar()->setValue(state.scroll);
}

void VTTemplateOutlineController::rereadFolder(const QString &folder)
{
    const TemplateNode *node = nodeAtPath(folder);
    if (!node || !node->isFolderItem())
        return populateTemplateStructure();
    const quint64 generation = m_generation;
    readInTime(folder,
               [this, folder, generation](TemplateNodes nodes) { showFolder(folder, generation, std::move(nodes)); });
}

void VTTemplateOutlineController::showFolder(const QString &folder, quint64 generation, TemplateNodes children)
{
    TemplateNode *target = nodeAtPath(folder); // the tree may have been read anew meanwhile
    if (generation != m_generation || !target || putsOffReading())
        return;
    const ViewState state = viewState();
    m_model.setChildren(static_cast<VTFolderItem &>(*target), std::move(children));
    reloadOutlineViewItem(target);
    restore(state, m_model.indexOf(target));
}

void VTTemplateOutlineController::rereadParentOf(const QString &path)
{
    const TemplateNode *node = nodeAtPath(path);
    if (node && node->parent())
        rereadFolder(node->parent()->filename());
    else
        populateTemplateStructure();
}

void VTTemplateOutlineController::editItem(const QString &path)
{
    const TemplateNode *node = itemFromFilename(path);
    if (!node)
        return;
    const QModelIndex index = m_model.indexOf(node);
    auto *outline = m_views.outlineView;
    outline->scrollTo(index); // opens the folders above, too
    selectOnly(path);
    outline->setFocus();
    outline->edit(index);
}

/// Not hidden by the filter.
bool VTTemplateOutlineController::isInSight(const QModelIndex &index) const
{
    QModelIndex above = index;
    while (above.isValid() && !m_views.outlineView->isRowHidden(above.row(), above.parent()))
        above = above.parent();
    return !above.isValid();
}

void VTTemplateOutlineController::selectOnly(const QString &path)
{
    const QModelIndex index = m_model.indexOf(nodeAtPath(path));
    auto *selection = m_views.outlineView->selectionModel();
    if (index.isValid() && isInSight(index))
        selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else
        selection->clearSelection();
}

void VTTemplateOutlineController::editSelectedName()
{
    if (selectedIndexes().size() > 1)
        return renameSeveral();
    const QModelIndex current = m_views.outlineView->currentIndex();
    if (current.isValid())
        m_views.outlineView->edit(current);
}

void VTTemplateOutlineController::startJob(const ImportJob &job,
                                           platform::Outcome (*work)(const ImportJob &, const ImportHost &))
{
    if (!studioAllowsChanging(job.destFolder + u'/'))
        return;
    using platform::MainThread;
    const auto waiting = platform::Waiting::Yes;
    ImportHost host;
    host.begin = [this, waiting] {
        MainThread::perform(
            [this] {
                if (m_spinning++ == 0)
                    m_views.spinner->start();
            },
            waiting);
    };
    host.showFolder = [this, waiting](const QString &folder) {
        MainThread::perform([this, folder] { folder.isNull() ? populateTemplateStructure() : rereadFolder(folder); },
                            waiting);
    };
    const QString name = work == importjobs::copyFiles ? tr("Import") : tr("Import of Folders");
    host.changed = [this, name, waiting](const DiskSteps &steps) {
        MainThread::perform([&] { m_history.add({name, steps}); }, waiting);
    };
    host.end = [this, waiting] {
        MainThread::perform(
            [this] {
                if (--m_spinning == 0)
                    m_views.spinner->stop();
            },
            waiting);
    };
    ++m_jobs;
    platform::performBeside([job, host, work] { static_cast<void>(work(job, host)); }, // it has said what failed
                            [this] {
                                if (--m_jobs == 0)
                                    Q_EMIT importsEnded();
                            });
}

void VTTemplateOutlineController::copyFilesOnThread(const ImportJob &job)
{
    startJob(job, importjobs::copyFiles);
}

void VTTemplateOutlineController::createFolderStructureOnThread(const ImportJob &job)
{
    startJob(job, importjobs::createFolderStructure);
}

void VTTemplateOutlineController::waitForImports()
{
    while (m_jobs > 0)
        platform::MainThread::turnLoop(std::chrono::milliseconds(50));
}

#include "templates/editor/VTTemplateTableController.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "templates/TemplateChanges.h"
#include "templates/TemplateLibrary.h"
#include "templates/VTDataController.h"
#include "templates/editor/VTTemplateOutlineController.h"
#include "ui/Icons.h"
#include "ui/VTTableView.h"

#include <QAction>

namespace {

VTDataController &store()
{
    return VTDataController::sharedController();
}

} // namespace

VTTemplateTableController::VTTemplateTableController(VTTemplateOutlineController &outlineController,
                                                     ChangeHistory &history, QObject *parent)
    : QAbstractListModel(parent)
    , m_outlineController(outlineController)
    , m_history(history)
{
}

void VTTemplateTableController::setViews(VTTableView *tableView, QAction *menuItemToggleDefault)
{
    m_tableView = tableView;
    m_menuItemToggleDefault = menuItemToggleDefault;
    tableView->setModel(this);
    connect(tableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VTTemplateTableController::loadDataForCurrentSelection);
}

void VTTemplateTableController::awakeFromNib()
{
    m_tableView->setWatchDelegate(this);
    m_tableView->addWatchKeys(WatchKeys::deleteKeys(), "removeTemplate");
    switchedToView();
    connect(&Notifications::hub(), &Notifications::VTTessaroRefreshTemplates, this,
            &VTTemplateTableController::readAnew);
}

void VTTemplateTableController::readAnew()
{
    finishEditing();
    rebuild();
    m_isStale = true; // what is shown may have been replaced on disk
    loadDataForCurrentSelection();
}

void VTTemplateTableController::finishEditing()
{
    m_tableView->finishEditing();
    takeTypedName();
}

void VTTemplateTableController::switchedToView()
{
    finishEditing();
    m_isStale = true;
    rebuild();
    const QString last = settings::selectedProjectTemplate.text();
    if (m_names.contains(last))
        selectRow(last);
    else if (!m_names.isEmpty())
        selectRow(m_names.constFirst());
    loadDataForCurrentSelection();
}

void VTTemplateTableController::rebuild()
{
    static_cast<void>(store().populateTemplatesInTime()); // logged; the list shows what there is
    reload();
}

void VTTemplateTableController::reload()
{
    showNames(store().templates());
}

/// Rows come and go one by one: what is selected stays so, and an editor stays open.
void VTTemplateTableController::showNames(const QStringList &names)
{
    for (auto row = static_cast<int>(m_names.size()) - 1; row >= 0; --row) {
        if (names.contains(m_names[row]))
            continue;
        beginRemoveRows({}, row, row);
        m_names.removeAt(row);
        endRemoveRows();
    }
    for (int row = 0; row < names.size(); ++row) {
        const auto now = static_cast<int>(m_names.indexOf(names[row], row));
        if (now == row)
            continue;
        if (now > row && beginMoveRows({}, now, now, {}, row)) {
            m_names.move(now, row);
            endMoveRows();
            continue;
        }
        beginInsertRows({}, row, row);
        m_names.insert(row, names[row]);
        endInsertRows();
    }
    if (!m_names.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_names.size()) - 1)); // the star may be another's
}

void VTTemplateTableController::load(const QString &name)
{
    m_loaded = name;
    m_isStale = false;
    m_outlineController.loadDataFromFile(name.isNull() ? QString() : VTDataController::bundlePath(name));
}

void VTTemplateTableController::loadDataForCurrentSelection()
{
    const QString name = selectedTemplate();
    if (name != m_loaded || m_isStale)
        load(name);
    m_menuItemToggleDefault->setText(isDefaultTemplate(name) ? tr("Unset &Default") : tr("Set as &Default"));
    Q_EMIT selectionChanged(!name.isNull());
}

QString VTTemplateTableController::selectedTemplate() const
{
    const auto row = m_tableView ? m_tableView->firstSelectedRow() : std::nullopt;
    return row ? m_names.value(*row) : QString();
}

void VTTemplateTableController::selectRow(const QString &name)
{
    const QModelIndex row = index(static_cast<int>(m_names.indexOf(name)));
    m_tableView->selectionModel()->setCurrentIndex(row,
                                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_tableView->scrollTo(row);
}

void VTTemplateTableController::selectTemplateWithName(const QString &name)
{
    if (!m_names.contains(name))
        return;
    selectRow(name);
    load(name); // read anew, also when it was shown: an import may have replaced it
}

bool VTTemplateTableController::addTemplateFromFile(const QString &path)
{
    const library::Change result = library::addTemplate(path);
    if (!result.outcome.ok())
        return false;
    using platform::MainThread;
    const auto waiting = platform::Waiting::Yes;
    MainThread::perform([] { static_cast<void>(store().populateTemplatesInTime()); }, waiting);
    MainThread::perform([this] { Q_EMIT populateTemplatePopUp(); }, waiting);
    MainThread::perform(
        [&] {
            m_history.add({tr("Import of ‘%1’").arg(platform::forOneLine(result.name)), result.steps});
            reload();
            // Not away from under somebody who types a name.
            if (!m_tableView->isEditing() && !m_outlineController.isEditing())
                selectTemplateWithName(result.name);
        },
        waiting);
    return true;
}

bool VTTemplateTableController::isDefaultTemplate(const QString &name)
{
    return library::isDefaultTemplate(name);
}

void VTTemplateTableController::setDefaultTemplate(const QString &name)
{
    if (!name.isEmpty())
        static_cast<void>(settings::defaultTemplate.store(name)); // logged; the mark shows what is stored
    Q_EMIT populateTemplatePopUp();
}

void VTTemplateTableController::unsetDefaultTemplate()
{
    static_cast<void>(settings::defaultTemplate.reset()); // logged; the mark shows what is stored
}

void VTTemplateTableController::createNewTemplate()
{
    finishEditing();
    m_outlineController.finishEditing();
    if (!editingIsAllowed())
        return;
    const library::Change made = library::createTemplate(tr("Untitled"));
    m_history.add({tr("New Template"), made.steps});
    rebuild();
    Q_EMIT populateTemplatePopUp();
    editName(made.name);
    VTLog::appendLog("Template creation finished");
}

void VTTemplateTableController::duplicateTemplate()
{
    finishEditing();
    const QString name = selectedTemplate();
    if (name.isNull() || !editingIsAllowed())
        return;
    const library::Change made = library::duplicateTemplate(name);
    m_history.add({tr("Duplicate"), made.steps});
    rebuild();
    Q_EMIT populateTemplatePopUp();
    editName(made.name);
    VTLog::appendLog("Template duplication finished");
}

void VTTemplateTableController::removeTemplate()
{
    finishEditing();
    const QString name = selectedTemplate();
    if (name.isNull() || !editingIsAllowed())
        return;
    const library::Change removed = library::removeTemplate(name);
    if (removed.outcome.is(platform::Cause::Declined))
        return;
    m_history.add({tr("Remove"), removed.steps});
    const qsizetype row = m_names.indexOf(name);
    rebuild();
    if (selectedTemplate().isNull() && !m_names.isEmpty()) // the neighbour, so that the keyboard stays where it was
        selectRow(m_names[qMin(row, m_names.size() - 1)]);
    loadDataForCurrentSelection();
    Q_EMIT populateTemplatePopUp();
}

void VTTemplateTableController::rename(const QString &name, const QString &typed)
{
    if (!studioAllowsEditing())
        return;
    const library::Change result = library::renameTemplate(name, typed);
    if (!result.isChanged)
        return;
    m_history.add({tr("Rename"), result.steps});
    if (isDefaultTemplate(result.name))
        Q_EMIT populateTemplatePopUp();
    rebuild();
    Q_EMIT populateTemplatePopUp();
    selectTemplateWithName(result.name);
}

void VTTemplateTableController::toggleDefault()
{
    const QString name = selectedTemplate();
    if (name.isNull() || !settingsAllowEditing()) // which template one begins with is the user's own affair
        return;
    if (isDefaultTemplate(name))
        unsetDefaultTemplate();
    else
        setDefaultTemplate(name);
    m_menuItemToggleDefault->setText(isDefaultTemplate(name) ? tr("Unset &Default") : tr("Set as &Default"));
    if (!m_names.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_names.size()) - 1)); // moves the star
}

void VTTemplateTableController::revealTemplateInFinder()
{
    const QString name = selectedTemplate();
    if (name.isNull())
        return;
    VTLog::appendLog("Revealing template %@ in Finder", name);
    platform::revealInFileBrowser(VTDataController::bundlePath(name));
}

void VTTemplateTableController::editSelectedName()
{
    editName(selectedTemplate());
}

void VTTemplateTableController::editName(const QString &name)
{
    if (!m_names.contains(name))
        return;
    selectRow(name);
    m_tableView->setFocus();
    m_tableView->edit(index(static_cast<int>(m_names.indexOf(name))));
}

int VTTemplateTableController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_names.size());
}

QVariant VTTemplateTableController::data(const QModelIndex &index, int role) const
{
    const QString name = m_names.value(index.row());
    const bool isDefault = isDefaultTemplate(name);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return platform::forDisplay(name);
    case Qt::DecorationRole:
        return icons::named(isDefault ? "star" : "package");
    case Qt::AccessibleTextRole:
        return isDefault ? tr("%1, the default template").arg(platform::forDisplay(name)) : platform::forDisplay(name);
    default:
        return {};
    }
}

bool VTTemplateTableController::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QString name = m_names.value(index.row());
    if (role != Qt::EditRole || name.isNull() || value.toString() == platform::forDisplay(name))
        return false;
    // Questions and moves turn the event loop, which an open editor does not survive.
    m_typed = {name, value.toString()};
    QMetaObject::invokeMethod(this, &VTTemplateTableController::takeTypedName, Qt::QueuedConnection);
    return true;
}

void VTTemplateTableController::takeTypedName()
{
    if (const auto typed = std::exchange(m_typed, std::nullopt))
        rename(typed->first, typed->second);
}

Qt::ItemFlags VTTemplateTableController::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

#include "parameters/table/VTProjectTableController.h"

#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/Notifications.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "ui/Icons.h"
#include "ui/PathControl.h"
#include "ui/Spinner.h"
#include "ui/VTTabbedEditTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>

namespace {

const char *iconOf(FilenameParameter::Kind kind)
{
    switch (kind) {
    case FilenameParameter::Kind::Counter:
        return "kind-counter";
    case FilenameParameter::Kind::Date:
        return "kind-date";
    case FilenameParameter::Kind::UserName:
        return "kind-user";
    case FilenameParameter::Kind::Choice:
        return "kind-choice";
    default:
        return "kind-text";
    }
}

CellEditor editorOf(const FilenameParameter &parameter)
{
    if (parameter.kind() == FilenameParameter::Kind::Choice)
        return CellEditor::Choices;
    return parameter.savesHistory() ? CellEditor::History : CellEditor::Text;
}

QString described(const FilenameParameters &parameters)
{
    const auto list = QJsonArray::fromVariantList(variantFromParameters(parameters));
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

} // namespace

VTProjectTableController::VTProjectTableController(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void VTProjectTableController::setViews(const Views &views)
{
    m_views = views;
    if (!m_views.tableView)
        return;
    m_views.tableView->setModel(this);
    m_views.tableView->setWatchDelegate(this);
    m_views.tableView->addWatchKeys(WatchKeys::deleteKeys(), "revertToDefaultValue");
}

void VTProjectTableController::awakeFromNib()
{
    loadFilenameData();
    updateDynamicValues();
    auto &hub = Notifications::hub();
    connect(&hub, &Notifications::VTTessaroReloadFilenameParams, this, &VTProjectTableController::loadFilenameData);
    connect(&hub, &Notifications::VTTessaroRefreshDynamicValues, this, &VTProjectTableController::updateDynamicValues);
    connect(&hub, &Notifications::VTTessaroEditFirstParameter, this, &VTProjectTableController::editFirstItem);
}

int VTProjectTableController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_dataArray.size());
}

int VTProjectTableController::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VTProjectTableController::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const FilenameParameter &parameter = m_dataArray[index.row()];
    return index.column() == TitleColumn ? titleData(parameter, role) : valueData(parameter, role);
}

QVariant VTProjectTableController::titleData(const FilenameParameter &parameter, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return parameter.title().isEmpty() ? tr("Untitled") : parameter.title();
    case Qt::DecorationRole:
        return icons::named(iconOf(parameter.kind()), icons::Tone::Secondary);
    default:
        return {};
    }
}

QVariant VTProjectTableController::valueData(const FilenameParameter &parameter, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return parameter.value();
    case Qt::AccessibleTextRole:
        return tr("%1: %2").arg(parameter.title(), parameter.value());
    case Qt::DecorationRole:
        return parameter.isLocked() ? icons::named("lock", icons::Tone::Secondary) : QVariant();
    case CellRole::Editor:
        return QVariant::fromValue(editorOf(parameter));
    case CellRole::Items:
        return parameter.kind() == FilenameParameter::Kind::Choice ? parameter.choices() : parameter.history();
    case CellRole::Secondary:
        return parameter.isAutomatic();
    case CellRole::AccessibleName:
        return parameter.title();
    default:
        return {};
    }
}

QVariant VTProjectTableController::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    if (orientation == Qt::Horizontal)
        return section == TitleColumn ? tr("Parameter") : tr("Value");
    return section < m_dataArray.size() ? m_dataArray[section].title() : QString();
}

Qt::ItemFlags VTProjectTableController::flags(const QModelIndex &index) const
{
    if (!index.isValid() || !checkIndex(index))
        return Qt::NoItemFlags;
    const Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const bool editable = index.column() == ValueColumn && !m_dataArray[index.row()].isLocked();
    return editable ? selectable | Qt::ItemIsEditable : selectable;
}

bool VTProjectTableController::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || !checkIndex(index) || index.column() != ValueColumn)
        return false;
    const bool strict = settings::strictNaming.isOn();
    bool keptTyped = false;
    changeRow(index.row(), [&](const FilenameParameter &parameter) {
        return rules::withTypedValue(parameter, value.toString(), strict, &keptTyped);
    });
    if (keptTyped)
        VTLog::appendLog("string length is 0");
    Q_EMIT dataChanged(index, index);
    updateFilenamePreview();
    return true;
}

void VTProjectTableController::finishEditing()
{
    if (m_views.tableView)
        m_views.tableView->finishEditing();
    if (m_isBehind)
        follow();
}

void VTProjectTableController::startProcessing()
{
    if (m_views.spinner)
        m_views.spinner->start();
    Q_EMIT processingChanged(true);
}

void VTProjectTableController::finishProcessing()
{
    if (m_views.spinner)
        m_views.spinner->stop();
    Q_EMIT processingChanged(false);
}

void VTProjectTableController::editFirstItem()
{
    if (!m_dataArray.isEmpty())
        editItem(0);
}

void VTProjectTableController::editItem(int row)
{
    if (m_views.tableView)
        m_views.tableView->editRow(row);
}

void VTProjectTableController::revertToDefaultValue()
{
    const auto selected = m_views.tableView ? m_views.tableView->firstSelectedRow() : std::nullopt;
    if (!selected)
        return;
    // Records carry their name as "title": the line says (null), and existing readers of the log know it so.
    const QVariant name = m_dataArray[*selected].entry("name");
    VTLog::appendLog("Reverting %@ to its default value", name.isValid() ? name.toString() : QString());
    changeRow(*selected, [](FilenameParameter parameter) {
        parameter.setValue(rules::revertedValue(parameter));
        return parameter;
    });
    updateFilenamePreview();
}

void VTProjectTableController::clearHistory()
{
    VTLog::appendLog("Clearing history");
    m_beforeClearing = storedParameters();
    change(rules::withHistoryCleared);
    VTLog::appendLog("History successfully cleared");
}

void VTProjectTableController::restoreHistory()
{
    VTLog::appendLog("Bringing back the history");
    const FilenameParameters before = std::exchange(m_beforeClearing, {});
    change([&](FilenameParameters list) { return rules::withHistoryOf(std::move(list), before); });
    updateFilenamePreview();
}

void VTProjectTableController::incrementDynamicValues()
{
    follow();
}

void VTProjectTableController::updateDynamicValues()
{
    VTLog::appendLog("Updating dynamic values");
    change(withDynamicValues);
    updateFilenamePreview();
}

void VTProjectTableController::bringUpToDate()
{
    follow();
    if (withDynamicValues(m_dataArray) != m_dataArray)
        updateDynamicValues();
}

void VTProjectTableController::loadFilenameData()
{
    VTLog::appendLog("Loading filename parameter data");
    keepDamagedParameters();
    VTLog::appendLog("Params: %@", described(storedParameters()));
    change(rules::asLoaded);
    updateFilenamePreview();
    VTLog::appendLog("Filename parameter data loaded successfully");
}

void VTProjectTableController::follow()
{
    show(storedParameters());
    updateFilenamePreview();
}

void VTProjectTableController::change(const std::function<FilenameParameters(FilenameParameters)> &change)
{
    FilenameParameters changed;
    const platform::Outcome stored = changeParameters([&](FilenameParameters list) {
        changed = change(std::move(list));
        return platform::Result<FilenameParameters>(changed);
    });
    static_cast<void>(stored); // the log says what the settings could not take
    show(std::move(changed));
}

/// A parameter that another program has taken out of the list is changed no more.
void VTProjectTableController::changeRow(int row, const std::function<FilenameParameter(FilenameParameter)> &change)
{
    this->change([&](FilenameParameters list) {
        if (const auto there = parameterlist::rowOfSame(m_dataArray, row, list))
            list[*there] = change(list[*there]);
        return list;
    });
}

bool VTProjectTableController::isEdited(int row) const
{
    return m_views.tableView && m_views.tableView->indexWidget(index(row, ValueColumn));
}

void VTProjectTableController::show(FilenameParameters parameters)
{
    m_isBehind = !replaceRows(parameters);
    if (m_isBehind)
        return;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_dataArray[row] == parameters[row])
            continue;
        m_dataArray[row] = parameters[row];
        Q_EMIT dataChanged(index(row, TitleColumn), index(row, ValueColumn));
    }
}

/// Rows come and go around the one that is being edited, which stays as it is. False, and nothing changed, when that
/// one would go.
bool VTProjectTableController::replaceRows(const FilenameParameters &parameters)
{
    const bool wasEmpty = m_dataArray.isEmpty();
    int edited = 0;
    while (edited < rowCount() && !isEdited(edited))
        ++edited;
    if (edited == rowCount()) {
        replaceRows(0, rowCount(), parameters);
    } else if (const auto there = parameterlist::rowOfSame(m_dataArray, edited, parameters)) {
        replaceRows(edited + 1, rowCount(), parameters.mid(*there + 1));
        replaceRows(0, edited, parameters.first(*there));
    } else {
        return false;
    }
    if (wasEmpty != m_dataArray.isEmpty() || wasEmpty)
        Q_EMIT emptinessChanged(m_dataArray.isEmpty());
    return true;
}

/// The rows from first to before end become those of the list. What both have at the ends stays, and with it the
/// selection and the place of the one who looks at it.
void VTProjectTableController::replaceRows(int first, int end, const FilenameParameters &list)
{
    const auto sameTitle = [](const FilenameParameter &a, const FilenameParameter &b) {
        return a.title() == b.title();
    };
    const auto old = m_dataArray.mid(first, end - first);
    const auto [oldHead, newHead] = std::mismatch(old.cbegin(), old.cend(), list.cbegin(), list.cend(), sameTitle);
    const auto [oldTail, newTail] = std::mismatch(old.crbegin(), std::make_reverse_iterator(oldHead), list.crbegin(),
                                                  std::make_reverse_iterator(newHead), sameTitle);
    const auto start = first + static_cast<int>(oldHead - old.cbegin());
    const auto removed = static_cast<int>(oldTail.base() - oldHead);
    const auto added = static_cast<int>(newTail.base() - newHead);
    if (removed > 0) {
        beginRemoveRows({}, start, start + removed - 1);
        m_dataArray.remove(start, removed);
        endRemoveRows();
    }
    if (added > 0) {
        beginInsertRows({}, start, start + added - 1);
        for (int i = 0; i < added; ++i)
            m_dataArray.insert(start + i, *(newHead + i));
        endInsertRows();
    }
}

void VTProjectTableController::updateFilenamePreview()
{
    if (!m_views.previewPathControl)
        return;
    const QString path = naming::pathName(naming::pathComponents(m_dataArray, settings::separatorChar.text()));
    if (path.isNull()) {
        VTLog::appendLog("Error: null filename for path display");
        return;
    }
    const QString location = nextPlace();
    m_views.previewPathControl->setPlace(location);
    m_views.previewPathControl->setPath(u'/' + path);
    m_exists.forget();
    if (location.isEmpty() || path.isEmpty())
        return showWarning(false);
    m_exists.ask(platform::joined(location, path), [this](bool exists) { showWarning(exists); });
}

void VTProjectTableController::showWarning(bool exists)
{
    if (exists)
        m_views.previewPathControl->raiseOrigin();
    if (m_views.warningImage)
        m_views.warningImage->setVisible(exists);
}

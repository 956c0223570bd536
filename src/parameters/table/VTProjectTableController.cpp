#include "parameters/table/VTProjectTableController.h"

#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "platform/base/MainThread.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "ui/Spinner.h"
#include "ui/VTTabbedEditTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

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
    if (auto *cells = qobject_cast<ValueCellDelegate *>(m_views.tableView->itemDelegate())) {
        connect(cells, &ValueCellDelegate::typed, this, &VTProjectTableController::showTyped);
        connect(cells, &ValueCellDelegate::closeEditor, this, &VTProjectTableController::forgetTyped);
        connect(cells, &ValueCellDelegate::itemRemoved, this, &VTProjectTableController::forgetRemembered);
    }
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
    m_typedCell = QModelIndex();
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
    const bool isAutomatic = m_dataArray[*selected].isAutomatic();
    changeRow(*selected, [this](FilenameParameter parameter) {
        const QString automatic = rules::automaticValue(parameter, m_automatic);
        parameter.setValue(automatic.isNull() ? rules::revertedValue(parameter) : automatic);
        return parameter;
    });
    if (isAutomatic)
        Q_EMIT dataChanged(index(*selected, ValueColumn), index(*selected, ValueColumn));
    updateFilenamePreview();
}

void VTProjectTableController::clearHistory()
{
    VTLog::appendLog("Clearing history");
    m_beforeClearing = storedParameters(m_scope);
    changeList(rules::withHistoryCleared);
    VTLog::appendLog("History successfully cleared");
}

void VTProjectTableController::restoreHistory()
{
    VTLog::appendLog("Bringing back the history");
    const FilenameParameters before = std::exchange(m_beforeClearing, {});
    changeList([&](FilenameParameters list) { return rules::withHistoryOf(std::move(list), before); });
    updateFilenamePreview();
}

void VTProjectTableController::incrementDynamicValues()
{
    follow();
}

void VTProjectTableController::updateDynamicValues()
{
    VTLog::appendLog("Updating dynamic values");
    m_automatic = automaticValues();
    changeList([this](FilenameParameters list) { return rules::withDynamicValues(std::move(list), m_automatic); });
    updateFilenamePreview();
}

void VTProjectTableController::bringUpToDate()
{
    const FilenameParameters known = m_dataArray;
    follow();
    const auto before = std::exchange(m_automatic, automaticValues());
    const auto refreshed = [&](FilenameParameters list) {
        return rules::withDynamicValues(std::move(list), known, before, m_automatic);
    };
    if (refreshed(m_dataArray) == m_dataArray)
        return;
    VTLog::appendLog("Updating dynamic values");
    changeList(refreshed);
    updateFilenamePreview();
}

void VTProjectTableController::loadFilenameData()
{
    VTLog::appendLog("Loading filename parameter data");
    keepDamagedParameters();
    VTLog::appendLog("Params: %@", described(storedParameters(m_scope)));
    changeList(rules::asLoaded);
    updateFilenamePreview();
    VTLog::appendLog("Filename parameter data loaded successfully");
}

void VTProjectTableController::follow()
{
    show(storedParameters(m_scope));
    updateFilenamePreview();
}

void VTProjectTableController::setScope(const ParameterScope &scope)
{
    if (scope == m_scope || (scope.isEmpty() && m_scope.isEmpty())) {
        m_scope = scope;
        return;
    }
    int edited = 0;
    while (edited < rowCount() && !isEdited(edited))
        ++edited;
    const QString title = m_dataArray.value(edited).title();
    finishEditing();
    m_scope = scope;
    VTLog::appendLog("Showing the parameters of %@", scope.templateName);
    const FilenameParameters known = m_dataArray;
    const auto before = std::exchange(m_automatic, automaticValues());
    const bool isFirst = !m_seenTemplates.contains(scope.templateName);
    m_seenTemplates.insert(scope.templateName);
    changeList([&](FilenameParameters list) {
        for (FilenameParameter &parameter : list) {
            if (isFirst && parameter.isOwnOfTemplate())
                parameter = rules::asLoaded({parameter}).constFirst();
        }
        return rules::withDynamicValues(std::move(list), known, before, m_automatic);
    });
    updateFilenamePreview();
    for (int row = 0; row < rowCount() && !title.isNull(); ++row) { // whoever is typing goes on
        if (m_dataArray[row].title() == title)
            return editItem(row);
    }
}

/// Other values may be computed from those that change.
void VTProjectTableController::changeList(const std::function<FilenameParameters(FilenameParameters)> &change,
                                          std::optional<QString> typedTitle)
{
    FilenameParameters changed;
    const platform::Outcome stored = changeParameters(m_scope, [&](const FilenameParameters &list) {
        changed = change(list);
        std::optional<qsizetype> typedRow;
        for (qsizetype row = 0; typedTitle && row < changed.size(); ++row) {
            if (changed[row].title() == *typedTitle)
                typedRow = row;
        }
        changed = forms::withComputedValues(changed, list, computingMoment(), typedRow);
        return platform::Result<FilenameParameters>(changed);
    });
    static_cast<void>(stored); // the log says what the settings could not take
    show(std::move(changed));
}

/// A parameter that another program has taken out of the list is changed no more.
void VTProjectTableController::changeRow(int row, const std::function<FilenameParameter(FilenameParameter)> &change)
{
    const auto changed = [&](FilenameParameters list) {
        if (const auto there = parameterlist::rowOfSame(m_dataArray, row, list))
            list[*there] = change(list[*there]);
        return list;
    };
    changeList(changed, m_dataArray[row].title());
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

#include "parameters/table/VTProjectTableController.h"

#include "parameters/ParameterStore.h"
#include "parameters/ValueRules.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTFileManager.h"
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
#include <QThreadPool>

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
    bool keptTyped = false;
    FilenameParameter &parameter = m_dataArray[index.row()];
    parameter = rules::withTypedValue(parameter, value.toString(), settings::strictNaming.isOn(), &keptTyped);
    if (keptTyped)
        VTLog::appendLog("string length is 0");
    store();
    Q_EMIT dataChanged(index, index);
    updateFilenamePreview();
    return true;
}

void VTProjectTableController::finishEditing()
{
    if (m_views.tableView)
        m_views.tableView->finishEditing();
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
    FilenameParameter &parameter = m_dataArray[*selected];
    // Records carry their name as "title": the line says (null), and existing readers of the log know it so.
    VTLog::appendLog("Reverting %@ to its default value",
                     parameter.entry("name").isValid() ? parameter.entry("name").toString() : QString());
    parameter.setValue(rules::revertedValue(parameter));
    store();
    Q_EMIT dataChanged(index(*selected, TitleColumn), index(*selected, ValueColumn));
    updateFilenamePreview();
}

void VTProjectTableController::clearHistory()
{
    VTLog::appendLog("Clearing history");
    setDataArray(rules::withHistoryCleared(m_dataArray));
    VTLog::appendLog("History successfully cleared");
}

void VTProjectTableController::incrementDynamicValues()
{
    VTLog::appendLog("Incrementing dynamic values");
    setDataArray(rules::withCountersAdvanced(m_dataArray));
    updateFilenamePreview();
}

void VTProjectTableController::updateDynamicValues()
{
    VTLog::appendLog("Updating dynamic values");
    setDataArray(rules::withDynamicValues(m_dataArray, settings::dateFormat.text(), VTLocalPaths::username(),
                                          std::time(nullptr)));
    updateFilenamePreview();
}

void VTProjectTableController::loadFilenameData()
{
    VTLog::appendLog("Loading filename parameter data");
    keepDamagedParameters();
    const FilenameParameters stored = storedParameters();
    VTLog::appendLog("Params: %@", described(stored));
    setDataArray(rules::asLoaded(stored));
    updateFilenamePreview();
    VTLog::appendLog("Filename parameter data loaded successfully");
}

void VTProjectTableController::setDataArray(FilenameParameters parameters)
{
    if (parameters == m_dataArray && !m_dataArray.isEmpty())
        return store();
    if (parameters.size() == m_dataArray.size() && !parameters.isEmpty()) {
        // The rows stay: so do the selection and the place of the one who looks at them.
        m_dataArray = std::move(parameters);
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    } else {
        beginResetModel();
        m_dataArray = std::move(parameters);
        endResetModel();
    }
    store();
    Q_EMIT emptinessChanged(m_dataArray.isEmpty());
}

void VTProjectTableController::store()
{
    static_cast<void>(storeParameters(m_dataArray)); // the log says what the settings could not take
}

void VTProjectTableController::updateFilenamePreview()
{
    if (!m_views.previewPathControl)
        return;
    const QString path = pathNameFromParameters();
    if (path.isNull()) {
        VTLog::appendLog("Error: null filename for path display");
        return;
    }
    m_views.previewPathControl->setPath(u'/' + path);
    const quint64 number = ++m_previewNumber;
    const QString location = settings::fixedProjectLocationPath.text();
    if (location.isEmpty() || path.isEmpty())
        return showWarning(false);
    // Asked on a worker: the fixed location may lie on a share that takes its time to answer, or has gone.
    QThreadPool::globalInstance()->start([self = QPointer(this), number, whole = platform::joined(location, path)] {
        const bool exists = VTFileManager::fileExistsAtPath(whole);
        const auto show = [self, number, exists] {
            if (self && self->m_previewNumber == number)
                self->showWarning(exists);
        };
        platform::MainThread::perform(show, platform::Waiting::No);
    });
}

void VTProjectTableController::showWarning(bool exists)
{
    if (exists)
        m_views.previewPathControl->raiseOrigin();
    if (m_views.warningImage)
        m_views.warningImage->setVisible(exists);
}

#include "parameters/table/ParameterEditorModel.h"

#include "parameters/ParameterStore.h"
#include "support/Notifications.h"
#include "ui/ValueCellDelegate.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

using parameterlist::Column;

namespace {

bool isFlag(Column column)
{
    return column >= Column::Folder;
}

QList<int> rowsOf(const QMimeData &data)
{
    QList<int> rows;
    QDataStream stream(data.data(ParameterEditorModel::VTPboardType));
    stream >> rows;
    return rows;
}

CellEditor editorOf(const FilenameParameters &list, int row, Column column)
{
    if (column == Column::Kind)
        return CellEditor::Choices;
    const bool isChoice = list.value(row).kind() == FilenameParameter::Kind::Choice;
    return column == Column::Default && isChoice ? CellEditor::Lines : CellEditor::Text;
}

} // namespace

ParameterEditorModel::ParameterEditorModel(QObject *parent)
    : QAbstractTableModel(parent)
    , m_list({[] { return storedParameters(); },
              [](const ListChange &change) {
                  return changeParameters(change);
              }})
    , m_isStored(true)
    , m_rowsSeen(rowCount())
{
}

ParameterEditorModel::ParameterEditorModel(List list, QObject *parent)
    : QAbstractTableModel(parent)
    , m_list(std::move(list))
    , m_isStored(false)
    , m_rowsSeen(rowCount())
{
}

int ParameterEditorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(list().size());
}

int ParameterEditorModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : parameterlist::columnCount;
}

QVariant ParameterEditorModel::data(const QModelIndex &index, int role) const
{
    const auto column = static_cast<Column>(index.column());
    const FilenameParameters list = this->list();
    const QVariant value = parameterlist::shownValue(list, index.row(), column);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return isFlag(column) ? QVariant() : value;
    case Qt::CheckStateRole:
        return isFlag(column) ? QVariant(value.toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::AccessibleTextRole:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString() + QStringLiteral(": ") +
               (isFlag(column) ? (value.toBool() ? tr("on") : tr("off")) : value.toString());
    case Qt::ToolTipRole:
        return column == Column::Default && list.value(index.row()).kind() == FilenameParameter::Kind::Choice
                   ? tr("The choices, each on a line of its own; the first is the default.")
                   : QVariant();
    case CellRole::Editor:
        return QVariant::fromValue(editorOf(list, index.row(), column));
    case CellRole::Items:
        return column == Column::Kind ? QVariant(parameterlist::kindNames()) : QVariant();
    case CellRole::Secondary:
        return !parameterlist::isEditable(list, index.row(), column);
    case CellRole::AccessibleName:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole);
    default:
        return {};
    }
}

QVariant ParameterEditorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const QStringList titles{tr("Title"),   tr("Kind"),     tr("Default"), tr("Folder"),
                                    tr("History"), tr("Required"), tr("Locked")};
    static const QStringList tips{tr("What the value is called"),
                                  tr("How it is filled in"),
                                  tr("What it begins with; for a choice, the choices"),
                                  tr("Begins a new folder level"),
                                  tr("Remembers what was typed, and offers it again (Save History)"),
                                  tr("Must not be empty"),
                                  tr("Cannot be changed in the project pane")};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return titles.value(section);
    return orientation == Qt::Horizontal && role == Qt::ToolTipRole ? tips.value(section) : QVariant();
}

bool ParameterEditorModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto column = static_cast<Column>(index.column());
    QVariant stored;
    if (isFlag(column) && role == Qt::CheckStateRole)
        stored = column == Column::Locked ? QVariant(value.toInt() == Qt::Checked ? 1LL : 0LL)
                                          : QVariant(value.toInt() == Qt::Checked);
    else if (column == Column::Kind && role == Qt::EditRole)
        stored =
            static_cast<qlonglong>(parameterlist::kindNamed(value.toString()).value_or(FilenameParameter::Kind::Text));
    else if (!isFlag(column) && role == Qt::EditRole)
        stored = value.toString();
    else
        return false;
    const FilenameParameters list = this->list();
    bool isShown = !isFlag(column) && value == parameterlist::shownValue(list, index.row(), column);
    if (editorOf(list, index.row(), column) == CellEditor::Lines)
        isShown = parameterlist::tidyChoices(value.toString()) ==
                  parameterlist::tidyChoices(list[index.row()].defaultValue());
    if (isShown || !parameterlist::isEditable(list, index.row(), column))
        return false;
    change([&](const FilenameParameters &now) {
        const auto row = parameterlist::rowOfSame(list, index.row(), now);
        return row ? parameterlist::withEntry(now, static_cast<int>(*row), parameterlist::keyOf(column), stored) : now;
    });
    Q_EMIT dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(parameterlist::columnCount - 1));
    return true;
}

Qt::ItemFlags ParameterEditorModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // between the rows only
    const auto column = static_cast<Column>(index.column());
    // What cannot be changed is part of its row all the same: a disabled cell would be a hole in a selected one.
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled;
    if (parameterlist::isEditable(list(), index.row(), column))
        flags |= isFlag(column) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

QStringList ParameterEditorModel::mimeTypes() const
{
    return {VTPboardType};
}

QMimeData *ParameterEditorModel::mimeData(const QModelIndexList &indexes) const
{
    QList<int> rows;
    for (const QModelIndex &index : indexes) {
        if (!rows.contains(index.row()))
            rows.append(index.row());
    }
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream << rows;
    auto *data = new QMimeData;
    data->setData(VTPboardType, archive);
    return data;
}

Qt::DropActions ParameterEditorModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

bool ParameterEditorModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int, const QModelIndex &) const
{
    return data->hasFormat(VTPboardType);
}

bool ParameterEditorModel::dropMimeData(const QMimeData *data, Qt::DropAction, int row, int, const QModelIndex &parent)
{
    const int dropRow = row >= 0 ? row : parent.isValid() ? parent.row() : rowCount();
    std::optional<parameterlist::Moved> result;
    beginResetModel();
    change([&](const FilenameParameters &list) {
        result = parameterlist::moved(list, rowsOf(*data), dropRow);
        return result ? result->list : list;
    });
    endResetModel();
    if (result)
        Q_EMIT rowsDropped(result->selection);
    return result.has_value();
}

int ParameterEditorModel::addNewFilenameParam()
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    change([](const FilenameParameters &list) { return parameterlist::withNewParameter(list, tr("New Parameter")); });
    endInsertRows();
    return row;
}

void ParameterEditorModel::remove(const QList<int> &rows)
{
    beginResetModel();
    change([&](const FilenameParameters &list) { return parameterlist::without(list, rows); });
    endResetModel();
}

void ParameterEditorModel::restoreDefaultParams()
{
    beginResetModel();
    const FilenameParameters before = list();
    static_cast<void>(restoreShippedParameters()); // the table shows what is stored
    remember({before, list()});
    m_rowsSeen = rowCount();
    endResetModel();
    tellOthers();
    Q_EMIT listChanged();
}

void ParameterEditorModel::reload()
{
    if (rowCount() == std::exchange(m_rowsSeen, rowCount())) {
        if (m_rowsSeen > 0)
            Q_EMIT dataChanged(index(0, 0), index(m_rowsSeen - 1, columnCount() - 1));
    } else {
        beginResetModel();
        endResetModel();
    }
    Q_EMIT listChanged();
}

void ParameterEditorModel::change(const std::function<FilenameParameters(FilenameParameters)> &change)
{
    Edit edit;
    const platform::Outcome stored = m_list.change([&](FilenameParameters list) {
        edit.before = list;
        edit.after = change(std::move(list));
        return platform::Result<FilenameParameters>(edit.after);
    });
    if (stored.ok()) // the table shows what is stored
        remember(edit);
    m_rowsSeen = rowCount();
    tellOthers();
    Q_EMIT listChanged();
}

void ParameterEditorModel::remember(const Edit &edit)
{
    if (edit.before == edit.after)
        return;
    m_done.append(edit);
    m_undone.clear();
}

void ParameterEditorModel::undo()
{
    if (m_done.isEmpty())
        return;
    m_undone.append(m_done.takeLast());
    goTo(m_undone.constLast().before);
}

void ParameterEditorModel::redo()
{
    if (m_undone.isEmpty())
        return;
    m_done.append(m_undone.takeLast());
    goTo(m_done.constLast().after);
}

void ParameterEditorModel::goTo(const FilenameParameters &wanted)
{
    beginResetModel();
    const platform::Outcome stored = m_list.change([&](const FilenameParameters &now) {
        return platform::Result<FilenameParameters>(parameterlist::withValuesOf(wanted, now));
    });
    static_cast<void>(stored); // the table shows what is stored
    m_rowsSeen = rowCount();
    endResetModel();
    tellOthers();
    Q_EMIT listChanged();
}

void ParameterEditorModel::replace(int row, const FilenameParameter &parameter)
{
    const FilenameParameters shown = list();
    change([&](FilenameParameters now) {
        if (const auto there = parameterlist::rowOfSame(shown, row, now)) {
            FilenameParameters wanted = now;
            wanted[*there] = parameter;
            now = parameterlist::withValuesOf(wanted, now); // a number may have been taken meanwhile
        }
        return now;
    });
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ParameterEditorModel::tellOthers() const
{
    if (m_isStored)
        notify();
}

void ParameterEditorModel::notify()
{
    Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams();
    Q_EMIT Notifications::hub().VTTessaroRefreshDynamicValues();
}

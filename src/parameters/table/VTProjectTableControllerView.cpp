// What the table and the line below it show of the values, the one being typed included.
#include "parameters/table/VTProjectTableController.h"

#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTLog.h"
#include "ui/Icons.h"
#include "ui/PathControl.h"
#include "ui/ValueCellDelegate.h"

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
        return parameter.takesSeveral() ? CellEditor::Several : CellEditor::Choices;
    if (parameter.form() == forms::date)
        return CellEditor::Date;
    if (parameter.form() == forms::folder)
        return CellEditor::Folder;
    return parameter.savesHistory() ? CellEditor::History : CellEditor::Text;
}

/// For those to whom colour and lock say nothing.
QString spokenValue(const FilenameParameter &parameter, bool isTypedOver)
{
    const QString value = VTProjectTableController::tr("%1: %2").arg(parameter.title(), parameter.value());
    if (parameter.isLocked())
        return VTProjectTableController::tr("%1, locked").arg(value);
    return parameter.isAutomatic() && !isTypedOver ? VTProjectTableController::tr("%1, automatic").arg(value) : value;
}

} // namespace

QVariant VTProjectTableController::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    return index.column() == TitleColumn ? titleData(m_dataArray[index.row()], role) : valueData(index.row(), role);
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

QVariant VTProjectTableController::valueData(qsizetype row, int role) const
{
    const FilenameParameter &parameter = m_dataArray[row];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return parameter.value();
    case Qt::AccessibleTextRole:
        return spokenValue(parameter, rules::isTypedOver(parameter, m_automatic));
    case Qt::DecorationRole:
        return parameter.isLocked() ? icons::named("lock", icons::Tone::Secondary) : QVariant();
    case CellRole::Editor:
        return QVariant::fromValue(editorOf(parameter));
    case CellRole::Items:
        return parameter.kind() == FilenameParameter::Kind::Choice ? parameter.choices() : parameter.history();
    case CellRole::Secondary:
        return (parameter.isAutomatic() && !rules::isTypedOver(parameter, m_automatic)) ||
               forms::isComputed(m_dataArray, row, computingMoment());
    case CellRole::AccessibleName:
        return parameter.title();
    default:
        return sayingsOf(row, role);
    }
}

/// What is said of a value: a few words beside it, a sentence for the mouse and for those who do not see it.
QVariant VTProjectTableController::sayingsOf(qsizetype row, int role) const
{
    const FilenameParameter &parameter = m_dataArray[row];
    const auto problem = m_problems.value(row, naming::Problem::None);
    if (role == CellRole::IsProblem)
        return problem != naming::Problem::None && problem != naming::Problem::Blank;
    const bool isSentence = role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole;
    if (!isSentence && role != CellRole::Hint)
        return {};
    switch (problem) {
    case naming::Problem::Blank:
        return isSentence ? tr("A project needs this value.") : tr("required");
    case naming::Problem::CountsNoFurther:
        return isSentence
                   ? tr("Counters end at 2147483646. A date in front of a number is better a parameter of its own.")
                   : tr("counts no further");
    case naming::Problem::Form:
        return isSentence ? forms::problemOf(shown(row)) : tr("does not fit");
    case naming::Problem::TooLong:
        return isSentence ? tr("The name of a folder can have 255 bytes, and this one gets more.") : tr("too long");
    case naming::Problem::NoName:
        return isSentence ? tr("No folder can be named like this (nothing, or dots only).") : tr("no name");
    case naming::Problem::None:
        break;
    }
    if (parameter.isFixedByTemplate())
        return isSentence ? tr("The template says this value.") : tr("by the template");
    if (const QString why = forms::problemOfComputed(m_dataArray, row, computingMoment()); !why.isNull())
        return isSentence ? why : tr("not computed");
    if (!rules::isTypedOver(parameter, m_automatic))
        return {};
    return isSentence
               ? tr("Typed in place of “%1”. Delete puts that back.").arg(rules::automaticValue(parameter, m_automatic))
               : tr("typed over");
}

QVariant VTProjectTableController::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    if (orientation == Qt::Horizontal)
        return section == TitleColumn ? tr("Parameter") : tr("Value");
    return section < m_dataArray.size() ? m_dataArray[section].title() : QString();
}

FilenameParameters VTProjectTableController::withTyped() const
{
    FilenameParameters parameters = m_dataArray;
    if (!m_typedCell.isValid())
        return parameters;
    const qsizetype row = m_typedCell.row();
    parameters[row] = rules::withTypedValue(parameters[row], m_typed, settings::strictNaming.isOn());
    return forms::withComputedValues(parameters, m_dataArray, computingMoment(), row);
}

/// As it is being typed.
FilenameParameter VTProjectTableController::shown(qsizetype row) const
{
    return m_typedCell.isValid() && m_typedCell.row() == row ? withTyped()[row] : m_dataArray[row];
}

void VTProjectTableController::showTyped(const QModelIndex &index, const QString &text)
{
    m_typedCell = index;
    m_typed = text;
    updateFilenamePreview();
}

void VTProjectTableController::forgetTyped()
{
    if (!m_typedCell.isValid())
        return;
    m_typedCell = QModelIndex();
    updateFilenamePreview();
}

void VTProjectTableController::forgetRemembered(const QModelIndex &index, const QString &value)
{
    if (!index.isValid()) // another program has taken its parameter away
        return;
    VTLog::appendLog("Removing a value from the history");
    changeRow(index.row(), [&](FilenameParameter parameter) {
        QStringList history = parameter.history();
        history.removeAll(value);
        parameter.setHistory(history);
        return parameter;
    });
}

void VTProjectTableController::showProblems(const FilenameParameters &parameters, const QString &separator)
{
    const auto problems = naming::problems(parameters, separator);
    if (std::exchange(m_problems, problems) != problems && !problems.isEmpty())
        Q_EMIT dataChanged(index(0, ValueColumn), index(rowCount() - 1, ValueColumn),
                           {CellRole::Hint, CellRole::IsProblem, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
}

void VTProjectTableController::updateFilenamePreview()
{
    if (!m_views.previewPathControl)
        return;
    const FilenameParameters shown = withTyped();
    const QString separator = settings::separatorChar.text();
    showProblems(shown, separator);
    const QStringList levels = naming::pathComponents(shown, separator);
    Q_EMIT levelsShown(levels, nextPlace(), shown);
    const QString path = naming::pathName(levels);
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
    m_exists.ask(location, path, [this](bool exists) { showWarning(exists); });
}

void VTProjectTableController::showWarning(bool exists)
{
    if (exists && !m_typedCell.isValid()) // not at every key
        m_views.previewPathControl->raiseOrigin();
    if (m_views.warningImage)
        m_views.warningImage->setVisible(exists);
}

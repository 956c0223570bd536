#include "ui/VTTabbedEditTableView.h"

#include "ui/Colours.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int titleColumn = 0;
constexpr int valueColumn = 1;
constexpr int lowestRow = 30;  // pixels, at least; more where the font needs it
constexpr int titleShare = 40; // per cent of the width
constexpr int roomAroundText = 12;
constexpr double selectionTint = 0.22;
constexpr double idleTint = 0.10; // of a row that the keys do not go to

} // namespace

VTTabbedEditTableView::VTTabbedEditTableView(QWidget *parent)
    : VTTableView(parent)
{
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(true);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(QFrame::NoFrame);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(qMax(lowestRow, fontMetrics().height() + roomAroundText));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void VTTabbedEditTableView::editRow(int row)
{
    const QModelIndex value = model()->index(row, valueColumn);
    if (!value.isValid())
        return;
    setFocus();
    selectRow(row);
    setCurrentIndex(value);
    scrollTo(value);
    if (!(value.flags() & Qt::ItemIsEditable))
        return;
    edit(value);
    if (auto *combo = qobject_cast<QComboBox *>(indexWidget(value)); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
}

void VTTabbedEditTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    Movement movement = Movement::Other;
    if (hint == QAbstractItemDelegate::EditNextItem)
        movement = Movement::Tab;
    else if (hint == QAbstractItemDelegate::EditPreviousItem)
        movement = Movement::Backtab;
    else if (hint == QAbstractItemDelegate::SubmitModelCache)
        movement = Movement::Return;
    // Where to go next is decided here: the inherited movement would also visit the titles.
    const bool moves = movement == Movement::Tab || movement == Movement::Backtab;
    VTTableView::closeEditor(editor, moves ? QAbstractItemDelegate::NoHint : hint);
    moveOn(movement);
}

void VTTabbedEditTableView::moveOn(Movement movement)
{
    const int rows = model() ? model()->rowCount() : 0;
    const int row = firstSelectedRow().value_or(currentIndex().row());
    if (movement == Movement::Other || rows == 0)
        return;
    const int step = movement == Movement::Backtab ? -1 : 1;
    const int end = step < 0 ? rows - 1 : 0; // where it goes on beyond the last
    if (const int next = editableRow(row + step, step); next >= 0)
        return editRow(next);
    const int wrapped = movement == Movement::Return ? -1 : editableRow(end, step);
    if (wrapped >= 0)
        return editRow(wrapped);
    setFocus();
    m_isFilledIn = movement == Movement::Return;
}

/// The first row from there on whose value can be typed; locked ones are passed over. -1: none.
int VTTabbedEditTableView::editableRow(int from, int step) const
{
    int row = from;
    while (row >= 0 && row < model()->rowCount() &&
           !model()->index(row, valueColumn).flags().testFlag(Qt::ItemIsEditable))
        row += step;
    return row < model()->rowCount() ? row : -1;
}

/// Return edits the row, or leads to the next that can be; only a fresh one behind the last value ends the form: one
/// that is held down never does.
bool VTTabbedEditTableView::takeReturn(const QKeyEvent &event)
{
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isReturn || event.modifiers() & ~Qt::KeypadModifier)
        return false;
    if (event.isAutoRepeat())
        return true;
    if (m_isFilledIn)
        Q_EMIT filledIn();
    else if (const int row = editableRow(qMax(0, currentIndex().row()), 1); row >= 0)
        editRow(row);
    else
        m_isFilledIn = true;
    return true;
}

/// Replaces the value of the row that is selected.
bool VTTabbedEditTableView::takePaste(const QKeyEvent &event)
{
    const QModelIndex value = model()->index(currentIndex().row(), valueColumn);
    if (!event.matches(QKeySequence::Paste) || !value.flags().testFlag(Qt::ItemIsEditable))
        return false;
    const QString text = QGuiApplication::clipboard()->text().section(u'\n', 0, 0).trimmed();
    return !text.isEmpty() && model()->setData(value, text, Qt::EditRole);
}

void VTTabbedEditTableView::focusInEvent(QFocusEvent *event)
{
    VTTableView::focusInEvent(event);
    viewport()->update();
}

void VTTabbedEditTableView::focusOutEvent(QFocusEvent *event)
{
    m_isFilledIn = false;
    VTTableView::focusOutEvent(event);
    viewport()->update();
}

void VTTabbedEditTableView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                        const QList<int> &roles)
{
    VTTableView::dataChanged(topLeft, bottomRight, roles);
    if (isEditing())
        updateEditorGeometries();
}

void VTTabbedEditTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    m_isFilledIn = false;
    VTTableView::currentChanged(current, previous);
}

void VTTabbedEditTableView::keyPressEvent(QKeyEvent *event)
{
    if (state() != EditingState && (takeReturn(*event) || takePaste(*event)))
        return;
    if (state() == EditingState || WatchKeys::characterOf(*event) != u'\t')
        return VTTableView::keyPressEvent(event);
    const bool backwards = event->key() == Qt::Key_Backtab || (event->modifiers() & Qt::ShiftModifier);
    const int next = currentIndex().row() + (backwards ? -1 : 1);
    const int row = currentIndex().isValid() ? editableRow(next, backwards ? -1 : 1) : -1;
    if (row < 0)
        return event->ignore(); // beyond the ends the focus goes on to the next control
    editRow(row);
}

void VTTabbedEditTableView::mouseReleaseEvent(QMouseEvent *event)
{
    VTTableView::mouseReleaseEvent(event);
    const QModelIndex clicked = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || clicked.column() != valueColumn || state() == EditingState)
        return;
    editRow(clicked.row());
    if (auto *choices = qobject_cast<QComboBox *>(indexWidget(clicked)); choices && !choices->isEditable())
        choices->showPopup();
}

void VTTabbedEditTableView::resizeEvent(QResizeEvent *event)
{
    VTTableView::resizeEvent(event);
    if (!model() || model()->columnCount() <= valueColumn)
        return;
    const int titles = viewport()->width() * titleShare / 100;
    setColumnWidth(titleColumn, titles);
    setColumnWidth(valueColumn, viewport()->width() - titles);
}

/// A tint under ordinary text marks the row; a full block of the accent colour would outshine the values.
void VTTabbedEditTableView::initViewItemOption(QStyleOptionViewItem *option) const
{
    VTTableView::initViewItemOption(option);
    const double tint = hasFocus() || isEditing() ? selectionTint : idleTint;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QPalette &colours = option->palette;
        colours.setColor(
            group, QPalette::Highlight,
            blended(colours.color(group, QPalette::Base), colours.color(group, QPalette::Highlight), tint));
        colours.setColor(group, QPalette::HighlightedText, colours.color(group, QPalette::Text));
    }
}

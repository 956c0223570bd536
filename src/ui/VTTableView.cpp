#include "ui/VTTableView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

VTTableView::VTTableView(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
}

std::optional<int> VTTableView::firstSelectedRow() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    if (rows.isEmpty())
        return std::nullopt;
    return std::min_element(rows.begin(), rows.end())->row();
}

void VTTableView::finishEditing()
{
    QWidget *editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void VTTableView::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState)
        return QTableView::keyPressEvent(event);
    if (m_keyDown && !m_keyDown(*this, *event))
        QTableView::keyPressEvent(event);
    if (!m_watchKeys.dispatch(WatchKeys::characterOf(*event)) && !m_keyDown)
        QTableView::keyPressEvent(event);
}

void VTTableView::keyReleaseEvent(QKeyEvent *event)
{
    if (state() != EditingState && m_keyUp && m_keyUp(*this, *event))
        return;
    QTableView::keyReleaseEvent(event);
}

void VTTableView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard) { // the menu key means the row that is selected
        if (const QModelIndex clicked = indexAt(event->pos()); clicked.isValid())
            selectRow(clicked.row());
        else
            clearSelection();
    }
    if (m_menu)
        m_menu->popup(event->globalPos());
    else
        QTableView::contextMenuEvent(event);
}

#include "ui/VTTableView.h"

VTTableView::VTTableView(QWidget *parent)
    : KeyWatchingView<QTableView>(parent)
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

bool VTTableView::prepareMenuAt(const QModelIndex &clicked)
{
    if (clicked.isValid())
        selectRow(clicked.row());
    else
        clearSelection();
    return true;
}

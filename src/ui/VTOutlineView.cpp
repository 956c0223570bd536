#include "ui/VTOutlineView.h"

#include "ui/VTImageTextCell.h"
#include "ui/ValueCellDelegate.h"

#include <QDragMoveEvent>
#include <QMimeData>
#include <QPainter>

namespace {

constexpr int placeholderMargin = 24;

/// Where a file manager proposes to move, its originals would be gone; a template takes copies.
void askForCopy(QDropEvent &event)
{
    if (event.mimeData()->hasUrls() && event.possibleActions().testFlag(Qt::CopyAction))
        event.setDropAction(Qt::CopyAction);
}

} // namespace

VTOutlineView::VTOutlineView(QWidget *parent)
    : KeyWatchingView<QTreeView>(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setExpandsOnDoubleClick(false);
}

void VTOutlineView::setPlaceholder(const QString &sentence)
{
    m_placeholder = sentence;
    viewport()->update();
}

bool VTOutlineView::prepareMenuAt(const QModelIndex &clicked)
{
    if (!clicked.isValid() || (m_maySelect && !m_maySelect(clicked)))
        return false;
    // What is selected together stays together.
    if (!selectionModel()->isSelected(clicked))
        selectionModel()->setCurrentIndex(clicked, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return true;
}

void VTOutlineView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_placeholder.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    QColor faint = palette().color(QPalette::Text); // not every palette's own placeholder colour can be read
    faint.setAlphaF(0.6F);
    painter.setPen(faint);
    painter.drawText(viewport()->rect().marginsRemoved(QMargins() + placeholderMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

void VTOutlineView::dragEnterEvent(QDragEnterEvent *event)
{
    askForCopy(*event);
    QTreeView::dragEnterEvent(event);
}

void VTOutlineView::dragMoveEvent(QDragMoveEvent *event)
{
    askForCopy(*event);
    QTreeView::dragMoveEvent(event);
}

void VTOutlineView::dropEvent(QDropEvent *event)
{
    askForCopy(*event);
    QTreeView::dropEvent(event);
}

void VTColoredOutlineView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    const QVariant color = selectionModel()->isSelected(index) ? QVariant() : index.data(CellRole::LabelColor);
    if (color.isValid())
        painter->fillRect(option.rect, color.value<QColor>());
    QStyleOptionViewItem row = option;
    row.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    VTImageTextCell::dimWithoutFocus(row); // before the branches, too
    QTreeView::drawRow(painter, row, index);
}

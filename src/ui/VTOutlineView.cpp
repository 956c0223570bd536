#include "ui/VTOutlineView.h"

#include "ui/Colours.h"

#include "ui/VTImageTextCell.h"
#include "ui/ValueCellDelegate.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr int placeholderMargin = 24;
constexpr int springDelay = 700; // milliseconds
constexpr int stripRoom = 8;
constexpr int besidePointer = 14; // pixels: what is dragged must not hide where it would land

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
    setAutoExpandDelay(springDelay); // a folder opens under what is held over it
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
    if (const QRect strip = topStrip(); m_isDraggedOver && !strip.isEmpty()) {
        QPainter painter(viewport());
        painter.fillRect(strip, m_isOnStrip ? palette().highlight() : palette().window());
        painter.setPen(palette().color(m_isOnStrip ? QPalette::HighlightedText : QPalette::WindowText));
        painter.drawText(strip, Qt::AlignCenter, m_topLevelName);
    }
    if (m_placeholder.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    // Not every palette's own placeholder colour can be read.
    painter.setPen(secondaryText(palette().color(QPalette::Base), palette().color(QPalette::Text)));
    painter.drawText(viewport()->rect().marginsRemoved(QMargins() + placeholderMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

void VTOutlineView::dragEnterEvent(QDragEnterEvent *event)
{
    askForCopy(*event);
    QTreeView::dragEnterEvent(event);
    setDragOver(event->isAccepted());
}

void VTOutlineView::dragLeaveEvent(QDragLeaveEvent *event)
{
    setDragOver(false);
    QTreeView::dragLeaveEvent(event);
}

void VTOutlineView::setDragOver(bool isOver, bool onStrip)
{
    if (m_isDraggedOver == isOver && m_isOnStrip == onStrip)
        return;
    m_isDraggedOver = isOver;
    m_isOnStrip = onStrip;
    viewport()->update();
}

/// Empty where there is room below the rows, or nothing to be said.
QRect VTOutlineView::topStrip() const
{
    const int height = fontMetrics().height() + stripRoom;
    const QRect whole = viewport()->rect();
    const QRect strip(0, whole.height() - height, whole.width(), height);
    const bool hasRoom = !indexAt(strip.topLeft()).isValid() && !indexAt(strip.bottomLeft()).isValid();
    return m_topLevelName.isEmpty() || hasRoom ? QRect() : strip;
}

/// What is dragged is named beside the pointer.
void VTOutlineView::startDrag(Qt::DropActions supported)
{
    const QModelIndexList indexes = selectedIndexes();
    QMimeData *carried = indexes.isEmpty() ? nullptr : model()->mimeData(indexes);
    if (!carried)
        return;
    const QString name = indexes.constFirst().data().toString();
    const QString text = indexes.size() == 1 ? fontMetrics().elidedText(name, Qt::ElideMiddle, viewport()->width() / 2)
                                             : tr("%n items", nullptr, static_cast<int>(indexes.size()));
    QPixmap image(QSize(fontMetrics().horizontalAdvance(text) + 2 * stripRoom, fontMetrics().height() + stripRoom) *
                  devicePixelRatio());
    image.setDevicePixelRatio(devicePixelRatio());
    image.fill(palette().color(QPalette::ToolTipBase));
    QPainter painter(&image);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.drawText(QRectF(QPointF(), image.deviceIndependentSize()), Qt::AlignCenter, text);
    painter.end();
    auto *drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->setPixmap(image);
    drag->setHotSpot(QPoint(-besidePointer, -besidePointer));
    drag->exec(supported, defaultDropAction());
}

void VTOutlineView::dragMoveEvent(QDragMoveEvent *event)
{
    askForCopy(*event);
    const bool onStrip = topStrip().contains(event->position().toPoint());
    setDragOver(true, onStrip);
    if (!onStrip)
        return QTreeView::dragMoveEvent(event);
    if (verticalScrollBar()->value() < verticalScrollBar()->maximum())
        startAutoScroll(); // what is held at the edge goes on
    const auto action = event->dropAction();
    event->setAccepted(model()->canDropMimeData(event->mimeData(), action, -1, -1, {}));
}

void VTOutlineView::dropEvent(QDropEvent *event)
{
    askForCopy(*event);
    const bool onStrip = topStrip().contains(event->position().toPoint());
    setDragOver(false);
    if (!onStrip)
        return QTreeView::dropEvent(event);
    event->setAccepted(model()->dropMimeData(event->mimeData(), event->dropAction(), -1, -1, {}));
    stopAutoScroll();
    setState(NoState);
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

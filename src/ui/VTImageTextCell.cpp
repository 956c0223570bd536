#include "ui/VTImageTextCell.h"

#include "ui/Colours.h"
#include "ui/EditorFocus.h"
#include "ui/Icons.h"
#include "ui/TokenCompleter.h"
#include "ui/ValueCellDelegate.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>
#include <cmath>

namespace {

constexpr int gap = 3;
constexpr int strip = 7; ///< beside the icon's width, what is cut off for it
constexpr int subtitleReserve = 50;
constexpr int rowPadding = 8;
constexpr int badgeSide = 11;
constexpr double fainterSelection = 0.35;
/// On every label, in every palette: at least 9 to 1.
const QColor textOnLabel(0x1a, 0x1a, 0x1a);

QSize imageSize(const QModelIndex &index)
{
    return index.data(Qt::DecorationRole).isValid() ? QSize(VTImageTextCell::iconSide, VTImageTextCell::iconSide)
                                                    : QSize();
}

QColor textColor(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (!isSelected && index.data(CellRole::LabelColor).isValid())
        return textOnLabel;
    const auto group = option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

void drawTinted(QPainter &painter, const QRect &place, const QIcon &icon, const QColor &color,
                QIcon::Mode mode = QIcon::Normal)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    QPixmap pixmap(place.size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter tinting(&pixmap);
    icon.paint(&tinting, QRect(QPoint(), place.size()), Qt::AlignCenter, mode);
    tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tinting.fillRect(QRect(QPoint(), place.size()), color);
    tinting.end();
    painter.drawPixmap(place, pixmap);
}

/// An icon of the program's own takes the text's colour on the highlight, and on a label, which is the same in every
/// palette.
void drawIcon(QPainter &painter, const QRect &place, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
    const bool isPlain = !option.state.testFlag(QStyle::State_Selected) && !index.data(CellRole::LabelColor).isValid();
    const auto mode = option.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled;
    if (isPlain || !icon.isMask())
        return icon.paint(&painter, place, Qt::AlignCenter, mode);
    drawTinted(painter, place, icon, textColor(option, index), mode);
}

/// In the corner of the icon, on a spot of its own, so that it can be told on every icon.
void drawLinkBadge(QPainter &painter, const QRect &place, const QStyleOptionViewItem &option)
{
    QRect corner(QPoint(), QSize(badgeSide, badgeSide));
    corner.moveBottomLeft(place.bottomLeft() + QPoint(-2, 2));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.base());
    painter.drawRoundedRect(corner, 2, 2);
    painter.restore();
    icons::named("link").paint(&painter, corner.adjusted(1, 1, -1, -1));
}

/// From the right; what is left of the row ends where they begin.
int drawBadges(QPainter &painter, const QRect &frame, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    int right = frame.right();
    const QStringList badges = index.data(CellRole::Badges).toStringList();
    for (auto name = badges.crbegin(); name != badges.crend(); ++name) {
        right -= VTImageTextCell::iconSide + gap;
        const QRect place(right, frame.center().y() - VTImageTextCell::iconSide / 2 + 1, VTImageTextCell::iconSide,
                          VTImageTextCell::iconSide);
        drawTinted(painter, place, icons::named(name->toLatin1().constData()), textColor(option, index));
    }
    return right;
}

void drawSubtitle(QPainter &painter, const QRect &frame, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString subtitle = index.data(CellRole::Subtitle).toString();
    if (subtitle.isEmpty())
        return;
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * 0.85);
    const QFontMetrics metrics(font);
    const QVariant color = index.data(CellRole::SubtitleColor);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter.setFont(font);
    painter.setPen(isSelected ? QColor(Qt::white) : color.isValid() ? color.value<QColor>() : QColor(Qt::gray));
    const int width = metrics.horizontalAdvance(subtitle);
    const QString shown = VTImageTextCell::shortenedSubtitle(subtitle, width, frame.width() - subtitleReserve);
    painter.drawText(QPoint(frame.x() + 2, frame.bottom() - metrics.descent()), shown);
}

} // namespace

void VTImageTextCell::dimWithoutFocus(QStyleOptionViewItem &row)
{
    const bool hasKeys = !row.widget || row.widget->hasFocus() || row.widget->isAncestorOf(QApplication::focusWidget());
    if (hasKeys || !row.state.testFlag(QStyle::State_Selected))
        return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor base = row.palette.color(group, QPalette::Base);
        row.palette.setColor(group, QPalette::Highlight,
                             blended(base, row.palette.color(group, QPalette::Highlight), fainterSelection));
        row.palette.setColor(group, QPalette::HighlightedText, row.palette.color(group, QPalette::Text));
    }
}

QSize VTImageTextCell::cellSize(const QSize &inherited, const QSize &image)
{
    return inherited + QSize(qMax(0, image.width()) + gap, 0);
}

QRect VTImageTextCell::imageRectForBounds(const QRect &bounds, const QSize &image)
{
    if (image.isEmpty())
        return {};
    return {QPoint(bounds.x() + gap, static_cast<int>(std::ceil((bounds.height() - image.height()) * 0.5))), image};
}

QRect VTImageTextCell::titleRectForBounds(const QRect &bounds, const QSize &image, bool hasSubtitle)
{
    if (image.isEmpty())
        return {};
    const int shift = image.width() + gap;
    return {bounds.x() + shift, bounds.y() - (hasSubtitle ? shift : image.width()), bounds.width() - shift,
            bounds.height()};
}

QRect VTImageTextCell::textFrame(const QRect &frame, const QSize &image)
{
    return frame.adjusted(qMax(0, image.width()) + strip, 0, 0, 0);
}

QString VTImageTextCell::shortenedSubtitle(const QString &subtitle, int width, int available)
{
    if (width <= available)
        return subtitle;
    const double average = static_cast<double>(width) / static_cast<double>(subtitle.size());
    return subtitle.first(qMax<qsizetype>(0, static_cast<qsizetype>(available / average))) + QStringLiteral("...");
}

void VTImageTextCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    row.icon = {};
    dimWithoutFocus(row);
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget); // selection, focus and hover only

    const QSize image = imageSize(index);
    QRect frame = option.rect;
    painter->save();
    if (!image.isEmpty()) {
        const int y = frame.y() + static_cast<int>(std::ceil((frame.height() - image.height()) * 0.5));
        const QRect place(QPoint(frame.x() + gap, y), image);
        drawIcon(*painter, place, row, index);
        if (index.data(CellRole::IsLink).toBool())
            drawLinkBadge(*painter, place, row);
    }
    frame = textFrame(frame, image);
    frame.setRight(drawBadges(*painter, frame, row, index));
    painter->setFont(row.font);
    painter->setPen(textColor(row, index));
    const QString title = index.data(Qt::DisplayRole).toString().replace(u'\n', u' ').replace(u'\r', u' ');
    painter->drawText(frame, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(title, Qt::ElideRight, frame.width()));
    drawSubtitle(*painter, frame, row, index);
    painter->restore();
}

QSize VTImageTextCell::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize text(option.fontMetrics.horizontalAdvance(index.data(Qt::DisplayRole).toString()) + strip,
                     qMax(option.fontMetrics.height(), iconSide) + rowPadding);
    return cellSize(text, imageSize(index));
}

QWidget *VTImageTextCell::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(tr("Name of %1").arg(index.data(Qt::DisplayRole).toString()));
    if (const QStringList titles = index.data(CellRole::Items).toStringList(); !titles.isEmpty())
        new TokenCompleter(*editor, titles);
    return editor;
}

void VTImageTextCell::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (line && line->isModified()) // the row has changed somehow; what is being typed stays
        return;
    QStyledItemDelegate::setEditorData(editor, index);
    const QVariant stem = index.data(CellRole::StemLength);
    // The view selects everything right after this.
    if (line && stem.isValid())
        QTimer::singleShot(0, line, [line, stem] { line->setSelection(0, stem.toInt()); });
}

bool VTImageTextCell::eventFilter(QObject *editor, QEvent *event)
{
    return !leavesForAnotherWindow(*event) && QStyledItemDelegate::eventFilter(editor, event);
}

void VTImageTextCell::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    editor->setGeometry(textFrame(option.rect, imageSize(index)).adjusted(-2, 0, 0, 0));
}

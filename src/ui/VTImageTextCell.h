#pragma once

#include <QStyledItemDelegate>

/**
 * A row with a small icon, a title beside it and, where there is one, a smaller second line. The icon is the model's
 * decoration, the title its display text, the second line CellRole::Subtitle in CellRole::SubtitleColor (grey without
 * it). A name is edited beside the icon with its stem selected (CellRole::StemLength), so that typing keeps the
 * extension.
 */
class VTImageTextCell : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /** Side of the icons, in device-independent pixels. */
    static constexpr int iconSide = 16;

    // Geometry, in the coordinates of the rectangle handed in. Pure. An empty image size means no image.
    /** Where the keys do not go, the selection is fainter. */
    static void dimWithoutFocus(QStyleOptionViewItem &row);
    [[nodiscard]] static QSize cellSize(const QSize &inherited, const QSize &image);
    /** Its vertical place is measured from 0 and not from the rectangle's own: this must stay. */
    [[nodiscard]] static QRect imageRectForBounds(const QRect &bounds, const QSize &image);
    /** Moved up by the image's width, not its height: this must stay. */
    [[nodiscard]] static QRect titleRectForBounds(const QRect &bounds, const QSize &image, bool hasSubtitle);
    /** What is left for the text beside the icon's strip. */
    [[nodiscard]] static QRect textFrame(const QRect &frame, const QSize &image);
    /** Cut by the average width of its characters, with "..." behind. */
    [[nodiscard]] static QString shortenedSubtitle(const QString &subtitle, int width, int available);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    bool eventFilter(QObject *editor, QEvent *event) override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};

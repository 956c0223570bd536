#pragma once

#include "ui/KeyWatchingView.h"

#include <QTreeView>

/** An outline with watched keys, a sentence where it is empty, and drops that always copy what comes from outside. */
class VTOutlineView : public KeyWatchingView<QTreeView>
{
    Q_OBJECT

public:
    explicit VTOutlineView(QWidget *parent = nullptr);

    /** Asked before a right click selects a row; an item that may not be selected has no menu. */
    using SelectionQuestion = std::function<bool(const QModelIndex &)>;
    void setSelectionQuestion(SelectionQuestion question) { m_maySelect = std::move(question); }
    /** What a strip at the bottom says while something is dragged over rows that leave no room: a drop there goes to
       the top level. */
    void setTopLevelName(const QString &name) { m_topLevelName = name; }
    /** Shown in the middle while there are no rows. */
    void setPlaceholder(const QString &sentence);

protected:
    bool prepareMenuAt(const QModelIndex &clicked) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void startDrag(Qt::DropActions supported) override;

private:
    [[nodiscard]] QRect topStrip() const;
    void setDragOver(bool isOver, bool onStrip = false);

    SelectionQuestion m_maySelect;
    QString m_placeholder;
    QString m_topLevelName;
    bool m_isDraggedOver = false;
    bool m_isOnStrip = false;
};

/** An outline whose rows carry the label colour of their item (CellRole::LabelColor), asked at each drawing. The
   selected row shows its selection instead. */
class VTColoredOutlineView : public VTOutlineView
{
    Q_OBJECT

public:
    using VTOutlineView::VTOutlineView;

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

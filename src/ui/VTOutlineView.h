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
    /** Shown in the middle while there are no rows. */
    void setPlaceholder(const QString &sentence);

protected:
    bool prepareMenuAt(const QModelIndex &clicked) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    SelectionQuestion m_maySelect;
    QString m_placeholder;
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

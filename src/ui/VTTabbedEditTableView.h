#pragma once

#include "ui/VTTableView.h"

/**
 * A two-column form filled in from the keyboard: Tab, Shift-Tab and Return end the current edit and open the next row's
 * value, Tab and Shift-Tab going round at the ends. The value column is always the second one.
 */
class VTTabbedEditTableView : public VTTableView
{
    Q_OBJECT

public:
    explicit VTTabbedEditTableView(QWidget *parent = nullptr);

    /** Selects the row alone and edits its value, the whole text selected; a row that is locked is only selected. */
    void editRow(int row);

Q_SIGNALS:
    /** Return, pressed anew when the last value has been left by Return: the form is filled in. */
    void filledIn();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    /** An editor makes room for what is said of its value. */
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles) override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;

private:
    enum class Movement { Other, Return, Tab, Backtab };
    void moveOn(Movement movement);
    [[nodiscard]] int editableRow(int from, int step) const;
    bool takeReturn(const QKeyEvent &event);
    bool takePaste(const QKeyEvent &event);

    bool m_isFilledIn = false; ///< the last value was left by Return, and nothing has been done since
};

#pragma once

#include "ui/VTTableView.h"

#include <QStyledItemDelegate>

/** Takes the next key press, whichever key it is, as a shortcut. */
class VTShortcutKeyFieldEditor : public QWidget
{
    Q_OBJECT

public:
    explicit VTShortcutKeyFieldEditor(QWidget *parent = nullptr);

Q_SIGNALS:
    void VTShortcutKeyChanged(quint16 keyCode, Qt::KeyboardModifiers modifiers);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/** The table of commands: editing a shortcut captures a key, the delete keys take it away. */
class VTShortcutKeyTableview : public VTTableView
{
    Q_OBJECT

public:
    explicit VTShortcutKeyTableview(QWidget *parent = nullptr);

Q_SIGNALS:
    void keyPressed(int row, quint16 keyCode, Qt::KeyboardModifiers modifiers);
    void cleared();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

#pragma once

#include <QPointer>
#include <QWidget>

/**
 * Says where the keyboard is, where styles say it softly or not at all: a ring around what has the focus, for whoever
 * moves with keys; what the mouse has chosen needs none. Its colour can be told from the window's by 3 to 1 (WCAG 2.1,
 * 1.4.11). One for the program, from its making on; main thread.
 */
class FocusRing : public QObject
{
    Q_OBJECT

public:
    FocusRing();
    ~FocusRing() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *focus);
    void place();

    QPointer<QWidget> m_around;         ///< null: nothing needs it
    QPointer<QWidget> m_ground;         ///< what it is drawn on: the window, what scrolls, or the list itself
    QList<QPointer<QWidget>> m_watched; ///< from the one to the other
    QPointer<QWidget> m_ring;           ///< goes with whatever it is drawn on, and is made anew
};

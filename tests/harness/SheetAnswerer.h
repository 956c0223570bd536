#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/** Waits for sheets and answers them, one after the other, by the titles of their buttons. */
class SheetAnswerer : public QObject
{
public:
    explicit SheetAnswerer(QStringList titles)
        : buttons(std::move(titles))
    {
        connect(&m_timer, &QTimer::timeout, this, &SheetAnswerer::look);
        m_timer.start(5);
    }
    QStringList buttons; ///< still to be pressed
    QStringList seen;

private:
    void look()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            if (!box || !box->isVisible() || buttons.isEmpty())
                continue;
            for (QAbstractButton *button : box->buttons()) {
                if (button->text().remove('&') != buttons.constFirst())
                    continue;
                seen << box->text() + '|' + box->informativeText();
                buttons.removeFirst();
                return button->click();
            }
        }
    }
    QTimer m_timer;
};

#pragma once

#include <QLineEdit>
#include <QStringList>

/**
 * A line with something to pick its value from: a calendar, a panel of folders, a list of which several may be checked.
 * Alt+Down, F4 or the sign at its end opens that; what is picked counts as typed. Main thread only.
 */
class PickEditor : public QLineEdit
{
    Q_OBJECT

public:
    enum class From { Calendar, Folders, Several };
    PickEditor(From from, QStringList items, QWidget *parent = nullptr);

    void pick();

protected:
    bool event(QEvent *event) override;

private:
    void showCalendar();
    void showFolders();
    void showItems();
    QWidget *popUp(QWidget &contents);
    void take(const QString &value);

    const From m_from;
    const QStringList m_items;
};

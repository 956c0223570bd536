#pragma once

#include <QToolButton>

/**
 * Where the next project goes, as the first crumb of its path: shows the folder, and opens a menu of the pinned and
 * the latest ones. Draws and forwards; the menu is filled when it opens.
 */
class PlaceButton : public QToolButton
{
    Q_OBJECT

public:
    explicit PlaceButton(QWidget *parent = nullptr);

    /** Its whole path; empty when nobody has chosen one yet. */
    void setPlace(const QString &folder);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

Q_SIGNALS:
    void placeChosen(const QString &folder);
    /** Another one is wanted, by a panel. */
    void panelWanted();
    void pinned(const QString &folder, bool pinned);

private:
    void fillMenu();
    void addPlaces(const QStringList &places, const char *icon);

    QString m_place;
};

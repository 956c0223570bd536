#pragma once

#include <QStringList>
#include <QWidget>

/**
 * Shows a path as a row of folders, the middle elided when there is no room. As wide as its content where it may be.
 * Draws only.
 */
class PathControl : public QWidget
{
    Q_OBJECT

public:
    explicit PathControl(QWidget *parent = nullptr);

    /** "/Acme/041_Promo" shows two folders; "/" none. */
    void setPath(const QString &path);
    /** The folder that the path begins in: part of the tool tip and of what is read aloud; null for none. */
    void setPlace(const QString &folder);
    [[nodiscard]] QString path() const { return m_path; }

    /**
     * Raises the control's vertical origin by 1.6 points from where it is, so that repeated calls add up; this must
     * stay. What is drawn never leaves the control.
     */
    void raiseOrigin();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void placeChanged(const QString &folder);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] int widthOf(const QString &component) const;
    [[nodiscard]] QStringList fitting(int width) const;

    void show();

    QString m_path;
    QString m_place;
    QStringList m_components;
    qreal m_originRaised = 0;
};

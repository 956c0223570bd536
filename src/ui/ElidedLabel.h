#pragma once

#include <QLabel>

/** A line of plain text that gives way where there is no room: its middle is left out, and the whole stands in the tool
 * tip. */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

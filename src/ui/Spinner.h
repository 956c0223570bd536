#pragma once

#include <QBasicTimer>
#include <QWidget>

/** Turns while something works, or stands there where the desktop wants no animation. Keeps its place when it stands
 * still, so that nothing around it jumps. */
class Spinner : public QWidget
{
    Q_OBJECT

public:
    explicit Spinner(QWidget *parent = nullptr);
    void start();
    void stop();
    [[nodiscard]] bool isSpinning() const { return m_isSpinning; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_timer;
    int m_step = 0;
    bool m_isSpinning = false;
};

#include "ui/Spinner.h"

#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

namespace {

constexpr int steps = 12;
constexpr int stepTime = 80; // milliseconds
constexpr int side = 20;

} // namespace

Spinner::Spinner(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(sizeHint());
    setAccessibleName(tr("Idle"));
}

void Spinner::start()
{
    m_isSpinning = true;
    // Who has asked the desktop for stillness gets a still picture.
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0)
        m_timer.start(stepTime, this);
    setAccessibleName(tr("Working"));
    update();
}

void Spinner::stop()
{
    m_timer.stop();
    m_isSpinning = false;
    setAccessibleName(tr("Idle"));
    update();
}

QSize Spinner::sizeHint() const
{
    return {side, side};
}

void Spinner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QWidget::timerEvent(event);
    m_step = (m_step + 1) % steps;
    update();
}

void Spinner::paintEvent(QPaintEvent *)
{
    if (!isSpinning())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const qreal radius = side / 2.0 - 1;
    for (int i = 0; i < steps; ++i) {
        QColor colour = palette().color(QPalette::WindowText);
        colour.setAlphaF(static_cast<float>((i + 1.0) / steps));
        painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate((m_step + i + 1) * 360.0 / steps);
        painter.drawLine(QPointF(0, -radius), QPointF(0, -radius * 0.55));
        painter.restore();
    }
}

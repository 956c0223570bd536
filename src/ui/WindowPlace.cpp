#include "ui/WindowPlace.h"

#include "support/Settings.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

namespace {

constexpr double usualLineHeight = 15; // pixels: 9 points at 96 to the inch, for which the windows were drawn
constexpr int frame = 40;              // of a window manager, in pixels, title bar included

class PlaceKeeper : public QObject
{
public:
    PlaceKeeper(QWidget &window, const settings::Setting &place)
        : QObject(&window)
        , m_window(window)
        , m_place(place)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            const QByteArray now = m_window.saveGeometry();
            if (m_place.value().toByteArray() != now)
                static_cast<void>(m_place.store(now)); // the log says what could not be kept
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget &m_window;
    const settings::Setting &m_place;
};

} // namespace

bool keepPlaceOf(QWidget &window, const settings::Setting &place)
{
    new PlaceKeeper(window, place);
    return window.restoreGeometry(place.value().toByteArray());
}

void moveOver(QWidget &window, const QWidget &other)
{
    const QRect room = other.screen()->availableGeometry();
    window.resize(window.size().boundedTo(room.size() - QSize(frame, frame)));
    const QPoint wanted = other.frameGeometry().center() - window.rect().center();
    const QPoint last = room.bottomRight() - QPoint(window.width(), window.height() + frame / 2);
    window.move(qMax(room.x(), qMin(wanted.x(), last.x())), qMax(room.y(), qMin(wanted.y(), last.y())));
}

void resizeWithFont(QWidget &window, int width, int height)
{
    const double larger = qMax(1.0, window.fontMetrics().height() / usualLineHeight);
    const QSize room = window.screen()->availableSize() - QSize(frame, frame);
    window.resize((QSizeF(width, height) * larger).toSize().boundedTo(room));
}

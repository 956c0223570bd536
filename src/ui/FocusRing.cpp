#include "ui/FocusRing.h"

#include "ui/Colours.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QRadioButton>
#include <QStyle>

namespace {

constexpr int lineWidth = 2; // pixels, as WCAG 2.2, 2.4.13 asks for
constexpr int outside = 3;   // of a button
constexpr int rounding = 4;
constexpr double leastToSee = 3;

/// A value that is typed in its row has a frame and a caret; a menu marks its line.
bool needsRing(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    const bool isInCell = parent && qobject_cast<const QAbstractItemView *>(parent->parentWidget()) &&
                          !qobject_cast<const QComboBox *>(&widget);
    const bool isInMenu = qobject_cast<const QMenu *>(&widget) || qobject_cast<const QMenuBar *>(&widget);
    return parent && !widget.isWindow() && !isInCell && !isInMenu;
}

class Ring : public QWidget
{
public:
    explicit Ring(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QPalette colours = palette();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(readable(colours.color(QPalette::Highlight), colours.color(QPalette::Window),
                                     colours.color(QPalette::WindowText), leastToSee),
                            lineWidth));
        constexpr double half = lineWidth / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), rounding, rounding);
    }
};

} // namespace

FocusRing::FocusRing()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { follow(now); });
}

FocusRing::~FocusRing()
{
    delete m_ring;
}

void FocusRing::follow(QWidget *focus)
{
    for (const auto &watched : std::as_const(m_watched)) {
        if (watched)
            watched->removeEventFilter(this);
    }
    m_watched.clear();
    m_around = focus && needsRing(*focus) ? focus : nullptr;
    m_ground = m_around;
    // What lies between moves it, too; beyond what scrolls nothing of it is to be seen.
    while (m_ground && !qobject_cast<QAbstractScrollArea *>(m_around) && !m_ground->isWindow() &&
           !qobject_cast<QAbstractScrollArea *>(m_ground->parentWidget())) {
        m_watched.append(m_ground);
        m_ground = m_ground->parentWidget();
    }
    if (m_ground)
        m_watched.append(m_ground);
    for (const auto &watched : std::as_const(m_watched))
        watched->installEventFilter(this);
    place();
}

void FocusRing::place()
{
    if (!m_around || !m_ground || !m_around->isVisible() ||
        !m_around->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        if (m_ring)
            m_ring->hide();
        return;
    }
    if (!m_ring || m_ring->parentWidget() != m_ground) {
        delete m_ring;
        m_ring = new Ring(m_ground);
    }
    QRect area = m_around->rect();
    if (qobject_cast<QCheckBox *>(m_around) || qobject_cast<QRadioButton *>(m_around)) // often as wide as its column
        area = QStyle::alignedRect(m_around->layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                   {qMin(area.width(), m_around->sizeHint().width()), area.height()}, area);
    const bool isInside = m_ground == m_around;
    m_ring->setGeometry(isInside ? area
                                 : area.translated(m_around->mapTo(m_ground.data(), QPoint()))
                                       .adjusted(-outside, -outside, outside, outside));
    m_ring->show();
    m_ring->raise();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_around)
        return false;
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::KeyPress: // the first one after the mouse
        place();
        break;
    case QEvent::MouseButtonPress:
        if (m_ring && watched == m_around)
            m_ring->hide();
        break;
    default:
        break;
    }
    return false;
}

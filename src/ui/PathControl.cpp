#include "ui/PathControl.h"

#include "platform/base/NativePath.h"
#include "ui/Icons.h"

#include <QPainter>

namespace {

constexpr qreal raisedEachTime = 1.6; // points
constexpr int iconSide = 16;
constexpr int chevronSide = 12;
constexpr int gap = 4;
constexpr int verticalRoom = 6;
constexpr int narrowest = 120;

} // namespace

PathControl::PathControl(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(tr("Project folder"));
}

void PathControl::setPath(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    show();
}

void PathControl::setPlace(const QString &folder)
{
    if (std::exchange(m_place, folder) == folder)
        return;
    show();
    Q_EMIT placeChanged(folder);
}

void PathControl::show()
{
    m_components = platform::forDisplay(m_path).split(u'/', Qt::SkipEmptyParts);
    const QStringList all = platform::forDisplay(m_place).split(u'/', Qt::SkipEmptyParts) + m_components;
    setToolTip(QStringLiteral("<qt>%1</qt>").arg(all.join(QStringLiteral(" ▸ ")).toHtmlEscaped()));
    setAccessibleDescription(all.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

void PathControl::raiseOrigin()
{
    m_originRaised += raisedEachTime;
    update();
}

int PathControl::widthOf(const QString &component) const
{
    return chevronSide + gap + iconSide + gap + fontMetrics().horizontalAdvance(component) + 2 * gap;
}

QSize PathControl::sizeHint() const
{
    int width = 1;
    for (const QString &component : m_components)
        width += widthOf(component);
    return {width, qMax(iconSide, fontMetrics().height()) + 2 * verticalRoom};
}

QSize PathControl::minimumSizeHint() const
{
    return {qMin(narrowest, sizeHint().width()), sizeHint().height()};
}

/// The components as they fit: whole ones, else each elided in its middle, the longest first; where even that is too
/// much, levels from the middle are left out.
QStringList PathControl::fitting(int width) const
{
    QStringList shown = m_components;
    const auto widthOfAll = [&](bool elided) {
        const int least = fontMetrics().horizontalAdvance(QStringLiteral("M…M"));
        int sum = 0;
        for (const QString &component : shown) {
            const int advance = fontMetrics().horizontalAdvance(component);
            sum += widthOf(component) - (elided ? qMax(0, advance - least) : 0);
        }
        return sum;
    };
    while (shown.size() > 1 && widthOfAll(true) > width)
        shown.removeAt(shown.size() > 2 ? shown.size() / 2 : 0);
    int excess = widthOfAll(false) - width;
    while (excess > 0) {
        const auto longest = std::max_element(shown.begin(), shown.end(), [this](const QString &a, const QString &b) {
            return fontMetrics().horizontalAdvance(a) < fontMetrics().horizontalAdvance(b);
        });
        const int now = longest == shown.end() ? 0 : fontMetrics().horizontalAdvance(*longest);
        const int ellipsis = fontMetrics().horizontalAdvance(QStringLiteral("M…M"));
        if (now <= ellipsis)
            break;
        *longest = fontMetrics().elidedText(*longest, Qt::ElideMiddle, qMax(ellipsis, qMin(now - 4, now - excess)));
        excess -= now - fontMetrics().horizontalAdvance(*longest);
    }
    return shown;
}

void PathControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int content = qMax(iconSide, fontMetrics().height());
    const qreal top = qMax(0.0, (height() - content) / 2.0 - m_originRaised);
    const auto centred = [&](int side) {
        return top + (content - side) / 2.0;
    };
    qreal x = 0;
    const auto place = [&](const QIcon &icon, int side) {
        icon.paint(&painter, QRectF(x, centred(side), side, side).toRect(), Qt::AlignCenter,
                   isEnabled() ? QIcon::Normal : QIcon::Disabled);
        x += side + gap;
    };
    for (const QString &component : fitting(width())) {
        place(icons::named("chevron-right", icons::Tone::Secondary), chevronSide);
        place(icons::named("folder"), iconSide);
        const int advance = fontMetrics().horizontalAdvance(component);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(x, top, advance + 1.0, content), Qt::AlignVCenter | Qt::AlignLeft, component);
        x += advance + 2 * gap;
    }
}

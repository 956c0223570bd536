#include "app/PlaceButton.h"

#include "platform/base/NativePath.h"
#include "support/RecentPlaces.h"
#include "ui/Icons.h"

#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {

constexpr int widest = 200; // pixels: the project's own levels are what one looks for
constexpr int longestPath = 420;
constexpr int room = 12;

} // namespace

PlaceButton::PlaceButton(QWidget *parent)
    : QToolButton(parent)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setPopupMode(InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIcon(icons::named("folder"));
    setMenu(new QMenu(this));
    menu()->setToolTipsVisible(true);
    connect(menu(), &QMenu::aboutToShow, this, &PlaceButton::fillMenu);
    setPlace({});
}

void PlaceButton::setPlace(const QString &folder)
{
    m_place = folder;
    const QString name = platform::forOneLine(platform::lastComponent(folder));
    const QString shown =
        folder.isEmpty() ? tr("Choose a place…") : fontMetrics().elidedText(name, Qt::ElideMiddle, widest);
    setText(QString(shown).replace(u'&', QLatin1String("&&")));
    const QString path = platform::forDisplay(folder);
    setToolTip(folder.isEmpty() ? tr("Where the project goes") : tr("The project goes to %1").arg(path));
    setAccessibleName(folder.isEmpty() ? tr("Place: none yet") : tr("Place: %1").arg(path));
    updateGeometry();
}

QSize PlaceButton::sizeHint() const
{
    const int content = qMax(fontMetrics().height(), iconSize().height());
    return {iconSize().width() + fontMetrics().horizontalAdvance(text()) + room, content + room};
}

/// Without the arrow of a menu: it would stand between the crumbs like one of their chevrons.
void PlaceButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~(QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::Menu);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void PlaceButton::fillMenu()
{
    menu()->clear();
    const QStringList pins = pinnedPlaces();
    QStringList recent = recentPlaces();
    recent.removeIf([&](const QString &place) { return pins.contains(place); });
    addPlaces(pins, "star");
    if (!pins.isEmpty() && !recent.isEmpty())
        menu()->addSeparator();
    addPlaces(recent, "folder");
    if (!menu()->isEmpty())
        menu()->addSeparator();
    connect(menu()->addAction(tr("&Choose a Folder…")), &QAction::triggered, this, &PlaceButton::panelWanted);
    if (m_place.isEmpty())
        return;
    const bool isPinned = pins.contains(m_place);
    connect(menu()->addAction(isPinned ? tr("&Unpin This Place") : tr("&Pin This Place")), &QAction::triggered, this,
            [this, isPinned] { Q_EMIT pinned(m_place, !isPinned); });
}

void PlaceButton::addPlaces(const QStringList &places, const char *icon)
{
    for (const QString &place : places) {
        QString path = menu()->fontMetrics().elidedText(platform::forOneLine(place), Qt::ElideMiddle, longestPath);
        QAction *action = menu()->addAction(icons::named(icon), path.replace(u'&', QLatin1String("&&")));
        action->setToolTip(platform::forDisplay(place));
        action->setCheckable(place == m_place);
        action->setChecked(place == m_place);
        connect(action, &QAction::triggered, this, [this, place] { Q_EMIT placeChosen(place); });
    }
}

#include "ui/Appearance.h"

#include "ui/Colours.h"

#include <QApplication>
#include <QEvent>

using platform::Appearance;
using platform::DesktopAppearance;

namespace {

constexpr std::array groups{QPalette::Active, QPalette::Inactive, QPalette::Disabled};
/// What is white in a light palette: not black, so that there is something darker for a frame.
constexpr float darkest = 0.12F;

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

QColor furthestFrom(const QColor &ground)
{
    return contrastOf(Qt::black, ground) > contrastOf(Qt::white, ground) ? Qt::black : Qt::white;
}

QColor turned(const QColor &colour)
{
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    float alpha = 0;
    colour.getHslF(&hue, &saturation, &lightness, &alpha);
    return QColor::fromHslF(qMax(0.0F, hue), saturation, darkest + (1 - lightness) * (1 - darkest), alpha);
}

/// What frames and shadows are drawn with follows from button and window, as in any palette.
QPalette turned(const QPalette &palette)
{
    QPalette other(turned(palette.color(QPalette::Button)), turned(palette.color(QPalette::Window)));
    for (const auto group : groups) {
        for (const auto role :
             {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText, QPalette::Base,
              QPalette::AlternateBase, QPalette::Window, QPalette::Button, QPalette::Highlight})
            other.setColor(group, role, turned(palette.color(group, role)));
        other.setColor(group, QPalette::HighlightedText, furthestFrom(other.color(group, QPalette::Highlight)));
        for (const auto role : {QPalette::Link, QPalette::LinkVisited})
            other.setColor(
                group, role,
                readable(turned(palette.color(group, role)), other.color(QPalette::Base), other.color(QPalette::Text)));
        other.setColor(group, QPalette::ToolTipBase, other.color(group, QPalette::Button));
        other.setColor(group, QPalette::ToolTipText, other.color(group, QPalette::ButtonText));
    }
    return other;
}

void heighten(QPalette &palette)
{
    const QColor text = furthestFrom(palette.color(QPalette::Window));
    const QColor base = furthestFrom(text);
    for (const auto group : groups) {
        const bool isGrey = group == QPalette::Disabled;
        palette.setColor(group, QPalette::Base, base);
        palette.setColor(group, QPalette::Window, blended(base, palette.color(group, QPalette::Window), 0.5));
        palette.setColor(group, QPalette::Highlight, readable(palette.color(group, QPalette::Highlight), base, text));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
            palette.setColor(group, role, isGrey ? secondaryText(palette.color(QPalette::Window), text) : text);
        palette.setColor(group, QPalette::ToolTipBase, base);
        palette.setColor(group, QPalette::HighlightedText, furthestFrom(palette.color(group, QPalette::Highlight)));
        palette.setColor(group, QPalette::Link, readable(palette.color(group, QPalette::Link), base, text));
    }
}

/// The style's own would be too light for the text on it, in light and in dark. WCAG 2.1, 1.4.3.
QColor highlightFor(const QPalette &palette, QPalette::ColorGroup group)
{
    const QColor text = palette.color(group, QPalette::HighlightedText);
    return readable(palette.color(group, QPalette::Highlight), text, furthestFrom(text));
}

class Follower : public QObject
{
public:
    Follower(DesktopAppearance &appearance, QObject *parent)
        : QObject(parent)
        , m_appearance(appearance)
    {
        connect(&appearance, &DesktopAppearance::changed, this, [this] { follow(); });
    }

    void follow()
    {
        if (std::exchange(m_isFollowing, true))
            return;
        Appearance wanted = m_appearance.current();
        // A theme that was dark at the start may never hear that it is to be light again.
        m_wasDark = m_wasDark || wanted.scheme == Appearance::Scheme::Dark;
        if (m_wasDark && wanted.scheme == Appearance::Scheme::Any)
            wanted.scheme = Appearance::Scheme::Light;
        if (!m_wasDark && wanted.scheme == Appearance::Scheme::Light)
            wanted.scheme = Appearance::Scheme::Any; // a dark theme was chosen on purpose
        if (m_isSet)
            QApplication::setPalette(QPalette()); // the desktop's comes to light
        const QPalette desktop = QApplication::palette();
        QPalette palette = paletteFor(wanted, desktop);
        if (palette == desktop)
            palette.setResolveMask(0); // nothing else is to be kept from following the desktop
        for (const auto group : groups) {
            palette.setColor(group, QPalette::PlaceholderText, placeholderText(palette));
            if (group != QPalette::Disabled)
                palette.setColor(group, QPalette::Highlight, highlightFor(palette, group));
        }
        m_isSet = palette != desktop;
        if (m_isSet)
            QApplication::setPalette(palette);
        m_isFollowing = false;
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object == QApplication::instance() && event->type() == QEvent::ApplicationPaletteChange)
            follow();
        return false;
    }

private:
    DesktopAppearance &m_appearance;
    bool m_isFollowing = false;
    bool m_isSet = false; ///< something of the palette is not the desktop's
    bool m_wasDark = false;
};

} // namespace

QPalette paletteFor(const Appearance &wanted, const QPalette &desktop)
{
    const bool isAsWanted =
        wanted.scheme == Appearance::Scheme::Any || isDark(desktop) == (wanted.scheme == Appearance::Scheme::Dark);
    QPalette palette = isAsWanted ? desktop : turned(desktop);
    if (wanted.isHighContrast)
        heighten(palette);
    return palette;
}

void followAppearance(DesktopAppearance &appearance)
{
    auto *follower = new Follower(appearance, QApplication::instance());
    follower->follow();
    QApplication::instance()->installEventFilter(follower);
}

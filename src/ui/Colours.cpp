#include "ui/Colours.h"

#include <cmath>

namespace {

constexpr double secondaryShare = 0.62;
/// So much of the accent colour: to be seen as one.
constexpr double accentShare = 0.75;
constexpr double step = 0.05;

/// Of one channel, as WCAG 2.1 defines relative luminance.
double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

QColor readable(const QColor &colour, const QColor &ground, const QColor &text, double least)
{
    for (double share = 0; share < 1; share += step) {
        const QColor mixed = blended(colour, text, share);
        if (contrastOf(mixed, ground) >= least)
            return mixed;
    }
    return text;
}

QColor secondaryText(const QColor &ground, const QColor &text)
{
    return readable(blended(ground, text, secondaryShare), ground, text);
}

QColor placeholderText(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::Text);
    return secondaryText(contrastOf(base, text) < contrastOf(window, text) ? base : window, text);
}

QColor accentText(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Text);
    return readable(blended(text, palette.color(QPalette::Highlight), accentShare), palette.color(QPalette::Base),
                    text);
}

#pragma once

#include <QColor>
#include <QPalette>

/** One colour over another: 0 gives the one under it, 1 the one over it. */
[[nodiscard]] inline QColor blended(const QColor &under, const QColor &over, double share)
{
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a + (b - a) * share);
    };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

/** How well one can be told from the other, from 1 to 21: the contrast ratio of WCAG 2.1. Pure. */
[[nodiscard]] double contrastOf(const QColor &one, const QColor &other);

/** What text needs to be read (WCAG 2.1, 1.4.3). */
inline constexpr double leastContrast = 4.5;

/** The colour, with as much of the text's as it takes to be read on the ground; at the end the text's own. Pure. */
[[nodiscard]] QColor readable(const QColor &colour, const QColor &ground, const QColor &text,
                              double least = leastContrast);

/** Text that steps back, and can be read in every palette. Pure. */
[[nodiscard]] QColor secondaryText(const QColor &ground, const QColor &text);
/** The same for what stands in an empty line: such lines lie on a window's own colour, too. Pure. */
[[nodiscard]] QColor placeholderText(const QPalette &palette);
/** Text in the palette's accent colour, on its base. Pure. */
[[nodiscard]] QColor accentText(const QPalette &palette);

#pragma once

#include <QColor>

/** One colour over another: 0 gives the one under it, 1 the one over it. */
[[nodiscard]] inline QColor blended(const QColor &under, const QColor &over, double share)
{
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a + (b - a) * share);
    };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

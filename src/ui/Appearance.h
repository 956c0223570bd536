#pragma once

#include "platform/desktop/DesktopAppearance.h"

#include <QPalette>

/**
 * The palette for what the desktop wants, made of the desktop's own. That one stays where it is as wanted; else each of
 * its colours gets the lightness that it has on the other side, so that an accent stays one. With more contrast, texts
 * are as far from their ground as they can be. Pure.
 */
[[nodiscard]] QPalette paletteFor(const platform::Appearance &wanted, const QPalette &desktop);

/**
 * The program looks as the desktop wants it from now on, while it runs, too: some themes know one palette only. Hints
 * and placeholders have the text's colour, fainter, in each: some themes leave them as they would be in a light one.
 * Main thread, once, with an application; the appearance lives as long.
 */
void followAppearance(platform::DesktopAppearance &appearance);

#pragma once

class QWidget;

namespace settings {
struct Setting;
}

/**
 * Puts a window where it was when it was last closed, at the size it had, and remembers that when it closes; false, and
 * the window is left as it is, when there is nothing to go by. To be called before it is shown. Main thread.
 */
bool keepPlaceOf(QWidget &window, const settings::Setting &place);

/** The size, made larger as the font is larger than the usual one, but never larger than the screen. */
void resizeWithFont(QWidget &window, int width, int height);

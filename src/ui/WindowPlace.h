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

/** In the middle of the other window, but whole on its screen, where that is large enough. */
void moveOver(QWidget &window, const QWidget &other);

/** The size, made larger as the font is larger than the usual one, but never larger than the screen. */
void resizeWithFont(QWidget &window, int width, int height);

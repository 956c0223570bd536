#pragma once

#include <QIcon>
#include <QString>

/** The program's own icons, drawn in two colours of the palette, so that they suit light and dark. Main thread only. */
namespace icons {

enum class Tone {
    Normal,    ///< in the text colour
    Secondary, ///< fainter, for what only hints
};

/** The icon of the name (the file in resources/images without its extension). */
[[nodiscard]] QIcon named(const char *name, Tone tone = Tone::Normal);

/** The application's icon, in its own colours. */
[[nodiscard]] QIcon application();

} // namespace icons

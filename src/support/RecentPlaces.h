#pragma once

#include <QStringList>

/** Where projects were created, the latest first. In the settings, so that windows and commands share them. Any thread.
 */
constexpr qsizetype rememberedPlaces = 10;
[[nodiscard]] QStringList recentPlaces();
/** What could not be stored is logged: it is a convenience, and the project stands. */
void rememberPlace(const QString &folder);
/** Where the next project goes: the fixed location, where that is on; else where the last one went, which the panel
   begins with. */
[[nodiscard]] QString nextPlace();

#pragma once

#include <QStringList>

/** Where projects were created, the latest first. In the settings, so that windows and commands share them. Any thread.
 */
constexpr qsizetype rememberedPlaces = 10;
[[nodiscard]] QStringList recentPlaces();
/** What could not be stored is logged: it is a convenience, and the project stands. */
void rememberPlace(const QString &folder);
/** The ones that somebody wants to keep at hand, in the order in which they were pinned. */
[[nodiscard]] QStringList pinnedPlaces();
void setPinned(const QString &folder, bool pinned);
/** The next project goes there: it becomes the fixed location where that is on, else the latest one. */
void setNextPlace(const QString &folder);
/** Where the next project goes: the fixed location, where that is on; else where the last one went, which the panel
   begins with. */
[[nodiscard]] QString nextPlace();

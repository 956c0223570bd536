#pragma once

#include <QVariant>

/** The settings that the maker's applications share: "com.vantrel.global.plist" in the user's preferences folder, which
   a person or an installer edits. Read anew at each call. Any thread. */
namespace globalsettings {

/** Invalid without the key or a readable file. */
[[nodiscard]] QVariant value(const QString &key);
/** The string "1" or a true number or boolean; nothing else is on. */
[[nodiscard]] bool isOn(const QString &key);

} // namespace globalsettings

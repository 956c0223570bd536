#pragma once

#include <QIcon>
#include <QString>

/** Icons of files by their type: the desktop's icon theme, else the program's own. Main thread only. */
namespace fileicons {

enum class Kind { File, Folder, Package };

/** By the name alone; the item need not exist. Files of one type share an icon. */
[[nodiscard]] QIcon forName(const QString &name, Kind kind);

} // namespace fileicons

#pragma once

#include "platform/base/Outcome.h"
#include "support/Settings.h"

#include <QString>
#include <functional>

class QWidget;

/** How the preferences take a folder: from a panel, or typed. Main thread. */
namespace folderchoice {

/** A panel that chooses one folder, as a sheet; the function is called when one was chosen. */
void browse(QWidget &window, const QString &title, std::function<void(const QString &)> chosen);

/** The path as it is stored; nothing, after a message, when it cannot be used. */
[[nodiscard]] platform::Result<QString> usablePath(QWidget &window, const settings::Setting &setting,
                                                   const QString &typed);

/** Makes the folder where it is missing; says so when it cannot, and is false then. */
[[nodiscard]] bool makeFolder(QWidget &window, const QString &path);

} // namespace folderchoice

#pragma once

#include <QString>
#include <QUrl>

/** What the desktop does for the user with things outside this program. */
namespace platform {

/** Shows the item in the file browser, else opens its parent folder. The window stays alive meanwhile. Main thread. */
void revealInFileBrowser(const QString &path);
/** With the user's default application. False when the desktop has none for it. Main thread. */
bool openWithDefaultApplication(const QString &path);
bool openAddress(const QUrl &address);

/** Whether a window can be shown: a display that answers, or a platform plug-in chosen by QT_QPA_PLATFORM. Any thread.
 */
[[nodiscard]] bool displayIsAvailable();

} // namespace platform

#pragma once

namespace platform {

/** Before the application object: where the desktop has a portal, the toolkit is told to ask it for file panels. What
   QT_QPA_PLATFORMTHEME says comes first. */
void preferDesktopPanels();

/** Whether the desktop shows file panels itself: it is to be asked, and its portal answers. A portal without the part
   for panels would show none at all. Asked once; up to a second. Main thread. */
[[nodiscard]] bool desktopShowsPanels();

/** Whether the program sees only what the user has handed to it by such a panel. */
[[nodiscard]] bool isSandboxed();

} // namespace platform

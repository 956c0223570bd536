#pragma once

#include <QString>

/** Where the settings protect the templates, asks for an administrator's password, afresh each time. The studio's
   cannot be changed at all, which is said. False: do nothing. */
[[nodiscard]] bool editingIsAllowed();
/** The same without a password, for what the settings do not protect. */
[[nodiscard]] bool studioAllowsEditing();
/** What the settings say alone: the user's own choices need no leave of the studio. */
[[nodiscard]] bool settingsAllowEditing();
/** The same as studioAllowsEditing() of one item, which may be of a library that is not the one in force any more. */
[[nodiscard]] bool studioAllowsChanging(const QString &item);

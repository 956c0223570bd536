#pragma once

/** Where the settings protect the templates, asks for an administrator's password, afresh each time. False: do nothing.
 */
[[nodiscard]] bool editingIsAllowed();

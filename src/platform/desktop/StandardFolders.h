#pragma once

#include <QString>

namespace platform {

enum class FolderKind {
    Applications,
    AdminApplications,
    Documents,
    Desktop,
    Library,
    Caches,
    ApplicationSupport,
    Documentation,
};

enum class FolderDomain { User, Local, System };

/**
 * The conventional folder of a kind, in terms of this process's own user; null where the domain has none. Documents and
 * desktop of the user are the desktop's, with the user's own choice in user-dirs.dirs. As super-user the paths of the
 * user domain begin with superUserHome(). Nothing is made, nothing need exist.
 */
[[nodiscard]] QString standardFolder(FolderKind kind, FolderDomain domain);

/** The super-user's home folder as this desktop writes it. */
[[nodiscard]] QString superUserHome();

/** The per-user temporary folder. */
[[nodiscard]] QString temporaryFolder();

/** A string unique across hosts, processes and time. */
[[nodiscard]] QString uniqueString();

} // namespace platform

#pragma once

#include <string>
#include <vector>

namespace helper {

/** The absolute paths of a user's standard folders as his desktop names them ("Documents", "Dokumente"): what stands in
    .config/user-dirs.dirs of the home. Whatever the file holds, it only adds to what is refused. */
[[nodiscard]] std::vector<std::string> userFolders(const std::string &home);

} // namespace helper

#include "helper/UserFolders.h"

#include "platform/plain/UniqueDescriptor.h"

#include <array>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace helper {

std::vector<std::string> userFolders(const std::string &home)
{
    std::vector<std::string> folders;
    const std::string path = home + "/.config/user-dirs.dirs";
    const platform::UniqueDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    struct stat info;
    std::array<char, 16384> bytes;
    if (!file.isOpen() || fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode))
        return folders;
    const ssize_t length = read(file.get(), bytes.data(), bytes.size());
    std::istringstream lines(std::string(bytes.data(), length > 0 ? static_cast<std::size_t>(length) : 0));
    for (std::string line; std::getline(lines, line);) { // XDG_DOCUMENTS_DIR="$HOME/Dokumente"
        const std::size_t start = line.find("=\"");
        const std::size_t end = line.rfind('"');
        if (line.rfind("XDG_", 0) != 0 || start == std::string::npos || end <= start + 1)
            continue;
        std::string value = line.substr(start + 2, end - start - 2);
        if (value.rfind("$HOME", 0) == 0)
            value.replace(0, 5, home);
        if (value.starts_with('/'))
            folders.push_back(value);
    }
    return folders;
}

} // namespace helper

#include "helper/Plan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>

namespace helper {
namespace {

/// The ways in which the application calls its tools. Nothing else is run, so no option can make more of a tool.
enum class Role {
    Read,      ///< left as it is
    Changed,   ///< the item itself, never what it may lead to
    Written,   ///< where something is put: no link, neither now nor when the tool runs
    NewFolder, ///< may be missing with the folders above it
};
struct Usage
{
    const char *tool;
    std::vector<std::string> options;
    std::vector<Role> paths;
    std::vector<std::string> ontoNothing; ///< added where no folder stands at the destination: it is to stay so
};

const std::array<Usage, 6> usages{{
    {"/bin/cp", {"-f", "-p", "-R"}, {Role::Read, Role::Written}, {"-T", "--remove-destination"}},
    {"/bin/mv", {"-f"}, {Role::Changed, Role::Written}, {"-T"}},
    {"/bin/mkdir", {"-p"}, {Role::NewFolder}, {}},
    {"/bin/rm", {"-Rdf"}, {Role::Changed}, {}},
    {"/bin/rm", {"-R", "-f"}, {Role::Changed}, {}},
    {"/usr/bin/touch", {"-c"}, {Role::Written}, {}},
}};

/// Folders that are refused themselves, and of which every folder right inside is refused too.
constexpr std::array systemParents{"/",    "/usr",   "/usr/local", "/usr/share", "/var",     "/home",
                                   "/etc", "/media", "/mnt",       "/run",       "/Library", "/var/lib"};
/// The same below the home folder of the user who was asked for the password.
constexpr std::array homeParents{"/Library"};
/// Folders of the home that are refused themselves; the home folder, too.
constexpr std::array homeFolders{"",
                                 "/Desktop",
                                 "/Documents",
                                 "/Downloads",
                                 "/Movies",
                                 "/Music",
                                 "/Pictures",
                                 "/Public",
                                 "/Sites",
                                 "/Templates",
                                 "/Videos",
                                 "/Applications",
                                 "/.local",
                                 "/.local/share",
                                 "/.local/share/Trash",
                                 "/.local/share/Trash/files",
                                 "/.config"};

bool isSame(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool isFolderAt(const struct stat &info, const std::string &path)
{
    struct stat other;
    return stat(path.c_str(), &other) == 0 && isSame(info, other);
}

/// By what the path leads to, not by its name: dots, links, slashes and bind mounts make no difference to it.
int refusalOf(int folder, const std::string &name, const std::string &home)
{
    const Descriptor item(openat(folder, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat info;
    if (!item.isOpen() || fstat(item.get(), &info) != 0)
        return 0; // nothing there yet, or no folder
    const Descriptor above(openat(item.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat parent;
    if (!above.isOpen() || fstat(above.get(), &parent) != 0)
        return EPERM;
    const auto isSystem = [&](const std::string &path) {
        return isFolderAt(info, path) || isFolderAt(parent, path);
    };
    if (std::any_of(systemParents.begin(), systemParents.end(), isSystem))
        return EPERM;
    if (!home.empty()) {
        const auto isHomes = [&](const char *below) {
            return isFolderAt(info, home + below);
        };
        const auto isInHomes = [&](const char *below) {
            return isSystem(home + below);
        };
        if (std::any_of(homeFolders.begin(), homeFolders.end(), isHomes) ||
            std::any_of(homeParents.begin(), homeParents.end(), isInHomes))
            return EPERM;
    }
    return info.st_dev != parent.st_dev ? EBUSY : 0;
}

std::string nameOf(const Descriptor &folder)
{
    std::array<char, 4096> name;
    const std::string link = "/proc/self/fd/" + std::to_string(folder.get());
    const ssize_t length = readlink(link.c_str(), name.data(), name.size());
    return std::string(name.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
}

std::vector<std::string> componentsOf(const std::string &path)
{
    std::vector<std::string> components;
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        if (const std::string component = path.substr(at, end - at); !component.empty() && component != ".")
            components.push_back(component);
        at = end + 1;
    }
    return components;
}

/// Opens the folders of the path one by one, none through a link, as far as they exist; the rest stays a name.
int pin(const std::string &path, Descriptor &folder, std::string &rest)
{
    if (path.empty() || path[0] != '/')
        return EINVAL;
    const std::vector<std::string> components = componentsOf(path);
    folder.reset(open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (components.empty())
        return EPERM;
    std::size_t next = 0;
    for (; next + 1 < components.size(); ++next) {
        Descriptor deeper(
            openat(folder.get(), components[next].c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!deeper.isOpen() && errno != ENOENT)
            return errno;
        if (!deeper.isOpen())
            break;
        folder = std::move(deeper);
    }
    rest.clear();
    for (; next < components.size(); ++next) {
        if (components[next] == "..")
            return EINVAL;
        rest += (rest.empty() ? "" : "/") + components[next];
    }
    return 0;
}

/// Makes what is missing above the last component, through no link that appears meanwhile.
int makeFoldersAbove(Descriptor &folder, std::string &rest)
{
    for (std::size_t slash = rest.find('/'); slash != std::string::npos; slash = rest.find('/')) {
        const std::string step = rest.substr(0, slash);
        if (mkdirat(folder.get(), step.c_str(), 0755) != 0 && errno != EEXIST)
            return errno;
        Descriptor deeper(openat(folder.get(), step.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!deeper.isOpen())
            return errno;
        folder = std::move(deeper);
        rest.erase(0, slash + 1);
    }
    return 0;
}

/// A folder that stands there is held open and written into; what is no folder must not become one, or a link.
int holdDestination(Descriptor &folder, std::string &rest, bool &isFolder)
{
    struct stat info;
    if (fstatat(folder.get(), rest.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (S_ISLNK(info.st_mode))
        return ELOOP;
    if (!S_ISDIR(info.st_mode))
        return 0;
    Descriptor held(openat(folder.get(), rest.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!held.isOpen())
        return errno;
    folder = std::move(held);
    rest = ".";
    isFolder = true;
    return 0;
}

bool isCalledSo(const Usage &usage, const std::string &tool, const std::vector<std::string> &arguments)
{
    return tool == usage.tool && arguments.size() == usage.options.size() + usage.paths.size() &&
           std::equal(usage.options.begin(), usage.options.end(), arguments.begin());
}

} // namespace

std::string homeOf(uid_t user)
{
    std::array<char, 16384> buffer;
    passwd record{};
    passwd *found = nullptr;
    const bool known = getpwuid_r(user, &record, buffer.data(), buffer.size(), &found) == 0 && found;
    return known && found->pw_dir[0] == '/' && found->pw_dir[1] != '\0' ? found->pw_dir : std::string();
}

int prepare(const std::string &tool, const std::vector<std::string> &arguments, const std::string &home, Plan &plan)
{
    const auto *usage = std::find_if(usages.begin(), usages.end(),
                                     [&](const Usage &known) { return isCalledSo(known, tool, arguments); });
    if (usage == usages.end())
        return EACCES;
    if (access(tool.c_str(), X_OK) != 0)
        return ENOENT;
    plan = {tool, usage->options, {}, {}};
    for (std::size_t i = 0; i < usage->paths.size(); ++i) {
        const Role role = usage->paths[i];
        Descriptor folder;
        std::string rest;
        int failure = pin(arguments[usage->options.size() + i], folder, rest);
        if (failure == 0 && role != Role::Read)
            failure = refusalOf(folder.get(), rest, home);
        if (failure == 0 && role == Role::NewFolder)
            failure = makeFoldersAbove(folder, rest);
        else if (failure == 0 && rest.find('/') != std::string::npos)
            failure = ENOENT;
        bool isFolder = false;
        if (failure == 0 && role == Role::Written)
            failure = holdDestination(folder, rest, isFolder);
        if (failure != 0)
            return failure;
        if (role == Role::Written && !isFolder)
            plan.arguments.insert(plan.arguments.begin(), usage->ontoNothing.begin(), usage->ontoNothing.end());
        const auto number = Plan::firstFolder + static_cast<int>(plan.folders.size());
        plan.arguments.push_back("/proc/self/fd/" + std::to_string(number) + '/' + rest);
        plan.folderNames.push_back(nameOf(folder));
        plan.folders.push_back(std::move(folder));
    }
    return 0;
}

} // namespace helper

#include "helper/Plan.h"

#include "helper/UserFolders.h"

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
    Plan::Verb verb;
};

const std::array<Usage, 6> usages{{
    {"/bin/cp", {"-f", "-p", "-R"}, {Role::Read, Role::Written}, Plan::Verb::Copy},
    {"/bin/mv", {"-f"}, {Role::Changed, Role::Written}, Plan::Verb::Move},
    {"/bin/mkdir", {"-p"}, {Role::NewFolder}, Plan::Verb::MakeFolders},
    {"/bin/rm", {"-Rdf"}, {Role::Changed}, Plan::Verb::Remove},
    {"/bin/rm", {"-R", "-f"}, {Role::Changed}, Plan::Verb::Remove},
    {"/usr/bin/touch", {"-c"}, {Role::Written}, Plan::Verb::Touch},
}};

/// Nobody's projects lie anywhere below these, and a file there can be as good as a password.
constexpr std::array systemTrees{"/etc", "/usr",   "/boot", "/proc",        "/sys",      "/bin",      "/sbin",
                                 "/lib", "/lib64", "/root", "/run/systemd", "/run/udev", "/var/spool"};
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

/// Files that lie directly in a folder of the system are the system's.
int refusalOfFile(int folder, const std::string &name)
{
    struct stat info;
    struct stat parent;
    if (fstatat(folder, name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0 || fstat(folder, &parent) != 0)
        return 0; // nothing there yet
    const auto isParent = [&](const char *path) {
        return isFolderAt(parent, path);
    };
    return std::any_of(systemParents.begin(), systemParents.end(), isParent) ? EPERM : 0;
}

bool isSystemTree(const struct stat &info)
{
    return std::any_of(systemTrees.begin(), systemTrees.end(),
                       [&](const char *tree) { return isFolderAt(info, tree); });
}

/// The folder itself, or one that it lies in.
bool isInSystemTree(int folder)
{
    platform::UniqueDescriptor at(openat(folder, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat previous
    {
    };
    for (struct stat info; at.isOpen() && fstat(at.get(), &info) == 0; previous = info) {
        if (isSystemTree(info))
            return true;
        if (isSame(info, previous))
            return false; // the root is its own parent
        at.reset(openat(at.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    return true; // it could not be looked at
}

/// By what the path leads to, not by its name: dots, links, slashes and bind mounts make no difference to it.
int refusalOf(int folder, const std::string &name, const std::string &home)
{
    const platform::UniqueDescriptor item(openat(folder, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat info;
    if (isInSystemTree(folder))
        return EPERM;
    if (!item.isOpen())
        return refusalOfFile(folder, name);
    if (fstat(item.get(), &info) != 0)
        return errno;
    const platform::UniqueDescriptor above(openat(item.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
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
        const std::vector<std::string> named = userFolders(home);
        if (std::any_of(named.begin(), named.end(), [&](const std::string &path) { return isFolderAt(info, path); }))
            return EPERM;
    }
    return info.st_dev != parent.st_dev ? EBUSY : 0;
}

std::string nameOf(const platform::UniqueDescriptor &folder)
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
int pin(const std::string &path, platform::UniqueDescriptor &folder, std::string &rest)
{
    if (path.empty() || path[0] != '/')
        return EINVAL;
    const std::vector<std::string> components = componentsOf(path);
    folder.reset(open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (components.empty())
        return EPERM;
    std::size_t next = 0;
    for (; next + 1 < components.size(); ++next) {
        platform::UniqueDescriptor deeper(
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

/// Into a folder that stands there; what is no folder must not become one, or a link.
int holdDestination(platform::UniqueDescriptor &folder, std::string &rest, const std::string &nameInside)
{
    struct stat info;
    if (fstatat(folder.get(), rest.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (S_ISLNK(info.st_mode))
        return ELOOP;
    if (!S_ISDIR(info.st_mode))
        return 0;
    platform::UniqueDescriptor held(openat(folder.get(), rest.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!held.isOpen())
        return errno;
    folder = std::move(held);
    rest = nameInside;
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
    plan = {usage->verb, tool, {}};
    for (std::size_t i = 0; i < usage->paths.size(); ++i) {
        const Role role = usage->paths[i];
        platform::UniqueDescriptor folder;
        std::string rest;
        int failure = pin(arguments[usage->options.size() + i], folder, rest);
        if (failure == 0 && role != Role::Read)
            failure = refusalOf(folder.get(), rest, home);
        if (failure == 0 && role != Role::NewFolder && rest.find('/') != std::string::npos)
            failure = ENOENT;
        if (failure == 0 && role == Role::Written)
            failure = holdDestination(folder, rest, plan.items.empty() ? "." : plan.items.front().name);
        if (failure != 0)
            return failure;
        std::string name = nameOf(folder);
        plan.items.push_back({std::move(folder), rest, std::move(name)});
    }
    return 0;
}

} // namespace helper

#include "platform/base/Users.h"

#include "platform/base/NativePath.h"

#include <array>
#include <optional>
#include <pwd.h>
#include <unistd.h>

namespace platform {
namespace {

/// One look into the user database, by either key.
template <typename LookUp, typename Key> std::optional<Account> found(LookUp lookUp, Key key)
{
    std::array<char, 16384> buffer;
    passwd record{};
    passwd *entry = nullptr;
    if (lookUp(key, &record, buffer.data(), buffer.size(), &entry) != 0 || !entry)
        return std::nullopt;
    return Account{entry->pw_uid, fromNative(entry->pw_name), fromNative(entry->pw_dir)};
}

} // namespace

std::optional<Account> accountOf(uint id)
{
    return found(getpwuid_r, static_cast<uid_t>(id));
}

std::optional<Account> accountOf(const QString &name)
{
    return found(getpwnam_r, toNative(name).constData());
}

bool isSuperUser()
{
    return getuid() == 0;
}

QString loginName()
{
    static const auto account = accountOf(getuid()); // looked up once: every path of the user's asks for it
    return account ? account->name : QString::number(getuid());
}

QString homeFolder()
{
    const QString home = fromNative(qgetenv("HOME"));
    if (home.startsWith(u'/'))
        return home.size() > 1 && home.endsWith(u'/') ? home.chopped(1) : home;
    const auto account = accountOf(getuid());
    return account ? account->home : QStringLiteral("/");
}

QString homeFolderOf(const QString &userName)
{
    if (userName == loginName())
        return homeFolder();
    const auto account = accountOf(userName);
    return account ? account->home : QString();
}

} // namespace platform

#pragma once

#include <QString>
#include <optional>

/** Who runs this process. Any thread. */
namespace platform {

/** An entry of the user database. */
struct Account
{
    uint id = 0;
    QString name;
    QString home;
};
/** Nothing when there is no such user. */
[[nodiscard]] std::optional<Account> accountOf(uint id);
[[nodiscard]] std::optional<Account> accountOf(const QString &name);

/** Real user id 0. */
[[nodiscard]] bool isSuperUser();

/** Login name and home folder of this process's user. The home is $HOME where set, as shells and tools understand it.
 */
[[nodiscard]] QString loginName();
[[nodiscard]] QString homeFolder();

/** Home folder of the named user by the user database; null when there is no such user. */
[[nodiscard]] QString homeFolderOf(const QString &userName);

} // namespace platform

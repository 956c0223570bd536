#include "platform/process/ConsoleUser.h"

#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Module.h"

#include <optional>

namespace platform {
namespace {

/// The active session of the first seat, asked of logind; an empty optional when no login service answers.
std::optional<QString> activeLogin()
{
    if (!targetExists(QStringLiteral("/run/systemd/seats")) ||
        !targetExists(QStringLiteral("/run/dbus/system_bus_socket")))
        return std::nullopt;
    static Module bus("bus");
    using Door = bool (*)(QString &);
    const auto door = reinterpret_cast<Door>(bus.door("tessaro_active_login"));
    QString name;
    return door && door(name) ? std::optional<QString>(name) : std::nullopt;
}

QString callerOfSudo()
{
    for (const char *variable : {"SUDO_UID", "PKEXEC_UID"}) {
        bool isNumber = false;
        const uint id = qEnvironmentVariable(variable).toUInt(&isNumber);
        if (const auto account = isNumber ? accountOf(id) : std::nullopt)
            return account->name;
    }
    return loginName();
}

} // namespace

QString consoleUser()
{
    const std::optional<QString> active = activeLogin();
    return active ? *active : callerOfSudo();
}

} // namespace platform

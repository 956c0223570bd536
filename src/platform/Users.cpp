#include "platform/Users.h"

#include "platform/FileSystem.h"
#include "platform/NativePath.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMetaType>
#include <QDBusReply>
#include <array>
#include <optional>
#include <pwd.h>
#include <unistd.h>

namespace platform {
namespace {

struct Account
{
    QString name;
    QString home;
};

std::optional<Account> accountOf(uid_t id)
{
    std::array<char, 16384> buffer;
    passwd record{};
    passwd *found = nullptr;
    if (getpwuid_r(id, &record, buffer.data(), buffer.size(), &found) != 0 || !found)
        return std::nullopt;
    return Account{fromNative(found->pw_name), fromNative(found->pw_dir)};
}

std::optional<Account> accountOf(const QString &name)
{
    std::array<char, 16384> buffer;
    passwd record{};
    passwd *found = nullptr;
    if (getpwnam_r(toNative(name).constData(), &record, buffer.data(), buffer.size(), &found) != 0 || !found)
        return std::nullopt;
    return Account{fromNative(found->pw_name), fromNative(found->pw_dir)};
}

/// The active session of the first seat, asked of logind; an empty optional when no login service answers.
std::optional<QString> activeLogin()
{
    if (!targetExists(QStringLiteral("/run/systemd/seats")) || !targetExists(QStringLiteral("/run/dbus")))
        return std::nullopt;
    const auto bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, QStringLiteral("tessaro-login"));
    QDBusInterface seat(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1/seat/seat0"),
                        QStringLiteral("org.freedesktop.login1.Seat"), bus);
    seat.setTimeout(2000);
    if (!bus.isConnected() || !seat.isValid())
        return std::nullopt;
    QDBusMessage get = QDBusMessage::createMethodCall(
        seat.service(), seat.path(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << seat.interface() << QStringLiteral("ActiveSession");
    const QDBusMessage answer = bus.call(get, QDBus::Block, 2000);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        return std::nullopt;
    const auto value = answer.arguments().constFirst().value<QDBusVariant>().variant().value<QDBusArgument>();
    QString session;
    QDBusObjectPath path;
    value.beginStructure();
    value >> session >> path;
    value.endStructure();
    if (session.isEmpty()) { // nobody at the screen; a server without a screen counts as having no login service
        const bool hasScreen = seat.property("CanGraphical").toBool();
        return hasScreen ? std::optional<QString>(QString()) : std::nullopt;
    }
    QDBusInterface login(seat.service(), path.path(), QStringLiteral("org.freedesktop.login1.Session"), bus);
    return login.property("Name").toString();
}

QString callerOfSudo()
{
    for (const char *variable : {"SUDO_UID", "PKEXEC_UID"}) {
        bool isNumber = false;
        const uint id = qEnvironmentVariable(variable).toUInt(&isNumber);
        if (const auto account = isNumber ? accountOf(static_cast<uid_t>(id)) : std::nullopt)
            return account->name;
    }
    return loginName();
}

} // namespace

bool isSuperUser()
{
    return getuid() == 0;
}

QString loginName()
{
    const auto account = accountOf(getuid());
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

QString consoleUser()
{
    const std::optional<QString> active = activeLogin();
    return active ? *active : callerOfSudo();
}

} // namespace platform

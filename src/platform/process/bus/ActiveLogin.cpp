// In the module "bus": see ConsoleUser.h.
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMetaType>
#include <QDBusReply>
#include <optional>

namespace {

/// The active session of the first seat, asked of logind; an empty optional when no login service answers.
std::optional<QString> activeLogin()
{
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
    // The greeter that waits for somebody to log in has a session, too.
    const bool isPerson = login.property("Class").toString() == u"user";
    return isPerson ? login.property("Name").toString() : QString();
}

} // namespace

/// False when no login service answers.
extern "C" Q_DECL_EXPORT bool tessaro_active_login(QString &name)
{
    const std::optional<QString> active = activeLogin();
    name = active.value_or(QString());
    return active.has_value();
}

#include "platform/desktop/GlobalShortcuts.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QRandomGenerator>

/// As the portal takes one: its identifier, and what is known of it.
struct PortalShortcut
{
    QString identifier;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(PortalShortcut)

static QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.identifier << shortcut.properties;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.identifier >> shortcut.properties;
    argument.endStructure();
    return argument;
}

namespace platform {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktopPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfaceName = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// Where the portal will put the answer: the sender's name without its colon, and dots as underscores.
QString requestPath(const QString &token)
{
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    return desktopPath + QStringLiteral("/request/%1/%2").arg(sender.replace(u'.', u'_'), token);
}

} // namespace

GlobalShortcuts::GlobalShortcuts(QObject *parent)
    : QObject(parent)
{
    auto *watcher =
        new QDBusServiceWatcher(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &GlobalShortcuts::ownerChanged);
}

void GlobalShortcuts::ownerChanged(const QString &, const QString &, const QString &now)
{
    m_session.clear(); // it went with its owner
    if (!now.isEmpty())
        bind(std::exchange(m_shortcuts, {}));
}

/// The same shortcuts may be asked for again.
void GlobalShortcuts::fail(const QString &reason)
{
    m_shortcuts.clear();
    closeSession();
    Q_EMIT failed(reason);
}

void GlobalShortcuts::sessionClosed()
{
    m_session.clear();
    fail(tr("The desktop has ended its global shortcuts."));
}

GlobalShortcuts::~GlobalShortcuts()
{
    closeSession();
}

void GlobalShortcuts::ask(QObject &context, std::function<void(bool)> answer)
{
    const auto bus = QDBusConnection::sessionBus();
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, desktopPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << interfaceName << QStringLiteral("version");
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), &context);
    connect(watcher, &QDBusPendingCallWatcher::finished, &context, [watcher, answer = std::move(answer)] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        answer(!reply.isError() && reply.value().variant().toUInt() >= 1);
    });
}

void GlobalShortcuts::bind(const QList<Shortcut> &shortcuts)
{
    if (std::exchange(m_shortcuts, shortcuts) == shortcuts)
        return;
    closeSession(); // a session takes its shortcuts once
    if (!m_shortcuts.isEmpty())
        createSession();
}

/// The answer may come before the call returns: who listens for it asks for its path beforehand, by a token.
void GlobalShortcuts::request(const char *method, QVariantList arguments, QVariantMap options, const char *answer)
{
    auto bus = QDBusConnection::sessionBus();
    const QString token = QStringLiteral("tessaro%1_%2").arg(++m_requests).arg(QRandomGenerator::global()->generate());
    options.insert(QStringLiteral("handle_token"), token);
    bus.connect(service, requestPath(token), requestInterface, QStringLiteral("Response"), this, answer);
    QDBusMessage call = QDBusMessage::createMethodCall(service, desktopPath, interfaceName, QLatin1String(method));
    arguments.append(options);
    call.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        if (watcher->isError())
            fail(watcher->error().message());
        watcher->deleteLater();
    });
}

void GlobalShortcuts::createSession()
{
    const QString token = QStringLiteral("tessaro%1").arg(QRandomGenerator::global()->generate());
    request("CreateSession", {}, {{QStringLiteral("session_handle_token"), token}},
            SLOT(sessionCreated(uint, QVariantMap)));
}

void GlobalShortcuts::sessionCreated(uint response, const QVariantMap &results)
{
    const QString session = results.value(QStringLiteral("session_handle")).toString();
    if (response != 0 || session.isEmpty()) {
        return fail(tr("The desktop did not give its global shortcuts."));
    }
    closeSession(); // the last one asked for counts
    m_session = session;
    QDBusConnection::sessionBus().connect(service, session, QStringLiteral("org.freedesktop.portal.Session"),
                                          QStringLiteral("Closed"), this, SLOT(sessionClosed()));
    QDBusConnection::sessionBus().connect(service, desktopPath, interfaceName, QStringLiteral("Activated"), this,
                                          SLOT(shortcutActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    bindInSession();
}

void GlobalShortcuts::bindInSession()
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    QList<PortalShortcut> list;
    for (const Shortcut &shortcut : std::as_const(m_shortcuts)) {
        PortalShortcut entry{shortcut.identifier, {{QStringLiteral("description"), shortcut.description}}};
        if (!shortcut.trigger.isEmpty())
            entry.properties.insert(QStringLiteral("preferred_trigger"), shortcut.trigger);
        list.append(entry);
    }
    request("BindShortcuts", {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(list), QString()},
            {}, SLOT(shortcutsBound(uint, QVariantMap)));
}

void GlobalShortcuts::shortcutsBound(uint response, const QVariantMap &)
{
    if (response != 0)
        fail(tr("The desktop did not take the shortcuts."));
}

void GlobalShortcuts::shortcutActivated(const QDBusObjectPath &session, const QString &identifier, qulonglong,
                                        const QVariantMap &)
{
    if (session.path() == m_session)
        Q_EMIT activated(identifier);
}

void GlobalShortcuts::closeSession()
{
    if (m_session.isEmpty())
        return;
    QDBusConnection::sessionBus().send(QDBusMessage::createMethodCall(service, std::exchange(m_session, {}),
                                                                      QStringLiteral("org.freedesktop.portal.Session"),
                                                                      QStringLiteral("Close")));
}

} // namespace platform

#include "platform/desktop/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

namespace platform {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfaceName = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");

} // namespace

DesktopAppearance::DesktopAppearance(QObject *parent)
    : QObject(parent)
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // before the first message nothing is connected by the type's name
    bus.connect(service, path, interfaceName, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    // A portal that is started later, or anew, may say something else.
    auto *watcher = new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &DesktopAppearance::ask);
    ask();
}

void DesktopAppearance::ask()
{
    delete m_asked;
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interfaceName, QStringLiteral("ReadAll"));
    call << QStringList{appearanceGroup};
    m_asked = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(m_asked, &QDBusPendingCallWatcher::finished, this, &DesktopAppearance::takeAnswer);
}

const Appearance &DesktopAppearance::current()
{
    if (m_asked && m_asked->isFinished())
        takeAnswer();
    return m_current;
}

void DesktopAppearance::takeAnswer()
{
    if (!m_asked)
        return; // current() has been quicker than the event loop
    const QDBusMessage reply = m_asked->reply();
    std::exchange(m_asked, nullptr)->deleteLater();
    const auto argument = reply.arguments().value(0).value<QDBusArgument>();
    if (reply.type() != QDBusMessage::ReplyMessage || argument.currentSignature() != u"a{sa{sv}}")
        return; // there is no portal, or one that knows no settings
    const Appearance before = std::exchange(m_current, {});
    const QVariantMap values = qdbus_cast<QMap<QString, QVariantMap>>(argument).value(appearanceGroup);
    for (auto value = values.begin(); value != values.end(); ++value)
        take(value.key(), *value);
    if (m_current != before)
        Q_EMIT changed();
}

void DesktopAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    const Appearance before = m_current;
    if (group == appearanceGroup)
        take(key, value.variant());
    if (m_current != before)
        Q_EMIT changed();
}

/// The numbers are the portal's; those that it does not define are no preference.
void DesktopAppearance::take(const QString &key, const QVariant &value)
{
    const uint number = value.toUInt();
    if (key == u"color-scheme")
        m_current.scheme = number == 1   ? Appearance::Scheme::Dark
                           : number == 2 ? Appearance::Scheme::Light
                                         : Appearance::Scheme::Any;
    else if (key == u"contrast")
        m_current.isHighContrast = number == 1;
}

} // namespace platform

#include "platform/desktop/SessionNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>

void platform::postSessionNotification(const QString &name)
{
    const auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        bus.send(QDBusMessage::createSignal(QStringLiteral("/com/vantrel/Notifications"),
                                            QStringLiteral("com.vantrel.Notifications"), name));
}

#include "platform/desktop/LauncherEntry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

void platform::showInLauncher(std::optional<double> fraction)
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage update =
        QDBusMessage::createSignal(QStringLiteral("/com/vantrel/Tessaro/LauncherEntry"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://com.vantrel.Tessaro.desktop")
           << QVariantMap{{QStringLiteral("progress"), fraction.value_or(0)},
                          {QStringLiteral("progress-visible"), fraction.has_value()}};
    bus.send(update);
}

#include "platform/desktop/DesktopPanels.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace platform {
namespace {

constexpr const char *theme = "QT_QPA_PLATFORMTHEME";
constexpr const char *portalTheme = "xdgdesktopportal";
/// Since then it chooses folders, too.
constexpr uint firstWithFolders = 3;
constexpr int patience = 1000; // milliseconds

bool portalAnswers()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << QStringLiteral("org.freedesktop.portal.FileChooser") << QStringLiteral("version");
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, patience);
    return reply.type() == QDBusMessage::ReplyMessage &&
           reply.arguments().value(0).value<QDBusVariant>().variant().toUInt() >= firstWithFolders;
}

} // namespace

void preferDesktopPanels()
{
    // The portal's own folder of documents: looking for it costs nothing, and asking the bus would slow every start.
    const QString documents = joined(qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("doc"));
    if (!qEnvironmentVariableIsSet(theme) && (isSandboxed() || leadsToFolder(documents)))
        qputenv(theme, portalTheme);
}

bool desktopShowsPanels()
{
    static const bool shows = qgetenv(theme).contains(portalTheme) && portalAnswers();
    return shows;
}

bool isSandboxed()
{
    return targetExists(QStringLiteral("/.flatpak-info"));
}

} // namespace platform

#include "platform/desktop/Desktop.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/FileAddress.h"
#include "platform/files/FileSystem.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QGuiApplication>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace platform {
namespace {

constexpr int fileBrowserPatience = 5000; // milliseconds; a file browser may have to be started first

bool askFileBrowser(const QString &address)
{
    QDBusMessage show = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    show << QStringList{address} << QString(QLatin1String(""));
    const auto bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.call(show, QDBus::Block, fileBrowserPatience).type() == QDBusMessage::ReplyMessage;
}

bool waylandAnswers()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QString socket = fromNative(name);
    return kindOf(name.startsWith('/') ? socket : joined(fromNative(qgetenv("XDG_RUNTIME_DIR")), socket)) !=
           FileKind::Missing;
}

/// Whether the local X server's socket takes a connection: a tenth of what a whole connection costs.
bool localXServerAnswers(const QString &number)
{
    const UniqueDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = "/tmp/.X11-unix/X" + toNative(number);
    if (!socket.isOpen() || path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    return connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

bool xServerAnswers()
{
    const QString display = fromNative(qgetenv("DISPLAY"));
    if (display.isEmpty())
        return false;
    const QString number = display.mid(1).section(u'.', 0, 0);
    if (display.startsWith(u':') && localXServerAnswers(number))
        return true;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

void revealInFileBrowser(const QString &path)
{
    const QString address = fileAddress(path);
    if (!resultInBackground([&] { return askFileBrowser(address); }))
        openWithDefaultApplication(parentPath(path));
}

bool openWithDefaultApplication(const QString &path)
{
    return openAddress(QUrl::fromEncoded(fileAddress(path).toLatin1()));
}

bool openAddress(const QUrl &address)
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) && QDesktopServices::openUrl(address);
}

bool displayIsAvailable()
{
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || waylandAnswers() || xServerAnswers();
}

} // namespace platform

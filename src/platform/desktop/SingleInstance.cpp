#include "platform/desktop/SingleInstance.h"

#include "platform/base/NativePath.h"
#include "platform/desktop/FileAddress.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QUrl>
#include <QVariantMap>
#include <functional>

namespace platform {
namespace {

const QString serviceName = QStringLiteral("com.vantrel.Tessaro");
const QString objectPath = QStringLiteral("/com/vantrel/Tessaro");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
constexpr int patience = 3000; // milliseconds

QString pathOf(const QString &address)
{
    const QUrl url(address);
    return url.isLocalFile() ? fromNative(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()))
                             : QString();
}

/// The object on the bus: what others call, turned into signals.
class ApplicationObject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationObject(SingleInstance &instance)
        : QObject(&instance)
        , m_instance(instance)
    {
    }

public Q_SLOTS:
    void Activate(const QVariantMap &)
    {
        later([this] { Q_EMIT m_instance.activated(); });
    }
    void Open(const QStringList &addresses, const QVariantMap &)
    {
        QStringList paths;
        for (const QString &address : addresses) {
            if (const QString path = pathOf(address); !path.isEmpty())
                paths.append(path);
        }
        later([this, paths] { Q_EMIT m_instance.filesOpened(paths); });
    }
    void ActivateAction(const QString &identifier, const QVariantList &parameters, const QVariantMap &)
    {
        // A path is handed over as an address, because text on the bus is UTF-8.
        const QString value = parameters.isEmpty() ? QString() : pathOf(parameters.constFirst().toString());
        later([this, identifier, value] { Q_EMIT m_instance.actionRequested(identifier, value); });
    }

private:
    /// The caller is answered at once: what it asks for may show a sheet that stays for hours.
    void later(const std::function<void()> &what) { QMetaObject::invokeMethod(this, what, Qt::QueuedConnection); }

    SingleInstance &m_instance;
};

} // namespace

bool SingleInstance::handOver(const Request &request)
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(serviceName))
        return false;
    const QString method = !request.action.isEmpty()  ? QStringLiteral("ActivateAction")
                           : !request.files.isEmpty() ? QStringLiteral("Open")
                                                      : QStringLiteral("Activate");
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, method);
    if (!request.action.isEmpty()) {
        call << request.action << (request.value.isNull() ? QVariantList() : QVariantList{fileAddress(request.value)});
    } else if (!request.files.isEmpty()) {
        QStringList addresses;
        for (const QString &file : request.files)
            addresses.append(fileAddress(file));
        call << addresses;
    }
    call << QVariantMap();
    const QDBusMessage reply = bus.call(call, QDBus::Block, patience);
    // One that is too busy to answer carries the call out when it gets to it: a second window would do all of it twice.
    const QDBusError::ErrorType error = QDBusError(reply).type();
    return reply.type() == QDBusMessage::ReplyMessage || error == QDBusError::NoReply || error == QDBusError::Timeout ||
           error == QDBusError::TimedOut;
}

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
{
    auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected() &&
        bus.registerObject(objectPath, new ApplicationObject(*this), QDBusConnection::ExportAllSlots))
        bus.registerService(serviceName);
}

SingleInstance::~SingleInstance()
{
    auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        bus.unregisterService(serviceName);
        bus.unregisterObject(objectPath);
    }
}

} // namespace platform

#include "SingleInstance.moc"

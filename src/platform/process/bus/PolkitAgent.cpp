// In the module "bus": see AuthenticationAgent.h.
#include "platform/process/AuthenticationAgent.h"

#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "platform/process/Secret.h"
#include "platform/process/SocketProcess.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QThread>
#include <cstring>
#include <optional>
#include <unistd.h>

/// polkit's way to name who may authenticate, and for whom: a kind and its details.
struct PolkitIdentity
{
    QString kind;
    QVariantMap details;
};
Q_DECLARE_METATYPE(PolkitIdentity)
Q_DECLARE_METATYPE(QList<PolkitIdentity>)

QDBusArgument &operator<<(QDBusArgument &argument, const PolkitIdentity &identity)
{
    argument.beginStructure();
    argument << identity.kind << identity.details;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PolkitIdentity &identity)
{
    argument.beginStructure();
    argument >> identity.kind >> identity.details;
    argument.endStructure();
    return argument;
}

namespace platform {

namespace {

const QString connectionName = QStringLiteral("tessaro-authentication");
const QString objectPath = QStringLiteral("/com/vantrel/Tessaro/AuthenticationAgent");
constexpr int patience = 5000; // milliseconds

/// In clock ticks since the system's start: with the process's number it names this very process.
quint64 startTimeOfThisProcess()
{
    const QByteArray line = readFile(QStringLiteral("/proc/self/stat")).valueOr({});
    // The name, in brackets, may hold anything; the start time is the twentieth field after it.
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(19).toULongLong();
}

PolkitIdentity thisProcess()
{
    return {QStringLiteral("unix-process"),
            {{QStringLiteral("pid"), static_cast<uint>(getpid())},
             {QStringLiteral("start-time"), QVariant::fromValue(startTimeOfThisProcess())},
             {QStringLiteral("uid"), static_cast<int>(getuid())}}};
}

QByteArray polkitsHelper()
{
    for (const char *folder : {"/usr/lib/polkit-1", "/usr/libexec", "/usr/libexec/polkit-1", "/usr/lib/policykit-1"}) {
        const QString path = QString::fromLatin1(folder) + QStringLiteral("/polkit-agent-helper-1");
        if (isExecutableFile(path))
            return toNative(path);
    }
    return {};
}

/// One authentication: polkit's helper asks line by line and says at the end how it went.
void authenticate(const QByteArray &user, const QByteArray &cookie, const QByteArray &password)
{
    SocketProcess helperProcess;
    if (!helperProcess.start({polkitsHelper(), user}, {"LANG=C.UTF-8"}).ok())
        return;
    const auto say = [&](const QByteArray &line) {
        return helperProcess.write(line.constData(), static_cast<std::size_t>(line.size())) &&
               helperProcess.write("\n", 1);
    };
    bool open = say(cookie);
    bool answered = false;
    QByteArray heard;
    while (open) {
        const QByteArray bytes = helperProcess.read();
        heard += bytes;
        for (qsizetype end = heard.indexOf('\n'); end >= 0; end = heard.indexOf('\n')) {
            const QByteArray line = heard.first(end);
            heard.remove(0, end + 1);
            if (line.startsWith("PAM_PROMPT_ECHO_OFF") && !std::exchange(answered, true))
                open = say(password);
            else if (line.startsWith("PAM_PROMPT") || line == "SUCCESS" || line == "FAILURE")
                open = false; // a second question is one that we have no answer to
        }
        open = open && !bytes.isEmpty();
    }
}

class AgentObject : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PolicyKit1.AuthenticationAgent")

public:
    AgentObject(QString userName, const Secret &password)
        : m_userName(std::move(userName))
        , m_password(password)
    {
    }

    int enlist()
    {
        qDBusRegisterMetaType<PolkitIdentity>();
        qDBusRegisterMetaType<QList<PolkitIdentity>>();
        qDBusRegisterMetaType<QMap<QString, QString>>();
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, connectionName);
        if (!bus.isConnected() || !bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots))
            return qMax(1, static_cast<int>(bus.lastError().type()));
        return call(bus, QStringLiteral("RegisterAuthenticationAgent"),
                    {QVariant::fromValue(thisProcess()), QStringLiteral("C.UTF-8"), objectPath});
    }

    void leave()
    {
        {
            const QDBusConnection bus(connectionName);
            call(bus, QStringLiteral("UnregisterAuthenticationAgent"),
                 {QVariant::fromValue(thisProcess()), objectPath});
        }
        QDBusConnection::disconnectFromBus(connectionName);
    }

public Q_SLOTS:
    /// Returns when the authentication is over, however it went: polkit's own helper has told polkit.
    void BeginAuthentication(const QString &, const QString &, const QString &, const QMap<QString, QString> &,
                             const QString &cookie, const QList<PolkitIdentity> &identities)
    {
        const std::optional<Account> user = accountOf(m_userName);
        const bool mayAnswer =
            user && std::any_of(identities.begin(), identities.end(), [&](const PolkitIdentity &one) {
                return one.kind == u"unix-user" && one.details.value("uid").toUInt() == user->id;
            });
        if (mayAnswer)
            authenticate(toNative(m_userName), cookie.toUtf8(), m_password.bytes());
        else
            sendErrorReply(QStringLiteral("org.freedesktop.PolicyKit1.Error.Failed"),
                           QStringLiteral("not an administrator"));
    }
    void CancelAuthentication(const QString &) {} // polkit's helper has been heard by then, or hears it itself

private:
    static int call(const QDBusConnection &bus, const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.PolicyKit1"), QStringLiteral("/org/freedesktop/PolicyKit1/Authority"),
            QStringLiteral("org.freedesktop.PolicyKit1.Authority"), method);
        message.setArguments(arguments);
        const QDBusMessage answer = bus.call(message, QDBus::Block, patience);
        return answer.type() == QDBusMessage::ReplyMessage ? 0 : qMax(1, static_cast<int>(QDBusError(answer).type()));
    }

    QString m_userName;
    const Secret &m_password;
};

/// polkit asks on a thread of its own here: whoever waits for the rights may be the main thread.
class BusAgent : public AuthenticationAgent::Work
{
public:
    BusAgent(const QString &userName, const Secret &password)
        : m_object(userName, password)
    {
        m_object.moveToThread(&m_thread);
        m_thread.start();
        QMetaObject::invokeMethod(
            &m_object, [this] { m_error = m_object.enlist(); }, Qt::BlockingQueuedConnection);
    }
    ~BusAgent() override
    {
        QMetaObject::invokeMethod(
            &m_object, [this] { m_object.leave(); }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    [[nodiscard]] int error() const override { return m_error; }

private:
    QThread m_thread;
    AgentObject m_object;
    int m_error = 0;
};

} // namespace
} // namespace platform

extern "C" Q_DECL_EXPORT platform::AuthenticationAgent::Work *
tessaro_make_authentication_agent(const QString &userName, const platform::Secret &password)
{
    return new platform::BusAgent(userName, password);
}

#include "PolkitAgent.moc"

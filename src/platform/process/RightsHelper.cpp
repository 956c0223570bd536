#include "platform/process/RightsHelper.h"

#include "helper/Protocol.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/plain/StartedThread.h"
#include "platform/process/SocketProcess.h"

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <map>
#include <mutex>
#include <sys/prctl.h>
#include <thread>

using helper::Message;
using helper::MessageType;

namespace platform {
namespace {

const QString pkexec = QStringLiteral("/usr/bin/pkexec");

/// pkexec's status for a question that was dismissed (pkexec(1)); 127 is every other refusal.
constexpr int dismissed = 126;

/// pkexec refuses odd values; everything else is cleared by it anyway.
QByteArrayList plainEnvironment()
{
    return {"SHELL=/bin/sh", "LANG=C.UTF-8", "PATH=/usr/sbin:/usr/bin:/sbin:/bin"};
}

/// The path with the links on the way to its last component resolved; as it is where this user cannot look.
QString resolved(const QString &path)
{
    QString existing = parentPath(path);
    QString rest = lastComponent(path);
    while (!existing.isEmpty() && existing != u"/" && kindOf(existing) == FileKind::Missing) {
        rest = lastComponent(existing) + u'/' + rest;
        existing = parentPath(existing);
    }
    return path.startsWith(u'/') ? joined(realPath(existing), rest) : path;
}

/// While it is counted, no other process of the user can read this one's memory or take its descriptors.
class NotDumpable
{
public:
    NotDumpable()
    {
        const std::scoped_lock lock(mutex());
        if (count()++ == 0) {
            before() = prctl(PR_GET_DUMPABLE);
            prctl(PR_SET_DUMPABLE, 0);
        }
    }
    ~NotDumpable()
    {
        const std::scoped_lock lock(mutex());
        if (--count() == 0)
            prctl(PR_SET_DUMPABLE, before() == 1 ? 1 : 0);
    }
    NotDumpable(const NotDumpable &) = delete;
    NotDumpable &operator=(const NotDumpable &) = delete;

private:
    static std::mutex &mutex()
    {
        static std::mutex one;
        return one;
    }
    static int &count()
    {
        static int number = 0;
        return number;
    }
    static int &before()
    {
        static int value = 1;
        return value;
    }
};

} // namespace

struct RightsHelper::Private
{
    struct Tool
    {
        QString path;
        bool started = false;
        bool ended = false;
        int error = 0;
        ToolEnd end;
    };

    NotDumpable notDumpable;
    SocketProcess helperProcess;
    Complaint complaint;
    helper::Decoder decoder;
    std::thread reader;

    std::mutex mutex;
    std::mutex writing; ///< held while one message goes out, so that two do not mix
    std::condition_variable changed;
    bool alive = false;
    bool isRetired = false;
    quint32 lastNumber = 0;
    std::map<quint32, Tool> tools;

    /// Blocks until the helper says that it is there. False when pkexec ended instead.
    [[nodiscard]] bool awaitReady()
    {
        Message message;
        for (;;) {
            const auto result = decoder.next(message);
            if (result == helper::Decoder::Result::Complete)
                return message.type == MessageType::Ready;
            const QByteArray bytes = helperProcess.read();
            if (result == helper::Decoder::Result::Broken || bytes.isEmpty())
                return false;
            decoder.add(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        }
    }

    void readAnswers()
    {
        Message message;
        for (auto result = decoder.next(message); result != helper::Decoder::Result::Broken;
             result = decoder.next(message)) {
            if (result == helper::Decoder::Result::Complete) {
                take(message);
                continue;
            }
            const QByteArray bytes = helperProcess.read();
            if (bytes.isEmpty())
                break;
            decoder.add(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        }
        endAll();
        static_cast<void>(helperProcess.hangUpAndWait()); // whoever retired it does not wait for it
    }

    void take(const Message &message)
    {
        ToolEnd said;
        {
            const std::scoped_lock lock(mutex);
            const auto found = tools.find(message.id);
            if (found == tools.end())
                return;
            Tool &tool = found->second;
            tool.started = tool.started || message.type == MessageType::Started;
            tool.ended = message.type != MessageType::Started;
            if (message.type == MessageType::Refused)
                tool.error = message.status;
            if (message.type == MessageType::Ended && !message.texts.empty())
                tool.end = {tool.path, message.status, fromNative(message.texts[0].c_str()).trimmed()};
            if (message.type == MessageType::Ended)
                said = tool.end;
        }
        changed.notify_all();
        if (complaint && (!said.ok() || !said.errorText.isEmpty()))
            complaint(said);
        const std::scoped_lock lock(mutex);
        hangUpWhenRetired();
    }

    /// With the lock held.
    void hangUpWhenRetired()
    {
        const auto runs = [](const auto &numbered) {
            return !numbered.second.ended;
        };
        if (isRetired && std::none_of(tools.begin(), tools.end(), runs))
            helperProcess.hangUp();
    }

    void endAll()
    {
        std::vector<ToolEnd> cut;
        {
            const std::scoped_lock lock(mutex);
            alive = false;
            for (auto &[number, tool] : tools) {
                if (tool.ended)
                    continue;
                tool.ended = true;
                tool.error = tool.started ? 0 : EPIPE;
                tool.end = {tool.path, EPIPE, QStringLiteral("ended with the administrator rights")};
                cut.push_back(tool.end);
            }
        }
        changed.notify_all();
        for (const ToolEnd &end : cut) {
            if (complaint)
                complaint(end);
        }
    }
};

RightsHelper::RightsHelper(std::unique_ptr<Private> parts)
    : d(std::move(parts))
{
    d->alive = true;
    d->reader = startedThread([this] { d->readAnswers(); });
    d->alive = d->reader.joinable(); // without somebody who reads the answers there are no rights
}

RightsHelper::~RightsHelper()
{
    d->helperProcess.hangUp();
    if (d->reader.joinable())
        d->reader.join();
    d->helperProcess.hangUpAndWait();
}

QString RightsHelper::path()
{
    return joined(ApplicationBundle::main().path(), QStringLiteral("Contents/Helpers/tessaro-helper"));
}

std::shared_ptr<RightsHelper> RightsHelper::start(Complaint complaint, bool *wasDismissed)
{
    if (wasDismissed)
        *wasDismissed = false;
    if (!isExecutableFile(pkexec) || !isExecutableFile(path()))
        return nullptr;
    auto parts = std::make_unique<Private>();
    parts->complaint = std::move(complaint);
    // Without its text agent: a question in a terminal that nobody looks at would wait for ever.
    if (!parts->helperProcess
             .start({toNative(pkexec), "--disable-internal-agent", toNative(path())}, plainEnvironment())
             .ok())
        return nullptr;
    if (!parts->awaitReady()) {
        const int status = parts->helperProcess.hangUpAndWait();
        if (wasDismissed)
            *wasDismissed = status == dismissed;
        return nullptr;
    }
    return std::shared_ptr<RightsHelper>(new RightsHelper(std::move(parts)));
}

void RightsHelper::end()
{
    d->helperProcess.hangUp();
    std::unique_lock lock(d->mutex);
    d->changed.wait(lock, [&] { return !d->alive; });
}

void RightsHelper::retire()
{
    const std::scoped_lock lock(d->mutex);
    d->isRetired = true;
    d->hangUpWhenRetired();
}

bool RightsHelper::isAlive() const
{
    const std::scoped_lock lock(d->mutex);
    return d->alive && !d->isRetired;
}

bool RightsHelper::hasEnded() const
{
    const std::scoped_lock lock(d->mutex);
    return !d->alive;
}

QStringList RightsHelper::withoutLinks(const QStringList &arguments)
{
    QStringList paths;
    for (const QString &argument : arguments)
        paths.append(argument.startsWith(u'/') ? resolved(argument) : argument);
    return paths;
}

RightsHelper::Ticket RightsHelper::run(const QString &tool, const QStringList &arguments)
{
    Message request{MessageType::Run, 0, 0, {toNative(tool).toStdString()}};
    for (const QString &argument : arguments)
        request.texts.push_back(toNative(argument).toStdString());
    Ticket ticket;
    {
        const std::scoped_lock lock(d->mutex);
        if (!d->alive || d->isRetired)
            return {EPIPE, 0};
        request.id = ticket.number = ++d->lastNumber;
        d->tools[ticket.number].path = tool;
    }
    const auto bytes = helper::encode(request);
    {
        const std::scoped_lock lock(d->writing);
        ticket.error = !bytes ? E2BIG : d->helperProcess.write(bytes->data(), bytes->size()) ? 0 : EPIPE;
    }
    std::unique_lock lock(d->mutex);
    Private::Tool &entry = d->tools[ticket.number];
    if (ticket.error == 0) {
        d->changed.wait(lock, [&] { return entry.started || entry.ended; });
        ticket.error = entry.error;
    }
    if (ticket.error != 0)
        d->tools.erase(ticket.number);
    return ticket;
}

RightsHelper::ToolEnd RightsHelper::waitFor(const Ticket &ticket)
{
    std::unique_lock lock(d->mutex);
    const auto found = d->tools.find(ticket.number);
    if (found == d->tools.end())
        return {{}, ticket.error, {}};
    d->changed.wait(lock, [&] { return found->second.ended; });
    const ToolEnd end = found->second.end;
    d->tools.erase(found);
    return end;
}

} // namespace platform

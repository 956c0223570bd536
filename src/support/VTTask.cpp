#include "support/VTTask.h"

#include "platform/base/Console.h"
#include "platform/base/MainThread.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Packages.h"
#include "platform/plain/StartedThread.h"
#include "platform/process/ChildProcess.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <condition_variable>

using platform::ChildProcess;
using Output = ChildProcess::Output;
using ErrorOutput = ChildProcess::ErrorOutput;

namespace {

void complain(const QString &text)
{
    platform::printToConsole(text);
    // As text, not as a format: a path may hold a percent sign.
    VTLog::appendLog("%@", text);
}

void endTimedOut(const VTTask::Child &child)
{
    if (!child || !child->isRunning())
        return;
    platform::printToConsole("Task timed out. Terminating...");
    VTLog::appendLog("Task %@ timed out. Terminating...", child->tool());
    child->terminate();
}

/// The started tool, or nothing.
VTTask::Child startedTask(const QString &tool, const QStringList &arguments, Output output, ErrorOutput errorOutput,
                          VTTask::ChildSlot *slot)
{
    if (!platform::isExecutableFile(tool) || platform::isPackage(tool)) {
        complain(platform::formatString("Error: %@ is not executable", tool));
        return {};
    }
    auto child = std::make_shared<ChildProcess>(tool, arguments);
    if (!child->start(output, errorOutput).ok()) {
        complain(platform::formatString("Error: %@ is not executable", tool));
        return {};
    }
    if (slot) {
        slot->set(child);
        if (slot->isExpired()) // a time-out of no seconds may be over before the tool is there
            endTimedOut(child);
    }
    return child;
}

QString decoded(const std::optional<QByteArray> &bytes, VTTask::Encoding encoding)
{
    if (!bytes)
        return {};
    if (bytes->isEmpty())
        return QString(QLatin1String(""));
    const bool isAscii =
        std::all_of(bytes->cbegin(), bytes->cend(), [](char c) { return static_cast<uchar>(c) < 128; });
    const bool decodes = encoding == VTTask::Encoding::Ascii ? isAscii : bytes->isValidUtf8();
    return decodes ? QString::fromUtf8(*bytes) : QString();
}

/// Ends the tool of a run made elsewhere when the time is up. The timer sleeps on a thread of its own, the ending is
/// handed to the main thread and not waited for: a run that blocks the main thread is never cut short, and never hangs.
class TimeLimit
{
public:
    TimeLimit(double seconds, std::shared_ptr<VTTask::ChildSlot> slot)
        : m_slot(std::move(slot))
    {
        const auto whole = std::chrono::seconds(seconds < 1 ? 0 : static_cast<long long>(seconds));
        m_timer = platform::startedThread([this, whole] {
            std::unique_lock lock(m_mutex);
            if (m_changed.wait_for(lock, whole, [this] { return m_over; }))
                return;
            platform::MainThread::perform([slot = m_slot] { endTimedOut(slot->expire()); }, platform::Waiting::No);
        });
    }
    ~TimeLimit()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_over = true;
            m_changed.notify_all();
        }
        if (m_timer.joinable())
            m_timer.join();
        m_slot->set({});
    }
    TimeLimit(const TimeLimit &) = delete;
    TimeLimit &operator=(const TimeLimit &) = delete;

private:
    std::shared_ptr<VTTask::ChildSlot> m_slot;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_over = false;
    std::thread m_timer;
};

template <typename Run> auto withTimeLimit(double timeout, Run run)
{
    const auto slot = std::make_shared<VTTask::ChildSlot>();
    const TimeLimit limit(timeout, slot);
    return run(slot.get());
}

} // namespace

bool VTTask::runTask(const QString &tool, const QStringList &arguments, ChildSlot *task)
{
    const Child child = startedTask(tool, arguments, Output::Discarded, ErrorOutput::Discarded, task);
    if (child)
        child->waitUntilExit();
    return child != nullptr;
}

void VTTask::runTaskAndReturn(const QString &tool, const QStringList &arguments)
{
    const Child child = startedTask(tool, arguments, Output::Discarded, ErrorOutput::Discarded, nullptr);
    static_cast<void>(child); // collects itself in the background
}

int VTTask::terminationCodeFromTask(const QString &tool, const QStringList &arguments, ChildSlot *task)
{
    const Child child = startedTask(tool, arguments, Output::Discarded, ErrorOutput::Discarded, task);
    return child ? child->waitUntilExit() : -1;
}

std::optional<QByteArray> VTTask::dataFromTask(const QString &tool, const QStringList &arguments, ChildSlot *task)
{
    const Child child = startedTask(tool, arguments, Output::Captured, ErrorOutput::Captured, task);
    if (!child)
        return std::nullopt;
    QByteArray output;
    QByteArray error;
    for (QByteArray chunk = child->readOutput(); !chunk.isEmpty(); chunk = child->readOutput())
        output += chunk;
    for (QByteArray chunk = child->readErrorOutput(); !chunk.isEmpty(); chunk = child->readErrorOutput())
        error += chunk;
    child->closeOutputs();
    return error.isEmpty() ? output : error;
}

QString VTTask::stringFromTask(const QString &tool, const QStringList &arguments, Encoding encoding, ChildSlot *task)
{
    return decoded(dataFromTask(tool, arguments, task), encoding);
}

bool VTTask::runTask(const QString &tool, const QStringList &arguments, double timeout)
{
    return withTimeLimit(timeout, [&](ChildSlot *slot) { return runTask(tool, arguments, slot); });
}

int VTTask::terminationCodeFromTask(const QString &tool, const QStringList &arguments, double timeout)
{
    return withTimeLimit(timeout, [&](ChildSlot *slot) { return terminationCodeFromTask(tool, arguments, slot); });
}

std::optional<QByteArray> VTTask::dataFromTask(const QString &tool, const QStringList &arguments, double timeout)
{
    return withTimeLimit(timeout, [&](ChildSlot *slot) { return dataFromTask(tool, arguments, slot); });
}

QString VTTask::stringFromTask(const QString &tool, const QStringList &arguments, double timeout, Encoding encoding)
{
    return decoded(dataFromTask(tool, arguments, timeout), encoding);
}

/// One run: what it holds is let go when the reading thread is through with it.
struct VTTask::AsyncRun
{
    Child child;
    Delegate delegate;
    QVariant object;
};

VTTask::~VTTask()
{
    terminateAsyncTask();
    joinReader();
}

void VTTask::joinReader()
{
    if (!m_reader.joinable())
        return;
    if (m_reader.get_id() == std::this_thread::get_id())
        return m_reader.detach(); // the delegate lets go of its own task
    // The delegate may be waiting for the main thread.
    while (platform::MainThread::isCurrent() && QCoreApplication::instance() && !m_state->isRead)
        platform::MainThread::turnLoop(std::chrono::milliseconds(10));
    m_reader.join();
}

void VTTask::asyncDataFromTask(const QString &tool, const QStringList &arguments, Delegate delegate, QVariant object)
{
    terminateAsyncTask();
    joinReader();
    auto run = std::make_shared<AsyncRun>();
    run->child = std::make_shared<ChildProcess>(tool, arguments);
    run->delegate = std::move(delegate);
    run->object = std::move(object);
    {
        const std::scoped_lock lock(m_state->mutex);
        m_state->run = run;
        m_state->isRead = false;
    }
    const auto read = [this, state = m_state, run] {
        launchAsyncTask(state, run);
        state->isRead = true;
    };
    m_reader = platform::startedThread(read);
    if (!m_reader.joinable())
        read();
}

void VTTask::launchAsyncTask(const std::shared_ptr<State> &state, const std::shared_ptr<AsyncRun> &run)
{
    const Child child = run->child;
    if (child->tool().isNull()) {
        VTLog::appendLog("Unable to launch async task - no task set");
        return;
    }
    if (child->start(Output::Captured, ErrorOutput::Discarded).ok()) {
        for (QByteArray chunk = child->readOutput(); !chunk.isEmpty(); chunk = child->readOutput()) {
            if (!asyncTaskReturnData(*state, run, chunk))
                return child->terminate(); // stopped, perhaps before the tool was there to be stopped
        }
    } else {
        complain(platform::formatString("Error: %@ is not executable", child->tool()));
    }
    asyncTaskReturnData(*state, run, {});
}

bool VTTask::asyncTaskReturnData(State &state, const std::shared_ptr<AsyncRun> &run, const QByteArray &chunk)
{
    {
        const std::scoped_lock lock(state.mutex);
        if (state.run != run) // stopped meanwhile: its delegate hears no more
            return false;
    }
    if (run->delegate)
        run->delegate(chunk, *this, run->object);
    if (!chunk.isEmpty())
        return true;
    // Not by way of the task: at its last chunk the delegate may have begun another run, or let go of the task itself.
    run->child->terminate();
    const std::scoped_lock lock(state.mutex);
    if (state.run == run)
        state.run.reset();
    return true;
}

void VTTask::terminateAsyncTask()
{
    std::shared_ptr<AsyncRun> run;
    {
        const std::scoped_lock lock(m_state->mutex);
        run = std::exchange(m_state->run, nullptr);
    }
    if (run)
        run->child->terminate();
}

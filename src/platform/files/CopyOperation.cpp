#include "platform/files/CopyOperation.h"

#include "platform/base/MainThread.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/TreeCopy.h"
#include "platform/plain/StartedThread.h"

#include <QCoreApplication>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

namespace platform {
namespace {

constexpr std::chrono::seconds betweenReports{1};

/// All copies that run, so that the application's end can end them.
class Running
{
public:
    static Running &all()
    {
        static auto *one = new Running; // outlives every thread
        return *one;
    }
    void enter(CopyOperation *operation)
    {
        const std::scoped_lock lock(m_mutex);
        m_operations.insert(operation);
    }
    void leave(CopyOperation *operation)
    {
        const std::scoped_lock lock(m_mutex);
        m_operations.erase(operation);
        m_changed.notify_all();
    }
    void endAll()
    {
        std::unique_lock lock(m_mutex);
        for (CopyOperation *operation : m_operations)
            operation->cancel();
        m_changed.wait(lock, [this] { return m_operations.empty(); });
    }

private:
    Running()
    {
        qAddPostRoutine([] { all().endAll(); });
    }
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<CopyOperation *> m_operations;
};

/// Calls once a second on a thread of its own until it is destroyed.
class Ticker
{
public:
    explicit Ticker(std::function<void()> tick)
        : m_thread(startedThread([this, tick = std::move(tick)] { work(tick); }))
    {
    }
    ~Ticker()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_over = true;
        }
        m_changed.notify_all();
        if (m_thread.joinable())
            m_thread.join();
    }
    Ticker(const Ticker &) = delete;
    Ticker &operator=(const Ticker &) = delete;

private:
    void work(const std::function<void()> &tick)
    {
        std::unique_lock lock(m_mutex);
        while (!m_changed.wait_for(lock, betweenReports, [this] { return m_over; }))
            tick();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_over = false;
    std::thread m_thread; // last: it starts using the others at once
};

} // namespace

CopyOperation::Ref CopyOperation::start(const QString &source, const QString &destination, Reports reports)
{
    const Ref operation(new CopyOperation);
    Running::all().enter(operation.get());
    const auto copy = [operation, source, destination, reports = std::move(reports)] {
        const auto begin = std::chrono::steady_clock::now();
        const TreeSize total = measureTree(source, operation->m_monitor.cancelled);
        Outcome outcome;
        Losses losses;
        {
            const Ticker ticker([&] {
                const CopyMonitor &monitor = operation->m_monitor;
                const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
                const Progress progress{monitor.bytes, total.bytes, monitor.items, total.items,
                                        static_cast<double>(monitor.bytes) / elapsed.count()};
                MainThread::perform([=] { reports.running(operation, progress); }, Waiting::No);
            });
            outcome = copyItem(source, destination, &losses, &operation->m_monitor);
        }
        MainThread::perform([=] { reports.ended(operation, outcome, losses); }, Waiting::No);
        Running::all().leave(operation.get());
    };
    if (std::thread thread = startedThread(copy); thread.joinable())
        thread.detach();
    else
        copy();
    return operation;
}

} // namespace platform

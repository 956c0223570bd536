#include "platform/base/SerialQueue.h"

#include "platform/plain/StartedThread.h"

namespace platform {

SerialQueue::~SerialQueue()
{
    drain();
    {
        const std::scoped_lock lock(m_mutex);
        m_ending = true;
        m_changed.notify_all();
    }
    if (m_worker.joinable())
        m_worker.join();
}

void SerialQueue::add(Operation operation)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_operations.push_back(std::move(operation));
        ++m_added;
        if (!m_worker.joinable())
            m_worker = startedThread([this] { work(); });
        m_changed.notify_all();
        if (m_worker.joinable())
            return;
    }
    drain(); // no thread is to be had
}

void SerialQueue::addAndDrain(Operation operation)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_operations.push_back(std::move(operation));
        ++m_added;
    }
    drain();
}

void SerialQueue::drain()
{
    std::unique_lock lock(m_mutex);
    if (m_running == std::this_thread::get_id())
        return;
    const unsigned long long wanted = m_added;
    while (m_done < wanted) {
        if (m_running == std::thread::id())
            runNext(lock);
        else
            m_changed.wait(lock);
    }
}

void SerialQueue::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ending || (!m_operations.empty() && m_running == std::thread::id()); });
        if (m_ending)
            return;
        runNext(lock);
    }
}

void SerialQueue::runNext(std::unique_lock<std::mutex> &lock)
{
    const Operation operation = std::move(m_operations.front());
    m_operations.pop_front();
    m_running = std::this_thread::get_id();
    lock.unlock();
    operation();
    lock.lock();
    m_running = {};
    ++m_done;
    m_changed.notify_all();
}

} // namespace platform

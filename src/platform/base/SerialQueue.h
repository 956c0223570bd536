#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace platform {

/**
 * Runs operations one at a time, in the order in which they were queued. A thread of its own does so; a caller that
 * drains the queue lends a hand instead of waiting for that thread to wake. Thread-safe. Destroying it drains it.
 */
class SerialQueue
{
public:
    using Operation = std::function<void()>;

    SerialQueue() = default;
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    /** Returns at once. */
    void add(Operation operation);
    /** Queues the operation and returns when it and all before it have run. */
    void addAndDrain(Operation operation);
    /** Returns when everything queued so far has run. From within an operation it returns at once. */
    void drain();

private:
    void work();
    void runNext(std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Operation> m_operations;
    std::thread m_worker;
    std::thread::id m_running; ///< the thread that runs an operation right now; no thread's id otherwise
    unsigned long long m_added = 0;
    unsigned long long m_done = 0;
    bool m_ending = false;
};

} // namespace platform

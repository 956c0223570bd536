#pragma once

#include "platform/plain/StartedThread.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <ctime>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace platform {

enum class Workers { One, Two };

/**
 * Jobs that lead to further jobs, worked off by the calling thread and, where that is worth its start, by a second one;
 * where the workers mostly wait (for a cold disk, a server far away), by some more. Each worker has a stack of its own,
 * so a tree is walked depth first, which bounds the folders that are open at a time; who has nothing left takes the
 * oldest job of another. So the workers are in different folders as far as there are some: two that make files in one
 * wait for each other in the system.
 */
template <typename Job> class JobStack
{
public:
    void push(Job job)
    {
        const std::scoped_lock lock(m_mutex);
        m_jobs[s_worker].push_back(std::move(job));
        ++m_waiting;
        m_changed.notify_one();
    }

    [[nodiscard]] const std::deque<Job> &waiting() const { return m_jobs.front(); } ///< before the workers start

    /** Returns when no job is left and none is under way. */
    template <typename Perform> void workOff(const Perform &perform, Workers workers)
    {
        m_work = [&] {
            std::size_t self = 0;
            {
                const std::scoped_lock lock(m_mutex);
                self = ++m_begun;
            }
            work(perform, self);
        };
        if (workers == Workers::Two) {
            const std::scoped_lock lock(m_mutex); // the new one may add another before it is entered here
            addWorker();
        }
        work(perform, 0);
        // Nothing is under way any more, so nobody adds another.
        for (std::thread &thread : m_threads)
            thread.join();
    }

private:
    /// Measured: from a cold disk, or on a share, eight need a third of what two need; a warm disk keeps two busy, and
    /// more would be in their way.
    static constexpr std::size_t mostThreads = 8 - 1;
    static constexpr std::chrono::milliseconds longJob{1};

    /// Whether the thread has spent most of a long job waiting.
    class WaitingWatch
    {
    public:
        [[nodiscard]] bool hasWaited() const
        {
            const auto wall = std::chrono::steady_clock::now() - m_wall;
            return wall > longJob && threadTime() - m_busy < wall / 2;
        }

    private:
        static std::chrono::nanoseconds threadTime()
        {
            timespec now{};
            clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
            return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
        }
        std::chrono::steady_clock::time_point m_wall = std::chrono::steady_clock::now();
        std::chrono::nanoseconds m_busy = threadTime();
    };

    void addWorker()
    {
        if (std::thread thread = startedThread(m_work); thread.joinable())
            m_threads.push_back(std::move(thread));
    }

    /// The worker's own latest; else the oldest of the one that has most.
    Job taken(std::size_t self)
    {
        --m_waiting;
        const bool isOwn = !m_jobs[self].empty();
        auto &from = isOwn ? m_jobs[self] : *std::max_element(m_jobs.begin(), m_jobs.end(), [](auto &a, auto &b) {
            return a.size() < b.size();
        });
        Job job = std::move(isOwn ? from.back() : from.front());
        isOwn ? from.pop_back() : from.pop_front();
        return job;
    }

    template <typename Perform> void work(const Perform &perform, std::size_t self)
    {
        const std::size_t before = std::exchange(s_worker, self);
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_waiting > 0 || m_busy == 0; });
            if (m_waiting == 0)
                break;
            Job job = taken(self);
            ++m_busy;
            lock.unlock();
            const WaitingWatch watch;
            perform(std::move(job));
            const bool hasWaited = watch.hasWaited();
            lock.lock();
            if (hasWaited && m_waiting > 1 && m_threads.size() < mostThreads)
                addWorker();
            if (--m_busy == 0)
                m_changed.notify_all();
        }
        s_worker = before;
    }

    inline static thread_local std::size_t s_worker = 0; ///< which of the workers this thread is
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<std::deque<Job>, mostThreads + 1> m_jobs; ///< one for each worker
    std::size_t m_waiting = 0;
    std::size_t m_begun = 0;
    int m_busy = 0;
    std::function<void()> m_work;
    std::vector<std::thread> m_threads;
};

} // namespace platform

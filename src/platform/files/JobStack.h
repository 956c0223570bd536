#pragma once

#include "platform/plain/StartedThread.h"

#include <chrono>
#include <condition_variable>
#include <ctime>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace platform {

enum class Workers { One, Two };

/**
 * Jobs that lead to further jobs, worked off by the calling thread and, where that is worth its start, by a second one;
 * where the workers mostly wait (for a cold disk, a server far away), by some more. A stack: a tree is walked depth
 * first, which bounds the folders that are open at a time.
 */
template <typename Job> class JobStack
{
public:
    void push(Job job)
    {
        const std::scoped_lock lock(m_mutex);
        m_jobs.push_back(std::move(job));
        m_changed.notify_one();
    }

    [[nodiscard]] const std::vector<Job> &waiting() const { return m_jobs; } ///< before the workers start

    /** Returns when no job is left and none is under way. */
    template <typename Perform> void workOff(const Perform &perform, Workers workers)
    {
        m_work = [&] {
            work(perform);
        };
        if (workers == Workers::Two) {
            const std::scoped_lock lock(m_mutex); // the new one may add another before it is entered here
            addWorker();
        }
        work(perform);
        // Nothing is under way any more, so nobody adds another.
        for (std::thread &thread : m_threads)
            thread.join();
    }

private:
    /// Measured: from a cold disk six halve what two need; a warm one keeps two busy, and more would be in their way.
    static constexpr std::size_t mostThreads = 6 - 1;
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

    template <typename Perform> void work(const Perform &perform)
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return !m_jobs.empty() || m_busy == 0; });
            if (m_jobs.empty())
                return;
            Job job = std::move(m_jobs.back());
            m_jobs.pop_back();
            ++m_busy;
            lock.unlock();
            const WaitingWatch watch;
            perform(std::move(job));
            const bool hasWaited = watch.hasWaited();
            lock.lock();
            if (hasWaited && m_jobs.size() > 1 && m_threads.size() < mostThreads)
                addWorker();
            if (--m_busy == 0)
                m_changed.notify_all();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Job> m_jobs;
    int m_busy = 0;
    std::function<void()> m_work;
    std::vector<std::thread> m_threads;
};

} // namespace platform

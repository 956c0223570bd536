#pragma once

#include <chrono>
#include <functional>

/** The main thread, from anywhere. Before the application object exists, every thread's calls run where they are made.
 */
class QEvent;
class QObject;

namespace platform {

enum class Waiting { No, Yes };

class MainThread
{
public:
    MainThread() = delete;

    [[nodiscard]] static bool isCurrent();
    /** Performs the call on the main thread: at once when made there, else through its event loop. */
    static void perform(std::function<void()> call, Waiting waiting);
    /** Main thread only: handles pending events, waiting for the first at most the given time. */
    static void turnLoop(std::chrono::milliseconds atMost);
};

/**
 * Runs the work so that the window stays alive. On the main thread the work goes to a worker while the event loop turns
 * with the application's windows closed to input; on any other thread it runs where it is. Either way the caller sees a
 * plain blocking call.
 */
void performInBackground(const std::function<void()> &work);

template <typename Work> [[nodiscard]] auto resultInBackground(Work work)
{
    decltype(work()) result{};
    performInBackground([&] { result = work(); });
    return result;
}

/**
 * Main thread only. Begins work on a thread of its own and returns; afterwards `done` comes on the main thread, never
 * before this has returned. Where no thread is to be had, the work is done by the event loop.
 */
void performBeside(std::function<void()> work, std::function<void()> done);

/**
 * Main thread only. Begins work on a thread of its own and waits for it, the event loop turning and the windows closed
 * to input as above, but no longer than the time says: a share whose server does not answer must not take the window
 * with it. True when the work has ended by then; otherwise `late` comes on the main thread when it does, which may be
 * never. What the work uses must live as long. Without an application, or on another thread, the work is done where it
 * is called.
 */
[[nodiscard]] bool performWithin(std::chrono::milliseconds patience, std::function<void()> work,
                                 std::function<void()> late);

/**
 * While one exists and no InputAllowed does, the application's windows take no key, click, drop or close; they can be
 * moved and they repaint. Main thread only; nests.
 */
class InputClosed
{
public:
    /** Says of an input event, and of the object that it is sent to, whether it comes through all the same: the way out
        of work that takes long. One for the program; null for none. */
    using Exception = std::function<bool(QObject *receiver, QEvent *event)>;
    static void setException(Exception exception);

    InputClosed();
    ~InputClosed();
    InputClosed(const InputClosed &) = delete;
    InputClosed &operator=(const InputClosed &) = delete;
};

/** Opens the windows again while a question is up that someone must answer. Main thread only; nests. */
class InputAllowed
{
public:
    InputAllowed();
    ~InputAllowed();
    InputAllowed(const InputAllowed &) = delete;
    InputAllowed &operator=(const InputAllowed &) = delete;
};

} // namespace platform

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace platform {
class ChildProcess;
}

/**
 * Runs command-line tools, always by absolute path, never through a shell.
 *
 * The static operations run one tool and block the calling thread; they may be called from any thread. A time-out is
 * carried out on the main thread and can therefore cut short only a run made on another one; callers that need it run
 * off the main thread. An object is needed only for asynchronous runs; its owner keeps it until the run has ended.
 */
class VTTask
{
public:
    using Child = std::shared_ptr<platform::ChildProcess>;
    /** Lets another thread stop the tool: receives the child as soon as it is set up. */
    struct ChildSlot;
    /** Receives each chunk of output on the reading thread, and at the end exactly one empty chunk. */
    using Delegate = std::function<void(const QByteArray &chunk, VTTask &task, const QVariant &object)>;

    /** The numbers that callers pass for text encodings. */
    enum class Encoding { Ascii = 1, Utf8 = 4 };

    VTTask() = default;
    ~VTTask();
    VTTask(const VTTask &) = delete;
    VTTask &operator=(const VTTask &) = delete;

    /** True when the tool was started and has exited, whatever its status. Its output is discarded. */
    static bool runTask(const QString &tool, const QStringList &arguments, ChildSlot *task = nullptr);
    /** Starts the tool and returns; its output is discarded. */
    static void runTaskAndReturn(const QString &tool, const QStringList &arguments);
    /** The exit status, the number of the signal that ended it, or -1 when the tool is not executable. */
    [[nodiscard]] static int terminationCodeFromTask(const QString &tool, const QStringList &arguments,
                                                     ChildSlot *task = nullptr);
    /** The error output when there is any, else the standard output; nothing when the tool is not executable. Standard
        output is read to its end before the error output is looked at, and this order must stay. */
    [[nodiscard]] static std::optional<QByteArray> dataFromTask(const QString &tool, const QStringList &arguments,
                                                                ChildSlot *task = nullptr);
    /** Null when the tool is not executable or its bytes do not decode. */
    [[nodiscard]] static QString stringFromTask(const QString &tool, const QStringList &arguments,
                                                Encoding encoding = Encoding::Ascii, ChildSlot *task = nullptr);

    /** Time-outs in seconds, truncated to whole ones: 2.9 is 2, anything below 1 is 0. */
    static bool runTask(const QString &tool, const QStringList &arguments, double timeout);
    [[nodiscard]] static int terminationCodeFromTask(const QString &tool, const QStringList &arguments, double timeout);
    [[nodiscard]] static std::optional<QByteArray> dataFromTask(const QString &tool, const QStringList &arguments,
                                                                double timeout);
    [[nodiscard]] static QString stringFromTask(const QString &tool, const QStringList &arguments, double timeout,
                                                Encoding encoding = Encoding::Ascii);

    /** Starts a run whose output goes to the delegate. A run that is still under way is stopped first. */
    void asyncDataFromTask(const QString &tool, const QStringList &arguments, Delegate delegate, QVariant object = {});
    /** Stops the run and lets go of delegate and object. May be called from the delegate, too. */
    void terminateAsyncTask();

private:
    struct AsyncRun;
    /// Outlives the task where the reading thread does.
    struct State
    {
        std::mutex mutex;
        std::shared_ptr<AsyncRun> run;
        std::atomic<bool> isRead = false; ///< the reading thread is through
    };
    void launchAsyncTask(const std::shared_ptr<State> &state, const std::shared_ptr<AsyncRun> &run);
    bool asyncTaskReturnData(State &state, const std::shared_ptr<AsyncRun> &run, const QByteArray &chunk);
    void joinReader();

    const std::shared_ptr<State> m_state = std::make_shared<State>();
    std::thread m_reader;
};

struct VTTask::ChildSlot
{
    void set(Child newChild)
    {
        const std::scoped_lock lock(mutex);
        child = std::move(newChild);
    }
    [[nodiscard]] Child get()
    {
        const std::scoped_lock lock(mutex);
        return child;
    }
    /** Marks the time as up; the child if there is one already. */
    [[nodiscard]] Child expire()
    {
        const std::scoped_lock lock(mutex);
        expired = true;
        return child;
    }
    [[nodiscard]] bool isExpired()
    {
        const std::scoped_lock lock(mutex);
        return expired;
    }

private:
    std::mutex mutex;
    Child child;
    bool expired = false;
};

#include "support/FileFallback.h"

#include "platform/base/MainThread.h"
#include "platform/base/Users.h"
#include "platform/plain/StartedThread.h"
#include "platform/process/ChildProcess.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <future>
#include <thread>

using platform::Outcome;

namespace {

constexpr std::chrono::milliseconds mainThreadPoll{10};
constexpr std::chrono::milliseconds workerPoll{300};
constexpr std::chrono::milliseconds toolPoll{20};

/// Ends it when the work is cancelled.
bool toolSucceeds(const VTAuthorization::Command &command, const platform::CopyMonitor &monitor)
{
    VTTask::ChildSlot slot;
    std::promise<int> promise;
    std::future<int> status = promise.get_future();
    const auto run = [&] {
        promise.set_value(VTTask::terminationCodeFromTask(command.tool, command.arguments, &slot));
    };
    std::thread runner = platform::startedThread(run);
    if (!runner.joinable()) // it cannot be ended before its time then
        run();
    while (status.wait_for(toolPoll) != std::future_status::ready) {
        const VTTask::Child child = monitor.cancelled ? slot.get() : nullptr;
        if (child)
            child->terminate();
    }
    if (runner.joinable())
        runner.join();
    return status.get() == 0;
}

} // namespace

Outcome fallBackToTool(ShouldAuth shouldAuth, const Outcome &failure, const VTAuthorization::Command &command,
                       const std::function<bool()> &withRights, const platform::CopyMonitor &monitor)
{
    if (shouldAuth == ShouldAuth::No)
        return failure;
    auto &authorization = VTAuthorization::sharedController();
    // The super-user lacks no rights, and only the tool's own status tells what became of it.
    const bool done = platform::resultInBackground([&] {
        return failure.needsRights() && !platform::isSuperUser() ? withRights() && authorization.lastToolSucceeded()
                                                                 : toolSucceeds(command, monitor);
    });
    if (!done && monitor.cancelled)
        return Outcome::failure(platform::Cause::Cancelled, failure.item());
    return done ? Outcome() : failure;
}

void waitWhile(const std::function<bool()> &condition, std::chrono::seconds timeout)
{
    const auto start = std::chrono::steady_clock::now();
    const auto elapsed = [&] {
        return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    };
    while (condition() && elapsed() < timeout) {
        if (!platform::MainThread::isCurrent())
            std::this_thread::sleep_for(workerPoll);
        else if (QCoreApplication::instance())
            platform::MainThread::turnLoop(mainThreadPoll);
        else
            std::this_thread::sleep_for(mainThreadPoll);
    }
}

Outcome waitUntil(const std::function<bool()> &condition, std::chrono::seconds timeout, const QString &item)
{
    waitWhile([&] { return !condition(); }, timeout);
    return condition() ? Outcome() : Outcome::failure(platform::Cause::TimedOut, item);
}

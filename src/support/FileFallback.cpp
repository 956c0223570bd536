#include "support/FileFallback.h"

#include "platform/base/MainThread.h"
#include "platform/base/Users.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <thread>

using platform::Outcome;

namespace {

constexpr std::chrono::milliseconds mainThreadPoll{10};
constexpr std::chrono::milliseconds workerPoll{300};

} // namespace

Outcome fallBackToTool(ShouldAuth shouldAuth, const Outcome &failure, const VTAuthorization::Command &command,
                       const std::function<bool()> &withRights)
{
    if (shouldAuth == ShouldAuth::No)
        return failure;
    auto &authorization = VTAuthorization::sharedController();
    // The super-user lacks no rights, and only the tool's own status tells what became of it.
    const bool done = failure.needsRights() && !platform::isSuperUser()
                          ? withRights() && authorization.lastToolSucceeded()
                          : VTTask::terminationCodeFromTask(command.tool, command.arguments) == 0;
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

#include "creation/AfterCreation.h"

#include "creation/ProjectJson.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/plain/StartedThread.h"
#include "platform/process/ChildProcess.h"
#include "support/LongWork.h"
#include "support/Settings.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <condition_variable>

using platform::Cause;
using platform::ChildProcess;
using platform::Outcome;
using namespace std::chrono_literals;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(AfterCreation)
};

/// What a program has complained of before is thrown away: the last line counts.
constexpr qsizetype mostHeard = 65536;
constexpr auto betweenLooks = 20ms;

/// One run, which outlives whoever waits for it when the program does not end.
struct Run
{
    ChildProcess child;
    std::mutex mutex{};
    std::condition_variable changed{};
    bool isOver = false;
    int status = 0;
    QByteArray complaint{};

    explicit Run(const QString &program)
        : child(program, {})
    {
    }

    void listen()
    {
        QByteArray heard;
        bool goesOn = true; // what it has left behind may talk for ever
        while (goesOn) {
            const bool isRunning = child.isRunning();
            const QByteArray bytes = child.readErrorOutput();
            heard = (heard + bytes).last(qMin(mostHeard, heard.size() + bytes.size()));
            goesOn = isRunning && !bytes.isEmpty();
        }
        const int ended = child.waitUntilExit();
        const std::scoped_lock lock(mutex);
        complaint = heard;
        status = ended;
        isOver = true;
        changed.notify_all();
    }
};

/// Cause::TimedOut, Cause::Cancelled; good when it has ended.
Outcome waitFor(Run &run, std::chrono::seconds patience, const std::atomic<bool> &cancelled,
                const std::atomic<bool> &stopped)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    std::unique_lock lock(run.mutex);
    while (!run.isOver) {
        const bool isLate = std::chrono::steady_clock::now() >= end;
        if (isLate || cancelled || stopped)
            return Outcome::failure(isLate ? Cause::TimedOut : Cause::Cancelled, run.child.tool());
        run.changed.wait_for(lock, betweenLooks);
    }
    return {};
}

QString lastLineOf(const QByteArray &complaint)
{
    return platform::forOneLine(platform::fromNative(complaint.trimmed().split('\n').constLast()));
}

} // namespace

Outcome tellOfProject(const CreationResult &result, const std::atomic<bool> &stopped)
{
    const QString program = settings::afterCreation.text();
    if (program.isEmpty() || platform::isMissing(result.request.destination())) // it could not be made at all
        return {};
    VTLog::appendLog("Telling %@ of the project", program);
    const QByteArray told =
        QJsonDocument(objectOf({result.request, result.errors, result})).toJson(QJsonDocument::Indented);
    auto run = std::make_shared<Run>(program);
    if (const Outcome started =
            run->child.start(ChildProcess::Output::Discarded, ChildProcess::ErrorOutput::Captured, told);
        !started.ok())
        return started;
    std::thread listener = platform::startedThread([run] { run->listen(); });
    if (!listener.joinable())
        return Outcome::failure(Cause::Other, program);
    listener.detach();

    platform::CopyMonitor monitor;
    const LongWork work(Text::tr("Running %1").arg(platform::forOneLine(platform::lastComponent(program))), monitor);
    const std::chrono::seconds patience{settings::afterCreationSeconds.number()};
    const Outcome ended =
        platform::resultInBackground([&] { return waitFor(*run, patience, monitor.cancelled, stopped); });
    if (!ended.ok()) {
        run->child.terminate();
        return ended;
    }
    const QString complaint = run->complaint.trimmed().isEmpty() ? QString() : lastLineOf(run->complaint);
    if (run->status == 0)
        return {};
    return Outcome::failure(Cause::Other, program,
                            complaint.isEmpty()
                                ? Text::tr("It ended with status %1.").arg(run->status)
                                : Text::tr("It ended with status %1: %2").arg(run->status).arg(complaint));
}

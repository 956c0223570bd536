#include "helper/ToolProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace helper {
namespace {

constexpr std::size_t maximumErrorText = 4096;

platform::CopyMonitor monitor; ///< of the one request that a process works on

void stop(int)
{
    monitor.cancelled = true;
}

int carryOut(const Plan &plan, TreeWork &work)
{
    switch (plan.verb) {
    case Plan::Verb::Copy:
        return work.copy(plan.items[0], plan.items[1]);
    case Plan::Verb::Move:
        return work.move(plan.items[0], plan.items[1]);
    case Plan::Verb::MakeFolders:
        return work.makeFolders(plan.items[0]);
    case Plan::Verb::Remove:
        return work.remove(plan.items[0]);
    case Plan::Verb::Touch:
        return work.touch(plan.items[0]);
    }
    return EINVAL;
}

/// In the child, after the fork: the helper has but one thread, so that everything may be called here.
[[noreturn]] void work(const Plan &plan, uid_t caller, int errorOutput)
{
    setpgid(0, 0);
    prctl(PR_SET_NAME, ("tessaro-" + plan.tool.substr(plan.tool.rfind('/') + 1)).c_str());
    prctl(PR_SET_PDEATHSIG, SIGTERM); // a helper that is killed takes its work with it
    struct sigaction action
    {
    };
    action.sa_handler = stop; // without SA_RESTART: a call that waits is left
    sigaction(SIGTERM, &action, nullptr);
    platform::raiseDescriptorLimit();
    TreeWork treeWork(caller, monitor);
    const int error = carryOut(plan, treeWork);
    if (error != 0)
        dprintf(errorOutput, "%s: %s: %s", plan.tool.c_str(), treeWork.where().c_str(), strerror(error));
    else if (treeWork.losses() > 0)
        dprintf(errorOutput, "labels, dates or mode not kept of %s, of %zu items in all", treeWork.firstLoss().c_str(),
                treeWork.losses());
    _exit(error == 0 ? 0 : monitor.cancelled ? 128 + SIGTERM : 1);
}

} // namespace

int ToolProcess::start(const Plan &plan, uid_t caller)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return errno;
    m_errorOutput.reset(ends[0]);
    const platform::UniqueDescriptor writing(ends[1]);
    fcntl(m_errorOutput.get(), F_SETFL, O_NONBLOCK);
    m_pid = fork();
    if (m_pid == 0)
        work(plan, caller, writing.get());
    if (m_pid < 0)
        return errno;
    setpgid(m_pid, m_pid); // from both sides, whichever comes first
    return 0;
}

void ToolProcess::readErrorOutput()
{
    std::array<char, 4096> piece;
    for (;;) {
        const ssize_t got = read(m_errorOutput.get(), piece.data(), piece.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            if (got == 0)
                m_errorOutput.reset();
            return;
        }
        m_errorText.append(piece.data(),
                           std::min(static_cast<std::size_t>(got), maximumErrorText - m_errorText.size()));
    }
}

void ToolProcess::signal(int number) const
{
    kill(-m_pid, number);
}

int exitStatus(int waitStatus)
{
    return WIFSIGNALED(waitStatus) ? 128 + WTERMSIG(waitStatus) : WEXITSTATUS(waitStatus);
}

} // namespace helper

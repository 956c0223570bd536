#include "helper/ToolProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>

extern char **environ;

namespace helper {
namespace {

constexpr std::size_t maximumErrorText = 4096;

/// In the child, after the fork: nothing but calls that are safe there.
[[noreturn]] void become(const Plan &plan, char *const *arguments, int null, int errorOutput)
{
    setpgid(0, 0); // what the tool starts is ended with it
    std::signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    bool connected =
        dup2(null, STDIN_FILENO) >= 0 && dup2(null, STDOUT_FILENO) >= 0 && dup2(errorOutput, STDERR_FILENO) >= 0;
    // First out of the way of their final numbers, which may be in use by one another.
    std::array<int, 2> moved{-1, -1};
    for (std::size_t i = 0; i < plan.folders.size() && connected; ++i) {
        moved[i] = fcntl(plan.folders[i].get(), F_DUPFD_CLOEXEC, Plan::firstFolder + 10);
        connected = moved[i] >= 0;
    }
    for (std::size_t i = 0; i < plan.folders.size() && connected; ++i)
        connected = dup2(moved[i], Plan::firstFolder + static_cast<int>(i)) >= 0;
    if (connected)
        execve(plan.tool.c_str(), arguments, environ);
    _exit(127);
}

} // namespace

int ToolProcess::start(const Plan &plan)
{
    std::vector<char *> arguments{const_cast<char *>(plan.tool.c_str())};
    for (const std::string &argument : plan.arguments)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    int ends[2];
    const Descriptor null(open("/dev/null", O_RDWR | O_CLOEXEC));
    if (!null.isOpen() || pipe2(ends, O_CLOEXEC) != 0)
        return errno;
    m_errorOutput.reset(ends[0]);
    const Descriptor writing(ends[1]);
    fcntl(m_errorOutput.get(), F_SETFL, O_NONBLOCK);
    m_pid = fork();
    if (m_pid == 0)
        become(plan, arguments.data(), null.get(), writing.get());
    if (m_pid < 0)
        return errno;
    m_folderNames = plan.folderNames;
    setpgid(m_pid, m_pid); // from both sides, whichever comes first
    return 0;
}

std::string ToolProcess::errorText() const
{
    std::string text = m_errorText;
    for (std::size_t i = 0; i < m_folderNames.size(); ++i) {
        const std::string inside = "/proc/self/fd/" + std::to_string(Plan::firstFolder + static_cast<int>(i));
        for (std::size_t at = text.find(inside); at != std::string::npos;
             at = text.find(inside, at + m_folderNames[i].size()))
            text.replace(at, inside.size(), m_folderNames[i]);
    }
    text.resize(std::min(text.size(), maximumErrorText)); // the folders' names may be long
    return text;
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

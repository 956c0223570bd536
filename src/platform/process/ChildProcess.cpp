#include "platform/process/ChildProcess.h"

#include "platform/base/NativePath.h"
#include "platform/plain/StartedThread.h"
#include "platform/plain/WholeWrite.h"
#include "platform/process/SpawnSettings.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace platform {
namespace {

constexpr int unknownStatus = 255;

/// How long an ended child's pipe may stay silent before what a grandchild might still write is no longer waited for.
constexpr int silenceAfterExit = 50; // milliseconds

struct Pipe
{
    UniqueDescriptor reading;
    UniqueDescriptor writing;
};

bool openPipe(Pipe &pipe)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return false;
    pipe.reading.reset(ends[0]);
    pipe.writing.reset(ends[1]);
    return true;
}

/// A file without a name that holds the bytes, to be read from the first on.
UniqueDescriptor inMemory(const QByteArray &bytes)
{
    UniqueDescriptor file(memfd_create("input", MFD_CLOEXEC));
    const bool isWritten = file.isOpen() &&
                           writeWhole(file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) &&
                           lseek(file.get(), 0, SEEK_SET) == 0;
    return isWritten ? std::move(file) : UniqueDescriptor();
}

void connect(SpawnSettings &settings, const Pipe &pipe, int descriptor)
{
    if (pipe.writing.isOpen())
        posix_spawn_file_actions_adddup2(&settings.files, pipe.writing.get(), descriptor);
    else
        posix_spawn_file_actions_addopen(&settings.files, descriptor, "/dev/null", O_WRONLY, 0);
}

} // namespace

ChildProcess::~ChildProcess()
{
    if (!isRunning())
        return;
    const pid_t pid = m_pid;
    std::thread thread = startedThread([pid] {
        int status = 0;
        while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
    });
    if (thread.joinable()) // else it is collected when this program ends
        thread.detach();
}

Outcome ChildProcess::start(Output output, ErrorOutput errorOutput, const QByteArray &input)
{
    Pipe out;
    Pipe error;
    if ((output == Output::Captured && !openPipe(out)) || (errorOutput == ErrorOutput::Captured && !openPipe(error)))
        return Outcome::fromErrno(m_tool);

    QByteArrayList words{toNative(m_tool)};
    for (const QString &argument : m_arguments)
        words.append(toNative(argument));
    std::vector<char *> pointers = pointersTo(words);

    SpawnSettings settings;
    UniqueDescriptor in;
    if (input.isEmpty())
        posix_spawn_file_actions_addopen(&settings.files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    else if (in = inMemory(input); in.isOpen())
        posix_spawn_file_actions_adddup2(&settings.files, in.get(), STDIN_FILENO);
    else
        return Outcome::fromErrno(m_tool);
    connect(settings, out, STDOUT_FILENO);
    connect(settings, error, STDERR_FILENO);
    pid_t pid = -1;
    const int failure =
        posix_spawn(&pid, words[0].constData(), &settings.files, &settings.attributes, pointers.data(), environ);
    if (failure != 0)
        return Outcome::fromNumber(failure, m_tool);
    const std::scoped_lock lock(m_mutex);
    m_pid = pid;
    if (m_isToEnd) // told so before it was there
        kill(pid, SIGTERM);
    m_output = std::move(out.reading);
    m_errorOutput = std::move(error.reading);
    return {};
}

QByteArray ChildProcess::readFrom(UniqueDescriptor &pipe)
{
    std::array<char, 65536> buffer;
    bool ended = false;
    while (pipe.isOpen()) {
        pollfd waiting{pipe.get(), POLLIN, 0};
        const int ready = poll(&waiting, 1, silenceAfterExit);
        if (ready < 0 && errno != EINTR)
            break;
        if (ready <= 0) {
            if (ended)
                break;
            ended = !isRunning();
            continue;
        }
        const ssize_t got = read(pipe.get(), buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        return got > 0 ? QByteArray(buffer.data(), got) : QByteArray();
    }
    return {};
}

void ChildProcess::closeOutputs()
{
    m_output.reset();
    m_errorOutput.reset();
}

bool ChildProcess::collect(int waitFlags) const
{
    if (m_pid < 0)
        return true;
    int status = 0;
    const pid_t collected = waitpid(m_pid, &status, waitFlags);
    if (collected == 0 || (collected < 0 && errno == EINTR))
        return false;
    m_pid = -1;
    if (collected < 0) { // its status was thrown away: whoever started this program has it ignore its children
        m_status = unknownStatus;
        return true;
    }
    m_status = WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
    return true;
}

int ChildProcess::waitUntilExit()
{
    for (;;) {
        pid_t pid;
        {
            const std::scoped_lock lock(m_mutex);
            if (collect(WNOHANG))
                return m_status;
            pid = m_pid;
        }
        // Waits without collecting, so that terminate() on another thread never meets a number given to someone else.
        siginfo_t ignored;
        waitid(P_PID, static_cast<id_t>(pid), &ignored, WEXITED | WNOWAIT);
    }
}

bool ChildProcess::isRunning() const
{
    const std::scoped_lock lock(m_mutex);
    return m_pid >= 0 && !collect(WNOHANG);
}

void ChildProcess::terminate()
{
    const std::scoped_lock lock(m_mutex);
    m_isToEnd = true;
    if (m_pid >= 0)
        kill(m_pid, SIGTERM);
}

} // namespace platform

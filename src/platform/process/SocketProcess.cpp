#include "platform/process/SocketProcess.h"

#include "platform/process/SpawnSettings.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <vector>

namespace platform {

Outcome SocketProcess::start(const QByteArrayList &toolAndArguments, const QByteArrayList &environment)
{
    const QString tool = fromNative(toolAndArguments.first());
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return Outcome::fromErrno(tool);
    m_socket.reset(ends[0]);
    const UniqueDescriptor childs(ends[1]);

    QByteArrayList words = toolAndArguments;
    QByteArrayList variables = environment;
    SpawnSettings settings;
    posix_spawn_file_actions_adddup2(&settings.files, childs.get(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&settings.files, childs.get(), STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&settings.files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const int failure = posix_spawn(&m_pid, words.first().constData(), &settings.files, &settings.attributes,
                                    pointersTo(words).data(), pointersTo(variables).data());
    if (failure == 0)
        return {};
    m_pid = -1;
    m_socket.reset();
    return Outcome::fromNumber(failure, tool);
}

QByteArray SocketProcess::read() const
{
    std::array<char, 16384> piece;
    for (;;) {
        const ssize_t got = recv(m_socket.get(), piece.data(), piece.size(), 0);
        if (got < 0 && errno == EINTR)
            continue;
        return got > 0 ? QByteArray(piece.data(), got) : QByteArray();
    }
}

bool SocketProcess::write(const char *bytes, std::size_t count) const
{
    while (count > 0) {
        const ssize_t sent = send(m_socket.get(), bytes, count, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false;
        bytes += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

void SocketProcess::hangUp() const
{
    if (m_socket.isOpen())
        shutdown(m_socket.get(), SHUT_RDWR);
}

int SocketProcess::hangUpAndWait()
{
    hangUp();
    return waitUntilExit();
}

int SocketProcess::waitUntilExit()
{
    if (m_pid < 0)
        return -1;
    int status = 0;
    pid_t collected = -1;
    do {
        collected = waitpid(m_pid, &status, 0);
    } while (collected < 0 && errno == EINTR);
    m_pid = -1;
    if (collected < 0)
        return -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace platform

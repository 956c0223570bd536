#pragma once

#include "platform/base/Outcome.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <QByteArrayList>
#include <sys/types.h>

namespace platform {

/**
 * A child process whose standard input and output are the other end of one socket: no other process of the user can
 * open that, and writing to a child that is gone is an error instead of a signal. It gets an environment of its own and
 * its error output is discarded. Move it to where it is used; one thread may read while another writes.
 *
 * The child may run as root, where no signal of ours reaches it: it is ended by hanging up, and collected when it has
 * ended.
 */
class SocketProcess
{
public:
    SocketProcess() = default;
    ~SocketProcess() { hangUpAndWait(); }
    SocketProcess(const SocketProcess &) = delete;
    SocketProcess &operator=(const SocketProcess &) = delete;

    /** By absolute path, with "NAME=value" entries. The item of a failure is the tool. */
    Outcome start(const QByteArrayList &toolAndArguments, const QByteArrayList &environment);

    /** Blocks for the next bytes; empty when the child has closed its end. */
    [[nodiscard]] QByteArray read() const;
    /** False when the child is gone. */
    [[nodiscard]] bool write(const char *bytes, std::size_t count) const;

    /** Ends read() on whichever thread it waits; the child reads its end of input. */
    void hangUp() const;
    /** Hangs up, and blocks until the child has ended: its exit status, 128 and the signal's number, or -1. */
    int hangUpAndWait();
    /** Blocks until the child has ended, without hanging up. */
    int waitUntilExit();

private:
    UniqueDescriptor m_socket;
    pid_t m_pid = -1;
};

} // namespace platform

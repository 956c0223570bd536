#pragma once

#include "platform/base/Outcome.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <QStringList>
#include <functional>
#include <memory>
#include <mutex>
#include <sys/types.h>

namespace platform {

/**
 * One child process, started by absolute path, never through a shell. It leads nothing and inherits no descriptor but
 * its standard three. Never leaves a zombie: a child that is still running when the last owner lets go is collected in
 * the background. isRunning() and terminate() may be called from any thread, the rest from one.
 */
class ChildProcess
{
public:
    enum class Output { Discarded, Captured };
    enum class ErrorOutput { Discarded, Captured };

    ChildProcess(QString tool, QStringList arguments)
        : m_tool(std::move(tool))
        , m_arguments(std::move(arguments))
    {
    }
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    [[nodiscard]] QString tool() const { return m_tool; }

    /** Standard input reads as the bytes given, and then ends; they lie in memory, so that a child that reads none of
       them holds up nobody. The item of a failure is the tool. */
    Outcome start(Output output, ErrorOutput errorOutput, const QByteArray &input = {});

    /**
     * Blocks for the next bytes; empty at the end: the end of the stream, or the child is gone and what it left behind
     * on the pipe (a grandchild may hold it for ever) has been read.
     */
    [[nodiscard]] QByteArray readOutput() { return readFrom(m_output); }
    [[nodiscard]] QByteArray readErrorOutput() { return readFrom(m_errorOutput); }
    void closeOutputs();

    /** Blocks until it has ended: its exit status, or the number of the signal that ended it. */
    int waitUntilExit();
    [[nodiscard]] bool isRunning() const;
    /** A polite request (SIGTERM). Without effect once it has ended. */
    void terminate();

private:
    [[nodiscard]] QByteArray readFrom(UniqueDescriptor &pipe);
    bool collect(int waitFlags) const;

    QString m_tool;
    QStringList m_arguments;
    UniqueDescriptor m_output;
    UniqueDescriptor m_errorOutput;
    mutable std::mutex m_mutex;
    mutable pid_t m_pid = -1; ///< -1 before the start and after the child was collected
    mutable int m_status = 0;
    bool m_isToEnd = false; ///< terminate() may come before the start is through
};

} // namespace platform

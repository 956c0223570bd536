#pragma once

#include "platform/base/FormatString.h"
#include "platform/base/SerialQueue.h"
#include "platform/files/AppendFile.h"

#include <QString>
#include <atomic>

/**
 * The program's one log: a UTF-8 text file per application in the user's log folder, a ring of five generations,
 * written by one background writer so that callers never wait for the disk except for short messages in quiet periods.
 *
 * Several programs may write into the same log: one that starts while another writes joins its file with a header of
 * its own, so that no running program's lines are rotated away, and a program whose file has been rotated goes on in
 * the new one.
 *
 * One object for the whole process, made on first use, never destroyed. Every operation may be called from any thread.
 * No operation fails towards its caller: what goes wrong goes to the console, and the next entry tries again.
 */
class VTLog
{
public:
    static VTLog &sharedController();
    VTLog(const VTLog &) = delete;
    VTLog &operator=(const VTLog &) = delete;

    /** Rotates the generations and starts a new file with its header. The first name given stays for the process. */
    static void createNewLog(const QString &name = {});
    /** The same for a run without a window: "<name>.1.task.log", with generations of its own. */
    static void createNewTaskLog();
    /** For a run that only asks something: the same file, but no header and no rotation; one is made by the first entry
        where there is none. */
    static void joinTaskLog();

    /**
     * Formats, trims and queues one message. On disk when it returns, if the message is not empty, at most 99
     * characters long, and at most 99 characters are pending. A null format does nothing.
     */
    template <typename... Arguments> static void appendLog(const QString &format, const Arguments &...arguments)
    {
        if (!format.isNull())
            sharedController().append(platform::formatString(format, arguments...));
    }

    /** The same, and to the console. The message is formatted a second time on its way into the log: this must stay. */
    template <typename... Arguments> static void appendLogAndPrint(const QString &format, const Arguments &...arguments)
    {
        printAndAppend(platform::formatString(format.trimmed(), arguments...));
    }

    /** Blocks until everything queued so far is written. From the writer itself it returns at once. */
    static void finishWriting();

    [[nodiscard]] QString appName() const;
    void setAppName(const QString &name);
    [[nodiscard]] quint64 bytesWritten() const { return m_bytesWritten; }
    [[nodiscard]] quint64 bytesInQueue() const { return m_bytesInQueue; }
    [[nodiscard]] bool loggingDisabled() const { return m_loggingDisabled; }
    /** While set, nothing is written and nothing said about it. */
    void setLoggingDisabled(bool disabled) { m_loggingDisabled = disabled; }
    /** Where entries go: as super-user into the machine-wide library, while generations turn in the user's. */
    [[nodiscard]] QString currentLogPath() const;

private:
    VTLog() = default;
    static void printAndAppend(const QString &message);
    void append(const QString &message);
    void appendLogOnThread(const QString &message);
    enum class Rotates { UnlessInUse, Always };
    void startNewLog(const QString &name, Rotates rotates = Rotates::UnlessInUse);
    [[nodiscard]] bool beginFile(const QString &folder, Rotates rotates);
    [[nodiscard]] bool shiftGenerations(const QString &folder) const;
    void openCurrentLog();
    void writeEntry(const QString &message);

    mutable std::mutex m_nameMutex;
    QString m_appName;
    platform::AppendFile m_fileHandle; ///< this and the next are touched by operations on the queue only
    quint64 m_headerBytes = 0;
    platform::SerialQueue m_writeQueue;
    std::atomic<quint64> m_bytesWritten = 0;
    std::atomic<quint64> m_bytesInQueue = 0;
    std::atomic<bool> m_loggingDisabled = false;
    std::atomic<bool> m_isTask = false;
    std::atomic<bool> m_startsOnDemand = false;
};

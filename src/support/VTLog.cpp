#include "support/VTLog.h"

#include "platform/base/Console.h"
#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/base/Users.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/GlobalSettings.h"
#include "support/VTLocalPaths.h"

#include <exception>

using platform::joined;
using platform::printToConsole;

namespace {

constexpr qsizetype promptLength =
    99;                               // characters; a message longer than this, or with more pending, is not waited for
constexpr quint64 sizeLimit = 499999; // bytes of entries, the header not counted; above it the next generation starts
constexpr int generations = 5;
constexpr std::chrono::seconds lockPatience{5}; // a rotation takes milliseconds

QString userLogFolder()
{
    return VTLocalPaths::libraryDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/Logs/Vantrel");
}

QString generationPath(const QString &folder, const QString &name, int generation, bool isTask)
{
    return joined(folder, QStringLiteral("%1.%2%3.log").arg(name).arg(generation).arg(isTask ? ".task" : ""));
}

bool isSwitchedOff()
{
    return globalsettings::isOn(QStringLiteral("disable-logging"));
}

QString header()
{
    const auto &bundle = platform::ApplicationBundle::main();
    QString text = platform::formatString("Log started: %@\n", platform::currentDateDescription());
    if (const QString version = bundle.informationString("CFBundleVersion"); !version.isEmpty())
        text += platform::formatString("Version: %@\n", version);
    text += platform::formatString("Path: %@\n", platform::executablePath());
    text += platform::formatString("System: %@, %i CPU(s), %0.2f GB RAM\n", platform::operatingSystemName(),
                                   platform::processorCount(), platform::memoryInGibibytes());
    return text + (sizeof(void *) == 8 ? "Running in 64-bit mode\n" : "Running in 32-bit mode\n");
}

} // namespace

VTLog &VTLog::sharedController()
{
    static auto *shared = new VTLog; // never destroyed: threads may log until the very end of the process
    return *shared;
}

QString VTLog::appName() const
{
    const std::scoped_lock lock(m_nameMutex);
    return m_appName.isNull() ? platform::withoutExtension(platform::lastComponent(platform::executablePath()))
                              : m_appName;
}

void VTLog::setAppName(const QString &name)
{
    const std::scoped_lock lock(m_nameMutex);
    m_appName = name;
}

QString VTLog::currentLogPath() const
{
    const QString local = VTLocalPaths::libraryDirectory(VTLocalPaths::Domain::Local) + QStringLiteral("/Logs/Vantrel");
    return generationPath(platform::isSuperUser() ? local : userLogFolder(), appName(), 1, m_isTask);
}

void VTLog::createNewTaskLog()
{
    sharedController().m_isTask = true;
    createNewLog();
}

void VTLog::joinTaskLog()
{
    sharedController().m_isTask = true;
    sharedController().m_startsOnDemand = true;
}

void VTLog::createNewLog(const QString &name)
{
    VTLog &log = sharedController();
    log.m_writeQueue.addAndDrain([&log, name] { log.startNewLog(name); });
}

void VTLog::startNewLog(const QString &name, Rotates rotates)
{
    if (isSwitchedOff()) {
        m_fileHandle.close();
        printToConsole("Logging is disabled");
        m_loggingDisabled = true;
        return;
    }
    {
        const std::scoped_lock lock(m_nameMutex);
        if (!name.isNull() && m_appName.isNull())
            m_appName = name;
    }
    const QString folder = userLogFolder();
    const QString current = currentLogPath();
    for (const QString &needed : {folder, platform::parentPath(current)}) {
        if (!platform::makeFolders(needed).ok())
            return printToConsole(platform::formatString("Unable to create folder %@.", needed));
    }
    // Two programs at once would shift each other's generations. Where no lock is to be had, that risk remains.
    const auto lock = platform::FileLock::acquire(
        joined(folder, QStringLiteral(".%1%2.lock").arg(appName(), m_isTask ? QStringLiteral(".task") : QString())),
        lockPatience);
    // Of several that reach the limit together one has done it for all.
    const bool isDone = rotates == Rotates::Always && !m_fileHandle.isInItsPlace();
    m_fileHandle.close();
    m_bytesWritten = 0;
    if (isDone || beginFile(folder, rotates))
        openCurrentLog();
}

/// A new current log with its header, or another program's, with a header of this one's added.
bool VTLog::beginFile(const QString &folder, Rotates rotates)
{
    const QString current = currentLogPath();
    const QByteArray head = header().toUtf8();
    m_headerBytes = static_cast<quint64>(head.size());
    if (rotates == Rotates::UnlessInUse && platform::AppendFile::isInUse(current)) {
        platform::AppendFile theirs;
        if (theirs.open(current).ok() && theirs.append(head).ok())
            return true;
    }
    if (platform::targetExists(current) && !shiftGenerations(folder))
        return false;
    const auto made = platform::replaceFile(current, head, platform::Waits::ForTheSystem);
    if (!made.ok())
        printToConsole(platform::formatString("Unable to create log file %@ - %@", current, made.sentence()));
    return made.ok();
}

bool VTLog::shiftGenerations(const QString &folder) const
{
    const QString name = appName();
    const platform::Outcome removed = platform::removeTree(generationPath(folder, name, generations, m_isTask));
    static_cast<void>(removed); // the move that follows tells when it stands in the way
    for (int i = generations - 1; i >= 1; --i) {
        const QString from = generationPath(folder, name, i, m_isTask);
        const QString to = generationPath(folder, name, i + 1, m_isTask);
        if (platform::targetExists(from) && !platform::moveItem(from, to).ok()) {
            printToConsole(platform::formatString("Unable to move file %@ to %@", from, to));
            return false;
        }
    }
    return true;
}

void VTLog::openCurrentLog()
{
    // Appending: when another program of the same name writes here too, neither overwrites the other's lines. While a
    // rotation is on its way there is no current file, and the one that is open takes the entry.
    platform::AppendFile current;
    if (!current.open(currentLogPath()).ok())
        return;
    m_fileHandle = std::move(current);
    m_bytesWritten = m_fileHandle.size() - qMin(m_fileHandle.size(), m_headerBytes);
}

void VTLog::printAndAppend(const QString &message)
{
    appendLog(message);
    printToConsole(message);
}

void VTLog::append(const QString &message)
{
    const QString trimmed = message.trimmed();
    m_bytesInQueue += static_cast<quint64>(trimmed.size());
    auto operation = [this, trimmed] {
        appendLogOnThread(trimmed);
    };
    const bool prompt = !trimmed.isEmpty() && trimmed.size() <= promptLength && m_bytesInQueue <= promptLength;
    if (prompt)
        m_writeQueue.addAndDrain(std::move(operation));
    else
        m_writeQueue.add(std::move(operation));
}

void VTLog::appendLogOnThread(const QString &message)
{
    try {
        if (m_loggingDisabled)
            return;
        if (!m_fileHandle.isOpen() || !m_fileHandle.isInItsPlace())
            openCurrentLog();
        if (!m_fileHandle.isOpen() && m_startsOnDemand)
            startNewLog({});
        if (m_fileHandle.isOpen()) {
            writeEntry(message);
        } else {
            printToConsole(platform::formatString("Unable to log the following information: %@", message));
            printToConsole("Unable to open log for output");
        }
        m_bytesInQueue -= static_cast<quint64>(message.size());
    } catch (const std::exception &exception) {
        if (!m_loggingDisabled)
            printToConsole(platform::formatString("Exception writing to log: %@", exception.what()));
    }
}

void VTLog::writeEntry(const QString &message)
{
    // Put together, not formatted: an empty message is an empty message, not a missing one.
    const QByteArray line =
        (platform::currentDateDescription() + " - " + platform::forDisplay(message) + '\n').toUtf8();
    // One write for one line: the kernel does not tear it, whoever else writes to the file.
    if (!m_fileHandle.append(line).ok())
        return printToConsole(platform::formatString("Unable to log the following information: %@", message));
    m_bytesWritten += static_cast<quint64>(line.size());
    if (m_bytesWritten > sizeLimit) {
        startNewLog(appName(), Rotates::Always);
        if (m_bytesWritten > 0)
            return; // another program has begun it
        // Written here and now, not queued behind what other threads have queued: it is the new file's first entry.
        const QString first = QStringLiteral("Log truncated at 500KB");
        m_bytesInQueue += static_cast<quint64>(first.size());
        appendLogOnThread(first);
    }
}

void VTLog::finishWriting()
{
    sharedController().m_writeQueue.drain();
}

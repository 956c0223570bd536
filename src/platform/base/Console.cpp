#include "platform/base/Console.h"

#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/plain/WholeWrite.h"

#include <array>
#include <cerrno>
#include <sys/ioctl.h>
#include <unistd.h>

namespace platform {
namespace {

Outcome writeTo(int descriptor, const QByteArray &bytes, const char *name)
{
    return writeWhole(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()))
               ? Outcome()
               : Outcome::fromErrno(QLatin1String(name));
}

} // namespace

void printToConsole(const QString &text)
{
    const QString line = QStringLiteral("%1 %2[%3] %4\n")
                             .arg(currentDateDescription(), lastComponent(executablePath()))
                             .arg(getpid())
                             .arg(forDisplay(text));
    static_cast<void>(writeTo(STDERR_FILENO, line.toUtf8(), "stderr")); // there is nowhere left to say it
}

Outcome writeToStandardOutput(const QString &text)
{
    return writeTo(STDOUT_FILENO, toNative(text), "standard output");
}

void writeToStandardError(const QString &text)
{
    static_cast<void>(writeTo(STDERR_FILENO, forDisplay(text).toUtf8(), "stderr"));
}

Result<QByteArray> readStandardInput(qint64 atMost)
{
    QByteArray bytes;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count == 0)
            return bytes;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return Outcome::fromErrno(QStringLiteral("standard input"));
        bytes.append(buffer.data(), count);
        if (bytes.size() > atMost)
            return Outcome::fromNumber(EFBIG, QStringLiteral("standard input"));
    }
}

Result<QString> askAtTerminal(const QString &question)
{
    if (isatty(STDIN_FILENO) == 0 || isatty(STDERR_FILENO) == 0)
        return Outcome::failure(Cause::NotSupported, {});
    writeToStandardError(question);
    QByteArray line;
    for (;;) {
        char byte = 0;
        const ssize_t got = read(STDIN_FILENO, &byte, 1);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return Outcome::failure(Cause::Cancelled, {});
        if (byte == '\n')
            return fromNative(line);
        line += byte;
    }
}

int columnsOfStandardError()
{
    winsize size{};
    const bool isTerminal = isatty(STDERR_FILENO) != 0 && ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0;
    return !isTerminal ? 0 : size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace platform

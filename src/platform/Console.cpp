#include "platform/Console.h"

#include "platform/ApplicationBundle.h"
#include "platform/LocalTime.h"
#include "platform/NativePath.h"

#include <cerrno>
#include <unistd.h>

namespace platform {
namespace {

void writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype at = 0; at < bytes.size();) {
        const ssize_t written = write(descriptor, bytes.constData() + at, static_cast<size_t>(bytes.size() - at));
        if (written < 0 && errno != EINTR)
            return;
        at += written < 0 ? 0 : written;
    }
}

} // namespace

void printToConsole(const QString &text)
{
    const QString line = QStringLiteral("%1 %2[%3] %4\n")
                             .arg(currentDateDescription(), lastComponent(executablePath()))
                             .arg(getpid())
                             .arg(forDisplay(text));
    writeAll(STDERR_FILENO, line.toUtf8());
}

void writeToStandardOutput(const QString &text)
{
    writeAll(STDOUT_FILENO, toNative(text));
}

void writeToStandardError(const QString &text)
{
    writeAll(STDERR_FILENO, forDisplay(text).toUtf8());
}

} // namespace platform

#include "harness/TemporaryHome.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

TemporaryHome::TemporaryHome()
{
    if (!m_folder.isValid())
        qFatal("No temporary home: %s", qPrintable(m_folder.errorString()));
    qputenv("HOME", m_folder.path().toUtf8());
    for (const char *variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(variable);
    // Under sudo the program would write into the folders of whoever called it.
    for (const char *variable : {"SUDO_UID", "PKEXEC_UID"})
        qunsetenv(variable);
    qputenv("XDG_RUNTIME_DIR", m_runtime.path().toUtf8());
}

TemporaryHome::~TemporaryHome()
{
    // QTemporaryDir leaves what is no UTF-8 and no plain file behind, with a warning.
    static_cast<void>(platform::removeTree(m_folder.path()));
}

QString TemporaryHome::file(const QString &relative) const
{
    const QString path = m_folder.filePath(relative);
    if (!platform::makeFolders(platform::parentPath(path)).ok())
        qFatal("Cannot make the folders of %s", qPrintable(path));
    return path;
}

void writeFile(const QString &path, const QByteArray &contents)
{
    if (!platform::makeFolders(platform::parentPath(path)).ok())
        qFatal("Cannot make the folders of %s", qPrintable(path));
    const int file = open(platform::toNative(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0 || write(file, contents.constData(), static_cast<size_t>(contents.size())) != contents.size())
        qFatal("Cannot write %s", qPrintable(path));
    close(file);
}

QByteArray readFile(const QString &path)
{
    QByteArray contents;
    const int file = open(platform::toNative(path).constData(), O_RDONLY | O_CLOEXEC);
    char buffer[65536];
    for (ssize_t got = 1; file >= 0 && got > 0;) {
        got = read(file, buffer, sizeof buffer);
        contents.append(buffer, qMax<ssize_t>(got, 0));
    }
    if (file >= 0)
        close(file);
    return contents;
}

// VTFileManager's operations on names, dates and sizes.
#include "support/VTFileManager.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/VTAuthorization.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <QList>

using platform::FileIdentity;
using platform::FileKind;

namespace {

constexpr double touchPatience = 5; // seconds
constexpr double unit = 1024;

/// Folders may be reached through links, so a link to a folder above would never end.
quint64 sizeBelow(const QString &path, QList<FileIdentity> &entered)
{
    if (!platform::leadsToFolder(path))
        return platform::fileSizeOf(path);
    const auto identity = platform::identityOf(path + QStringLiteral("/."));
    if (!identity || entered.contains(*identity))
        return 0;
    entered.append(*identity);
    quint64 size = 0;
    const auto entries = platform::listFolder(path);
    if (!entries)
        VTLog::appendLog("A folder is left out of a size: %@", entries.outcome().description());
    for (const auto &entry : entries.valueOr({}))
        size += sizeBelow(platform::joined(path, entry.name), entered);
    entered.removeLast();
    return size;
}

} // namespace

QString VTFileManager::uniqueFilename(const QString &path)
{
    if (platform::kindOf(path) == FileKind::Missing)
        return path;
    const QString stem = platform::withoutExtension(path);
    const QString extension = platform::extensionOf(path);
    const QString ending = extension.isEmpty() ? QString() : u'.' + extension;
    for (qulonglong n = 2;; ++n) {
        const QString candidate = stem + u' ' + QString::number(n) + ending;
        if (platform::kindOf(candidate) == FileKind::Missing)
            return candidate;
    }
}

QString VTFileManager::validateFilename(const QString &name)
{
    const QString empty = QLatin1String("");
    if (name == u".")
        return empty;
    QString valid = (name.startsWith(u'.') ? name.mid(1) : name).trimmed();
    valid.remove(u'/');
    valid.remove(u':');
    valid.remove(QChar(u'\0')); // pasted: to the system a name would end there
    return valid;
}

bool VTFileManager::touchFile(const QString &path)
{
    if (path.isNull() || platform::kindOf(path) == FileKind::Missing)
        return false;
    if (isSymbolicLinkAtPath(path)) // the tool would date what the link leads to
        return platform::touchItem(path).ok();
    const QString tool = QStringLiteral("/usr/bin/touch");
    const QStringList arguments{QStringLiteral("-c"), path};
    if (platform::isWritable(path)) {
        VTTask::runTask(tool, arguments, touchPatience);
        return true;
    }
    return VTAuthorization::sharedController().authExecTask(tool, arguments, VTAuthorization::Async::No) == 0;
}

quint64 VTFileManager::fileSize(const QString &path)
{
    return platform::resultInBackground([&] {
        QList<FileIdentity> entered;
        return sizeBelow(path, entered);
    });
}

QString VTFileManager::formatFileSize(double bytes)
{
    if (bytes < unit)
        return QString::number(bytes, 'f', 0) + QStringLiteral(" B");
    if (bytes < unit * unit)
        return QString::number(bytes / unit, 'f', 2) + QStringLiteral(" KB");
    if (bytes < unit * unit * unit)
        return QString::number(bytes / unit / unit, 'f', 2) + QStringLiteral(" MB");
    return QString::number(bytes / unit / unit / unit, 'f', 2) + QStringLiteral(" GB");
}

#include "platform/Packages.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"

#include <QFile>
#include <QSet>

namespace platform {
namespace {

/// One extension a line, lower case; lines that begin with "#" are comments.
const QSet<QString> &packageExtensions()
{
    static const QSet<QString> extensions = [] {
        QSet<QString> found;
        QFile file(ApplicationBundle::main().resource(QStringLiteral("PackageExtensions.txt")));
        if (!file.open(QIODevice::ReadOnly))
            return found;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (!line.trimmed().isEmpty() && !line.startsWith('#'))
                found.insert(QString::fromUtf8(line.trimmed()));
        }
        return found;
    }();
    return extensions;
}

} // namespace

bool isPackage(const QString &path)
{
    if (!leadsToFolder(path))
        return false;
    return packageExtensions().contains(extensionOf(path).toLower()) || (flagsWordOf(path) & bundleBit) != 0;
}

} // namespace platform

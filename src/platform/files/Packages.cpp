#include "platform/files/Packages.h"

#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/WholeFile.h"

#include <QSet>

namespace platform {
namespace {

/// One extension a line, lower case; lines that begin with "#" are comments.
const QSet<QString> &packageExtensions()
{
    static const QSet<QString> extensions = [] {
        QSet<QString> found;
        const QString list = ApplicationBundle::main().resource(QStringLiteral("PackageExtensions.txt"));
        for (const QByteArray &line : readFile(list).valueOr({}).split('\n')) {
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

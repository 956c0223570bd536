#include "platform/desktop/FileAddress.h"

#include "platform/base/NativePath.h"

namespace platform {

QString fileAddress(const QString &path)
{
    return QStringLiteral("file://") + QString::fromLatin1(toNative(path).toPercentEncoding("/"));
}

} // namespace platform

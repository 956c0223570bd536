#include "support/JsonPaths.h"

#include "platform/base/NativePath.h"

#include <QJsonObject>

void insertPath(QJsonObject &object, const QString &key, const QString &path)
{
    const QString shown = platform::forDisplay(path);
    object.insert(key, shown);
    if (shown != path)
        object.insert(key + QStringLiteral("Encoded"),
                      QString::fromLatin1(platform::toNative(path).toPercentEncoding("/")));
}

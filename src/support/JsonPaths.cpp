#include "support/JsonPaths.h"

#include "platform/base/NativePath.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QString encoded(const QString &path)
{
    return QString::fromLatin1(platform::toNative(path).toPercentEncoding("/"));
}

} // namespace

void insertPath(QJsonObject &object, const QString &key, const QString &path)
{
    const QString shown = platform::forDisplay(path);
    object.insert(key, shown);
    if (shown != path)
        object.insert(key + QStringLiteral("Encoded"), encoded(path));
}

void insertPaths(QJsonObject &object, const QString &key, const QStringList &paths)
{
    QJsonArray shown;
    QJsonArray all;
    for (const QString &path : paths) {
        shown.append(platform::forDisplay(path));
        all.append(encoded(path));
    }
    object.insert(key, shown);
    if (shown != QJsonArray::fromStringList(paths))
        object.insert(key + QStringLiteral("Encoded"), all);
}

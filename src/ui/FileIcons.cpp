#include "ui/FileIcons.h"

#include "platform/base/NativePath.h"
#include "ui/Icons.h"

#include <QHash>
#include <QMimeDatabase>

namespace fileicons {
namespace {

QIcon themed(const QString &name, const char *own)
{
    const QIcon icon = name.isEmpty() ? QIcon() : QIcon::fromTheme(name);
    return icon.isNull() ? icons::named(own) : icon;
}

QIcon ofType(const QString &extension)
{
    static const QMimeDatabase types;
    const QMimeType type = types.mimeTypeForFile(QStringLiteral("x.") + extension, QMimeDatabase::MatchExtension);
    const QIcon icon = QIcon::fromTheme(type.iconName());
    return icon.isNull() ? themed(type.isDefault() ? QString() : type.genericIconName(), "file") : icon;
}

} // namespace

QIcon forName(const QString &name, Kind kind)
{
    if (kind == Kind::Folder)
        return themed(QStringLiteral("folder"), "folder");
    if (kind == Kind::Package)
        return icons::named("package");
    static QHash<QString, QIcon> known;
    const QString extension = platform::extensionOf(name).toLower();
    QIcon &icon = known[extension];
    if (icon.isNull())
        icon = ofType(extension);
    return icon;
}

} // namespace fileicons

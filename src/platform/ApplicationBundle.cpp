#include "platform/ApplicationBundle.h"

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"

#include <QFile>
#include <QStandardPaths>

namespace platform {

QString executablePath()
{
    static const QString path = linkTarget(QStringLiteral("/proc/self/exe"));
    return path;
}

const ApplicationBundle &ApplicationBundle::main()
{
    static const ApplicationBundle bundle = [] {
        const QString folder = parentPath(executablePath());
        const QString beside = joined(folder, QStringLiteral("Tessaro.app"));
        const QString installed = joined(parentPath(folder), QStringLiteral("share/tessaro/Tessaro.app"));
        return ApplicationBundle(leadsToFolder(beside) ? beside : installed);
    }();
    return bundle;
}

QVariantMap ApplicationBundle::information() const
{
    QFile file(joined(m_path, QStringLiteral("Contents/Info.plist")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return readPropertyList(file.readAll()).value_or(QVariant()).toMap();
}

QString ApplicationBundle::resource(const QString &name) const
{
    const QString path = joined(joined(m_path, QStringLiteral("Contents/Resources")), name);
    return targetExists(path) ? path : QString();
}

QString registeredApplication(const QString &bundleIdentifier)
{
    const QString entry = bundleIdentifier + QStringLiteral(".desktop");
    const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
    return path.isEmpty() ? QString() : path;
}

} // namespace platform

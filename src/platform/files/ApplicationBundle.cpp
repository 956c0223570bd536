#include "platform/files/ApplicationBundle.h"

#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"

namespace platform {

const ApplicationBundle &ApplicationBundle::main()
{
    static const ApplicationBundle bundle = [] {
        const QString folder = parentPath(executablePath());
        if (folder.endsWith(QLatin1String("/Contents/MacOS")))
            return ApplicationBundle(parentPath(parentPath(folder)));
        const QString beside = joined(folder, QStringLiteral("Tessaro.app"));
        const QString installed = joined(parentPath(folder), QStringLiteral("lib/tessaro/Tessaro.app"));
        return ApplicationBundle(leadsToFolder(beside) ? beside : installed);
    }();
    return bundle;
}

QVariantMap ApplicationBundle::information() const
{
    return readPropertyListFile(joined(m_path, QStringLiteral("Contents/Info.plist"))).valueOr({}).toMap();
}

QString ApplicationBundle::resource(const QString &name) const
{
    const QString path = joined(joined(m_path, QStringLiteral("Contents/Resources")), name);
    return targetExists(path) ? path : QString();
}

} // namespace platform

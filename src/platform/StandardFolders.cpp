#include "platform/StandardFolders.h"

#include "platform/NativePath.h"
#include "platform/Users.h"

#include <QDir>
#include <QStandardPaths>
#include <QUuid>

namespace platform {
namespace {

QString below(FolderKind kind)
{
    switch (kind) {
    case FolderKind::Applications: return QStringLiteral("/Applications");
    case FolderKind::AdminApplications: return QStringLiteral("/Applications/Utilities");
    case FolderKind::Documents: return QStringLiteral("/Documents");
    case FolderKind::Desktop: return QStringLiteral("/Desktop");
    case FolderKind::Library: return QStringLiteral("/Library");
    case FolderKind::Caches: return QStringLiteral("/Library/Caches");
    case FolderKind::ApplicationSupport: return QStringLiteral("/Library/Application Support");
    case FolderKind::Documentation: return QStringLiteral("/Library/Documentation");
    }
    return {};
}

QString userHome()
{
    return isSuperUser() ? superUserHome() : homeFolder();
}

/// What the desktop says, in terms of userHome(): as super-user $HOME may be any folder, while callers expect /root.
QString desktopsOwn(QStandardPaths::StandardLocation location)
{
    const QString path = QStandardPaths::writableLocation(location);
    const QString home = QDir::homePath();
    return path.startsWith(home) ? userHome() + path.mid(home.size()) : path;
}

} // namespace

QString superUserHome()
{
    return QStringLiteral("/root");
}

QString standardFolder(FolderKind kind, FolderDomain domain)
{
    if (domain == FolderDomain::System)
        return kind == FolderKind::Library ? QStringLiteral("/System/Library") : QString();
    if (domain == FolderDomain::Local)
        return kind == FolderKind::Documents || kind == FolderKind::Desktop ? QString() : below(kind);
    if (kind == FolderKind::Documents)
        return desktopsOwn(QStandardPaths::DocumentsLocation);
    if (kind == FolderKind::Desktop)
        return desktopsOwn(QStandardPaths::DesktopLocation);
    return userHome() + below(kind);
}

QString temporaryFolder()
{
    return QDir::tempPath();
}

QString uniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace platform

#include "platform/desktop/StandardFolders.h"

#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"

#include <QUuid>
#include <cstdlib>
#include <mutex>
#include <unistd.h>

namespace platform {
namespace {

QString below(FolderKind kind)
{
    switch (kind) {
    case FolderKind::Applications:
        return QStringLiteral("/Applications");
    case FolderKind::AdminApplications:
        return QStringLiteral("/Applications/Utilities");
    case FolderKind::Documents:
        return QStringLiteral("/Documents");
    case FolderKind::Desktop:
        return QStringLiteral("/Desktop");
    case FolderKind::Library:
        return QStringLiteral("/Library");
    case FolderKind::Caches:
        return QStringLiteral("/Library/Caches");
    case FolderKind::ApplicationSupport:
        return QStringLiteral("/Library/Application Support");
    case FolderKind::Documentation:
        return QStringLiteral("/Library/Documentation");
    }
    return {};
}

QString userHome()
{
    return isSuperUser() ? superUserHome() : homeFolder();
}

/// The user's own choice of a folder (user-dirs.dirs of the xdg-user-dirs tool), in terms of userHome(): as super-user
/// $HOME may be any folder, while callers expect /root. Read here, byte for byte: the toolkit's reader loses homes that
/// are no UTF-8.
QString chosenFolder(const QByteArray &name, const QString &otherwise)
{
    const QString configured = fromNative(qgetenv("XDG_CONFIG_HOME"));
    const QString folder = configured.startsWith(u'/') ? configured : joined(homeFolder(), QStringLiteral(".config"));
    const QByteArray list = readFile(joined(folder, QStringLiteral("user-dirs.dirs"))).valueOr({});
    for (const QByteArray &line : list.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        const QByteArray key = "XDG_" + name + "_DIR=\"";
        if (!trimmed.startsWith(key) || !trimmed.endsWith('"') || trimmed.size() <= key.size())
            continue;
        const QString value = fromNative(trimmed.mid(key.size()).chopped(1));
        if (value.startsWith(QLatin1String("$HOME")))
            return userHome() + value.mid(5);
        if (value.startsWith(u'/'))
            return isInside(value, homeFolder()) ? userHome() + value.mid(homeFolder().size()) : value;
    }
    return userHome() + otherwise;
}

/// The user's own, so that nobody else can plant anything in it or be in the way.
QString makeTemporaryFolder()
{
    const QString runtime = fromNative(qgetenv("XDG_RUNTIME_DIR"));
    const QString lasting = joined(runtime, QStringLiteral("tessaro"));
    if (runtime.startsWith(u'/') && makeOwnFolder(lasting).ok())
        return lasting;
    const QString chosen = fromNative(qgetenv("TMPDIR"));
    const QString shared = chosen.startsWith(u'/') ? chosen : QStringLiteral("/tmp");
    static QByteArray made;
    made = toNative(joined(shared, QStringLiteral("tessaro-XXXXXX")));
    if (!mkdtemp(made.data()))
        return shared;                            // full or closed: what is to lie in it fails, and says so
    std::atexit([] { rmdir(made.constData()); }); // unless something is still in it, such as an updater that runs
    return fromNative(made);
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
        return chosenFolder("DOCUMENTS", below(kind));
    if (kind == FolderKind::Desktop)
        return chosenFolder("DESKTOP", below(kind));
    return userHome() + below(kind);
}

QString temporaryFolder()
{
    static std::mutex mutex;
    static QString folder;
    const std::scoped_lock lock(mutex);
    if (folder.isNull() || !leadsToFolder(folder)) // the system takes away what lies there unused for some days
        folder = makeTemporaryFolder();
    return folder;
}

QString uniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace platform

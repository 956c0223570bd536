#include "support/VTLocalPaths.h"

#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/Trash.h"
#include "platform/process/ConsoleUser.h"

#include <QStringList>
#include <array>

using platform::FolderDomain;
using platform::FolderKind;

namespace {

FolderDomain platformDomain(VTLocalPaths::Domain domain)
{
    return domain == VTLocalPaths::Domain::User ? FolderDomain::User : FolderDomain::Local;
}

QString below(const QString &folder, const char *component)
{
    return folder.isNull() ? QString() : platform::joined(folder, QString::fromLatin1(component));
}

/// The super-user's path below the console user's home. The last cut is one character shorter than its prefix and
/// leaves the "t" of "root" as a folder; it must stay so.
QString redirectedToConsoleUser(QString path)
{
    if (VTLocalPaths::currentConsoleUser().isEmpty()) // nobody is there: the super-user's own places
        return path;
    if (path.startsWith(platform::superUserHome()))
        path = path.mid(platform::superUserHome().size());
    if (path.startsWith(QLatin1String("/var/root")))
        path = path.mid(9);
    if (path.startsWith(QLatin1String("/private/var/root")))
        path = path.mid(16);
    const QString home = VTLocalPaths::userDirectory();
    return home.isNull() ? QString() : platform::joined(home, path);
}

constexpr std::array folderPairs{
    &VTLocalPaths::applicationDirectory, &VTLocalPaths::adminApplicationDirectory,
    &VTLocalPaths::documentDirectory,    &VTLocalPaths::libraryDirectory,
    &VTLocalPaths::prefsDirectory,       &VTLocalPaths::cacheDirectory,
    &VTLocalPaths::appSupportDirectory,
};
constexpr std::array singleFolders{
    &VTLocalPaths::desktopDirectory,
    &VTLocalPaths::userDirectory,
    &VTLocalPaths::systemLibraryDirectory,
    &VTLocalPaths::localDocumentationDirectory,
};
/// Beside the two of the reference desktop, the top folders of this one (Filesystem Hierarchy Standard 3.0).
constexpr std::array fixedFolders{
    "/Users/Shared", "/Volumes", "/bin",  "/boot", "/dev",  "/etc", "/home", "/lib", "/lib64", "/media", "/mnt",
    "/opt",          "/proc",    "/root", "/run",  "/sbin", "/srv", "/sys",  "/tmp", "/usr",   "/var",
};

bool isStandardFolder(const QString &path)
{
    for (const auto folder : folderPairs) {
        if (path == folder(VTLocalPaths::Domain::User) || path == folder(VTLocalPaths::Domain::Local))
            return true;
    }
    for (const auto folder : singleFolders) {
        if (path == folder())
            return true;
    }
    for (const char *folder : fixedFolders) {
        if (path == QLatin1String(folder))
            return true;
    }
    return false;
}

} // namespace

QString VTLocalPaths::pathForDirectory(FolderKind kind, FolderDomain domain)
{
    const QString path = platform::standardFolder(kind, domain);
    if (platform::isSuperUser() && domain == FolderDomain::User && !path.isNull())
        return redirectedToConsoleUser(path);
    return path;
}

QString VTLocalPaths::applicationDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::Applications, platformDomain(domain));
}

QString VTLocalPaths::adminApplicationDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::AdminApplications, platformDomain(domain));
}

QString VTLocalPaths::documentDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::Documents, platformDomain(domain));
}

QString VTLocalPaths::libraryDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::Library, platformDomain(domain));
}

QString VTLocalPaths::prefsDirectory(Domain domain)
{
    return below(libraryDirectory(domain), "Preferences");
}

QString VTLocalPaths::cacheDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::Caches, platformDomain(domain));
}

QString VTLocalPaths::appSupportDirectory(Domain domain)
{
    return pathForDirectory(FolderKind::ApplicationSupport, platformDomain(domain));
}

QString VTLocalPaths::logDirectory(Domain domain)
{
    return below(libraryDirectory(domain), "Logs");
}

QString VTLocalPaths::desktopDirectory()
{
    return pathForDirectory(FolderKind::Desktop, FolderDomain::User);
}

QString VTLocalPaths::systemLibraryDirectory()
{
    return pathForDirectory(FolderKind::Library, FolderDomain::System);
}

QString VTLocalPaths::localDocumentationDirectory()
{
    return pathForDirectory(FolderKind::Documentation, FolderDomain::Local);
}

QString VTLocalPaths::movieDirectory()
{
    return below(userDirectory(), "Movies");
}

QString VTLocalPaths::trashDirectory()
{
    return platform::homeTrashFiles();
}

QString VTLocalPaths::userDirectory()
{
    if (!platform::isSuperUser())
        return platform::homeFolder();
    const QString user = currentConsoleUser();
    return user.isEmpty() ? platform::superUserHome() : platform::homeFolderOf(user);
}

QString VTLocalPaths::tempDirectory()
{
    return platform::temporaryFolder();
}

QString VTLocalPaths::username()
{
    const QString atConsole = platform::isSuperUser() ? currentConsoleUser() : QString();
    return atConsole.isEmpty() ? platform::loginName() : atConsole;
}

QString VTLocalPaths::currentConsoleUser()
{
    // Asked once: who sits at the console does not change while this program runs, and the answer may come over a bus.
    static const QString user = platform::consoleUser();
    return user == QLatin1String("loginwindow") ? QString() : user;
}

QString VTLocalPaths::tempFile()
{
    return tempDirectory() + u'/' + uuid();
}

QString VTLocalPaths::uuid()
{
    return platform::uniqueString();
}

bool VTLocalPaths::isPathSystemDirectory(const QString &path, Match match)
{
    if (path == u"/")
        return true;
    if (path.size() < 3)
        return false;
    // Two characters, not one: "/Applications/" is compared as "/Applicatio" and does not match. This must stay.
    const QString compared = path.endsWith(u'/') ? path.chopped(2) : path;
    if (isStandardFolder(compared))
        return true;
    if (match == Match::Exact)
        return false;
    for (const char *prefix : {"/usr", "/var", "/private/var", "/System"}) {
        if (compared.startsWith(QLatin1String(prefix)))
            return true;
    }
    return false;
}

bool VTLocalPaths::isPathOnTimeMachineVolume(const QString &path)
{
    return path.startsWith(QLatin1String("/Volumes/")) && path.split(u'/').contains(QLatin1String("Backups.backupdb"));
}

#include "support/StudioCopy.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"

namespace studio {
namespace {

constexpr std::chrono::seconds patienceToUse{5};
constexpr std::chrono::seconds patienceToChange{1};

platform::Result<Use> locked(std::chrono::milliseconds patience, platform::FileLock::Access access)
{
    // Beside the copy: it stays when the copy goes.
    const QString file = platform::joined(platform::parentPath(copyFolder()), QStringLiteral(".Studio.lock"));
    auto lock = platform::FileLock::acquire(file, patience, access);
    if (lock)
        return Use(std::make_shared<const platform::FileLock>(*std::move(lock)));
    return lock.outcome().is(platform::Cause::Busy) ? platform::Result<Use>(lock.outcome()) : Use();
}

} // namespace

QString copyFolder()
{
    return platform::joined(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User),
                            QStringLiteral("Vantrel/Tessaro/Studio"));
}

QString copiedFile()
{
    return platform::joined(copyFolder(), setupFile);
}

QString copiedTemplates()
{
    return platform::joined(copyFolder(), templatesFolder);
}

bool isInForce()
{
    return platform::targetExists(copiedFile());
}

bool decidesTemplates()
{
    return isInForce() && platform::leadsToFolder(copiedTemplates());
}

const QStringList &sharedKeys()
{
    static const QStringList keys{settings::filenameTemplate,
                                  settings::separatorChar,
                                  settings::dateFormat,
                                  settings::strictNaming,
                                  settings::defaultTemplate,
                                  settings::useFixedProjectLocation,
                                  settings::fixedProjectLocationPath,
                                  settings::autoOpenFolder,
                                  settings::autoQuit,
                                  settings::autoExpandFolders};
    return keys;
}

platform::Result<Use> useCopy()
{
    return decidesTemplates() ? locked(patienceToUse, platform::FileLock::Access::Read) : platform::Result<Use>(Use());
}

platform::Result<Use> changeCopy()
{
    return locked(patienceToChange, platform::FileLock::Access::Change);
}

} // namespace studio

#include "support/StudioCopy.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"

namespace studio {

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

} // namespace studio

#include "templates/VTDataController.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileSystem.h"
#include "platform/MainThread.h"
#include "platform/NativePath.h"
#include "platform/ZipArchive.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::FolderEntry;
using platform::joined;

namespace {

constexpr std::chrono::seconds createPatience{20};
constexpr std::chrono::seconds trashPatience{10};

QString text(const char *source)
{
    return QCoreApplication::translate("VTDataController", source);
}

QList<FolderEntry> entriesOf(const QString &folder)
{
    return platform::listFolder(folder).value_or(QList<FolderEntry>());
}

void unpack(const QString &archive, const QString &location)
{
    const platform::ExtractReport report =
        platform::resultInBackground([&] { return platform::extractZip(archive, location); });
    if (!report.problem.isNull())
        VTLog::appendLog("Unable to unpack %@: %@", archive, report.problem);
    for (const QString &refused : report.refused)
        VTLog::appendLog("Refused to unpack %@ of %@", refused, archive);
}

} // namespace

VTDataController &VTDataController::sharedController()
{
    static auto *shared = new VTDataController;
    return *shared;
}

QString VTDataController::templateLocation()
{
    const QString chosen = settings::standard().string(settings::templateLocation);
    return !chosen.isEmpty() ? chosen
                             : joined(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User),
                                      QStringLiteral("Vantrel/Tessaro/Templates"));
}

QString VTDataController::bundlePath(const QString &templateName)
{
    return templateLocation() + platform::formatString("/%@.tzt", templateName);
}

QString VTDataController::filesFolder(const QString &templateName)
{
    return bundlePath(templateName) + QStringLiteral("/Files");
}

QStringList VTDataController::templates() const
{
    const QMutexLocker lock(&m_mutex);
    return m_templates;
}

void VTDataController::populateDefaultTemplates(Force force)
{
    const QString location = templateLocation();
    const bool isNew = !VTFileManager::fileExistsAtPath(location);
    if (isNew && !VTFileManager::createDirectory(location, createPatience)) {
        VTAlert::alertSheetWithMessageText(
            platform::formatString(text("Unable to create directory %@"), location),
            text("Please check that you have write permissions for the destination directory."), m_window);
        if (force == Force::No)
            return;
    }
    if (!isNew && force == Force::No)
        return;
    installShippedTemplates(location);
}

void VTDataController::installShippedTemplates(const QString &location)
{
    VTLog::appendLog("Populating default templates");
    const QString shipped = platform::ApplicationBundle::main().resource(QStringLiteral("Templates"));
    for (const FolderEntry &entry : entriesOf(shipped)) {
        if (!entry.name.endsWith(QLatin1String(".zip")))
            continue;
        const QString target = joined(location, platform::withoutExtension(entry.name) + QStringLiteral(".tzt"));
        if (VTFileManager::fileExistsAtPath(target) && !VTFileManager::trashFile(target, trashPatience)) {
            // Unpacking over it would mix the user's template with the shipped one.
            VTLog::appendLog("Unable to move %@ to the Trash; leaving it as it is", target);
            continue;
        }
        unpack(joined(shipped, entry.name), location);
    }
}

QStringList VTDataController::templateNames(const QString &location)
{
    QStringList names;
    for (const FolderEntry &entry : entriesOf(location)) {
        if (platform::extensionOf(entry.name).toLower() == u"tzt")
            names.append(platform::withoutExtension(entry.name));
    }
    return names;
}

void VTDataController::populateTemplates()
{
    populateDefaultTemplates();
    VTLog::appendLog("Populating templates");
    QStringList names = templateNames(templateLocation());
    {
        const QMutexLocker lock(&m_mutex);
        m_templates = std::move(names);
    }
    VTLog::appendLog("Template population complete");
}

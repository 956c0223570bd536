#include "templates/VTDataController.h"

#include "platform/archive/ZipArchive.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::FolderEntry;
using platform::joined;
using platform::Outcome;

namespace {

constexpr std::chrono::seconds createPatience{20};
constexpr std::chrono::seconds trashPatience{10};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VTDataController)
};

Outcome unpack(const QString &archive, const QString &location)
{
    const platform::ExtractReport report =
        platform::resultInBackground([&] { return platform::extractZip(archive, location); });
    if (!report.outcome.ok())
        VTLog::appendLog("Unable to unpack %@: %@", archive, report.outcome.description());
    for (const QString &refused : report.refused)
        VTLog::appendLog("Refused to unpack %@ of %@", refused, archive);
    return report.outcome.ok() && !report.refused.isEmpty()
               ? Outcome::failure(platform::Cause::Exists, joined(location, report.refused.constFirst()))
               : report.outcome;
}

/// One shipped template; what stands there under its name goes to the Trash first.
Outcome install(const QString &archive, const QString &location)
{
    const QString name = platform::withoutExtension(platform::lastComponent(archive));
    const QString target = joined(location, name + QStringLiteral(".tzt"));
    if (platform::kindOf(target) != platform::FileKind::Missing) {
        const Outcome trashed = fileoperations::trashFile(target, trashPatience);
        if (!trashed.ok()) {
            // Unpacking over it would mix the user's template with the shipped one.
            VTLog::appendLog("Unable to move %@ to the Trash; leaving it as it is", target);
            return trashed;
        }
    }
    return unpack(archive, location);
}

} // namespace

VTDataController &VTDataController::sharedController()
{
    static auto *shared = new VTDataController;
    return *shared;
}

QString VTDataController::templateLocation()
{
    const QString chosen = settings::templateLocation.text();
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

Outcome VTDataController::populateDefaultTemplates(Force force)
{
    const QString location = templateLocation();
    const bool isNew = !VTFileManager::fileExistsAtPath(location);
    if (!isNew && force == Force::No)
        return {};
    const Outcome made = isNew ? fileoperations::createDirectory(location, createPatience) : Outcome();
    if (!made.ok()) {
        VTAlert::show(
            {platform::formatString(Text::tr("Unable to create directory %@"), location), checkDestination(made)});
        if (force == Force::No)
            return made;
    }
    const Outcome installed = installShippedTemplates(location);
    return made.ok() ? installed : made;
}

Outcome VTDataController::installShippedTemplates(const QString &location)
{
    VTLog::appendLog("Populating default templates");
    const QString shipped = platform::ApplicationBundle::main().resource(QStringLiteral("Templates"));
    const auto entries = platform::listFolder(shipped);
    if (!entries) {
        VTLog::appendLog("Unable to read the shipped templates: %@", entries.outcome().description());
        return entries.outcome();
    }
    Outcome first;
    for (const FolderEntry &entry : *entries) {
        const Outcome installed =
            entry.name.endsWith(QLatin1String(".zip")) ? install(joined(shipped, entry.name), location) : Outcome();
        if (first.ok())
            first = installed;
    }
    return first;
}

platform::Result<QStringList> VTDataController::templateNames(const QString &location)
{
    const auto entries = platform::listFolder(location);
    if (!entries)
        return entries.outcome();
    QStringList names;
    for (const FolderEntry &entry : *entries) {
        if (platform::extensionOf(entry.name).toLower() == u"tzt")
            names.append(platform::withoutExtension(entry.name));
    }
    return names;
}

Outcome VTDataController::populateTemplates()
{
    const Outcome installed = populateDefaultTemplates();
    VTLog::appendLog("Populating templates");
    const auto names = templateNames(templateLocation());
    if (!names)
        VTLog::appendLog("Unable to read the template library: %@", names.outcome().description());
    {
        const QMutexLocker lock(&m_mutex);
        m_templates = names.valueOr({});
    }
    VTLog::appendLog("Template population complete");
    return installed.ok() ? names.outcome() : installed;
}

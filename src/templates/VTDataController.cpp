#include "templates/VTDataController.h"

#include "platform/archive/ZipArchive.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/InPlace.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::Cause;
using platform::FolderEntry;
using platform::joined;
using platform::Outcome;

namespace {

constexpr std::chrono::seconds createPatience{20};
/// A slow share takes less; one whose server is gone never ends.
constexpr std::chrono::seconds answerPatience{2};

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

/// One shipped template; what stands there under its name goes to the Trash when the new one is whole.
Outcome install(const QString &archive, const QString &location, DiskSteps &steps)
{
    const QString name = platform::withoutExtension(platform::lastComponent(archive));
    const QString target = joined(location, name + QStringLiteral(".tzt"));
    const Outcome installed = fileoperations::makeInPlace(
        {target, {}, fileoperations::Replaces::WhatStandsThere, changes::puttingInTrash(steps)},
        [&](const QString &path) {
            const Outcome unpacked = unpack(archive, platform::parentPath(path));
            return unpacked.ok() && !platform::leadsToFolder(path) ? Outcome::failure(Cause::Damaged, archive)
                                                                   : unpacked;
        });
    if (!installed.ok())
        VTLog::appendLog("Unable to install %@: %@", target, installed.description());
    else
        steps.append({DiskStep::Kind::Made, target});
    return installed;
}

/// Where the drive of a library has gone, nothing is to be made in its place: neither a new library nor a question for
/// rights.
bool mayBeMade(const QString &location)
{
    QString above = platform::parentPath(location);
    while (platform::isMissing(above) && above != platform::parentPath(above))
        above = platform::parentPath(above);
    return platform::isWritable(above) || !platform::leadsToFolder(above);
}

/// Whole or not at all: a library that stands is taken for complete by every later start.
Outcome makeLibrary(const QString &location, Outcome &installed)
{
    const Outcome above = fileoperations::createDirectory(platform::parentPath(location), createPatience);
    if (!above.ok())
        return above;
    return fileoperations::makeInPlace({location}, [&](const QString &path) {
        const Outcome made = fileoperations::createDirectory(path, createPatience);
        if (made.ok())
            installed = VTDataController::installShippedTemplates(path);
        // Without a template that will not unpack there is still a library; without room there is none.
        return installed.is(Cause::NoSpace) ? installed : made;
    });
}

} // namespace

VTDataController &VTDataController::sharedController()
{
    static auto *shared = new VTDataController;
    return *shared;
}

QString VTDataController::templateLocation()
{
    if (studio::decidesTemplates())
        return studio::copiedTemplates();
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

Outcome VTDataController::populateDefaultTemplates(Force force, DiskSteps *steps)
{
    const QString location = templateLocation();
    const platform::Result<bool> stands = platform::isThereForCertain(location);
    if (!stands) { // a library that cannot be looked at is no new one
        VTLog::appendLog("Unable to look at the template library: %@", stands.outcome().description());
        return stands.outcome();
    }
    if (!*stands && !mayBeMade(location)) {
        VTLog::appendLog("The template library %@ cannot be reached", location);
        return Outcome::failure(Cause::Unreachable, location);
    }
    if (*stands)
        return force == Force::No ? Outcome() : installShippedTemplates(location, steps);
    Outcome installed;
    const Outcome made = makeLibrary(location, installed);
    if (!made.ok())
        VTAlert::show(
            {platform::formatString(Text::tr("Unable to create directory %@"), location), checkDestination(made)});
    return made.ok() ? installed : made;
}

Outcome VTDataController::installShippedTemplates(const QString &location, DiskSteps *steps)
{
    VTLog::appendLog("Populating default templates");
    const QString shipped = platform::ApplicationBundle::main().resource(QStringLiteral("Templates"));
    const auto entries = platform::listFolder(shipped);
    if (!entries) {
        VTLog::appendLog("Unable to read the shipped templates: %@", entries.outcome().description());
        return entries.outcome();
    }
    Outcome first;
    DiskSteps done;
    for (const FolderEntry &entry : *entries) {
        const Outcome installed = entry.name.endsWith(QLatin1String(".zip"))
                                      ? install(joined(shipped, entry.name), location, done)
                                      : Outcome();
        if (first.ok())
            first = installed;
    }
    if (steps)
        *steps = done;
    return first;
}

platform::Result<QStringList> VTDataController::templateNames(const QString &location)
{
    const auto entries = platform::listFolder(location);
    if (!entries)
        return entries.outcome();
    QList<FolderEntry> templates;
    for (const FolderEntry &entry : *entries) {
        if (platform::extensionOf(entry.name).toLower() == u"tzt")
            templates.append({platform::withoutExtension(entry.name), entry.kind});
    }
    QStringList names; // in the order of what is shown: "Film", "Film 2", although "Film 2.tzt" comes before "Film.tzt"
    for (const FolderEntry &entry : platform::inListingOrder(std::move(templates)))
        names.append(entry.name);
    return names;
}

Outcome VTDataController::populateTemplatesInTime(const std::function<void(const Outcome &)> &late)
{
    const QString location = templateLocation();
    const Outcome silence = Outcome::failure(Cause::Unreachable, location);
    {
        const QMutexLocker lock(&m_mutex);
        if (m_waitedFor == location) // one thread that hangs is enough
            return silence;
        m_waitedFor = location;
    }
    const auto read = std::make_shared<Outcome>();
    const auto reading = [this, location, read] {
        *read = populateTemplates();
        const QMutexLocker lock(&m_mutex);
        if (m_waitedFor == location)
            m_waitedFor.clear();
    };
    // What has been read is shown, not read once more: a library that always takes longer would never be seen.
    const auto shown = [location, read, late] {
        VTLog::appendLog("The template library has answered");
        if (late && location == templateLocation())
            late(*read);
    };
    if (platform::performWithin(answerPatience, reading, shown))
        return *read;
    VTLog::appendLog("The template library %@ does not answer", location);
    return silence;
}

Outcome VTDataController::populateTemplates()
{
    const Outcome installed = populateDefaultTemplates();
    VTLog::appendLog("Populating templates");
    fileoperations::putAbandonedInTrash(templateLocation());
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

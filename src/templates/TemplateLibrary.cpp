#include "templates/TemplateLibrary.h"

#include "platform/archive/ZipArchive.h"
#include "platform/base/FormatString.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/TemporaryFolder.h"
#include "support/FileOperations.h"
#include "support/InPlace.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>

using platform::Cause;
using platform::formatString;
using platform::joined;
using platform::lastComponent;
using platform::Outcome;
using platform::withoutExtension;

namespace library {
namespace {

constexpr std::chrono::seconds patience{20};
constexpr std::chrono::seconds importPatience{10};
constexpr qsizetype mostNamed = 10;
const QString bundleEnding = QStringLiteral(".tzt");
const QString archiveEnding = QStringLiteral(".tzt.zip");

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TemplateLibrary)
};

Change failed(const Outcome &outcome, const QString &name, const QString &message, const QString &informative)
{
    VTAlert::show({message, informative});
    return {outcome, name};
}

Change refused(Cause cause, const QString &name, const QString &message, const QString &informative)
{
    return failed(Outcome::failure(cause, name, message), name, message, informative);
}

QString nameOf(const QString &bundle)
{
    return withoutExtension(lastComponent(bundle));
}

bool isArchive(const QString &path)
{
    return path.endsWith(archiveEnding, Qt::CaseInsensitive);
}

} // namespace

Change createTemplate(const QString &wantedName)
{
    const QString bundle = VTFileManager::uniqueFilename(VTDataController::bundlePath(wantedName));
    VTLog::appendLog("Creating new template %@...", bundle);
    const QString files = bundle + QStringLiteral("/Files");
    const Outcome made = fileoperations::makeInPlace({bundle}, [](const QString &path) {
        return fileoperations::createDirectory(path + QStringLiteral("/Files"), patience);
    });
    if (!made.ok())
        return failed(made, nameOf(bundle), formatString(Text::tr("Unable to create directory %@"), files),
                      checkDestination(made));
    return {{}, nameOf(bundle), true, {{DiskStep::Kind::Made, bundle}}};
}

Change duplicateTemplate(const QString &name)
{
    VTLog::appendLog("Duplicating template %@...", name);
    const QString source = VTDataController::bundlePath(name);
    const QString destination =
        VTFileManager::uniqueFilename(VTDataController::bundlePath(formatString("%@ Duplicate", name)));
    const Outcome copied = fileoperations::makeInPlace(
        {destination}, [&](const QString &path) { return fileoperations::copyFile(source, path, patience); });
    if (!copied.ok())
        return failed(copied, nameOf(destination),
                      formatString(Text::tr("Unable to copy file %@ to %@"), source, destination),
                      checkDestination(copied));
    return {{}, nameOf(destination), true, {{DiskStep::Kind::Made, destination}}};
}

Change removeTemplate(const QString &name)
{
    const int answer =
        VTAlert::show({formatString(Text::tr("Are you sure you wish to remove the template '%@'?"), name),
                       Text::tr("The template file will be placed in your Trash."),
                       Text::tr("Remove"),
                       Text::tr("Cancel"),
                       {},
                       VTAlert::alternateReturn});
    if (answer != VTAlert::defaultReturn)
        return {Outcome::failure(Cause::Declined, name), name};
    VTLog::appendLog("Removing template %@", name);
    DiskSteps steps;
    const Outcome trashed = changes::putInTrash(VTDataController::bundlePath(name), steps);
    if (trashed.is(Cause::Declined)) // there is no Trash for it, and it was to be kept then
        return {trashed, name};
    if (!trashed.ok())
        return failed(trashed, name, formatString(Text::tr("Unable to remove template %@"), name),
                      withCause(Text::tr("Please check that you have write permissions for this file."), trashed));
    return {{}, name, true, steps};
}

Change renameTemplate(const QString &name, const QString &typed)
{
    const QString cleaned = VTFileManager::validateFilename(typed);
    if (cleaned.isEmpty())
        return refused(Cause::Invalid, name, Text::tr("Invalid filename"),
                       Text::tr("You must enter a filename without invalid characters."));
    if (cleaned == name)
        return {{}, name};
    const QString source = VTDataController::bundlePath(name);
    const QString destination = VTDataController::bundlePath(cleaned);
    if (platform::kindOf(destination) != platform::FileKind::Missing && cleaned.toLower() != name.toLower())
        return refused(
            Cause::Exists, name, Text::tr("Template already exists"),
            formatString(
                Text::tr("You cannot rename this template to %@ because there is already a template with this name."),
                cleaned));
    const Outcome moved = fileoperations::moveFile(source, destination, patience);
    if (!moved.ok())
        return failed(moved, name, formatString(Text::tr("Unable to move file %@ to %@"), source, destination),
                      checkDestination(moved));
    DiskSteps steps{{DiskStep::Kind::Moved, source, destination}};
    static_cast<void>(changes::renameOwnValues(name, cleaned)); // the log says what the settings could not take
    steps.append({DiskStep::Kind::Renamed, name, cleaned});
    if (isDefaultTemplate(name)) {
        static_cast<void>(settings::defaultTemplate.store(cleaned)); // the log says what the settings could not take
        steps.append({DiskStep::Kind::Defaulted, name, cleaned});
    }
    return {{}, cleaned, true, steps};
}

bool isTemplateFile(const QString &path)
{
    const QString plain = path.size() > 1 && path.endsWith(u'/') ? path.chopped(1) : path;
    return plain.endsWith(bundleEnding, Qt::CaseInsensitive) || isArchive(plain);
}

QString exportFile(const QString &name, const QString &given)
{
    // What cannot be looked at, and is no file for certain, is taken for the folder that was meant: it says what is
    // wrong.
    const bool isThere = !platform::isMissing(given);
    const bool isFile = isThere && platform::kindOf(platform::realPath(given)) == platform::FileKind::File;
    if (given.endsWith(u'/') || VTFileManager::isDirectoryAtPath(given) || (isThere && !isFile))
        return joined(given, name + archiveEnding);
    if (isArchive(given))
        return given;
    QString stem = given;
    for (const QString &ending : {QStringLiteral(".zip"), bundleEnding}) {
        if (stem.endsWith(ending, Qt::CaseInsensitive))
            stem.chop(ending.size());
    }
    return stem + archiveEnding;
}

Outcome exportTemplate(const QString &name, const QString &file)
{
    VTLog::appendLog("Exporting template %@ to %@", name, file);
    QStringList leftOut;
    const Outcome packed = fileoperations::compressFile(VTDataController::bundlePath(name), file, &leftOut);
    if (packed.is(Cause::Cancelled))
        return packed;
    if (!packed.ok())
        return failed(packed, name, formatString(Text::tr("Unable to export %@"), name), checkDestination(packed))
            .outcome;
    if (!leftOut.isEmpty())
        VTAlert::show({Text::tr("%n items of %1 could not be put into the archive as they are", nullptr,
                                static_cast<int>(leftOut.size()))
                           .arg(name),
                       platform::forDisplay(leftOut.first(qMin(mostNamed, leftOut.size())).join(u'\n'))});
    return {};
}

/// Out of sight first; then it is taken in as a folder is.
static Change addArchive(const QString &archive)
{
    const auto told = [&](const Outcome &failure) {
        return failed(
            failure, nameOf(archive), formatString(Text::tr("Unable to read %@"), archive),
            withCause(Text::tr("Please ask for the file again, or unpack it and take in the folder."), failure));
    };
    const auto folder = platform::TemporaryFolder::make(VTLocalPaths::tempDirectory());
    if (!folder)
        return told(folder.outcome());
    const platform::ExtractReport report =
        platform::resultInBackground([&] { return platform::extractZip(archive, folder->path()); });
    if (!report.outcome.ok())
        return told(report.outcome);
    if (!report.refused.isEmpty())
        return told(Outcome::failure(Cause::Damaged, report.refused.constFirst()));
    QStringList bundles;
    for (const auto &entry : fileoperations::entriesOf(folder->path())) {
        if (entry.name.endsWith(bundleEnding, Qt::CaseInsensitive))
            bundles.append(joined(folder->path(), entry.name));
    }
    if (bundles.size() != 1)
        return refused(Cause::Invalid, nameOf(archive), formatString(Text::tr("%@ holds no template"), archive),
                       Text::tr("An archive of a template holds one folder whose name ends in “.tzt”."));
    return addTemplate(bundles.constFirst());
}

Change addTemplate(const QString &given)
{
    const QString bundle = given.size() > 1 && given.endsWith(u'/') ? given.chopped(1) : given;
    VTLog::appendLog("Adding template file %@", bundle);
    if (isArchive(bundle) && !VTFileManager::isDirectoryAtPath(bundle))
        return addArchive(bundle);
    const QString location = VTDataController::templateLocation();
    if (platform::isInside(bundle, location))
        return {{}, nameOf(bundle)};
    // The extension as the library writes it: by any other the template could be listed, but not used.
    const QString destination = VTDataController::bundlePath(nameOf(bundle));
    if (!VTFileManager::isDirectoryAtPath(bundle) ||
        !VTFileManager::isDirectoryAtPath(
            joined(bundle, QStringLiteral("Files")))) // before anything is moved aside for it
        return refused(Cause::NotAFolder, nameOf(bundle), formatString(Text::tr("%@ is not a template"), bundle),
                       Text::tr("A template is a folder whose name ends in “.tzt”, with a folder “Files” in it. Please "
                                "choose such a folder."));
    if (!VTFileManager::fileExistsAtPath(location))
        static_cast<void>(VTFileManager::createDirectory(location)); // without it the copy fails and says so
    const auto identity = platform::identityOf(bundle);
    if (identity && identity == platform::identityOf(destination)) // the library by another name
        return {{}, nameOf(bundle)};
    DiskSteps steps;
    const Outcome copied = fileoperations::makeInPlace(
        {destination, {}, fileoperations::Replaces::WhatStandsThere, changes::puttingInTrash(steps)},
        [&](const QString &path) { return fileoperations::copyFile(bundle, path, importPatience); });
    if (!copied.ok())
        return failed(copied, nameOf(destination),
                      formatString(Text::tr("Unable to copy file %@ to %@"), bundle, destination),
                      checkDestination(copied));
    steps.append({DiskStep::Kind::Made, destination});
    return {{}, nameOf(destination), true, steps};
}

bool isDefaultTemplate(const QString &name)
{
    return !name.isEmpty() && settings::defaultTemplate.text() == name;
}

} // namespace library

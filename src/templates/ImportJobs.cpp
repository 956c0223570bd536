#include "templates/ImportJobs.h"

#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/Packages.h"
#include "platform/files/StagingFolder.h"
#include "support/FileOperations.h"
#include "support/InPlace.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::Cause;
using platform::formatString;
using platform::joined;
using platform::lastComponent;
using platform::Outcome;
using platform::parentPath;

namespace {

constexpr std::chrono::seconds patience{20};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ImportJobs)
};

/// The first failure of several steps is the one that is told of.
void keepFirst(Outcome &first, const Outcome &next)
{
    if (first.ok())
        first = next;
}

/// A copy that would destroy its own source, or bring nothing: refused before anything is asked or deleted.
enum class Relation { Apart, Same, SourceInsideDestination };

Relation relationOf(const QString &source, const QString &destination)
{
    const auto identity = platform::identityOf(destination);
    if (!identity)
        return Relation::Apart;
    if (identity == platform::identityOf(source))
        return Relation::Same;
    for (QString above = parentPath(source); !above.isEmpty(); above = parentPath(above)) {
        if (platform::identityOf(above) == identity)
            return Relation::SourceInsideDestination;
        if (above == u"/")
            break;
    }
    return platform::isInside(source, destination) ? Relation::SourceInsideDestination : Relation::Apart;
}

/// 1 overwrite, 0 overwrite all, -1 ignore.
int askToOverwrite(const QString &name)
{
    return VTAlert::show(
        {formatString(Text::tr("%@ already exists in this location. Are you sure you wish to overwrite it?"), name),
         Text::tr("What is there goes to the Trash."), Text::tr("Overwrite"), Text::tr("Overwrite All"),
         Text::tr("Ignore"), VTAlert::otherReturn});
}

/// What is half copied when the program is killed must not be a part of the template: it lies in the bundle, beside the
/// tree. Null outside a template.
QString bundleAround(const QString &destination)
{
    for (QString above = parentPath(destination); !above.isEmpty() && above != u"/"; above = parentPath(above)) {
        if (platform::extensionOf(above).toLower() == u"tzt")
            return above;
    }
    return {};
}

void clearBundle(const QString &destination)
{
    if (const QString bundle = bundleAround(joined(destination, QStringLiteral("x"))); !bundle.isNull())
        fileoperations::putAbandonedInTrash(bundle);
}

Outcome copyInPlace(const QString &source, const QString &destination, fileoperations::Replaces replaces,
                    DiskSteps &steps)
{
    const Outcome copied = fileoperations::makeInPlace(
        {destination, bundleAround(destination), replaces, changes::puttingInTrash(steps)},
        [&](const QString &path) { return fileoperations::copyFile(source, path, patience); });
    if (copied.ok())
        steps.append({DiskStep::Kind::Made, destination});
    return copied;
}

Outcome copyOne(const QString &source, const QString &destination, bool &overwriteAll, DiskSteps &steps)
{
    const Relation relation = relationOf(source, destination);
    if (relation == Relation::Same) {
        VTLog::appendLog("%@ is already there", source);
        return {};
    }
    const bool sourceIsThere = platform::kindOf(source) != platform::FileKind::Missing;
    const bool mayReplace = sourceIsThere && relation == Relation::Apart;
    auto replaces = fileoperations::Replaces::Nothing;
    if (mayReplace && VTFileManager::fileExistsAtPath(destination)) {
        const int answer = overwriteAll ? VTAlert::defaultReturn : askToOverwrite(lastComponent(destination));
        if (answer == VTAlert::otherReturn)
            return Outcome::failure(Cause::Declined, destination);
        overwriteAll = overwriteAll || answer == VTAlert::alternateReturn;
        replaces = fileoperations::Replaces::WhatStandsThere;
    }
    VTLog::appendLog("Copying file %@ to %@", source, destination);
    const Outcome copied = !sourceIsThere ? Outcome::failure(Cause::Missing, source)
                           : !mayReplace  ? Outcome::failure(Cause::IntoItself, source)
                                          : copyInPlace(source, destination, replaces, steps);
    if (!copied.ok() && !copied.is(Cause::Cancelled))
        VTAlert::show(
            {formatString(Text::tr("Unable to copy file %@ to %@"), source, destination), checkDestination(copied)});
    return copied;
}

/// "/A/B" -> "/", "/A", "/A/B".
QStringList prefixesOf(const QString &relative)
{
    QStringList prefixes;
    if (relative.startsWith(u'/'))
        prefixes.append(QStringLiteral("/"));
    QString prefix;
    for (const QString &step : relative.split(u'/', Qt::SkipEmptyParts)) {
        prefix += u'/' + step;
        prefixes.append(prefix);
    }
    return prefixes;
}

void copyLabels(const QStringList &sources, const QString &relative, const QString &destFolder)
{
    for (const QString &source : sources) {
        const QString above = parentPath(source);
        for (const QString &prefix : prefixesOf(relative)) {
            const QString step = prefix.mid(1);
            // The last source wins, also where it has no such folder: this must stay.
            VTFileManager::setFinderColorIndex(VTFileManager::finderColorIndexForPath(joined(above, step)),
                                               joined(destFolder, step));
        }
    }
}

/// Collects the folders that hold no further ones.
class LeafCollector
{
public:
    QStringList leaves;
    Outcome unreadable; ///< the first folder that could not be listed

    /// False for a folder that its own path has gone through: a link back up would never end.
    bool collect(const QString &folder)
    {
        const auto identity = platform::identityOf(folder + QStringLiteral("/."));
        if (!identity)
            keepFirst(unreadable, Outcome::fromErrno(folder));
        if (!identity || m_entered.contains(*identity))
            return false;
        m_entered.append(*identity);
        bool hasFolders = false;
        const auto entries = platform::listFolder(folder);
        keepFirst(unreadable, entries.outcome());
        for (const auto &entry : entries.valueOr({})) {
            const QString path = joined(folder, entry.name);
            if (leadsToFolder(path, entry.kind) && !platform::isPackage(path))
                hasFolders = collect(path) || hasFolders;
        }
        if (!hasFolders && (entries || m_entered.size() > 1)) // of a source that cannot be read nothing is known
            leaves.append(folder);
        m_entered.removeLast();
        return true;
    }

private:
    bool leadsToFolder(const QString &path, platform::FileKind kind)
    {
        if (kind != platform::FileKind::Link)
            return kind == platform::FileKind::Folder;
        const auto isThere = platform::isThereForCertain(path); // a link that leads nowhere is no folder
        keepFirst(unreadable, isThere.outcome());
        return isThere.valueOr(false) && platform::leadsToFolder(path);
    }

    QList<platform::FileIdentity> m_entered;
};

/// Each item where nothing stands yet; folders that stand there are gone into.
void moveWhatIsNew(const QString &from, const QString &to)
{
    for (const auto &entry : platform::listFolder(from).valueOr({})) {
        const QString made = joined(from, entry.name);
        const QString target = joined(to, entry.name);
        if (!platform::moveItem(made, target).ok() && VTFileManager::isDirectoryAtPath(target))
            moveWhatIsNew(made, target);
    }
}

/// The topmost folders that are not there yet: what they are made of goes and comes with them.
QStringList missingTops(const QString &destFolder, const QStringList &folders)
{
    QStringList tops;
    for (const QString &relative : folders) {
        QString path = destFolder;
        for (const QString &step : relative.split(u'/', Qt::SkipEmptyParts)) {
            path = joined(path, step);
            if (!platform::isMissing(path))
                continue;
            if (!tops.contains(path))
                tops.append(path);
            break;
        }
    }
    return tops;
}

/// The whole structure is made beside the tree first, so that a kill leaves no half of it in there.
void makeStaged(const ImportJob &job, const QStringList &folders)
{
    const QString bundle = bundleAround(job.destFolder);
    const auto staging = platform::StagingFolder::make(bundle.isNull() ? job.destFolder : bundle);
    if (!staging)
        return;
    for (const QString &relative : folders) {
        static_cast<void>(
            platform::makeFolders(staging->path() + (relative.startsWith(u'/') ? relative : u'/' + relative)));
        copyLabels(job.sourceFiles, relative, staging->path());
    }
    moveWhatIsNew(staging->path(), job.destFolder);
}

} // namespace

Outcome importjobs::copyFiles(const ImportJob &job, const ImportHost &host)
{
    host.begin();
    clearBundle(job.destFolder);
    platform::CopyMonitor monitor;
    const LongWork work(Text::tr("Copying %n items", nullptr, static_cast<int>(job.sourceFiles.size())), monitor,
                        measureOf(job.sourceFiles, monitor));
    bool overwriteAll = false;
    Outcome first;
    DiskSteps steps;
    for (const QString &source : job.sourceFiles) {
        if (monitor.cancelled)
            break; // what has been copied stays, whole
        keepFirst(first, copyOne(source, joined(job.destFolder, lastComponent(source)), overwriteAll, steps));
    }
    if (host.changed)
        host.changed(steps);
    host.showFolder(job.sourceFiles.isEmpty() ? QString() : job.destFolder);
    host.end();
    return first;
}

importjobs::Leaves importjobs::subFoldersInDirectory(const QString &folder)
{
    LeafCollector collector;
    static_cast<void>(collector.collect(folder)); // a folder without any is its own leaf
    const bool isLeaf = collector.leaves.isEmpty() && collector.unreadable.ok();
    return {isLeaf ? QStringList{folder} : collector.leaves, collector.unreadable};
}

importjobs::Leaves importjobs::structurePaths(const QStringList &sources)
{
    Leaves all;
    for (const QString &source : sources) {
        const Leaves found = subFoldersInDirectory(source);
        keepFirst(all.unreadable, found.unreadable);
        for (const QString &leaf : found.folders)
            all.folders.append(leaf.size() > source.size() ? leaf.mid(parentPath(source).size()) : leaf);
    }
    return all;
}

Outcome importjobs::createFolderStructure(const ImportJob &job, const ImportHost &host)
{
    host.begin();
    clearBundle(job.destFolder);
    const Leaves paths = structurePaths(job.sourceFiles);
    VTLog::appendLog("Creating subdirectories: %@", paths.folders.join(QStringLiteral(", ")));
    Outcome first = paths.unreadable;
    if (!first.ok())
        VTLog::appendLog("Unable to read folder: %@", first.description());
    const QStringList tops = missingTops(job.destFolder, paths.folders);
    makeStaged(job, paths.folders);
    // What stands already costs nothing here; what could not be staged is made, with rights where they are needed.
    for (const QString &relative : paths.folders) {
        const QString below = relative.startsWith(u'/') ? relative : u'/' + relative;
        keepFirst(first, fileoperations::createDirectory(job.destFolder + below, patience));
        copyLabels(job.sourceFiles, relative, job.destFolder);
    }
    DiskSteps steps;
    for (const QString &top : tops) {
        if (!platform::isMissing(top))
            steps.append({DiskStep::Kind::Made, top});
    }
    if (host.changed)
        host.changed(steps);
    host.showFolder(QString());
    host.end();
    return first;
}

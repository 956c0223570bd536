#include "templates/ImportJobs.h"

#include "platform/FileSystem.h"
#include "platform/FormatString.h"
#include "platform/NativePath.h"
#include "platform/Packages.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>

using platform::formatString;
using platform::joined;
using platform::lastComponent;
using platform::parentPath;

namespace {

constexpr std::chrono::seconds patience{20};

QString text(const char *source)
{
    return QCoreApplication::translate("ImportJobs", source);
}

QWidget *window()
{
    return VTDataController::sharedController().window();
}

bool isInside(const QString &path, const QString &folder)
{
    return path.startsWith(folder + u'/');
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
    return isInside(source, destination) ? Relation::SourceInsideDestination : Relation::Apart;
}

/// 1 overwrite, 0 overwrite all, -1 ignore.
int askToOverwrite(const QString &name)
{
    return VTAlert::alertSheetWithMessageText(
        formatString(text("%@ already exists in this location. Are you sure you wish to overwrite it?"), name),
        text("Overwrite"), text("Overwrite All"), text("Ignore"), text("This cannot be undone."), window(),
        VTAlert::Block::Yes);
}

bool copyOne(const QString &source, const QString &destination, bool &overwriteAll)
{
    const Relation relation = relationOf(source, destination);
    if (relation == Relation::Same) {
        VTLog::appendLog("%@ is already there", source);
        return true;
    }
    const bool sourceIsThere = platform::kindOf(source) != platform::FileKind::Missing;
    const bool mayReplace = sourceIsThere && relation == Relation::Apart;
    if (mayReplace && VTFileManager::fileExistsAtPath(destination)) {
        const int answer = overwriteAll ? VTAlert::defaultReturn : askToOverwrite(lastComponent(destination));
        if (answer == VTAlert::otherReturn)
            return false;
        overwriteAll = overwriteAll || answer == VTAlert::alternateReturn;
        static_cast<void>(VTFileManager::removeFile(destination, patience)); // if it stays, the copy fails and says so
    }
    VTLog::appendLog("Copying file %@ to %@", source, destination);
    if (mayReplace && VTFileManager::copyFile(source, destination, patience))
        return true;
    VTAlert::alertSheetWithMessageText(
        formatString(text("Unable to copy file %@ to %@"), source, destination),
        text("Please check that you have write permissions for the destination directory."), window());
    return false;
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

/// False for a folder that its own path has gone through: a link back up would never end.
bool collectLeaves(const QString &folder, QList<platform::FileIdentity> &entered, QStringList &leaves)
{
    const auto identity = platform::identityOf(folder + QStringLiteral("/."));
    if (!identity || entered.contains(*identity))
        return false;
    entered.append(*identity);
    bool hasFolders = false;
    for (const auto &entry : platform::listFolder(folder).value_or(QList<platform::FolderEntry>())) {
        const QString path = joined(folder, entry.name);
        if (VTFileManager::isDirectoryAtPath(path) && !platform::isPackage(path))
            hasFolders = collectLeaves(path, entered, leaves) || hasFolders;
    }
    if (!hasFolders)
        leaves.append(folder);
    entered.removeLast();
    return true;
}

} // namespace

bool importjobs::copyFiles(const ImportJob &job, const ImportHost &host)
{
    host.begin();
    bool overwriteAll = false;
    bool all = true;
    for (const QString &source : job.sourceFiles)
        all = copyOne(source, joined(job.destFolder, lastComponent(source)), overwriteAll) && all;
    host.showFolder(job.sourceFiles.isEmpty() ? QString() : job.destFolder);
    host.end();
    return all;
}

QStringList importjobs::subFoldersInDirectory(const QString &folder)
{
    QStringList leaves;
    QList<platform::FileIdentity> entered;
    static_cast<void>(collectLeaves(folder, entered, leaves));
    return leaves.isEmpty() ? QStringList{folder} : leaves;
}

QStringList importjobs::structurePaths(const QStringList &sources)
{
    QStringList paths;
    for (const QString &source : sources) {
        for (const QString &leaf : subFoldersInDirectory(source))
            paths.append(leaf.size() > source.size() ? leaf.mid(parentPath(source).size()) : leaf);
    }
    return paths;
}

bool importjobs::createFolderStructure(const ImportJob &job, const ImportHost &host)
{
    host.begin();
    const QStringList paths = structurePaths(job.sourceFiles);
    VTLog::appendLog("Creating subdirectories: %@", paths.join(QStringLiteral(", ")));
    bool all = true;
    for (const QString &relative : paths) {
        all =
            VTFileManager::createDirectory(
                job.destFolder + (relative.startsWith(u'/') ? QString() : QStringLiteral("/")) + relative, patience) &&
            all;
        copyLabels(job.sourceFiles, relative, job.destFolder);
    }
    host.showFolder(QString());
    host.end();
    return all;
}

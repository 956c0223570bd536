#include "creation/Unfinished.h"

#include "creation/Manifest.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/base/System.h"
#include "platform/files/AppendFile.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/FileOperations.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRandomGenerator>
#include <algorithm>

using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Unfinished)
};

constexpr qsizetype mostNamed = 10;
const QString folderKey = QStringLiteral("folder");
const QString destinationKey = QStringLiteral("destination");
const QString levelsKey = QStringLiteral("levels");
const QString templateKey = QStringLiteral("template");
const QString runKey = QStringLiteral("run");

QString notesFolder()
{
    return VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) +
           QStringLiteral("/Vantrel/Tessaro/Unfinished");
}

/// For projects that stand: a folder for each run of the computer and each hour, so that the notes of an hour go at
/// once.
QString placedFolder()
{
    return notesFolder() + QStringLiteral("/Placed");
}

/// The system writes within half a minute; an hour is what a laptop that saves power may take, and more.
constexpr qint64 secondsUntilWritten = 3600;

/// A drive that was not there for so long: nobody remembers what was to be on it.
constexpr qint64 hoursUntilForgotten = qint64{24} * 30;

qint64 hourNow()
{
    return QDateTime::currentSecsSinceEpoch() / secondsUntilWritten;
}

/// Paths as bytes: a name need not be UTF-8.
QVariantMap noteOf(const QString &folder, const QString &destination, const QString &templateFiles,
                   const QStringList &levels)
{
    QVariantList levelPaths;
    for (const QString &level : levels)
        levelPaths.append(platform::toNative(level));
    return {{folderKey, platform::toNative(folder)},
            {destinationKey, platform::toNative(destination)},
            {templateKey, platform::toNative(templateFiles)},
            {levelsKey, levelPaths},
            {runKey, platform::runOfSystem()}};
}

Outcome keepAsPlaced(const QString &note, const QString &runOfSystem)
{
    const QString folder = platform::joined(placedFolder(), runOfSystem + u'.' + QString::number(hourNow()));
    const Outcome made = platform::makeFolders(folder);
    return made.ok() ? platform::moveItem(note, platform::joined(folder, platform::lastComponent(note))) : made;
}

Outcome write(const QString &file, const QVariantMap &note, platform::Waits waits)
{
    platform::AppendFile target;
    Outcome written = target.open(file);
    if (written.ok())
        written = target.append(platform::writePropertyList(note));
    return written.ok() ? target.waitFor(waits) : written;
}

/// In one journal what was written first is there first; of two drives nobody knows which was sooner.
platform::Waits waitsFor(const QString &folder, const QString &note)
{
    QString above = platform::parentPath(folder);
    while (!above.isEmpty() && above != u"/" && platform::kindOf(above) == platform::FileKind::Missing)
        above = platform::parentPath(above);
    const auto ofFolder = platform::identityOf(above);
    const auto ofNote = platform::identityOf(note);
    const bool isSameDrive = ofFolder && ofNote && ofFolder->device == ofNote->device;
    return isSameDrive ? platform::Waits::ForNothing : platform::Waits::ForTheDisk;
}

/// A file that was cut off has the date of its making, or no contents at all; what a user has changed has neither.
bool isCutOff(const platform::MadeItem &made, const platform::MadeItem &now)
{
    return now.inode == made.inode && now.size < made.size && (now.size == 0 || now.modified == made.modified);
}

QStringList cutOffOf(const Manifest &manifest, const std::vector<ManifestItem> &items)
{
    QStringList found;
    QStringList path;
    for (const ManifestItem &item : items) {
        path.resize(static_cast<qsizetype>(item.depth));
        path.append(platform::fromNative(item.name));
        const QString below = path.join(u'/');
        if (platform::kindOfType(item.type) == platform::FileKind::File &&
            isCutOff(item.made, platform::madeItemAt(platform::joined(manifest.project, below))))
            found.append(below);
    }
    return found;
}

QStringList emptyFilesIn(const QString &folder)
{
    QStringList found;
    const std::atomic<bool> never = false;
    const platform::Tree tree = platform::readTree(
        folder, [](platform::TreeFolder &) {}, never);
    tree.forEachFolder([&](std::uint32_t number) {
        const platform::TreeFolder &own = tree.folders[number];
        for (const platform::TreeItem &item : own.items) {
            const QString below = platform::joined(tree.pathOf(number), platform::fromNative(own.nameOf(item)));
            if (platform::kindOfType(item.type) == platform::FileKind::File &&
                platform::fileSizeOf(platform::joined(folder, below)) == 0)
                found.append(below);
        }
    });
    return found;
}

/// Where nothing says what was made, a file without contents is what a power cut leaves; a template may have some.
QStringList emptiedFilesIn(const QString &project, const QString &templateFiles)
{
    const QStringList found = emptyFilesIn(project);
    return found.size() > emptyFilesIn(templateFiles).size() ? found : QStringList();
}

QString pathIn(const QVariantMap &note, const QString &key)
{
    return platform::fromNative(note.value(key).toByteArray());
}

enum class Judgement { Good, Doubtful, Unknown };

/// A project that is not there was moved or removed: its name had reached the drive before the note was put here.
Judgement judge(DoubtfulProject &doubtful, const QString &templateFiles, const QList<Manifest> &manifests)
{
    const QString &project = doubtful.project;
    if (project.isEmpty() || platform::isMissing(project))
        return Judgement::Good;
    const auto entries = platform::listFolder(project);
    const auto identity = platform::identityOf(project);
    if (!entries || !identity)
        return Judgement::Unknown; // a drive that is not there today, a server that does not answer
    // Not by the device: its number is another one after each start of many computers.
    const auto known = std::find_if(manifests.begin(), manifests.end(), [&](const Manifest &manifest) {
        return manifest.project == project && manifest.identity.inode == identity->inode;
    });
    const auto items =
        known == manifests.end()
            ? platform::Result<std::vector<ManifestItem>>(Outcome::failure(platform::Cause::Missing, project))
            : itemsOf(*known);
    doubtful.isThere =
        !entries->isEmpty() || (items && items->empty()) || platform::listFolder(templateFiles).valueOr({}).isEmpty();
    doubtful.cutOff = items ? cutOffOf(*known, *items) : emptiedFilesIn(project, templateFiles);
    return doubtful.isThere && doubtful.cutOff.isEmpty() ? Judgement::Good : Judgement::Doubtful;
}

/// The place that was claimed, and the levels above it that came with it; one that is in use by now stays.
void removeEmptyPlace(const Leftover &leftover)
{
    QStringList folders = leftover.levels;
    folders.append(leftover.destination);
    for (qsizetype i = folders.size() - 1; i >= 0; --i) {
        const bool isGone =
            folders[i].isEmpty() || platform::isMissing(folders[i]) || platform::removeEmptyFolder(folders[i]).ok();
        if (!isGone)
            return;
    }
}

} // namespace

CreationNote::CreationNote(const QString &folder, const QString &destination, const QString &templateFiles,
                           const QStringList &levels)
    : m_file(platform::joined(notesFolder(), QString::number(QRandomGenerator::global()->generate64(), 36)))
{
    Outcome noted = platform::makeFolders(notesFolder());
    if (noted.ok()) {
        platform::Result<platform::FileLock> lock = platform::FileLock::acquire(m_file, {});
        noted = lock.outcome();
        if (lock)
            m_lock.emplace(*std::move(lock));
    }
    if (noted.ok())
        noted = write(m_file, noteOf(folder, destination, templateFiles, levels), waitsFor(folder, m_file));
    if (!noted.ok())
        VTLog::appendLog("Unable to note the creation: %@", noted.description());
}

void CreationNote::reachDisk() const
{
    platform::AppendFile note;
    if (note.open(m_file).ok())
        static_cast<void>(
            note.waitFor(platform::Waits::ForItsBytes)); // a note that is lost is no reason to make nothing
}

void CreationNote::placed()
{
    m_isToStay = keepAsPlaced(m_file, platform::runOfSystem()).ok();
}

CreationNote::~CreationNote()
{
    if (!m_isToStay)
        static_cast<void>(platform::removeTree(m_file)); // one that stays names a folder that is gone: it is forgotten
}

QList<Leftover> leftovers()
{
    QList<Leftover> found;
    for (const platform::FolderEntry &entry : platform::listFolder(notesFolder()).valueOr({})) {
        if (entry.kind != platform::FileKind::File)
            continue;
        const QString file = platform::joined(notesFolder(), entry.name);
        if (platform::FileLock::acquire(file, {}).outcome().is(platform::Cause::Busy))
            continue; // under way
        const QVariantMap note = platform::readPropertyListFile(file).valueOr(QVariant()).toMap();
        Leftover leftover{file, pathIn(note, folderKey), pathIn(note, destinationKey), {}};
        for (const QVariant &level : note.value(levelsKey).toList())
            leftover.levels.append(platform::fromNative(level.toByteArray()));
        if (platform::kindOf(leftover.folder) == platform::FileKind::Folder) {
            found.append(leftover);
            continue;
        }
        removeEmptyPlace(leftover); // nothing else is left of it
        if (platform::kindOf(leftover.destination) != platform::FileKind::Folder ||
            !keepAsPlaced(file, note.value(runKey).toString()).ok())
            static_cast<void>(forget(leftover));
    }
    return found;
}

Outcome putAway(const Leftover &leftover)
{
    const Outcome trashed = fileoperations::trashFile(leftover.folder);
    if (!trashed.ok())
        return trashed;
    removeEmptyPlace(leftover);
    return forget(leftover);
}

Outcome forget(const Leftover &leftover)
{
    return platform::removeTree(leftover.note);
}

QList<DoubtfulProject> doubtfulProjects()
{
    QList<DoubtfulProject> found;
    std::optional<QList<Manifest>> manifests;
    for (const platform::FolderEntry &hour : platform::listFolder(placedFolder()).valueOr({})) {
        const QString folder = platform::joined(placedFolder(), hour.name);
        const bool isOfThisRun = hour.name.section(u'.', 0, 0) == platform::runOfSystem();
        const qint64 age = hourNow() - hour.name.section(u'.', 1).toLongLong();
        const bool isTooOld = age > hoursUntilForgotten;
        if (isOfThisRun && age <= 1)
            continue;
        for (const platform::FolderEntry &entry : platform::listFolder(folder).valueOr({})) {
            const QString file = platform::joined(folder, entry.name);
            const QVariantMap note = platform::readPropertyListFile(file).valueOr(QVariant()).toMap();
            if (!isOfThisRun && !manifests)
                manifests = recentProjects();
            DoubtfulProject doubtful{file, pathIn(note, destinationKey), true, {}};
            const Judgement judgement =
                isOfThisRun ? Judgement::Good : judge(doubtful, pathIn(note, templateKey), *manifests);
            if (judgement == Judgement::Doubtful)
                found.append(doubtful);
            else if (judgement == Judgement::Good || isTooOld)
                static_cast<void>(platform::removeTree(file)); // one that stays is looked at again
        }
        static_cast<void>(platform::removeEmptyFolder(folder)); // else it holds what is not yet told
    }
    return found;
}

QString descriptionOf(const DoubtfulProject &project)
{
    if (!project.isThere)
        return Text::tr("The computer lost its power, or was switched off, before the project had reached its drive.");
    QString text =
        Text::tr("The computer lost its power, or was switched off, before all of the project had reached its "
                 "drive. %n of its files are empty or cut off:",
                 nullptr, static_cast<int>(project.cutOff.size()));
    for (const QString &file : project.cutOff.first(qMin(mostNamed, project.cutOff.size())))
        text += u'\n' + platform::forOneLine(file);
    return project.cutOff.size() > mostNamed ? text + QStringLiteral("\n…") : text;
}

Outcome forget(const DoubtfulProject &project)
{
    const Outcome gone = platform::removeTree(project.note);
    static_cast<void>(platform::removeEmptyFolder(platform::parentPath(project.note))); // the others are still to come
    return gone;
}

#include "creation/Unfinished.h"

#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/AppendFile.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/FileOperations.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QRandomGenerator>

using platform::Outcome;

namespace {

const QString folderKey = QStringLiteral("folder");
const QString destinationKey = QStringLiteral("destination");

QString notesFolder()
{
    return VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) +
           QStringLiteral("/Vantrel/Tessaro/Unfinished");
}

Outcome write(const QString &file, const QVariantMap &note)
{
    // Not forced onto the disk: that would take longer than a small project. What a power cut takes with it here it has
    // mostly taken from the project, too.
    platform::AppendFile target;
    const Outcome opened = target.open(file);
    return opened.ok() ? target.append(platform::writePropertyList(note)) : opened;
}

} // namespace

CreationNote::CreationNote(const QString &folder, const QString &destination)
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
        noted = write(m_file, {{folderKey, folder}, {destinationKey, destination}});
    if (!noted.ok())
        VTLog::appendLog("Unable to note the creation: %@", noted.description());
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
        const QString file = platform::joined(notesFolder(), entry.name);
        if (platform::FileLock::acquire(file, {}).outcome().is(platform::Cause::Busy))
            continue; // under way
        const QVariantMap note = platform::readPropertyListFile(file).valueOr(QVariant()).toMap();
        const Leftover leftover{file, note.value(folderKey).toString(), note.value(destinationKey).toString()};
        if (platform::kindOf(leftover.folder) == platform::FileKind::Folder)
            found.append(leftover);
        else
            static_cast<void>(forget(leftover)); // nothing is left of it
    }
    return found;
}

Outcome putAway(const Leftover &leftover)
{
    const Outcome trashed = fileoperations::trashFile(leftover.folder);
    if (!trashed.ok())
        return trashed;
    static_cast<void>(platform::removeEmptyFolder(leftover.destination)); // one that is in use by now stays
    return forget(leftover);
}

Outcome forget(const Leftover &leftover)
{
    return platform::removeTree(leftover.note);
}

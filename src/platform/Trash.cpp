// GIO first: its headers use "signals" as a field name, which no Qt header before them may have defined away.
#include <gio/gio.h>

#include "platform/Trash.h"

#include "platform/FileSystem.h"
#include "platform/LocalTime.h"
#include "platform/NativePath.h"
#include "platform/PathAt.h"

#include <QFile>
#include <QLibrary>
#include <QStandardPaths>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

QString homeTrash()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash");
}

/// The folder at which the file system holding the path is mounted: the last one upwards on the same device.
QString mountRootOf(const QString &path)
{
    QString root = parentPath(path);
    const auto device = [](const QString &folder) { return identityOf(folder).value_or(FileIdentity{}).device; };
    for (QString above = parentPath(root); !above.isEmpty() && above != root && device(above) == device(root);
         above = parentPath(root))
        root = above;
    return root;
}

bool holds(const QString &folder, const FileIdentity &identity)
{
    for (const FolderEntry &entry : listFolder(folder).value_or(QList<FolderEntry>())) {
        if (identityOf(joined(folder, entry.name)) == identity)
            return true;
    }
    return false;
}

bool reachedATrash(const QString &path, const FileIdentity &identity)
{
    if (kindOf(path) != FileKind::Missing)
        return false;
    const QString user = QString::number(getuid());
    const QString root = mountRootOf(path);
    return holds(homeTrashFiles(), identity) || holds(joined(root, ".Trash-" + user + "/files"), identity) ||
           holds(joined(root, ".Trash/" + user + "/files"), identity);
}

/// GIO, loaded when the first item goes to the Trash: linked, it would cost every start time and memory.
struct Gio
{
    QLibrary library{QStringLiteral("gio-2.0"), 0};
    decltype(&g_vfs_get_local) vfsGetLocal = resolve<decltype(&g_vfs_get_local)>("g_vfs_get_local");
    decltype(&g_vfs_get_file_for_path) fileForPath =
        resolve<decltype(&g_vfs_get_file_for_path)>("g_vfs_get_file_for_path");
    decltype(&g_file_trash) fileTrash = resolve<decltype(&g_file_trash)>("g_file_trash");
    decltype(&g_object_unref) unref = resolve<decltype(&g_object_unref)>("g_object_unref");
    decltype(&g_clear_error) clearError = resolve<decltype(&g_clear_error)>("g_clear_error");

    [[nodiscard]] bool isComplete() const { return vfsGetLocal && fileForPath && fileTrash && unref && clearError; }

private:
    template <typename Function>
    Function resolve(const char *symbol)
    {
        return reinterpret_cast<Function>(library.resolve(symbol));
    }
};

bool trashWithGio(const QString &path)
{
    static auto *gio = new Gio; // GIO keeps threads of its own and is never unloaded
    if (!gio->isComplete())
        return false;
    // The local file system directly: the default one loads every module of the desktop and starts its services.
    GFile *file = gio->fileForPath(gio->vfsGetLocal(), toNative(path).constData());
    GError *error = nullptr;
    const bool trashed = gio->fileTrash(file, nullptr, &error);
    gio->clearError(&error);
    gio->unref(file);
    return trashed;
}

bool trashWithQt(const QString &path)
{
    // Qt knows no names that are not UTF-8 and takes no dangling links.
    return forDisplay(path) == path && targetExists(path) && QFile::moveToTrash(path);
}

} // namespace

QString homeTrashFiles()
{
    return homeTrash() + QStringLiteral("/files");
}

bool moveToTrash(const QString &path)
{
    const std::optional<FileIdentity> identity = identityOf(path);
    if (!identity)
        return false;
    // Where ~/.local/share is missing, Qt moves the item into the current folder and calls that success.
    for (const QString &folder : {homeTrashFiles(), homeTrash() + QStringLiteral("/info")}) {
        const bool missing = kindOf(folder) == FileKind::Missing;
        if (makeFolders(folder).ok() && missing)
            chmod(toNative(folder).constData(), 0700);
    }
    if (!trashWithGio(path) && kindOf(path) != FileKind::Missing && !trashWithQt(path))
        return false;
    return reachedATrash(path, *identity);
}

void noteInTrash(const QString &target, const QString &originalPath)
{
    const QString info = parentPath(parentPath(target)) + QStringLiteral("/info/") + lastComponent(target);
    if (!makeFolders(parentPath(info)).ok())
        return;
    const QByteArray note = "[Trash Info]\nPath=" + toNative(originalPath).toPercentEncoding("/") + "\nDeletionDate=" +
                            formatDate(QStringLiteral("%Y-%m-%dT%H:%M:%S"), std::time(nullptr)).toLatin1() + '\n';
    const PathAt at(info + QStringLiteral(".trashinfo")); // by its bytes, as the item is called
    const UniqueDescriptor file(openat(at.folder(), at.name(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    static_cast<void>(file.isOpen() && write(file.get(), note.constData(), static_cast<std::size_t>(note.size())) > 0);
}

} // namespace platform

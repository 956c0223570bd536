#include "platform/files/WholeFile.h"

#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileSystem.h"
#include "platform/files/PathAt.h"
#include "platform/plain/UniqueDescriptor.h"
#include "platform/plain/WholeWrite.h"

#include <QCoreApplication>
#include <QUuid>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(WholeFile)
};

/// What the super-user writes into a user's folder belongs to that user, or the user could never change it again.
void giveToOwnerOf(const struct stat &folder, int file)
{
    if (geteuid() == 0)
        static_cast<void>(fchown(file, folder.st_uid, folder.st_gid) == 0); // told by nobody: root can still write it
}

/// Behind a link the file is replaced where it lies, and the link stays.
QString behindLink(const QString &path)
{
    struct stat info;
    const PathAt at(path);
    if (fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISLNK(info.st_mode))
        return path;
    return realPath(path);
}

bool hasGone(int file, Waits waits)
{
    switch (waits) {
    case Waits::ForTheDisk:
        return fsync(file) == 0 || errno == EINVAL;
    case Waits::ForItsBytes:
        return writeOut(file, WritesOut::Ends);
    case Waits::ForNothing:
        return writeOut(file, WritesOut::Begins);
    case Waits::ForTheSystem:
        break;
    }
    return true;
}

/// The bytes under a name of their own, with the mode of the old file or, without one, that of a new
/// one. Nothing is left of them on failure, which leaves errno.
bool writeBeside(int folder, const QByteArray &name, const struct stat *old, const QByteArray &bytes, Waits waits)
{
    UniqueDescriptor file(openat(folder, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, old ? 0600 : 0666));
    if (!file.isOpen())
        return false;
    struct stat place;
    if (fstat(folder, &place) == 0)
        giveToOwnerOf(place, file.get());
    // Drives that know no modes refuse to set one; the file can be used all the same.
    const bool hasMode = !old || fchmod(file.get(), old->st_mode & 07777U) == 0 || errno == EPERM || errno == ENOTSUP;
    const bool written = hasMode && writeWhole(file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) &&
                         hasGone(file.get(), waits) && file.closeChecked() == 0;
    if (written)
        return true;
    const int error = errno;
    unlinkat(folder, name.constData(), 0);
    errno = error;
    return false;
}

} // namespace

Result<QByteArray> readFile(const QString &path, qint64 atMost)
{
    const PathAt at(path);
    const UniqueDescriptor file(openat(at.folder(), at.name(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        return Outcome::fromErrno(path);
    QByteArray bytes;
    std::array<char, 65536> piece;
    for (;;) {
        const ssize_t got = read(file.get(), piece.data(), piece.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return Outcome::fromErrno(path);
        if (got == 0)
            return bytes;
        bytes.append(piece.data(), got);
        if (bytes.size() > atMost)
            return Outcome::failure(Cause::Invalid, path, Text::tr("The file is far too large for what it should be"));
    }
}

Outcome replaceFile(const QString &given, const QByteArray &bytes, Waits waits)
{
    const QString path = behindLink(given);
    const QString parent = parentPath(path);
    const PathAt at(parent.isEmpty() ? QStringLiteral(".") : parent);
    const UniqueDescriptor folder(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return Outcome::fromErrno(parent);
    const QByteArray name = toNative(lastComponent(path));
    struct stat before;
    const bool exists = fstatat(folder.get(), name.constData(), &before, 0) == 0;
    const QByteArray growing = ".tessaro-" + QUuid::createUuid().toByteArray(QUuid::Id128);
    if (!writeBeside(folder.get(), growing, exists ? &before : nullptr, bytes, waits))
        return Outcome::fromErrno(path);
    if (renameat(folder.get(), growing.constData(), folder.get(), name.constData()) != 0) {
        const Outcome failure = Outcome::fromErrno(path);
        unlinkat(folder.get(), growing.constData(), 0);
        return failure;
    }
    // The new name lasts only when the folder is on disk, too; where folders cannot be synced there is nothing to wait
    // for.
    if (waits == Waits::ForTheDisk)
        static_cast<void>(fsync(folder.get()));
    return {};
}

Outcome overwriteFile(const QString &path, const QByteArray &bytes)
{
    const PathAt at(path);
    struct stat info;
    if (fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return Outcome::fromErrno(path);
    constexpr int flags = O_WRONLY | O_TRUNC | O_NOFOLLOW | O_CLOEXEC;
    UniqueDescriptor file(openat(at.folder(), at.name(), flags));
    const bool isProtected = !file.isOpen() && errno == EACCES && S_ISREG(info.st_mode);
    if (isProtected && fchmodat(at.folder(), at.name(), (info.st_mode & 07777U) | S_IWUSR, 0) == 0)
        file.reset(openat(at.folder(), at.name(), flags));
    const bool isWritten = file.isOpen() &&
                           writeWhole(file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) &&
                           (!isProtected || fchmod(file.get(), info.st_mode & 07777U) == 0) &&
                           hasGone(file.get(), Waits::ForNothing) && file.closeChecked() == 0;
    return isWritten ? Outcome() : Outcome::fromErrno(path);
}

Result<QVariant> readPropertyListFile(const QString &path)
{
    const Result<QByteArray> bytes = readFile(path);
    if (!bytes)
        return bytes.outcome();
    if (auto list = readPropertyList(*bytes))
        return *std::move(list);
    return Outcome::failure(Cause::Damaged, path, Text::tr("The file is not a property list"));
}

Outcome writePropertyListFile(const QString &path, const QVariant &value)
{
    const QByteArray bytes = writePropertyList(value);
    if (bytes.isEmpty())
        return Outcome::failure(Cause::NotSupported, path, Text::tr("A property list cannot hold this value"));
    return replaceFile(path, bytes);
}

} // namespace platform

#include "platform/archive/ZipFormat.h"

#include "platform/archive/AppleDouble.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FolderReader.h"
#include "platform/plain/WholeWrite.h"

#include <QSet>
#include <QUuid>
#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <optional>
#include <unistd.h>
#include <vector>

namespace platform {
namespace {

constexpr quint16 labelMask = 0x000E;
constexpr std::size_t blockSize = std::size_t{256} * 1024;
constexpr std::size_t largestAppleDouble = std::size_t{1} << 20;
/// An archive that unpacks to more than both is taken for a trap: no project file packs that well.
constexpr quint64 alwaysAllowed = quint64{1} << 30;
constexpr quint64 largestRatio = 100;

struct ReadCloser
{
    void operator()(archive *handle) const { archive_read_free(handle); }
};

/// Each step is remembered with the whole name before it: a name of 32,000 would take a gigabyte.
constexpr qsizetype mostSteps = 1500;

bool staysInside(const QByteArray &name)
{
    return !name.isEmpty() && !name.startsWith('/') && !name.split('/').contains("..");
}

/// Whether a link at the entry's place stays below the destination. Steps upwards count only at the beginning: after a
/// step down they would start from wherever that step, perhaps a link of the archive, leads.
bool linkStaysInside(const QByteArray &name, const QByteArray &target)
{
    if (target.startsWith('/'))
        return false;
    qsizetype depth = name.count('/');
    bool descended = false;
    for (const QByteArray &step : target.split('/')) {
        if (step == "..") {
            if (descended || --depth < 0)
                return false;
        } else if (!step.isEmpty() && step != ".") {
            descended = true;
        }
    }
    return true;
}

/// What a folder gets when everything is in its place; until then it is open to its owner.
struct FolderFinish
{
    mode_t mode = 0777;
    std::optional<timespec> modified;
};

/// Without the steps that lead nowhere: "./a//b/" is "a/b".
QByteArray normalised(const QByteArray &name)
{
    QByteArrayList steps = name.split('/');
    steps.removeIf([](const QByteArray &step) { return step.isEmpty() || step == "."; });
    return (name.startsWith('/') ? "/" : "") + steps.join('/');
}

/// What the umask leaves of a new folder's mode; asking is setting, for all threads, so it is read where it is shown.
mode_t newFolderMode(const UniqueDescriptor &place)
{
    static constexpr char probe[] = ".mode";
    struct stat info;
    const bool made = mkdirat(place.get(), probe, 0777) == 0;
    const bool seen = made && fstatat(place.get(), probe, &info, AT_SYMLINK_NOFOLLOW) == 0;
    if (made)
        unlinkat(place.get(), probe, AT_REMOVEDIR);
    return seen ? info.st_mode & 0777 : 0755;
}

/// Unpacks into a folder of its own, and only what is whole moves on from there.
class Extraction
{
public:
    Extraction(const QString &archivePath, QString destination)
        : m_destination(std::move(destination))
        , m_place(
              joined(m_destination, QStringLiteral(".tessaro-") + QUuid::createUuid().toString(QUuid::WithoutBraces)))
        , m_allowed(qMax(alwaysAllowed, largestRatio * fileSizeOf(archivePath)))
        , m_reader(archive_read_new())
    {
        raiseDescriptorLimit();
        if (const Outcome made = makeNewFolder(m_place); !made.ok()) {
            m_report.outcome = made;
            return;
        }
        const PathAt at(m_place);
        m_root.reset(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        m_newFolderMode = newFolderMode(m_root);
        // Only by its directory, at its end: an archive that was cut off has none.
        archive_read_support_format_zip_seekable(m_reader.get());
        if (archive_read_open_filename(m_reader.get(), toNative(archivePath).constData(), blockSize) != ARCHIVE_OK)
            failReading({});
    }

    ~Extraction()
    {
        m_parent.reset();
        m_root.reset();
        static_cast<void>(removeOwnTree(m_place));
    }
    Extraction(const Extraction &) = delete;
    Extraction &operator=(const Extraction &) = delete;

    ExtractReport run()
    {
        archive_entry *entry = nullptr;
        while (m_report.outcome.ok()) {
            const int status = archive_read_next_header(m_reader.get(), &entry);
            if (status == ARCHIVE_EOF)
                break;
            if (status < ARCHIVE_WARN)
                failReading({});
            else
                take(entry);
        }
        if (m_report.outcome.ok()) {
            putLabels();
            moveOn({});
        }
        if (m_report.outcome.ok())
            finishFolders();
        else
            takeBack();
        return m_report;
    }

private:
    void failReading(const QByteArray &name)
    {
        const char *text = archive_error_string(m_reader.get());
        const QString why = text ? QString::fromUtf8(text) : QStringLiteral("unknown error");
        m_report.outcome = Outcome::failure(Cause::Damaged, fromNative(name), why);
    }
    void failAsTrap(const QByteArray &name)
    {
        m_report.outcome = Outcome::failure(Cause::Invalid, fromNative(name),
                                            QStringLiteral("unpacks to far more than an honest archive"));
    }
    void failWriting(const QByteArray &name) { m_report.outcome = Outcome::fromErrno(fromNative(name)); }
    void refuse(const QByteArray &name) { m_report.refused.append(fromNative(name)); }

    void take(archive_entry *entry)
    {
        const char *utf8 = archive_entry_pathname_utf8(entry);
        QByteArray name = utf8 ? utf8 : archive_entry_pathname(entry);
        if (archive_entry_is_encrypted(entry)) {
            m_report.outcome =
                Outcome::failure(Cause::NotSupported, fromNative(name), QStringLiteral("the archive is encrypted"));
            return;
        }
        if (name.startsWith("__MACOSX/"))
            return takeLabel(name.mid(9));
        const char *link = archive_entry_symlink_utf8(entry);
        const QByteArray target = link ? link : archive_entry_symlink(entry);
        const QByteArray written = name;
        if (name.count('/') > mostSteps)
            return refuse(written);
        name = normalised(name);
        if (name.isEmpty() && staysInside(written))
            return; // the destination itself
        if (!staysInside(name) || !linkStaysInside(name, target) || archive_entry_hardlink(entry))
            return refuse(written);
        const int parent = parentOf(name);
        if (parent < 0)
            return refuse(name);
        const QByteArray own = name.mid(name.lastIndexOf('/') + 1);
        if (!target.isEmpty()) {
            if (symlinkat(target.constData(), parent, own.constData()) != 0)
                refuse(name);
        } else if (archive_entry_filetype(entry) == AE_IFDIR) {
            if (makeFolder(parent, own))
                m_folders[name] = {archive_entry_perm(entry) & 0777U, timespec{archive_entry_mtime(entry), 0}};
            else
                refuse(name);
        } else {
            writeFile(entry, name, parent, own);
        }
    }

    static bool makeFolder(int parent, const QByteArray &name)
    {
        if (mkdirat(parent, name.constData(), 0700) == 0)
            return true;
        struct stat info;
        return errno == EEXIST && fstatat(parent, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
               S_ISDIR(info.st_mode);
    }

    /// The open folder that the entry goes into, made as far as it is missing; -1 when something else is in the way.
    int parentOf(const QByteArray &name)
    {
        const QByteArray folder = name.first(qMax<qsizetype>(0, name.lastIndexOf('/')));
        if (folder.isEmpty())
            return m_root.get();
        if (m_parent.isOpen() && folder == m_parentName)
            return m_parent.get();
        UniqueDescriptor at(fcntl(m_root.get(), F_DUPFD_CLOEXEC, 0));
        QByteArray sofar;
        for (const QByteArray &step : folder.split('/')) {
            if (!makeFolder(at.get(), step))
                return -1;
            sofar += (sofar.isEmpty() ? "" : "/") + step;
            m_folders.try_emplace(sofar, FolderFinish{m_newFolderMode, std::nullopt}); // it may have no entry
            UniqueDescriptor next = openFolder(at.get(), step.constData());
            at = std::move(next);
            if (!at.isOpen())
                return -1;
        }
        m_parent = std::move(at);
        m_parentName = folder;
        return m_parent.get();
    }

    void writeFile(archive_entry *entry, const QByteArray &name, int parent, const QByteArray &own)
    {
        const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        UniqueDescriptor file(openat(parent, own.constData(), flags, 0600));
        if (!file.isOpen()) {
            if (errno == EEXIST)
                return refuse(name);
            return failWriting(name);
        }
        const auto size = static_cast<quint64>(archive_entry_size_is_set(entry) ? archive_entry_size(entry) : 0);
        if (size > m_allowed - qMin(m_allowed, m_unpacked))
            return failAsTrap(name);
        if (!writeContents(name, file.get()))
            return;
        const timespec times[2] = {{0, UTIME_NOW}, {archive_entry_mtime(entry), archive_entry_mtime_nsec(entry)}};
        if (fchmod(file.get(), archive_entry_perm(entry) & 0777U) != 0 ||
            (archive_entry_mtime_is_set(entry) && futimens(file.get(), times) != 0) || file.closeChecked() != 0)
            failWriting(name);
    }

    bool writeContents(const QByteArray &name, int file)
    {
        const void *piece = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        for (;;) {
            const int status = archive_read_data_block(m_reader.get(), &piece, &size, &offset);
            if (status == ARCHIVE_EOF)
                return true;
            m_unpacked += size;
            if (status < ARCHIVE_OK) // a wrong checksum is only a warning to the library
                failReading(name);
            else if (m_unpacked > m_allowed)
                failAsTrap(name);
            else if (!writeWholeAt(file, static_cast<const char *>(piece), size, offset))
                failWriting(name);
            if (!m_report.outcome.ok())
                return false;
        }
    }

    /// "Project.tzt/Files/._Footage" carries the flags of "Project.tzt/Files/Footage".
    void takeLabel(const QByteArray &name)
    {
        QByteArray bytes(static_cast<qsizetype>(largestAppleDouble), '\0');
        const la_ssize_t got = archive_read_data(m_reader.get(), bytes.data(), largestAppleDouble);
        if (got < 0)
            return failReading("__MACOSX/" + name);
        bytes.truncate(got);
        const qsizetype start = name.lastIndexOf('/') + 1;
        const std::optional<quint16> flags = flagsFromAppleDouble(bytes);
        if (flags && staysInside(name) && name.mid(start, 2) == "._")
            m_labels[name.first(start) + name.mid(start + 2)] = *flags;
    }

    void putLabels()
    {
        for (const auto &[name, flags] : m_labels) {
            const qsizetype slash = name.lastIndexOf('/');
            // Not by parentOf(): a label makes no folders.
            UniqueDescriptor at(fcntl(m_root.get(), F_DUPFD_CLOEXEC, 0));
            for (const QByteArray &step : name.first(qMax<qsizetype>(0, slash)).split('/')) {
                if (!step.isEmpty() && at.isOpen())
                    at.reset(openFolder(at.get(), step.constData()).release());
            }
            if (at.isOpen())
                putLabel(at.get(), name.constData() + slash + 1, flags);
        }
    }

    /// An item that its owner may not write to is made writable for as long as it takes.
    static void putLabel(int parent, const char *name, quint16 flags)
    {
        struct stat info;
        if (fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) != 0 || S_ISLNK(info.st_mode))
            return;
        const bool isClosed = (info.st_mode & 0600) != 0600;
        if (isClosed && fchmodat(parent, name, info.st_mode | 0600, 0) != 0)
            return;
        const UniqueDescriptor item(openat(parent, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (item.isOpen())
            setFlagsWord(item.get(), flags, labelMask | bundleBit);
        // Who could open it can close it.
        [[maybe_unused]] const bool closed = !isClosed || fchmodat(parent, name, info.st_mode & 0777, 0) == 0;
    }

    /// Deepest first: what is done inside a folder changes its dates. Folders that stood there before stay as they are.
    void finishFolders()
    {
        for (auto at = m_folders.rbegin(); at != m_folders.rend(); ++at) {
            const QString name = fromNative(at->first);
            if (m_merged.contains(name) || m_report.refused.contains(name))
                continue;
            const PathAt path(joined(m_destination, name));
            const UniqueDescriptor folder = openFolder(path.folder(), path.name());
            const timespec times[2] = {{0, UTIME_NOW}, at->second.modified.value_or(timespec{0, UTIME_OMIT})};
            if (folder.isOpen() && (futimens(folder.get(), times) != 0 || fchmod(folder.get(), at->second.mode) != 0))
                m_report.refused.append(name);
        }
    }

    void takeBack()
    {
        for (const QString &path : std::as_const(m_moved))
            static_cast<void>(removeOwnTree(path));
    }

    /// Everything in this folder of the place moves to the same folder of the destination. Folders that stand there
    /// already take in what is new; nothing is replaced.
    void moveOn(const QString &below)
    {
        const auto entries = listFolder(joined(m_place, below));
        if (!entries) {
            m_report.outcome = entries.outcome();
            return;
        }
        for (const FolderEntry &entry : *entries) {
            if (!m_report.outcome.ok())
                return;
            const QString name = below.isEmpty() ? entry.name : joined(below, entry.name);
            const QString target = joined(m_destination, name);
            if (entry.kind == FileKind::Folder && kindOf(target) == FileKind::Folder) {
                m_merged.insert(name);
                moveOn(name);
            } else if (const Outcome moved = moveItem(joined(m_place, name), target); moved.ok()) {
                m_moved.append(target);
            } else if (moved.is(Cause::Exists)) {
                m_report.refused.append(name);
            } else {
                m_report.outcome = moved;
            }
        }
    }

    QString m_destination;
    QString m_place;
    quint64 m_allowed;
    quint64 m_unpacked = 0;
    mode_t m_newFolderMode = 0755;
    std::unique_ptr<archive, ReadCloser> m_reader;
    UniqueDescriptor m_root;
    UniqueDescriptor m_parent; ///< the folder of the last entry, which mostly is the folder of the next
    QByteArray m_parentName;
    std::map<QByteArray, quint16> m_labels;
    std::map<QByteArray, FolderFinish> m_folders;
    QSet<QString> m_merged; ///< folders that stood in the destination before
    QStringList m_moved;    ///< what has arrived there
    ExtractReport m_report;
};

} // namespace

ExtractReport extractZipDirectly(const QString &archivePath, const QString &destination)
{
    return Extraction(archivePath, destination).run();
}

} // namespace platform

#include "platform/archive/ZipFormat.h"

#include "platform/archive/AppleDouble.h"
#include "platform/base/NativePath.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/PathAt.h"
#include "platform/plain/CopyMonitor.h"
#include "platform/plain/FolderReader.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr qsizetype pieceSize = qsizetype{256} * 1024;
/// Bits a byte, of eight: pictures, film and archives lie above, and packing them once more only takes time.
constexpr double densest = 7.9;
/// Below this a sample says too little.
constexpr qsizetype smallestSample = 16384;
/// Looks at a file before it is stored as it is: a dense beginning alone may be a picture before a long text.
constexpr int samples = 5;

double bitsPerByte(const QByteArray &sample)
{
    std::array<qsizetype, 256> counts{};
    for (const char byte : sample)
        ++counts[static_cast<uchar>(byte)];
    const auto size = static_cast<double>(sample.size());
    double bits = 0;
    for (const qsizetype count : counts) {
        if (count > 0)
            bits -= static_cast<double>(count) * std::log2(static_cast<double>(count) / size);
    }
    return bits / size;
}

/// Whether packing the file would only take time. The descriptor's offset is left at its beginning.
bool isDense(int file, qint64 size)
{
    QByteArray sample(smallestSample, '\0');
    bool dense = size >= samples * smallestSample;
    for (int i = 0; i < samples && dense; ++i) {
        const ssize_t got = pread(file, sample.data(), smallestSample, (size - smallestSample) / (samples - 1) * i);
        dense = got == smallestSample && bitsPerByte(sample) > densest;
    }
    return dense;
}

qsizetype readPiece(int file, QByteArray &piece)
{
    qsizetype filled = 0;
    while (filled < piece.size()) {
        const ssize_t got = read(file, piece.data() + filled, static_cast<std::size_t>(piece.size() - filled));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        filled += got;
    }
    return filled;
}

/// The library reports the system's numbers where it failed on the system.
Cause causeOf(int libraryError)
{
    const Outcome fromSystem = Outcome::fromNumber(libraryError, {});
    return libraryError > 0 ? fromSystem.cause() : Cause::Other;
}

struct EntryCloser
{
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

/// Walks what is to be packed, by descriptor.
class Compression
{
public:
    Compression(const QString &path, const QString &archivePath, CopyMonitor *monitor)
        : m_above(parentPath(path))
        , m_writer(archivePath)
        , m_monitor(monitor)
    {
        m_writer.setMonitor(monitor);
        raiseDescriptorLimit();
        struct stat info;
        const PathAt archiveAt(archivePath);
        if (fstatat(archiveAt.folder(), archiveAt.name(), &info, 0) == 0)
            m_archive = info;
        const PathAt at(m_above);
        const UniqueDescriptor parent(openat(at.folder(), at.name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        take(parent.get(), toNative(lastComponent(path)), {});
    }

    CompressReport run()
    {
        if (m_report.outcome.ok())
            m_report.outcome = m_writer.finish();
        return m_report;
    }

private:
    void fail(const QByteArray &name) { m_report.outcome = Outcome::fromErrno(joined(m_above, fromNative(name))); }

    void take(int folder, const QByteArray &entry, const QByteArray &above)
    {
        if (!m_report.outcome.ok())
            return;
        if (m_monitor)
            ++m_monitor->items;
        const QByteArray name = above.isEmpty() ? entry : above + '/' + entry;
        struct stat info;
        if (fstatat(folder, entry.constData(), &info, AT_SYMLINK_NOFOLLOW) != 0)
            return fail(name);
        if (info.st_dev == m_archive.st_dev && info.st_ino == m_archive.st_ino)
            return; // the archive grows inside the folder that is packed
        if (!S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode) && !S_ISLNK(info.st_mode)) {
            m_report.skipped.append(fromNative(name));
            return;
        }
        QByteArray target(S_ISLNK(info.st_mode) ? PATH_MAX : 0, '\0');
        UniqueDescriptor opened;
        if (S_ISLNK(info.st_mode))
            target.truncate(qMax<qsizetype>(
                0, readlinkat(folder, entry.constData(), target.data(), static_cast<std::size_t>(target.size()))));
        else
            opened = S_ISDIR(info.st_mode) ? openFolder(folder, entry.constData())
                                           : openFile(folder, entry.constData(), info);
        if (!S_ISLNK(info.st_mode) && !opened.isOpen())
            return fail(name);
        if (!entry.isValidUtf8())
            m_report.renamed.append(fromNative(name));
        m_writer.addItem(name, info, target, opened.get());
        if (opened.isOpen())
            m_writer.addFlags(name, flagsWordOf(opened.get()));
        m_report.outcome = m_writer.outcome();
        if (S_ISDIR(info.st_mode))
            takeContents(opened.get(), name);
    }

    void takeContents(int folder, const QByteArray &name)
    {
        std::vector<RawEntry> entries;
        if (!readFolder(folder, entries))
            return fail(name);
        if (m_monitor)
            m_monitor->enter(name.mid(name.lastIndexOf('/') + 1).toStdString());
        std::sort(entries.begin(), entries.end(), [](const RawEntry &a, const RawEntry &b) { return a.name < b.name; });
        for (const RawEntry &entry : entries)
            take(folder, QByteArray::fromStdString(entry.name), name);
    }

    QString m_above;
    ZipWriter m_writer;
    CopyMonitor *m_monitor;
    struct stat m_archive
    {
    };
    CompressReport m_report;
};

} // namespace

CompressReport compressZipDirectly(const QString &path, const QString &archivePath, CopyMonitor *monitor)
{
    return Compression(path, archivePath, monitor).run();
}

void ZipWriter::Closer::operator()(archive *handle) const
{
    archive_write_free(handle);
}

ZipWriter::ZipWriter(const QString &path)
    : m_archive(archive_write_new())
    , m_piece(pieceSize, '\0')
{
    archive_write_set_format_zip(m_archive.get());
    archive_write_set_options(m_archive.get(), "hdrcharset=UTF-8");
    archive_write_set_bytes_per_block(m_archive.get(), static_cast<int>(pieceSize));
    archive_write_set_bytes_in_last_block(m_archive.get(), 1);
    const PathAt at(path);
    m_file.reset(openat(at.folder(), at.name(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!m_file.isOpen())
        m_outcome = Outcome::fromErrno(path);
    else
        check(archive_write_open_fd(m_archive.get(), m_file.get()) == ARCHIVE_OK);
}

ZipWriter::~ZipWriter() = default;

void ZipWriter::check(bool good)
{
    if (good || !m_outcome.ok())
        return;
    const char *text = archive_error_string(m_archive.get());
    m_outcome = Outcome::failure(causeOf(archive_errno(m_archive.get())), {},
                                 text ? QString::fromUtf8(text) : QStringLiteral("unknown error"));
}

bool ZipWriter::addHeader(archive_entry *entry, const QByteArray &name, const struct stat &info)
{
    if (!m_outcome.ok())
        return false;
    archive_entry_copy_stat(entry, &info);
    archive_entry_set_pathname_utf8(entry, forDisplay(fromNative(name)).toUtf8().constData());
    check(archive_write_header(m_archive.get(), entry) >= ARCHIVE_WARN);
    return m_outcome.ok();
}

void ZipWriter::addContents(const QByteArray &name, const struct stat &info, const QByteArray &contents)
{
    const std::unique_ptr<archive_entry, EntryCloser> entry(archive_entry_new());
    archive_write_zip_set_compression_deflate(m_archive.get());
    if (addHeader(entry.get(), name, info) && !contents.isEmpty())
        check(archive_write_data(m_archive.get(), contents.constData(), static_cast<std::size_t>(contents.size())) ==
              contents.size());
}

void ZipWriter::addItem(const QByteArray &name, const struct stat &info, const QByteArray &linkTarget, int file)
{
    if (m_monitor && m_monitor->cancelled && m_outcome.ok())
        m_outcome = Outcome::fromNumber(ECANCELED, fromNative(name));
    const std::unique_ptr<archive_entry, EntryCloser> entry(archive_entry_new());
    if (!linkTarget.isEmpty())
        archive_entry_copy_symlink(entry.get(), linkTarget.constData());
    if (!S_ISREG(info.st_mode)) {
        static_cast<void>(addHeader(entry.get(), name, info));
        return;
    }
    if (isDense(file, info.st_size))
        archive_write_zip_set_compression_store(m_archive.get());
    else
        archive_write_zip_set_compression_deflate(m_archive.get());
    if (addHeader(entry.get(), name, info))
        pumpFile(file, name, info.st_size);
}

void ZipWriter::pumpFile(int file, const QByteArray &name, qint64 size)
{
    while (size > 0 && m_outcome.ok()) {
        const qsizetype got = readPiece(file, m_piece);
        if (got <= 0) { // a file that shrank would pass for the whole one
            m_outcome = Outcome::fromNumber(got < 0 ? errno : ESTALE, fromNative(name));
            return;
        }
        const auto wanted = static_cast<std::size_t>(qMin<qint64>(got, size));
        check(archive_write_data(m_archive.get(), m_piece.constData(), wanted) == static_cast<la_ssize_t>(wanted));
        size -= static_cast<qint64>(wanted);
        if (m_monitor)
            m_monitor->bytes += wanted;
        if (m_monitor && m_monitor->cancelled && m_outcome.ok())
            m_outcome = Outcome::fromNumber(ECANCELED, fromNative(name));
    }
}

void ZipWriter::addFlags(const QByteArray &name, quint16 flagsWord)
{
    if (flagsWord == 0)
        return;
    const qsizetype start = name.lastIndexOf('/') + 1;
    const QByteArray contents = appleDoubleWithFlags(flagsWord);
    struct stat info
    {
    };
    info.st_mode = S_IFREG | 0644;
    info.st_size = contents.size();
    info.st_mtime = time(nullptr);
    addContents("__MACOSX/" + name.first(start) + "._" + name.mid(start), info, contents);
}

void ZipWriter::addFolder(const QString &name, quint16 flagsWord)
{
    struct stat info
    {
    };
    info.st_mode = S_IFDIR | 0755;
    info.st_mtime = time(nullptr);
    addContents(toNative(name), info, {});
    addFlags(toNative(name), flagsWord);
}

void ZipWriter::addFile(const QString &name, const QByteArray &contents, quint16 flagsWord)
{
    struct stat info
    {
    };
    info.st_mode = S_IFREG | 0644;
    info.st_size = contents.size();
    info.st_mtime = time(nullptr);
    addContents(toNative(name), info, contents);
    addFlags(toNative(name), flagsWord);
}

Outcome ZipWriter::finish()
{
    if (m_outcome.ok())
        check(archive_write_close(m_archive.get()) == ARCHIVE_OK);
    if (m_file.isOpen() && m_file.closeChecked() != 0 &&
        m_outcome.ok()) // a share or a quota may report the failed write only now
        m_outcome = Outcome::fromErrno({});
    return m_outcome;
}

} // namespace platform

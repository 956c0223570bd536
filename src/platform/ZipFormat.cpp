#include "platform/ZipFormat.h"

#include "platform/AppleDouble.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"

#include <QDateTime>
#include <QHash>
#include <archive.h>
#include <archive_entry.h>

namespace platform {
namespace {

constexpr quint16 labelMask = 0x000E;
constexpr std::size_t pieceSize = std::size_t{64} * 1024;
constexpr qsizetype largestAppleDouble = qsizetype{1} << 20;

struct ReadCloser
{
    void operator()(archive *handle) const { archive_read_free(handle); }
};
struct DiskCloser
{
    void operator()(archive *handle) const { archive_write_free(handle); }
};
struct EntryCloser
{
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

bool staysInside(const QString &name)
{
    if (name.isEmpty() || name.startsWith(u'/'))
        return false;
    return !name.split(u'/').contains(QStringLiteral(".."));
}

/// Whether a link at the entry's place stays below the destination. Steps upwards count only at the beginning: after a
/// step down they would start from wherever that step, perhaps a link of the archive, leads.
bool linkStaysInside(const QString &name, const QString &target)
{
    if (target.startsWith(u'/'))
        return false;
    qsizetype depth = name.count(u'/');
    bool descended = false;
    for (const QString &step : target.split(u'/', Qt::SkipEmptyParts)) {
        if (step == u"..") {
            if (descended || --depth < 0)
                return false;
        } else if (step != u".") {
            descended = true;
        }
    }
    return true;
}

class Extraction
{
public:
    Extraction(const QString &archivePath, const QString &destination)
        : m_destination(destination), m_reader(archive_read_new()), m_disk(archive_write_disk_new())
    {
        archive_read_support_format_zip(m_reader.get());
        archive_write_disk_set_options(m_disk.get(), ARCHIVE_EXTRACT_TIME | ARCHIVE_EXTRACT_PERM |
                                                         ARCHIVE_EXTRACT_SECURE_NODOTDOT |
                                                         ARCHIVE_EXTRACT_SECURE_SYMLINKS);
        if (archive_read_open_filename(m_reader.get(), toNative(archivePath).constData(), pieceSize) != ARCHIVE_OK)
            m_report.problem = errorOf(m_reader.get());
    }

    ExtractReport run()
    {
        archive_entry *entry = nullptr;
        while (m_report.problem.isNull()) {
            const int status = archive_read_next_header(m_reader.get(), &entry);
            if (status == ARCHIVE_EOF)
                break;
            if (status < ARCHIVE_WARN)
                m_report.problem = errorOf(m_reader.get());
            else
                take(entry);
        }
        if (archive_write_close(m_disk.get()) != ARCHIVE_OK && m_report.problem.isNull())
            m_report.problem = errorOf(m_disk.get());
        for (auto label = m_labels.cbegin(); label != m_labels.cend(); ++label) {
            if (!leadsThroughLink(label.key()))
                setFlagsWord(label.key(), label.value(), labelMask | bundleBit);
        }
        return m_report;
    }

private:
    bool leadsThroughLink(const QString &path) const
    {
        for (QString above = parentPath(path); above.size() > m_destination.size(); above = parentPath(above)) {
            if (kindOf(above) == FileKind::Link)
                return true;
        }
        return false;
    }

    static QString errorOf(archive *handle)
    {
        const char *text = archive_error_string(handle);
        return text ? QString::fromUtf8(text) : QStringLiteral("unknown error");
    }

    void take(archive_entry *entry)
    {
        const char *native = archive_entry_pathname_utf8(entry);
        const QString name = native ? QString::fromUtf8(native) : fromNative(archive_entry_pathname(entry));
        const char *link = archive_entry_symlink(entry);
        if (name.startsWith(QStringLiteral("__MACOSX/")))
            return takeLabel(name.mid(9));
        if (!staysInside(name) || (link && !linkStaysInside(name, fromNative(link))) || archive_entry_hardlink(entry)) {
            m_report.refused.append(name);
            return;
        }
        archive_entry_copy_pathname(entry, toNative(joined(m_destination, name)).constData());
        archive_entry_set_perm(entry, archive_entry_perm(entry) & 0777);
        write(entry, name);
    }

    void write(archive_entry *entry, const QString &name)
    {
        if (archive_write_header(m_disk.get(), entry) < ARCHIVE_WARN) {
            m_report.refused.append(name);
            return;
        }
        const void *piece = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        for (;;) {
            const int status = archive_read_data_block(m_reader.get(), &piece, &size, &offset);
            if (status == ARCHIVE_EOF)
                break;
            if (status < ARCHIVE_WARN)
                m_report.problem = name + QStringLiteral(": ") + errorOf(m_reader.get());
            else if (archive_write_data_block(m_disk.get(), piece, size, offset) < ARCHIVE_WARN)
                m_report.problem = name + QStringLiteral(": ") + errorOf(m_disk.get());
            if (!m_report.problem.isNull())
                return;
        }
        archive_write_finish_entry(m_disk.get());
    }

    /// "Project.tzt/Files/._Footage" carries the flags of "Project.tzt/Files/Footage".
    void takeLabel(const QString &name)
    {
        QByteArray bytes;
        std::vector<char> piece(pieceSize);
        for (la_ssize_t got = 1; got > 0 && bytes.size() < largestAppleDouble;) {
            got = archive_read_data(m_reader.get(), piece.data(), piece.size());
            bytes.append(piece.data(), std::max<la_ssize_t>(got, 0));
        }
        const qsizetype start = name.lastIndexOf(u'/') + 1;
        const std::optional<quint16> flags = flagsFromAppleDouble(bytes);
        if (!flags || !staysInside(name) || QStringView(name).sliced(start, qMin(name.size() - start, 2)) != u"._")
            return;
        m_labels.insert(joined(m_destination, name.first(start) + name.mid(start + 2)), *flags);
    }

    QString m_destination;
    std::unique_ptr<archive, ReadCloser> m_reader;
    std::unique_ptr<archive, DiskCloser> m_disk;
    QHash<QString, quint16> m_labels;
    ExtractReport m_report;
};

} // namespace

ExtractReport extractZipDirectly(const QString &archivePath, const QString &destination)
{
    // Resolved first: a library behind a link is the user's own, while links inside the archive are not to be followed.
    const std::unique_ptr<char, decltype(&free)> resolved(realpath(toNative(destination).constData(), nullptr), free);
    if (!resolved)
        return {FileOutcome::fromErrno(destination).description(), {}};
    return Extraction(archivePath, fromNative(resolved.get())).run();
}

void ZipWriter::Closer::operator()(archive *handle) const
{
    archive_write_free(handle);
}

ZipWriter::ZipWriter(const QString &path) : m_archive(archive_write_new())
{
    archive_write_set_format_zip(m_archive.get());
    archive_write_set_options(m_archive.get(), "hdrcharset=UTF-8");
    m_good = archive_write_open_filename(m_archive.get(), toNative(path).constData()) == ARCHIVE_OK;
}

ZipWriter::~ZipWriter() = default;

void ZipWriter::add(const QString &name, int type, int mode, const QByteArray &contents)
{
    const std::unique_ptr<archive_entry, EntryCloser> entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
    archive_entry_set_filetype(entry.get(), static_cast<unsigned>(type));
    archive_entry_set_perm(entry.get(), static_cast<unsigned>(mode));
    archive_entry_set_size(entry.get(), contents.size());
    archive_entry_set_mtime(entry.get(), QDateTime::currentSecsSinceEpoch(), 0);
    m_good = m_good && archive_write_header(m_archive.get(), entry.get()) == ARCHIVE_OK;
    if (m_good && !contents.isEmpty())
        m_good = archive_write_data(m_archive.get(), contents.constData(), static_cast<size_t>(contents.size())) ==
                 contents.size();
}

void ZipWriter::addFlags(const QString &name, quint16 flagsWord)
{
    if (flagsWord == 0)
        return;
    const qsizetype start = name.lastIndexOf(u'/') + 1;
    add(QStringLiteral("__MACOSX/") + name.first(start) + QStringLiteral("._") + name.mid(start), AE_IFREG, 0644,
        appleDoubleWithFlags(flagsWord));
}

void ZipWriter::addFolder(const QString &name, quint16 flagsWord)
{
    add(name, AE_IFDIR, 0755, {});
    addFlags(name, flagsWord);
}

void ZipWriter::addFile(const QString &name, const QByteArray &contents, quint16 flagsWord)
{
    add(name, AE_IFREG, 0644, contents);
    addFlags(name, flagsWord);
}

bool ZipWriter::finish()
{
    return m_good && archive_write_close(m_archive.get()) == ARCHIVE_OK;
}

} // namespace platform

#pragma once

#include "platform/archive/ZipArchive.h"

#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <memory>
#include <sys/stat.h>

struct archive;
struct archive_entry;

/** Zip archives by libarchive. Linked only into what needs it from the start; others go through ZipArchive.h. */
namespace platform {

/** What extractZip() and compressZip() do. */
[[nodiscard]] ExtractReport extractZipDirectly(const QString &archivePath, const QString &destination);
[[nodiscard]] CompressReport compressZipDirectly(const QString &path, const QString &archivePath,
                                                 CopyMonitor *monitor = nullptr);

/** Writes a zip archive, entry by entry. finish() says whether every byte got there; without it the file is no archive.
 */
class ZipWriter
{
public:
    explicit ZipWriter(const QString &path);
    ~ZipWriter();
    ZipWriter(const ZipWriter &) = delete;
    ZipWriter &operator=(const ZipWriter &) = delete;

    /** Names are relative, with "/" between components. A flags word of 0 writes no AppleDouble entry. */
    void addFolder(const QString &name, quint16 flagsWord);
    void addFile(const QString &name, const QByteArray &contents, quint16 flagsWord);
    /** What lies on disk: a folder alone, a link with its target, a file with the contents of the open descriptor. */
    void addItem(const QByteArray &name, const struct stat &info, const QByteArray &linkTarget, int file);
    void addFlags(const QByteArray &name, quint16 flagsWord);
    /** Is told of each piece, and ends the writing when it is cancelled. */
    void setMonitor(CopyMonitor *monitor) { m_monitor = monitor; }

    /** Good while all is well. */
    [[nodiscard]] const Outcome &outcome() const { return m_outcome; }
    Outcome finish();

private:
    struct Closer
    {
        void operator()(archive *handle) const;
    };
    void addContents(const QByteArray &name, const struct stat &info, const QByteArray &contents);
    [[nodiscard]] bool addHeader(archive_entry *entry, const QByteArray &name, const struct stat &info);
    void pumpFile(int file, const QByteArray &name, qint64 size);
    void check(bool good);

    UniqueDescriptor m_file; ///< ours: the library leaves its own open when it cannot look at it
    std::unique_ptr<archive, Closer> m_archive;
    QByteArray m_piece;
    CopyMonitor *m_monitor = nullptr;
    Outcome m_outcome;
};

} // namespace platform

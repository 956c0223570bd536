#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

struct archive;

namespace platform {

struct ExtractReport
{
    QString problem;     ///< why it ended early; null when the archive was read to its end
    QStringList refused; ///< entries that would have landed outside the destination
    [[nodiscard]] bool ok() const { return problem.isNull() && refused.isEmpty(); }
};

/**
 * Unpacks a zip archive into an existing folder, with modes (no set-user-ID), times, links and label colours. Colours
 * come from AppleDouble entries under __MACOSX, of which nothing is left on disk. Entries that are absolute, hold "..",
 * go through a link or are links that lead out are refused and the rest goes on. Blocks; any thread; needs a UTF-8
 * locale.
 */
[[nodiscard]] ExtractReport extractZip(const QString &archivePath, const QString &destination);

/** Writes a zip archive, entry by entry. finish() says whether every byte got there; without it the file is no archive. */
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
    [[nodiscard]] bool finish();

private:
    struct Closer
    {
        void operator()(archive *handle) const;
    };
    void add(const QString &name, int type, int mode, const QByteArray &contents);
    void addFlags(const QString &name, quint16 flagsWord);

    std::unique_ptr<archive, Closer> m_archive;
    bool m_good = false;
};

} // namespace platform

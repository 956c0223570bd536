#pragma once

#include "platform/ZipArchive.h"

#include <QByteArray>
#include <memory>

struct archive;

/** Zip archives by libarchive. Linked only into what needs it from the start; others go through ZipArchive.h. */
namespace platform {

/** What extractZip() does. */
[[nodiscard]] ExtractReport extractZipDirectly(const QString &archivePath, const QString &destination);

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

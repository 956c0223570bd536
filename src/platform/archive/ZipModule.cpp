// The module's two doors: see ZipArchive.h.
#include "platform/archive/ZipFormat.h"

extern "C" Q_DECL_EXPORT void tessaro_extract_zip(const QString &archivePath, const QString &destination,
                                                  platform::ExtractReport &report)
{
    report = platform::extractZipDirectly(archivePath, destination);
}

extern "C" Q_DECL_EXPORT void tessaro_compress_zip(const QString &path, const QString &archivePath,
                                                   platform::CopyMonitor *monitor, platform::CompressReport &report)
{
    report = platform::compressZipDirectly(path, archivePath, monitor);
}

// The module's one door: see ZipArchive.h.
#include "platform/ZipFormat.h"

extern "C" Q_DECL_EXPORT void tessaro_extract_zip(const QString &archivePath, const QString &destination,
                                                  platform::ExtractReport &report)
{
    report = platform::extractZipDirectly(archivePath, destination);
}

#include "platform/ZipArchive.h"

#include "platform/ApplicationBundle.h"
#include "platform/NativePath.h"

#include <QLibrary>

namespace platform {

ExtractReport extractZip(const QString &archivePath, const QString &destination)
{
    using Extract = void (*)(const QString &, const QString &, ExtractReport &);
    static auto *module = new QLibrary(
        joined(ApplicationBundle::main().path(), QStringLiteral("Contents/PlugIns/libtessaro_archive.so")));
    const auto extract = reinterpret_cast<Extract>(module->resolve("tessaro_extract_zip"));
    if (!extract)
        return {module->errorString(), {}};
    ExtractReport report;
    extract(archivePath, destination, report);
    return report;
}

} // namespace platform

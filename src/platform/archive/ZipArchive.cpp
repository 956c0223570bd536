#include "platform/archive/ZipArchive.h"

#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"

#include <QLibrary>

namespace platform {
namespace {

/// Calls one of the module's two doors; its report, or why the module cannot be had.
template <typename Report> Report callModule(const char *door, const QString &first, const QString &second)
{
    using Function = void (*)(const QString &, const QString &, Report &);
    static auto *module = new QLibrary(
        joined(ApplicationBundle::main().path(), QStringLiteral("Contents/PlugIns/libtessaro_archive.so")));
    const auto function = reinterpret_cast<Function>(module->resolve(door));
    Report report;
    if (function)
        function(first, second, report);
    else
        report.outcome = Outcome::failure(Cause::Missing, module->fileName(), module->errorString());
    return report;
}

} // namespace

ExtractReport extractZip(const QString &archivePath, const QString &destination)
{
    return callModule<ExtractReport>("tessaro_extract_zip", archivePath, destination);
}

CompressReport compressZip(const QString &path, const QString &archivePath)
{
    return callModule<CompressReport>("tessaro_compress_zip", path, archivePath);
}

} // namespace platform

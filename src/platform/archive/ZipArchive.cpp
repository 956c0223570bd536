#include "platform/archive/ZipArchive.h"

#include "platform/files/Module.h"

namespace platform {
namespace {

/// Calls one of the module's two doors; its report, or why the module cannot be had.
template <typename Report, typename... More>
Report callModule(const char *door, const QString &first, const QString &second, More... more)
{
    using Function = void (*)(const QString &, const QString &, More..., Report &);
    static Module module("archive");
    const auto function = reinterpret_cast<Function>(module.door(door));
    Report report;
    if (function)
        function(first, second, more..., report);
    else
        report.outcome = Outcome::failure(Cause::Missing, module.path(), module.whyNot());
    return report;
}

} // namespace

ExtractReport extractZip(const QString &archivePath, const QString &destination)
{
    return callModule<ExtractReport>("tessaro_extract_zip", archivePath, destination);
}

CompressReport compressZip(const QString &path, const QString &archivePath, CopyMonitor *monitor)
{
    return callModule<CompressReport>("tessaro_compress_zip", path, archivePath, monitor);
}

} // namespace platform

// VTFileManager's archives.
#include "platform/archive/ZipArchive.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "support/FileOperations.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QUuid>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileOperations)
};

} // namespace

using platform::joined;
using platform::Outcome;

Outcome fileoperations::compressFile(const QString &path, const QString &toDestinationFile, QStringList *leftOut)
{
    // Under another name until it is whole: half an archive is none.
    const QString growing = joined(platform::parentPath(toDestinationFile),
                                   u'.' + QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".zip"));
    platform::CopyMonitor own;
    const LongWork work(Text::tr("Compressing %1").arg(platform::forOneLine(platform::lastComponent(path))), own,
                        measureOf({path}, own));
    const platform::CompressReport report =
        platform::resultInBackground([&] { return platform::compressZip(path, growing, &work.monitor()); });
    for (const QString &skipped : report.skipped)
        VTLog::appendLog("Left out of the archive %@: %@", toDestinationFile, skipped);
    for (const QString &renamed : report.renamed)
        VTLog::appendLog("Name changed in the archive %@: %@", toDestinationFile, renamed);
    if (leftOut)
        *leftOut = report.skipped + report.renamed;
    Outcome packed = report.outcome;
    if (packed.ok()) { // what stands there makes room for a whole archive only
        packed = trashFile(toDestinationFile, ShouldAuth::No);
        if (!packed.ok())
            VTLog::appendLog("Unable to move %@ to the Trash: %@", toDestinationFile, packed.description());
    }
    if (packed.ok())
        packed = platform::moveItem(growing, toDestinationFile);
    if (packed.ok())
        return {};
    VTLog::appendLog("Unable to compress %@: %@", path, packed.description());
    static_cast<void>(platform::removeOwnTree(growing)); // the failure is told
    return packed;
}

bool VTFileManager::compressFile(const QString &path, const QString &toDestinationFile)
{
    return fileoperations::compressFile(path, toDestinationFile).ok();
}

// VTFileManager's copy that runs in the background and reports its progress.
#include "support/VTFileManager.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/FileOperations.h"
#include "support/VTLog.h"

#include <QMetaMethod>
#include <QPointer>

using platform::CopyOperation;
using FileOperation = CopyOperation::Ref;

namespace {

constexpr std::chrono::seconds createPatience{10};
/// The numbers by which a delegate knows how far the copy is.
enum Stage { running = 2, complete = 3 };

/// Calls the delegate's operation of the name: the form that also takes the copy where there is one, else the other.
void tell(const QPointer<QObject> &delegate, const QByteArray &name, const QVariantMap &record,
          const FileOperation &operation)
{
    if (!delegate)
        return;
    const QMetaObject *type = delegate->metaObject();
    const QByteArray both = name + "(QVariantMap,platform::CopyOperation::Ref)";
    const QByteArray one = name + "(QVariantMap)";
    if (const int found = type->indexOfMethod(both); found >= 0)
        type->method(found).invoke(delegate, Q_ARG(QVariantMap, record),
                                   Q_ARG(platform::CopyOperation::Ref, operation));
    else if (const int other = type->indexOfMethod(one); other >= 0)
        type->method(other).invoke(delegate, Q_ARG(QVariantMap, record));
}

QVariantMap withProgress(QVariantMap record, const CopyOperation::Progress &progress)
{
    record.insert(QStringLiteral("stage"), Stage::running);
    record.insert(QStringLiteral("bytesCompleted"), progress.bytesDone);
    record.insert(QStringLiteral("bytesTotal"), progress.bytesTotal);
    record.insert(QStringLiteral("itemsCompleted"), progress.itemsDone);
    record.insert(QStringLiteral("itemsTotal"), progress.itemsTotal);
    record.insert(QStringLiteral("throughput"), progress.bytesPerSecond);
    return record;
}

} // namespace

bool VTFileManager::copyFileWithProgress(const QString &source, const QString &destination, QObject *delegate,
                                         const QVariant &object, const QVariant &object2)
{
    using platform::formatString;
    if (!fileExistsAtPath(source) && !isSymbolicLinkAtPath(source)) {
        platform::printToConsole(formatString("Error: File %@ doesn't exist. Aborting copy process...", source));
        return false;
    }
    const QString folder = platform::parentPath(destination);
    if (!fileExistsAtPath(folder) && !createDirectory(folder, createPatience)) {
        platform::printToConsole(
            formatString("Unable to copy file %@ - destination directory %@ doesn't exist. Aborting "
                         "copy process...",
                         source, folder));
        return false;
    }
    QVariantMap record{{QStringLiteral("source"), source},
                       {QStringLiteral("destination"), destination},
                       {QStringLiteral("operationtype"), QStringLiteral("copy")}};
    const QPointer<QObject> receiver(delegate);
    if (delegate)
        record.insert(QStringLiteral("delegate"), QVariant::fromValue(delegate));
    if (object.isValid())
        record.insert(QStringLiteral("object"), object);
    if (object2.isValid())
        record.insert(QStringLiteral("object2"), object2);
    CopyOperation::start(
        source, destination,
        {[=](const FileOperation &operation, const CopyOperation::Progress &progress) {
             tell(receiver, "fileOperationProgress", withProgress(record, progress), operation);
         },
         [=](const FileOperation &operation, const platform::Outcome &outcome, const platform::Losses &losses) {
             fileoperations::logLosses(losses);
             if (!outcome.ok() && !outcome.is(platform::Cause::Cancelled))
                 VTLog::appendLog("Error copying file: %@", outcome.description());
             QVariantMap last = record;
             last.insert(QStringLiteral("stage"), Stage::complete);
             tell(receiver, "fileOperationFinished", last, operation);
         }});
    return true;
}

void VTFileManager::cancelFileOperation(const platform::CopyOperation::Ref &operation)
{
    if (operation)
        operation->cancel();
}

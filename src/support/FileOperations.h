#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/FileSystem.h"
#include "support/LongWork.h"
#include "support/VTFileManager.h"

#include <QStringList>
#include <chrono>

namespace platform {
class CopyMonitor;
struct Losses;
} // namespace platform

/**
 * What VTFileManager does, with how it ended: the cause of a failure is the plain operation's, also where the tool that
 * was tried after it failed, too. Threads, locks, logging and rights are VTFileManager's.
 */
namespace fileoperations {

using platform::Outcome;
using std::chrono::seconds;

// With a time-out: waits until the effect can be seen; Cause::TimedOut when it cannot. 0 looks once and does not wait.
Outcome createDirectory(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
Outcome createDirectory(const QString &path, seconds timeout);
Outcome copyFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth = ShouldAuth::Yes);
Outcome copyFile(const QString &source, const QString &toPath, seconds timeout);
Outcome moveFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth = ShouldAuth::Yes);
Outcome moveFile(const QString &source, const QString &toPath, seconds timeout);
Outcome removeFile(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
Outcome removeFile(const QString &path, seconds timeout);
/**
 * Into the Trash of the item's own drive, whole or not at all, and says where it lies by then. Where the drive has none
 * the user is asked: the item is put beside under a dated name, deleted, or stays (Cause::Declined). Its original path
 * is the one that it is known by, where that is given: an item that was put aside for its successor.
 */
Outcome trashFile(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes, QString *inTrash = nullptr,
                  const QString &knownAs = {});
Outcome trashFile(const QString &path, seconds timeout, QString *inTrash = nullptr);
/** What the archive could not hold, or not under its name, is logged, and noted where that is asked for. */
Outcome compressFile(const QString &path, const QString &toDestinationFile, QStringList *leftOut = nullptr);

/** Unlike the given operation, a folder that cannot be read is a failure. Cause::Cancelled as the monitor says. */
Outcome copyContentsOfDirectory(const QString &source, const QString &toPath, seconds timeout,
                                platform::CopyMonitor *monitor = nullptr);
/** Unlike the given operation, a folder that cannot be read is a failure. */
[[nodiscard]] platform::Result<bool> isFolderEmpty(const QString &folder);

/** What the given operations go through: to them a folder that cannot be read is an empty one. The log says so. */
[[nodiscard]] QList<platform::FolderEntry> entriesOf(const QString &folder);

/** One line for each item and what it lost. */
void logLosses(const platform::Losses &losses);

} // namespace fileoperations

/** For work on the items and all below them. */
[[nodiscard]] LongWork::Measure measureOf(const QStringList &paths, platform::CopyMonitor &monitor);

/** A message's informative text: the given one first, then the item and the system's own words for what happened. */
[[nodiscard]] QString withCause(const QString &informativeText, const platform::Outcome &failure);
/** "Please check that you have write permissions for the destination directory.", with the cause. */
[[nodiscard]] QString checkDestination(const platform::Outcome &failure);

#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/FileSystem.h"
#include "support/VTFileManager.h"

#include <QString>
#include <chrono>

namespace platform {
struct CopyMonitor;
}

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
Outcome trashFile(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
Outcome trashFile(const QString &path, seconds timeout);
Outcome compressFile(const QString &path, const QString &toDestinationFile);

/** Unlike the given operation, a folder that cannot be read is a failure. Cause::Cancelled as the monitor says. */
Outcome copyContentsOfDirectory(const QString &source, const QString &toPath, seconds timeout,
                                platform::CopyMonitor *monitor = nullptr);
/** Unlike the given operation, a folder that cannot be read is a failure. */
[[nodiscard]] platform::Result<bool> isFolderEmpty(const QString &folder);

/** What the given operations go through: to them a folder that cannot be read is an empty one. The log says so. */
[[nodiscard]] QList<platform::FolderEntry> entriesOf(const QString &folder);

} // namespace fileoperations

/** A message's informative text: the given one first, then the item and the system's own words for what happened. */
[[nodiscard]] QString withCause(const QString &informativeText, const platform::Outcome &failure);
/** "Please check that you have write permissions for the destination directory.", with the cause. */
[[nodiscard]] QString checkDestination(const platform::Outcome &failure);

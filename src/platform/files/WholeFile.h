#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/Waits.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/**
 * Whole files, by path, of any length and with names of any bytes. Everything here blocks the calling thread and may be
 * called on any.
 */
namespace platform {

/** No file that this program reads whole is larger, in bytes: what is, is no such file. */
inline constexpr qint64 largestWholeFile = qint64{64} * 1024 * 1024;

/** Every byte, or a failure: half a file is never returned. Cause::Missing only when nothing stands there. */
[[nodiscard]] Result<QByteArray> readFile(const QString &path, qint64 atMost = largestWholeFile);

/**
 * Puts the bytes in place of the file in one step: who reads it meanwhile, or after a power cut, finds the old or the
 * new file, whole. On failure the old file is untouched. The mode of the file that was there stays; as super-user the
 * new one belongs to the owner of its folder, who could never change it otherwise.
 */
Outcome replaceFile(const QString &path, const QByteArray &bytes, Waits waits = Waits::ForTheDisk);

/**
 * Writes the bytes over what the file holds: all else that it has, labels and mode among it, stays. For files that
 * nobody else knows of yet: on failure half of them may be there. A link is refused.
 */
Outcome overwriteFile(const QString &path, const QByteArray &bytes);

/** A property list. Cause::Damaged when the file was read whole and is none. */
[[nodiscard]] Result<QVariant> readPropertyListFile(const QString &path);
/** Cause::NotSupported for a value that the format cannot hold. */
Outcome writePropertyListFile(const QString &path, const QVariant &value);

} // namespace platform

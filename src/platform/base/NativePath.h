#pragma once

#include <QByteArray>
#include <QString>

/**
 * Paths as the program holds them (QString) and as the kernel takes them (bytes).
 *
 * A name on disk is a row of bytes, and some are not valid UTF-8. Each byte that does not decode is held as one lone
 * surrogate U+DC80 + (byte - 0x80), which no valid UTF-8 text can contain, so that fromNative() and toNative() are
 * exact inverses for every row of bytes. Only what is shown to a person goes through forDisplay().
 * All functions but absolutePath() are pure, and all may be called on any thread.
 */
namespace platform {

/** In bytes: most file systems take no longer names (NAME_MAX of limits.h). */
inline constexpr qsizetype longestName = 255;

[[nodiscard]] QByteArray toNative(const QString &path);
[[nodiscard]] QString fromNative(QByteArrayView bytes);

/** The text with U+FFFD in place of each byte that is no UTF-8: for labels, messages and log lines. */
[[nodiscard]] QString forDisplay(const QString &path);

/** forDisplay() with U+FFFD in place of each control character, too: a line end in a name would tear a list. */
[[nodiscard]] QString forOneLine(const QString &path);

/** "/a/b/" -> "b", "/" -> "/". */
[[nodiscard]] QString lastComponent(const QString &path);
/** "/a/b" -> "/a", "/a" -> "/", "a" -> "". */
[[nodiscard]] QString parentPath(const QString &path);
/** Exactly one "/" between the two; an empty component gives the folder itself. */
[[nodiscard]] QString joined(const QString &folder, const QString &component);

/** Relative to the current folder; "." and ".." resolved as text, so that a link on the way is not looked at. */
[[nodiscard]] QString absolutePath(const QString &path);

/** Whether the path lies somewhere below the folder, as text. */
[[nodiscard]] bool isInside(const QString &path, const QString &folder);

/** "x.tar.gz" -> "gz"; "", ".hidden" and "x." have none. */
[[nodiscard]] QString extensionOf(const QString &path);
/** "/a/x.tar.gz" -> "/a/x.tar"; what has no extension is returned as it stands. */
[[nodiscard]] QString withoutExtension(const QString &path);

} // namespace platform

#pragma once

#include <QString>
#include <QtGlobal>

namespace platform {

/**
 * The 16-bit flags word of an item: bytes 8 and 9, big-endian, of its 32-byte extended attribute
 * user.com.apple.FinderInfo, which is where a copy from the reference desktop by rsync or Samba leaves it.
 * Links carry no such attribute. 0 when it is missing, has another size, or cannot be read.
 */
[[nodiscard]] quint16 flagsWordOf(const QString &path);
/** The same of an open item. */
[[nodiscard]] quint16 flagsWordOf(int descriptor);

/** Sets the bits under the mask; all other bits and bytes stay. False when the file system or the rights refuse, and
    when the attribute has another size: then it stays as it is. */
bool setFlagsWord(const QString &path, quint16 word, quint16 mask);
bool setFlagsWord(int descriptor, quint16 word, quint16 mask);

/** Bit 13 of the flags word: the folder is shown as one file. */
constexpr quint16 bundleBit = 0x2000;

/** The file system's immutable flag. Read without opening the item. False where there is no such flag. */
[[nodiscard]] bool isImmutable(const QString &path);

/** Silently without effect where the file system or the rights refuse, and on anything but files and folders. */
void setImmutable(const QString &path, bool immutable);

} // namespace platform

#pragma once

#include <QByteArray>
#include <optional>

/**
 * AppleDouble (version 2, RFC 1740): the file in which the reference desktop's archiver carries an item's file-browser
 * flags beside the item. Only the 16-bit flags word is of use here. Pure; any thread.
 */
namespace platform {

[[nodiscard]] QByteArray appleDoubleWithFlags(quint16 flagsWord);
/** Nothing when the bytes are no AppleDouble, are cut short, or carry no file-browser information. */
[[nodiscard]] std::optional<quint16> flagsFromAppleDouble(const QByteArray &bytes);

} // namespace platform

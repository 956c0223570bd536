#pragma once

#include <QByteArray>
#include <QVariant>
#include <optional>

/**
 * Property lists as values: QVariantMap, QVariantList, QString, bool, qlonglong, double, QDateTime (UTC), QByteArray.
 * An integer, a boolean and the string "1" stay three different things. Pure; any thread.
 */
namespace platform {

/** XML or binary. Nothing when it does not parse, or holds more than 5,000 containers, a million values or 16 MiB, each
    counted as often as it is named (libplist's parser recurses, and 100,000 nested lists overflow its stack), or a key
    with U+0000 (over which it ends the program). */
[[nodiscard]] std::optional<QVariant> readPropertyList(const QByteArray &bytes);

/** As XML; with characters that XML 1.0 cannot hold, in the binary form. U+0000 is left out. Empty for what
    readPropertyList() would refuse. */
[[nodiscard]] QByteArray writePropertyList(const QVariant &value);

} // namespace platform

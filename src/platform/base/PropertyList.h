#pragma once

#include <QByteArray>
#include <QVariant>
#include <optional>

/**
 * Property lists as values: QVariantMap, QVariantList, QString, bool, qlonglong, double, QDateTime (UTC), QByteArray.
 * An integer, a boolean and the string "1" stay three different things. Pure; any thread.
 */
namespace platform {

/** XML or binary. Nothing when it does not parse, or holds more than 5,000 containers or 16 MiB (libplist's parser
    recurses, and 100,000 nested lists overflow its stack). */
[[nodiscard]] std::optional<QVariant> readPropertyList(const QByteArray &bytes);

/** As XML. Characters that XML 1.0 cannot hold are left out of strings. Empty when the value cannot be written. */
[[nodiscard]] QByteArray writePropertyList(const QVariant &value);

} // namespace platform

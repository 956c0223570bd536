#pragma once

#include "platform/base/Outcome.h"

#include <QVariantMap>
#include <functional>

/**
 * The file beside a template's Files that holds its rules, Rules.plist, as a dictionary: what the rules mean is not
 * known here. One that is there and cannot be understood is never taken for none. Block; any thread.
 */
namespace rulefile {

/** The keys that name items of the template; the rest belongs to whoever reads the rules. */
inline constexpr const char *items = "items"; ///< a list of dictionaries
inline constexpr const char *path = "path";   ///< of an entry: below Files, bytes where it is no UTF-8

[[nodiscard]] QString pathIn(const QString &bundle);
/** Empty without a file; Cause::Damaged when it holds no dictionary. */
[[nodiscard]] platform::Result<QVariantMap> read(const QString &bundle);

using Change = std::function<platform::Result<QVariantMap>(const QVariantMap &current)>;
/**
 * Stores what the function makes of the rules as they are; one program after the other. Without anything in it the
 * file goes. The function's failure comes back, and nothing is changed then.
 */
platform::Outcome change(const QString &bundle, const Change &change);

/** Moves one that cannot be understood out of the way, beside it; where to. */
[[nodiscard]] platform::Result<QString> setAside(const QString &bundle);

/** The path of an entry below Files. */
[[nodiscard]] QString pathOf(const QVariantMap &entry);
[[nodiscard]] QVariantMap withPath(QVariantMap entry, const QString &item);

// What becomes of rules when items change; paths below Files. What lies in an item goes with it, and what was said of
// an item that stood at the new place, and is gone, goes. Pure.
[[nodiscard]] QVariantMap afterMove(QVariantMap rules, const QString &from, const QString &to);
[[nodiscard]] QVariantMap afterRemoval(QVariantMap rules, const QString &item);
[[nodiscard]] QVariantMap afterCopy(QVariantMap rules, const QString &from, const QString &to);

/** What the rules say of an item, with the paths that it has at another place; in the rules of another template, too.
 */
[[nodiscard]] QVariantList entriesOf(const QVariantMap &rules, const QString &item, const QString &newItem);
[[nodiscard]] QVariantMap withEntries(QVariantMap rules, const QString &item, const QVariantList &entries);
/** The current rules with what is different between two others; what is the same in both stays as it is. */
[[nodiscard]] QVariantMap merged(QVariantMap current, const QVariantMap &from, const QVariantMap &to);

} // namespace rulefile

#include "templates/RuleFile.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace rulefile {
namespace {

constexpr std::chrono::seconds patience{5};

/// Not beside the file: a bundle travels, and is packed with all that is in it. Each user's programs wait for each
/// other; who shares a library with others still finds one whole file or the other.
QString lockFile()
{
    return VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) +
           QStringLiteral("/Vantrel/Tessaro/Rules.lock");
}

bool isAtOrBelow(const QString &entry, const QString &item)
{
    return entry == item || platform::isInside(entry, item);
}

/// Each entry's path by the function; null: the entry goes.
QVariantMap withPaths(QVariantMap rules, const std::function<QString(const QString &)> &newPath)
{
    if (!rules.contains(QLatin1String(items)))
        return rules;
    QVariantList entries;
    for (const QVariant &entry : rules.value(QLatin1String(items)).toList()) {
        const QString now = newPath(pathOf(entry.toMap()));
        if (!now.isNull())
            entries.append(withPath(entry.toMap(), now));
    }
    rules.insert(QLatin1String(items), entries);
    return rules;
}

QMap<QString, QVariantMap> byPath(const QVariantMap &rules)
{
    QMap<QString, QVariantMap> entries;
    for (const QVariant &entry : rules.value(QLatin1String(items)).toList())
        entries.insert(pathOf(entry.toMap()), entry.toMap());
    return entries;
}

QVariantList mergedItems(const QVariantMap &current, const QVariantMap &from, const QVariantMap &to)
{
    const auto before = byPath(from);
    auto after = byPath(to);
    QVariantList entries;
    for (const QVariant &entry : current.value(QLatin1String(items)).toList()) {
        const QString path = pathOf(entry.toMap());
        if (before.value(path) == after.value(path))
            entries.append(entry);
        else if (after.contains(path))
            entries.append(after.value(path));
        after.remove(path);
    }
    for (auto entry = after.begin(); entry != after.end(); ++entry) {
        if (before.value(entry.key()) != entry.value())
            entries.append(entry.value());
    }
    return entries;
}

} // namespace

QString pathIn(const QString &bundle)
{
    return platform::joined(bundle, QStringLiteral("Rules.plist"));
}

Result<QVariantMap> read(const QString &bundle)
{
    const Result<QVariant> found = platform::readPropertyListFile(pathIn(bundle));
    if (!found)
        return found.outcome().is(Cause::Missing) ? Result<QVariantMap>(QVariantMap()) : found.outcome();
    return found->typeId() == QMetaType::QVariantMap ? Result<QVariantMap>(found->toMap())
                                                     : Outcome::failure(Cause::Damaged, pathIn(bundle));
}

Outcome change(const QString &bundle, const Change &change)
{
    if (const Outcome made = platform::makeFolders(platform::parentPath(lockFile())); !made.ok())
        return made;
    const Result<platform::FileLock> lock = platform::FileLock::acquire(lockFile(), patience);
    if (!lock && !lock.outcome().is(Cause::NotSupported))
        return lock.outcome();
    const Result<QVariantMap> current = read(bundle);
    if (!current)
        return current.outcome();
    const Result<QVariantMap> wanted = change(*current);
    if (!wanted)
        return wanted.outcome();
    if (*wanted == *current)
        return {};
    return wanted->isEmpty() ? platform::removeTree(pathIn(bundle))
                             : platform::writePropertyListFile(pathIn(bundle), *wanted);
}

Result<QString> setAside(const QString &bundle)
{
    const QString aside =
        VTFileManager::uniqueFilename(platform::joined(bundle, QStringLiteral("Rules (damaged).plist")));
    const Outcome moved = platform::moveItem(pathIn(bundle), aside);
    return moved.ok() ? Result<QString>(aside) : moved;
}

QString pathOf(const QVariantMap &entry)
{
    const QVariant stored = entry.value(QLatin1String(path));
    return stored.typeId() == QMetaType::QByteArray ? platform::fromNative(stored.toByteArray()) : stored.toString();
}

QVariantMap withPath(QVariantMap entry, const QString &item)
{
    const bool isText = platform::forDisplay(item) == item;
    entry.insert(QLatin1String(path), isText ? QVariant(item) : QVariant(platform::toNative(item)));
    return entry;
}

QVariantMap afterMove(QVariantMap rules, const QString &from, const QString &to)
{
    return withPaths(std::move(rules), [&](const QString &entry) {
        if (isAtOrBelow(entry, from))
            return to + entry.mid(from.size());
        return isAtOrBelow(entry, to) ? QString() : entry;
    });
}

QVariantMap afterRemoval(QVariantMap rules, const QString &item)
{
    return withPaths(std::move(rules),
                     [&](const QString &entry) { return isAtOrBelow(entry, item) ? QString() : entry; });
}

QVariantMap afterCopy(QVariantMap rules, const QString &from, const QString &to)
{
    const QVariantList entries = entriesOf(rules, from, to);
    return withEntries(std::move(rules), to, entries);
}

QVariantList entriesOf(const QVariantMap &rules, const QString &item, const QString &newItem)
{
    QVariantList entries;
    for (const QVariant &entry : rules.value(QLatin1String(items)).toList()) {
        const QString own = pathOf(entry.toMap());
        if (isAtOrBelow(own, item))
            entries.append(withPath(entry.toMap(), newItem + own.mid(item.size())));
    }
    return entries;
}

QVariantMap withEntries(QVariantMap rules, const QString &item, const QVariantList &entries)
{
    if (entries.isEmpty() && !rules.contains(QLatin1String(items)))
        return rules;
    rules = afterRemoval(std::move(rules), item);
    rules.insert(QLatin1String(items), rules.value(QLatin1String(items)).toList() + entries);
    return rules;
}

QVariantMap merged(QVariantMap current, const QVariantMap &from, const QVariantMap &to)
{
    const QVariantList entries = mergedItems(current, from, to);
    for (const QString &key : (from.keys() + to.keys())) {
        if (from.value(key) == to.value(key))
            continue;
        if (to.contains(key))
            current.insert(key, to.value(key));
        else
            current.remove(key);
    }
    current.remove(QLatin1String(items));
    if (!entries.isEmpty())
        current.insert(QLatin1String(items), entries);
    return current;
}

} // namespace rulefile

#include "templates/StudioLibrary.h"

#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/Tree.h"
#include "platform/files/TreeCopy.h"
#include "platform/files/WholeFile.h"
#include "support/InPlace.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QMap>

using platform::Cause;
using platform::joined;
using platform::Outcome;
using platform::Result;

namespace studio {
namespace {

constexpr std::chrono::seconds lockPatience{1};
/// Drives of other systems keep dates to two seconds.
constexpr long long coarsestDate = 2'000'000'000; // nanoseconds

struct Item
{
    platform::FileKind kind = platform::FileKind::Missing;
    platform::MadeItem made;
};

/// All below a folder by its path, but for what folders weigh; Cause of the first that could not be read.
Result<QMap<QString, Item>> itemsBelow(const QString &folder)
{
    const std::atomic<bool> never = false;
    const platform::Tree tree = platform::readTree(
        folder, [](platform::TreeFolder &) {}, never);
    QMap<QString, Item> items;
    for (std::uint32_t number = 0; number < tree.folders.size(); ++number) {
        const platform::TreeFolder &own = tree.folders[number];
        const QString path = tree.pathOf(number);
        if (own.error != 0)
            return Outcome::fromNumber(own.error, joined(folder, path));
        for (const platform::TreeItem &item : own.items) {
            const QString name = platform::fromNative(own.nameOf(item));
            const QString below = path.isEmpty() ? name : joined(path, name);
            items.insert(below, {platform::kindOfType(item.type), platform::madeItemAt(joined(folder, below))});
        }
    }
    return items;
}

/// By names, kinds, sizes and dates, as a copy keeps them.
Result<bool> isSame(const QString &shared, const QString &copy)
{
    if (!platform::leadsToFolder(copy))
        return false;
    const auto wanted = itemsBelow(shared);
    if (!wanted)
        return wanted.outcome();
    const auto given = itemsBelow(copy);
    if (!given || given->keys() != wanted->keys())
        return false;
    for (auto item = wanted->begin(); item != wanted->end(); ++item) {
        const Item &other = given->value(item.key());
        const bool isFile = item->kind == platform::FileKind::File;
        const bool isOther = isFile && (item->made.size != other.made.size ||
                                        qAbs(item->made.modified - other.made.modified) > coarsestDate);
        if (item->kind != other.kind || isOther)
            return false;
    }
    return true;
}

QStringList bundlesIn(const QList<platform::FolderEntry> &entries)
{
    QStringList names;
    for (const platform::FolderEntry &entry : entries) {
        // Other systems leave files of that name beside them, with a dot before it.
        if (platform::extensionOf(entry.name).toLower() == u"tzt" && !entry.name.startsWith(u'.') &&
            entry.kind == platform::FileKind::Folder)
            names.append(entry.name);
    }
    return names;
}

Outcome copyBundle(const QString &from, const QString &to, const fileoperations::PutAway &putAway)
{
    const Outcome copied =
        fileoperations::makeInPlace({to, {}, fileoperations::Replaces::WhatStandsThere, putAway},
                                    [&](const QString &path) { return platform::copyItem(from, path); });
    if (!copied.ok())
        VTLog::appendLog("Unable to copy %@: %@", from, copied.description());
    return copied;
}

/// The templates of one folder in the other: those that differ are copied.
Outcome copyBundles(const QString &from, const QString &to, const QStringList &bundles,
                    const fileoperations::PutAway &putAway, bool &hasChanged)
{
    Outcome first = platform::makeFolders(to);
    for (const QString &bundle : bundles) {
        if (!first.ok())
            break;
        const auto same = isSame(joined(from, bundle), joined(to, bundle));
        if (same && *same)
            continue;
        first = same ? copyBundle(joined(from, bundle), joined(to, bundle), putAway) : same.outcome();
        hasChanged = hasChanged || first.ok();
    }
    return first;
}

Outcome followTemplates(const QString &shared, bool &hasChanged)
{
    const auto entries = platform::listFolder(shared);
    if (entries.outcome().is(Cause::Missing)) { // the studio shares settings alone
        if (!platform::leadsToFolder(copiedTemplates()))
            return {};
        hasChanged = true;
        return fileoperations::putInTrash(copiedTemplates(), copiedTemplates());
    }
    if (!entries)
        return entries.outcome();
    const QStringList bundles = bundlesIn(*entries);
    const Outcome copied = copyBundles(shared, copiedTemplates(), bundles, fileoperations::putInTrash, hasChanged);
    if (!copied.ok())
        return copied;
    for (const QString &bundle : bundlesIn(platform::listFolder(copiedTemplates()).valueOr({}))) {
        if (bundles.contains(bundle))
            continue;
        hasChanged = true;
        // Somebody may have worked in the copy all the same.
        const QString copy = joined(copiedTemplates(), bundle);
        if (const Outcome gone = fileoperations::putInTrash(copy, copy); !gone.ok())
            return gone;
    }
    return {};
}

/// Only what may be shared.
QVariantMap onlyShared(const QVariantMap &given)
{
    QVariantMap kept;
    QVariantList locked;
    for (const QString &key : sharedKeys()) {
        if (!given.contains(key))
            continue;
        kept.insert(key, given[key]);
        if (given.value(QLatin1String(platform::UserDefaults::lockedKeys)).toList().contains(key))
            locked.append(key);
    }
    kept.insert(QLatin1String(platform::UserDefaults::lockedKeys), locked);
    return kept;
}

Outcome leave(bool &hasChanged)
{
    if (!isInForce())
        return {};
    hasChanged = true;
    // The file first: without it the rest does not count.
    const Outcome gone = platform::removeTree(copiedFile());
    return gone.ok() ? fileoperations::putInTrash(copyFolder(), copyFolder()) : gone;
}

Outcome followFolder(const QString &folder, bool &hasChanged)
{
    const auto shared = platform::readPropertyListFile(joined(folder, setupFile));
    if (!shared)
        return shared.outcome();
    if (shared->typeId() != QMetaType::QVariantMap)
        return Outcome::failure(Cause::Damaged, joined(folder, setupFile));
    if (const Outcome made = platform::makeFolders(copyFolder()); !made.ok())
        return made;
    const auto lock = platform::FileLock::acquire(joined(copyFolder(), QStringLiteral(".lock")), lockPatience);
    if (lock.outcome().is(Cause::Busy))
        return lock.outcome();
    const Outcome templates = followTemplates(joined(folder, templatesFolder), hasChanged);
    if (!templates.ok())
        return templates;
    const QVariantMap wanted = onlyShared(shared->toMap());
    if (isInForce() && platform::readPropertyListFile(copiedFile()).valueOr({}).toMap() == wanted)
        return {};
    hasChanged = true;
    return platform::writePropertyListFile(copiedFile(), wanted);
}

} // namespace

Followed follow()
{
    Followed followed;
    const QString folder = settings::sharedSetup.text();
    followed.outcome = folder.isEmpty() ? leave(followed.hasChanged) : followFolder(folder, followed.hasChanged);
    if (!followed.outcome.ok())
        VTLog::appendLog("The studio's set-up cannot be followed: %@", followed.outcome.description());
    else if (followed.hasChanged)
        VTLog::appendLog("The studio's set-up was taken from %@", folder);
    return followed;
}

QDateTime lastChange()
{
    const platform::MadeItem file = platform::madeItemAt(copiedFile());
    return file.inode == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(file.modified / 1'000'000);
}

Outcome exportSetup(const QString &folder, const QVariantMap &settings, const QStringList &locked)
{
    const QString library = VTDataController::templateLocation();
    const auto entries = platform::listFolder(library);
    if (!entries)
        return entries.outcome();
    bool hasChanged = false;
    const Outcome copied = copyBundles(library, joined(folder, templatesFolder), bundlesIn(*entries),
                                       fileoperations::putInTrash, hasChanged);
    if (!copied.ok())
        return copied;
    QVariantMap setup = settings;
    setup.insert(QLatin1String(platform::UserDefaults::lockedKeys), locked);
    return platform::writePropertyListFile(joined(folder, setupFile), onlyShared(setup));
}

} // namespace studio

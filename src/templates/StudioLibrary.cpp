#include "templates/StudioLibrary.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/StagingFolder.h"
#include "platform/files/Tree.h"
#include "platform/files/TreeCopy.h"
#include "platform/files/WholeFile.h"
#include "platform/plain/CopyMonitor.h"
#include "support/InPlace.h"
#include "support/LongWork.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QMap>

using platform::Cause;
using platform::joined;
using platform::Outcome;
using platform::Result;

namespace studio {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(StudioLibrary)
};

constexpr std::chrono::seconds lockPatience{1};
constexpr std::chrono::milliseconds turn{100};
constexpr std::chrono::milliseconds longestSilence{60'000}; // a large template is written out to the disk
/// Drives of other systems keep dates to two seconds.
constexpr long long coarsestDate = 2'000'000'000; // nanoseconds

struct Item
{
    platform::FileKind kind = platform::FileKind::Missing;
    platform::MadeItem made;
};

/// All below a folder by its path, but for what folders weigh; Cause of the first that could not be read.
Result<QMap<QString, Item>> itemsBelow(const QString &folder, platform::CopyMonitor &monitor)
{
    const platform::Tree tree = platform::readTree(
        folder, [&](platform::TreeFolder &) { ++monitor.items; }, monitor.cancelled);
    QMap<QString, Item> items;
    for (std::uint32_t number = 0; number < tree.folders.size(); ++number) {
        const platform::TreeFolder &own = tree.folders[number];
        const QString path = tree.pathOf(number);
        if (own.error != 0)
            return Outcome::fromNumber(own.error, joined(folder, path));
        for (const platform::TreeItem &item : own.items) {
            if (monitor.cancelled)
                break;
            ++monitor.items;
            const QString name = platform::fromNative(own.nameOf(item));
            const QString below = path.isEmpty() ? name : joined(path, name);
            items.insert(below, {platform::kindOfType(item.type), platform::madeItemAt(joined(folder, below))});
        }
    }
    return monitor.cancelled ? Result<QMap<QString, Item>>(Outcome::failure(Cause::Cancelled, folder)) : items;
}

bool isSameFile(const QString &shared, const Item &wanted, const QString &copy, const Item &given)
{
    return wanted.made.size == given.made.size && qAbs(wanted.made.modified - given.made.modified) <= coarsestDate &&
           platform::hasExecuteBit(shared) == platform::hasExecuteBit(copy);
}

/// By names, kinds, sizes, dates, targets of links and what may be executed, as a copy keeps them.
Result<bool> isSame(const QString &shared, const QString &copy, platform::CopyMonitor &monitor)
{
    if (!platform::leadsToFolder(copy))
        return false;
    const auto wanted = itemsBelow(shared, monitor);
    if (!wanted)
        return wanted.outcome();
    const auto given = itemsBelow(copy, monitor);
    if (!given || given->keys() != wanted->keys())
        return false;
    for (auto item = wanted->begin(); item != wanted->end() && !monitor.cancelled; ++item) {
        ++monitor.items;
        const Item &other = given->value(item.key());
        const QString from = joined(shared, item.key());
        const QString to = joined(copy, item.key());
        if (item->kind != other.kind ||
            (item->kind == platform::FileKind::File && !isSameFile(from, *item, to, other)) ||
            (item->kind == platform::FileKind::Link && platform::linkTarget(from) != platform::linkTarget(to)))
            return false;
    }
    return monitor.cancelled ? Result<bool>(Outcome::failure(Cause::Cancelled, shared)) : true;
}

/// A link to a template is one: a studio may keep them elsewhere. What it leads to may be out of reach just now.
QStringList bundlesIn(const QList<platform::FolderEntry> &entries)
{
    QStringList names;
    for (const platform::FolderEntry &entry : entries) {
        // Other systems leave files of that name beside them, with a dot before it.
        if (platform::extensionOf(entry.name).toLower() == u"tzt" && !entry.name.startsWith(u'.') &&
            (entry.kind == platform::FileKind::Folder || entry.kind == platform::FileKind::Link))
            names.append(entry.name);
    }
    return names;
}

/// Where the work of copying bundles from one folder into another stands.
struct BundleCopy
{
    QString from;
    QString to;
    QString standing; ///< what differs from this is copied
    platform::CopyMonitor &monitor;
    QStringList copied;
    Outcome first; ///< failure; the others are copied all the same

    void copy(const QString &bundle, const fileoperations::PutAway &putAway)
    {
        const QString shared = platform::realPath(joined(from, bundle));
        if (!platform::leadsToFolder(shared))
            return fail(Outcome::failure(Cause::Missing, joined(from, bundle)));
        const auto same = isSame(shared, joined(standing, bundle), monitor);
        if (!same)
            return fail(same.outcome());
        if (*same)
            return;
        const auto half = standing == to ? Result<bool>(false) : isSame(shared, joined(to, bundle), monitor);
        const Outcome done =
            half.valueOr(false)
                ? Outcome()
                : fileoperations::makeInPlace(
                      {joined(to, bundle), {}, fileoperations::Replaces::WhatStandsThere, putAway},
                      [&](const QString &path) { return platform::copyItem(shared, path, nullptr, &monitor); });
        if (!done.ok())
            return fail(done);
        copied.append(bundle);
    }
    void fail(const Outcome &outcome)
    {
        VTLog::appendLog("Unable to copy %@", outcome.description());
        if (first.ok())
            first = outcome;
    }
};

Outcome removed(const QString &path, const QString &)
{
    return platform::removeOwnTree(path);
}

/// As the server has them, some may not be changed even by their owner.
Outcome putInTrashOpened(const QString &path, const QString &knownAs)
{
    platform::makeMovable(path);
    return fileoperations::putInTrash(path, knownAs);
}

/// What of the templates is to become of the copy.
struct Exchange
{
    bool isListed = false; ///< what the studio has is known
    bool isAll = false;    ///< it shares settings alone: its templates go
    QStringList bundles{}; ///< to come from the folder for what is on its way
    QStringList gone{};
    Outcome first{}; ///< failure
};

QString onItsWay()
{
    return joined(copyFolder(), QStringLiteral(".incoming"));
}

/// Copies what differs to where it is on its way; what an ended program has left there goes on from where it was.
Exchange prepareTemplates(const QString &shared, platform::CopyMonitor &monitor)
{
    const auto entries = platform::listFolder(shared);
    // Behind a link that leads nowhere, and on a server that has just gone, it is missing in another sense.
    if (entries.outcome().is(Cause::Missing) && platform::isMissing(shared) &&
        platform::targetExists(joined(platform::parentPath(shared), setupFile)))
        return {true, platform::leadsToFolder(copiedTemplates())};
    if (!entries)
        return {.first = entries.outcome()};
    const Outcome made = platform::makeFolders(onItsWay());
    if (!made.ok())
        return {.first = made};
    for (const QString &item : platform::StagingFolder::abandonedIn(onItsWay()))
        static_cast<void>(platform::removeOwnTree(platform::parentPath(item)));
    BundleCopy copy{shared, onItsWay(), copiedTemplates(), monitor, {}, {}};
    const QStringList wanted = bundlesIn(*entries);
    for (const QString &bundle : wanted)
        copy.copy(bundle, removed);
    Exchange exchange{.isListed = true, .bundles = copy.copied, .first = copy.first};
    for (const QString &bundle : bundlesIn(platform::listFolder(copiedTemplates()).valueOr({}))) {
        if (!wanted.contains(bundle))
            exchange.gone.append(bundle);
    }
    return exchange;
}

/// Somebody may have worked in the copy all the same: nothing of it is removed. One that cannot be exchanged keeps none
/// of the others.
void exchangeTemplates(Exchange &exchange, bool &hasChanged)
{
    const auto note = [&](const Outcome &done) {
        hasChanged = hasChanged || done.ok();
        if (!done.ok() && exchange.first.ok())
            exchange.first = done;
    };
    if (exchange.isAll)
        return note(fileoperations::putInTrash(copiedTemplates(), copiedTemplates()));
    if (const Outcome made = platform::makeFolders(copiedTemplates()); !made.ok())
        return note(made);
    for (const QString &bundle : std::as_const(exchange.bundles))
        note(fileoperations::makeInPlace(
            {joined(copiedTemplates(), bundle), {}, fileoperations::Replaces::WhatStandsThere, putInTrashOpened},
            [&](const QString &path) { return platform::moveMade(joined(onItsWay(), bundle), path); }));
    for (const QString &bundle : std::as_const(exchange.gone))
        note(putInTrashOpened(joined(copiedTemplates(), bundle), joined(copiedTemplates(), bundle)));
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

unsigned long long amountOf(const platform::CopyMonitor &monitor)
{
    return monitor.items + monitor.bytes;
}

/// A server that has answered may take its time, as long as something comes. Main thread, as what says that it is over.
void waitWhileItComes(const platform::CopyMonitor &monitor, const bool &isOver)
{
    const platform::InputClosed closed;
    QElapsedTimer silence;
    silence.start();
    for (unsigned long long seen = 0; !isOver && !silence.hasExpired(longestSilence.count());) {
        platform::MainThread::turnLoop(turn);
        const unsigned long long now = amountOf(monitor);
        if (std::exchange(seen, now) != now)
            silence.start();
    }
}

Outcome leave(bool &hasChanged)
{
    if (!isInForce())
        return {};
    const auto alone = changeCopy();
    if (!alone)
        return alone.outcome();
    if (!settings::sharedSetup.text().isEmpty()) // set again meanwhile
        return Outcome::failure(Cause::Busy, copyFolder());
    hasChanged = true;
    // The file first: without it the rest does not count.
    const Outcome gone = platform::removeTree(copiedFile());
    return gone.ok() ? fileoperations::putInTrash(copyFolder(), copyFolder()) : gone;
}

Outcome followFolder(const QString &folder, platform::CopyMonitor &monitor, Followed &followed)
{
    const auto shared = platform::readPropertyListFile(joined(folder, setupFile));
    if (!shared)
        return shared.outcome();
    if (shared->typeId() != QMetaType::QVariantMap)
        return Outcome::failure(Cause::Damaged, joined(folder, setupFile));
    if (const Outcome made = platform::makeFolders(copyFolder()); !made.ok())
        return made;
    const auto lock = platform::FileLock::acquire(
        joined(platform::parentPath(copyFolder()), QStringLiteral(".Studio follows.lock")), lockPatience);
    if (lock.outcome().is(Cause::Busy))
        return lock.outcome();
    Exchange exchange = prepareTemplates(joined(folder, templatesFolder), monitor);
    if (monitor.cancelled)
        return Outcome::failure(Cause::Cancelled, folder);
    if (!exchange.isListed && !platform::leadsToFolder(copiedTemplates()))
        return exchange.first; // settings without their templates would be half of a set-up
    const QVariantMap wanted = onlyShared(shared->toMap());
    const bool isOther = !isInForce() || platform::readPropertyListFile(copiedFile()).valueOr({}).toMap() != wanted;
    const bool isMoving = exchange.isAll || !exchange.bundles.isEmpty() || !exchange.gone.isEmpty();
    if (isMoving || isOther) {
        const auto alone = changeCopy();
        if (!alone)
            return alone.outcome();
        if (settings::sharedSetup.text() != folder) { // another one counts by now
            static_cast<void>(platform::removeOwnTree(onItsWay()));
            return Outcome::failure(Cause::Busy, folder);
        }
        if (isMoving)
            exchangeTemplates(exchange, followed.hasChanged);
        // Also when it is the same: its date says of when the copy is.
        if (const Outcome written = platform::writePropertyListFile(copiedFile(), wanted); !written.ok())
            return written;
        followed.hasChanged = true;
    }
    if (const Outcome gone = platform::removeOwnTree(onItsWay()); !gone.ok())
        VTLog::appendLog("Unable to remove %@", gone.description());
    followed.isInPart = !exchange.first.ok();
    return exchange.first;
}

} // namespace

Followed follow(platform::CopyMonitor &monitor)
{
    Followed followed;
    const QString folder = settings::sharedSetup.text();
    followed.outcome = folder.isEmpty() ? leave(followed.hasChanged) : followFolder(folder, monitor, followed);
    if (!followed.outcome.ok())
        VTLog::appendLog("The studio's set-up cannot be followed: %@", followed.outcome.description());
    if (followed.hasChanged)
        VTLog::appendLog(folder.isEmpty() ? "The studio's set-up was left%@" : "The studio's set-up was taken from %@",
                         folder);
    return followed;
}

Followed follow()
{
    platform::CopyMonitor monitor;
    return follow(monitor);
}

Followed followInTime(std::chrono::milliseconds patience)
{
    struct Asked
    {
        Followed followed;
        platform::CopyMonitor monitor;
        bool isOver = false;
    };
    const auto asked = std::make_shared<Asked>();
    const LongWork work(Text::tr("Taking over the studio’s set-up"), asked->monitor);
    const auto ask = [asked] {
        asked->followed = follow(asked->monitor);
    };
    const auto over = [asked] {
        asked->isOver = true;
    };
    asked->isOver = platform::performWithin(patience, ask, over);
    if (!asked->isOver && amountOf(asked->monitor) > 0)
        waitWhileItComes(asked->monitor, asked->isOver);
    if (asked->isOver)
        return asked->followed;
    const bool isCancelled = asked->monitor.cancelled.exchange(true);
    return {Outcome::failure(isCancelled ? Cause::Cancelled : Cause::Unreachable, settings::sharedSetup.text())};
}

QString sentenceOf(const Followed &followed)
{
    const QString copy = QLocale().toString(lastChange(), QLocale::ShortFormat);
    if (followed.isInPart)
        return Text::tr("Part of the studio’s set-up could not be taken over.");
    switch (followed.outcome.cause()) {
    case Cause::Missing:
    case Cause::Unreachable:
    case Cause::TimedOut:
        return isInForce() ? Text::tr("The studio’s set-up cannot be reached. The copy of %1 is used.").arg(copy)
                           : Text::tr("The studio’s set-up cannot be reached. Your own is used.");
    case Cause::Busy:
        return Text::tr("Another program takes over or uses the studio’s set-up just now; what is new waits.");
    default:
        return isInForce() ? Text::tr("The studio’s set-up could not be taken over. The copy of %1 is used.").arg(copy)
                           : Text::tr("The studio’s set-up could not be taken over. Your own is used.");
    }
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
    const QString templates = joined(folder, templatesFolder);
    if (const Outcome made = platform::makeFolders(templates); !made.ok())
        return made;
    platform::CopyMonitor monitor;
    const LongWork work(Text::tr("Writing the studio’s set-up"), monitor);
    BundleCopy copy{library, templates, templates, work.monitor(), {}, {}};
    for (const QString &bundle : bundlesIn(*entries))
        copy.copy(bundle, fileoperations::putInTrash);
    if (!copy.first.ok())
        return copy.first;
    QVariantMap setup = settings;
    setup.insert(QLatin1String(platform::UserDefaults::lockedKeys), locked);
    return platform::writePropertyListFile(joined(folder, setupFile), onlyShared(setup));
}

} // namespace studio

#include "templates/TemplateChanges.h"

#include "platform/base/MainThread.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Trash.h"
#include "support/FileOperations.h"
#include "support/Settings.h"
#include "support/VTLog.h"

using platform::Cause;
using platform::Outcome;

namespace {

constexpr qsizetype remembered = 100;
constexpr std::chrono::seconds patience{20};

Outcome move(const QString &from, const QString &to)
{
    // A name that differs in its case only may be the same item under another name: the move finds that out.
    if (!platform::isMissing(to) && from.compare(to, Qt::CaseInsensitive) != 0)
        return Outcome::failure(Cause::Exists, to);
    return platform::isMissing(from) ? Outcome::failure(Cause::Missing, from)
                                     : fileoperations::moveFile(from, to, patience);
}

Outcome takeAway(DiskStep &step)
{
    if (platform::isMissing(step.path))
        return Outcome::failure(Cause::Missing, step.path);
    step.other.clear();
    return fileoperations::trashFile(step.path, ShouldAuth::Yes, &step.other);
}

Outcome bringBack(const DiskStep &step)
{
    return platform::resultInBackground([&] { return platform::putBackFromTrash(step.other, step.path); });
}

Outcome label(const QString &path, int index)
{
    VTFileManager::setFinderColorIndex(index, path);
    if (platform::isMissing(path))
        return Outcome::failure(Cause::Missing, path);
    return VTFileManager::finderColorIndexForPath(path) == index ? Outcome()
                                                                 : Outcome::failure(Cause::NotSupported, path);
}

/// Only what the step has changed: what another program has said of other items since stays.
Outcome rule(const QString &bundle, const QVariantMap &from, const QVariantMap &to)
{
    return rulefile::change(bundle, [&](const QVariantMap &current) {
        return platform::Result<QVariantMap>(rulefile::merged(current, from, to));
    });
}

Outcome carryOut(DiskStep &step, bool isUndo)
{
    switch (step.kind) {
    case DiskStep::Kind::Moved:
        return isUndo ? move(step.other, step.path) : move(step.path, step.other);
    case DiskStep::Kind::Made:
        return isUndo ? takeAway(step) : bringBack(step);
    case DiskStep::Kind::PutAway:
        return isUndo ? bringBack(step) : takeAway(step);
    case DiskStep::Kind::Labelled:
        return label(step.path, isUndo ? step.before : step.after);
    case DiskStep::Kind::Renamed:
        return isUndo ? changes::renameOwnValues(step.other, step.path)
                      : changes::renameOwnValues(step.path, step.other);
    case DiskStep::Kind::Ruled:
        return isUndo ? rule(step.path, step.rulesAfter, step.rulesBefore)
                      : rule(step.path, step.rulesBefore, step.rulesAfter);
    case DiskStep::Kind::Defaulted:
        return settings::defaultTemplate.store(isUndo ? step.path : step.other);
    }
    return {};
}

} // namespace

Outcome changes::putInTrash(const QString &path, DiskSteps &steps)
{
    return puttingInTrash(steps)(path, path);
}

Outcome changes::renameOwnValues(const QString &oldName, const QString &newName)
{
    return settings::ownParameterValues.change([&](const QVariant &stored) -> platform::Result<QVariant> {
        QVariantMap all = stored.toMap();
        if (!all.contains(oldName))
            return stored;
        all.insert(newName, all.take(oldName));
        return QVariant(all);
    });
}

Outcome changes::changeRules(const QString &bundle, const rulefile::Change &change, DiskSteps &steps)
{
    DiskStep step{DiskStep::Kind::Ruled, bundle};
    const Outcome changed = rulefile::change(bundle, [&](const QVariantMap &current) {
        step.rulesBefore = current;
        platform::Result<QVariantMap> wanted = change(current);
        step.rulesAfter = wanted.valueOr(current);
        return wanted;
    });
    if (changed.ok() && step.rulesAfter != step.rulesBefore)
        steps.append(step);
    return changed;
}

namespace {

/// An item of a template by its path: "…/Film.tzt/Files/A/x" is A/x of Film.tzt. Null for anything else.
struct RuledPlace
{
    QString bundle;
    QString item;
};
RuledPlace placeOf(const QString &path)
{
    static const QLatin1String files(".tzt/Files/");
    const qsizetype end = path.indexOf(files);
    return end < 0 ? RuledPlace() : RuledPlace{path.first(end + 4), path.mid(end + files.size())};
}

/// Rules that come from one template into another.
struct Incoming
{
    RuledPlace place;
    QVariantList entries;
};

/// Of one template: what its own steps make of its rules.
QVariantMap afterSteps(QVariantMap rules, const QString &bundle, const DiskSteps &steps, const changes::Copies &copies,
                       const QList<Incoming> &incoming)
{
    for (const DiskStep &step : steps) {
        const RuledPlace from = placeOf(step.path);
        const RuledPlace to = step.kind == DiskStep::Kind::Moved ? placeOf(step.other) : RuledPlace();
        if (from.bundle != bundle)
            continue;
        if (step.kind == DiskStep::Kind::Moved && to.bundle == bundle)
            rules = rulefile::afterMove(rules, from.item, to.item);
        else if (step.kind == DiskStep::Kind::Moved || step.kind == DiskStep::Kind::PutAway)
            rules = rulefile::afterRemoval(rules, from.item);
    }
    for (const auto &[from, to] : copies) {
        if (placeOf(from).bundle == bundle && placeOf(to).bundle == bundle)
            rules = rulefile::afterCopy(rules, placeOf(from).item, placeOf(to).item);
    }
    for (const Incoming &one : incoming) {
        if (one.place.bundle == bundle)
            rules = rulefile::withEntries(rules, one.place.item, one.entries);
    }
    return rules;
}

} // namespace

Outcome changes::takeRulesAlong(DiskSteps &steps, const Copies &copies)
{
    Copies across = copies;
    for (const DiskStep &step : std::as_const(steps)) {
        if (step.kind == DiskStep::Kind::Moved)
            across.append({step.path, step.other});
    }
    QStringList bundles;
    QList<Incoming> incoming;
    for (const auto &[from, to] : std::as_const(across)) {
        const RuledPlace source = placeOf(from);
        const RuledPlace target = placeOf(to);
        bundles += {source.bundle, target.bundle};
        if (source.bundle == target.bundle || source.bundle.isNull())
            continue;
        const auto rules = rulefile::read(source.bundle);
        if (!rules)
            return rules.outcome();
        incoming.append({target, rulefile::entriesOf(*rules, source.item, target.item)});
    }
    for (const DiskStep &step : std::as_const(steps))
        bundles.append(placeOf(step.path).bundle);
    bundles.removeDuplicates();
    bundles.removeAll(QString());
    Outcome outcome;
    const DiskSteps done = steps;
    for (const QString &bundle : std::as_const(bundles)) {
        const Outcome changed = changeRules(
            bundle,
            [&](const QVariantMap &rules) {
                return platform::Result<QVariantMap>(afterSteps(rules, bundle, done, copies, incoming));
            },
            steps);
        outcome = outcome.ok() ? changed : outcome;
    }
    return outcome;
}

fileoperations::PutAway changes::puttingInTrash(DiskSteps &steps)
{
    return [&steps](const QString &path, const QString &knownAs) {
        QString inTrash;
        const bool wasThere = !platform::isMissing(path);
        const Outcome trashed =
            fileoperations::trashFile(path, ShouldAuth::Yes, &inTrash, knownAs == path ? QString() : knownAs);
        // Where there was no Trash and it was deleted as was wanted, nothing can bring it back.
        if (trashed.ok() && wasThere && !inTrash.isNull())
            steps.append({DiskStep::Kind::PutAway, knownAs, inTrash});
        return trashed;
    };
}

void ChangeHistory::add(const DiskChange &change)
{
    if (change.steps.isEmpty())
        return;
    m_done.append(change);
    if (m_done.size() > remembered)
        m_done.removeFirst();
    m_undone.clear();
    Q_EMIT changed();
}

Outcome ChangeHistory::undo()
{
    const Outcome undone = carryOut(m_done, m_undone, true);
    Q_EMIT changed();
    return undone;
}

Outcome ChangeHistory::redo()
{
    const Outcome redone = carryOut(m_undone, m_done, false);
    Q_EMIT changed();
    return redone;
}

/// What cannot be taken back either is logged and left.
void ChangeHistory::takeBack(DiskChange &change, bool isUndo)
{
    while (!change.steps.isEmpty()) {
        DiskStep step = isUndo ? change.steps.takeFirst() : change.steps.takeLast();
        if (const Outcome outcome = ::carryOut(step, !isUndo); !outcome.ok())
            VTLog::appendLog("Unable to take back: %@", outcome.description());
    }
}

/// What was carried out and what was not are changes of their own from then on: neither is lost.
Outcome ChangeHistory::carryOut(QList<DiskChange> &from, QList<DiskChange> &to, bool isUndo)
{
    if (from.isEmpty())
        return {};
    DiskChange change = from.takeLast();
    VTLog::appendLog(isUndo ? "Undoing %@" : "Doing %@ again", change.name);
    DiskChange carriedOut{change.name, {}, change.parts};
    Outcome outcome;
    while (!change.steps.isEmpty() && outcome.ok()) {
        DiskStep step = isUndo ? change.steps.takeLast() : change.steps.takeFirst();
        outcome = ::carryOut(step, isUndo);
        DiskSteps &side = outcome.ok() ? carriedOut.steps : change.steps;
        (outcome.ok() == isUndo) ? side.prepend(step) : side.append(step);
    }
    if (!outcome.ok()) {
        VTLog::appendLog("Unable to go on: %@", outcome.description());
        // What is gone, or whose place is taken, stays so: the changes before it can still be taken back.
        if (!outcome.is(Cause::Missing) && !outcome.is(Cause::Exists))
            from.append(change);
        else if (change.parts == DiskChange::Parts::BelongTogether)
            takeBack(carriedOut, isUndo);
    }
    if (!carriedOut.steps.isEmpty())
        to.append(carriedOut);
    return outcome;
}

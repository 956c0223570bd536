#pragma once

#include "platform/base/Outcome.h"
#include "support/InPlace.h"
#include "templates/RuleFile.h"

#include <QList>
#include <QObject>
#include <QString>

/**
 * What was done to the library and to the trees in it, so that it can be taken back and done again. A change is a list
 * of steps on disk, each with its reverse; what a step takes away lies in the Trash until it is wanted again.
 */
struct DiskStep
{
    enum class Kind {
        Moved,     ///< from path to other
        Made,      ///< at path; taken back it lies at other, in the Trash
        PutAway,   ///< what stood at path lies at other, in the Trash
        Labelled,  ///< path; its label index was before, and is after
        Defaulted, ///< the default template's name was path, and is other
        Renamed,   ///< what the settings keep for the template called path is kept for the one called other
        Ruled,     ///< of the bundle at path: the rules were rulesBefore, and are rulesAfter
    };
    Kind kind = Kind::Moved;
    QString path;
    QString other = {};
    int before = 0;
    int after = 0;
    QVariantMap rulesBefore = {};
    QVariantMap rulesAfter = {};
};
using DiskSteps = QList<DiskStep>;

struct DiskChange
{
    QString name; ///< as the menu says it behind "Undo": "Rename"
    DiskSteps steps;
    /// Those that belong together are undone whole or not at all.
    enum class Parts { StandAlone, BelongTogether };
    Parts parts = Parts::StandAlone;
};

namespace changes {

/** To the Trash, as trashFile() does it, and noted. */
platform::Outcome putInTrash(const QString &path, DiskSteps &steps);
/** For makeInPlace(): what has to make room goes to the Trash and is noted under the name that it was known by. */
[[nodiscard]] fileoperations::PutAway puttingInTrash(DiskSteps &steps);

/** What the settings keep for a template, the values of its own parameters, under its new name. */
platform::Outcome renameOwnValues(const QString &oldName, const QString &newName);

/** Changes the rules of a bundle, and notes it. */
platform::Outcome changeRules(const QString &bundle, const rulefile::Change &change, DiskSteps &steps);
/** Where an item was copied from, and to. */
using Copies = QList<std::pair<QString, QString>>;
/** The rules of the template follow what the steps, and the copying, have done to its items; that is noted, too. */
platform::Outcome takeRulesAlong(DiskSteps &steps, const Copies &copies = {});

} // namespace changes

/**
 * The changes of this window, the last ones first. Main thread only. What another program changes meanwhile is never
 * written over: a step whose place is taken, or whose item is gone, fails with that cause, and the rest of its change
 * is given up; after any other failure the change is left with what it still has to do.
 */
class ChangeHistory : public QObject
{
    Q_OBJECT

public:
    /** Whatever could have been done again cannot any more. One without steps is none. */
    void add(const DiskChange &change);
    [[nodiscard]] bool canUndo() const { return !m_done.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !m_undone.isEmpty(); }
    /** Null when there is nothing. */
    [[nodiscard]] QString undoName() const { return canUndo() ? m_done.constLast().name : QString(); }
    [[nodiscard]] QString redoName() const { return canRedo() ? m_undone.constLast().name : QString(); }

    /** Blocks while the event loop turns; with nothing to do it is good. */
    platform::Outcome undo();
    platform::Outcome redo();

Q_SIGNALS:
    void changed();

private:
    static void takeBack(DiskChange &change, bool isUndo);
    static platform::Outcome carryOut(QList<DiskChange> &from, QList<DiskChange> &to, bool isUndo);

    QList<DiskChange> m_done;
    QList<DiskChange> m_undone;
};

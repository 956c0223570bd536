#pragma once

#include "platform/base/Outcome.h"

#include <QString>

/**
 * Where a project is built: a hidden folder beside its place, which takes that place in one step when all is in it, so
 * that no watcher and no colleague on a share ever sees half a project. Where no such folder can be made, the place
 * itself. Any thread.
 */
class Workplace
{
public:
    /** The destination is the project's own, still empty folder. Nothing is made yet: what will be is noted first, so
        that it is found whenever the program is ended. */
    explicit Workplace(const QString &destination, const QString &hidden = {});
    /** A path for the hidden folder, which nothing has. */
    [[nodiscard]] static QString hiddenFolderFor(const QString &destination);
    /** Where the hidden folder cannot be made, the destination is the workplace from now on. */
    void make();

    [[nodiscard]] const QString &folder() const { return m_folder; }
    [[nodiscard]] bool isHidden() const { return m_folder != m_destination; }
    /** The path under which an item of the workplace is known to people and the log: the one that it will have. */
    [[nodiscard]] QString shown(const QString &path) const;
    [[nodiscard]] platform::Outcome shown(const platform::Outcome &outcome) const;

    /**
     * What was built stands at the destination. Where that is no empty folder any more, item by item, and nothing that
     * stands there is replaced; on failure the rest stays in the hidden folder.
     */
    platform::Outcome putInPlace();
    /** Nothing of it is left, neither the hidden folder nor the empty one; what others have put there stays. */
    platform::Outcome takeAway();

private:
    QString m_destination;
    QString m_folder;
};

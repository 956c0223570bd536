#pragma once

#include "platform/base/Outcome.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QString>
#include <QStringList>

namespace platform {

/**
 * A hidden folder beside the place that something is made for. It takes that place in one step when it is whole, so
 * that neither a failure nor a kill leaves half of it under its name. What is still in the folder when its owner lets
 * go is removed; what a kill leaves is found by abandonedIn(). Blocks; any thread.
 */
class StagingFolder
{
public:
    /** Inside an existing folder on the place's file system; mode 0700. */
    [[nodiscard]] static Result<StagingFolder> make(const QString &inFolder);
    StagingFolder(StagingFolder &&other) noexcept;
    StagingFolder &operator=(StagingFolder &&) = delete;
    ~StagingFolder();

    [[nodiscard]] const QString &path() const { return m_path; }
    /** What is in it stays, as if its owner had been killed. */
    void leaveContents() { m_isToStay = true; }

    /** What the super-user has made here for a user becomes the user's: all of it belongs to whoever owns the folder
       that this one lies in. Nobody else can reach it meanwhile. */
    void giveToOwnerOfPlace() const;
    /** The item leaves its place for this folder in one step, under its own name. */
    [[nodiscard]] Outcome takeIn(const QString &item) const;
    /** What was made under the name stands at the destination. Cause::Exists when that is taken. Across file systems it
     * is copied. */
    [[nodiscard]] Outcome moveOut(const QString &name, const QString &destination) const;
    /**
     * The two change places in one step: what stood at the destination lies here under the name then. On failure
     * nothing has changed; file systems without that step fail with Cause::NotSupported.
     */
    [[nodiscard]] Outcome exchange(const QString &name, const QString &destination) const;

    /** The items in staging folders within the folder that nobody holds any more. On file systems without locks none
     * are found. */
    [[nodiscard]] static QStringList abandonedIn(const QString &folder);

private:
    StagingFolder(QString path, UniqueDescriptor lock)
        : m_path(std::move(path))
        , m_lock(std::move(lock))
    {
    }
    QString m_path; ///< null when moved from
    bool m_isToStay = false;
    UniqueDescriptor m_lock; ///< of the folder itself, locked as long as it lives
};

/** moveItem() of what was made here: a folder that its owner may not change moves, too, and is closed again. */
Outcome moveMade(const QString &item, const QString &destination);
/** From now on its owner may change the folder, and so it can be moved by whatever moves it; nothing for other items.
 */
void makeMovable(const QString &folder);

} // namespace platform

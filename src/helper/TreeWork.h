#pragma once

#include "platform/plain/CopyMonitor.h"
#include "platform/plain/FileCopy.h"
#include "platform/plain/UniqueDescriptor.h"

#include <string>
#include <sys/stat.h>
#include <sys/types.h>

/**
 * What the helper does with files, by descriptor throughout: a folder is opened once, no link is ever followed, and no
 * path is looked up that somebody else could have changed meanwhile. Nothing here asks whether it may: Plan.h does.
 *
 * All of them return 0 or an errno, with the item that it is about in `where`. What they began and could not end they
 * take away again. The monitor's `cancelled` stops them.
 */
namespace helper {

/** An item: its folder, held open, and its name in there. */
struct Item
{
    platform::UniqueDescriptor folder;
    std::string name;
    std::string folderName; ///< how the folder is called outside; for messages
    [[nodiscard]] std::string shown() const { return folderName + (folderName.ends_with('/') ? "" : "/") + name; }
};

class TreeWork
{
public:
    TreeWork(uid_t caller, platform::CopyMonitor &monitor)
        : m_caller(caller)
        , m_monitor(monitor)
    {
    }

    /**
     * Made in a hidden folder of root's own and put in its place by one rename. A file that stands there is replaced, a
     * folder never (EEXIST). What is the caller's own belongs to the owner of the place afterwards, without
     * set-user-ID; what is another's keeps its owner and its mode, so that nobody gets to read what was closed to him.
     * Devices are refused.
     */
    [[nodiscard]] int copy(const Item &from, const Item &to);
    /** By a rename; to another file system by a copy that keeps all owners, after which the original is removed. */
    [[nodiscard]] int move(const Item &from, const Item &to);
    /** Missing is no failure. No other file system is entered (EBUSY). */
    [[nodiscard]] int remove(const Item &item);
    /** The item's name may have several steps: each that is missing is made, with the owner, the group and the mode of
        the one that it lies in. */
    [[nodiscard]] int makeFolders(const Item &item);
    /** The present as its dates. Missing is no failure. */
    [[nodiscard]] int touch(const Item &item);

    /** The item that the last failure is about. */
    [[nodiscard]] const std::string &where() const { return m_where; }
    /** The first item whose labels, dates or mode the destination could not take, and how many there are. */
    [[nodiscard]] const std::string &firstLoss() const { return m_firstLoss; }
    [[nodiscard]] std::size_t losses() const { return m_losses; }

private:
    enum class Owners { OfThePlace, Kept };

    [[nodiscard]] int copyTo(const Item &from, const Item &to, Owners owners);
    [[nodiscard]] int copyItem(int fromFolder, const std::string &from, int toFolder, const std::string &to,
                               const std::string &shown);
    [[nodiscard]] int copyFolder(int fromFolder, const std::string &from, int toFolder, const std::string &to,
                                 const std::string &shown);
    [[nodiscard]] int giveToPlace(int folder, const std::string &name, const struct stat &original) const;
    [[nodiscard]] static int makeOne(int folder, const std::string &name, platform::UniqueDescriptor &made);
    [[nodiscard]] int removeItem(int folder, const std::string &name, dev_t device, const std::string &shown);
    int fail(int error, const std::string &shown);
    [[nodiscard]] int noted(const platform::EntryResult &result, const std::string &shown);

    uid_t m_caller;
    platform::CopyMonitor &m_monitor;
    std::string m_where;
    std::string m_firstLoss;
    std::size_t m_losses = 0;
    Owners m_owners = Owners::OfThePlace;
    uid_t m_placeUser = 0;
    gid_t m_placeGroup = 0;
};

} // namespace helper

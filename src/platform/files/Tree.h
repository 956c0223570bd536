#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/FileSystem.h"
#include "platform/plain/MadeItem.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

/**
 * A whole tree as it was read, with the names that its items get in a copy: what a copy is planned on, carried out by
 * and remembered with. Small: some 40 bytes an item, so that a million of them are no matter.
 */
namespace platform {

struct TreeItem
{
    std::uint32_t name = 0;    ///< where it begins in its folder's names
    std::uint32_t newName = 0; ///< the same, unless a copy is to have another
    std::uint32_t folder = 0;  ///< which of the tree's folders it is; 0 for all others: the root is nobody's item
    unsigned char type = 0;    ///< DT_REG and so on (readdir(3)), never DT_UNKNOWN
    unsigned char remark = 0;  ///< the planner's own
};

struct TreeFolder
{
    std::uint32_t parent = 0;     ///< the number of the folder that it lies in
    std::uint32_t itemInOwn = 0;  ///< which of that folder's items it is
    int error = 0;                ///< errno of reading it; what was read of it is not to be used then
    std::string names;            ///< byte for byte, each with a null byte at its end
    std::vector<TreeItem> items;  ///< in listing order
    std::vector<MadeItem> made{}; ///< one for each item, as soon as a copy of the folder was begun

    void add(const char *name, unsigned char type);
    void rename(TreeItem &item, std::string_view newName);
    [[nodiscard]] const char *nameOf(const TreeItem &item) const { return names.data() + item.name; }
    [[nodiscard]] const char *newNameOf(const TreeItem &item) const { return names.data() + item.newName; }
    /** By name, in listing order. */
    void sort();
};

struct Tree
{
    std::deque<TreeFolder> folders; ///< the first is the root; the numbers of the others follow no order

    /** Below the root, names as they were read; nothing for the root itself. */
    [[nodiscard]] QString pathOf(std::uint32_t folder) const;
    /** The same with the names of the copy. */
    [[nodiscard]] QString newPathOf(std::uint32_t folder) const;
    /** All folders, each before those in it, in listing order. */
    void forEachFolder(const std::function<void(std::uint32_t)> &visit, std::uint32_t from = 0) const;
    [[nodiscard]] std::size_t itemCount() const;

private:
    using NameOf = const char *(TreeFolder::*)(const TreeItem &) const;
    [[nodiscard]] QString pathBy(NameOf nameOf, std::uint32_t folder) const;
};

/**
 * Reads the tree below a folder with two workers; links are items, never entered. A folder that cannot be read has its
 * error, the root too. Each folder is given to the function as soon as it is read and sorted, on the worker's thread.
 * Ends early when cancelled. Blocks; any thread.
 */
[[nodiscard]] Tree readTree(const QString &root, const std::function<void(TreeFolder &)> &wasRead,
                            const std::atomic<bool> &cancelled);

/** What stands at the path itself; nothing made where nothing stands. */
[[nodiscard]] MadeItem madeItemAt(const QString &path);

/** As listFolder() would call it. */
[[nodiscard]] FileKind kindOfType(unsigned char type);

} // namespace platform

#pragma once

#include "helper/TreeWork.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace helper {

/** A request that has been checked: what is to be done, and with which items. */
struct Plan
{
    enum class Verb { Copy, Move, MakeFolders, Remove, Touch };
    Verb verb = Verb::Touch;
    std::string tool;        ///< as it was asked for; for messages
    std::vector<Item> items; ///< one, or source and destination
};

/**
 * Checks a request and pins its paths. 0, or the errno it is refused with:
 * EACCES for a tool that is not on the list or is not called in the one way that is; EINVAL for a path that is relative
 * or ends in ".."; ENOTDIR for a path that goes through a link, ELOOP for a destination that is one; ENOENT where a
 * folder on the way is missing; EPERM for a system or standard folder, whichever way it was named, for a file in one of
 * the system's own folders, and for all below /etc, /usr and the like; EBUSY for the root of a mounted drive. The home
 * is that of the user on whose behalf it is: its standard folders are refused too.
 *
 * The list is closed: copy, move, create a folder, remove, date. A tool's path is no more than the word for what is to
 * be done: none is run.
 */
[[nodiscard]] int prepare(const std::string &tool, const std::vector<std::string> &arguments, const std::string &home,
                          Plan &plan);

/** The user's home folder by the user database; empty when there is none. */
[[nodiscard]] std::string homeOf(uid_t user);

} // namespace helper

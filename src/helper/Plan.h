#pragma once

#include "helper/Descriptor.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace helper {

/** A tool ready to be run: every path it is given starts at a folder that is already open and cannot be exchanged. */
struct Plan
{
    std::string tool;
    std::vector<std::string> arguments;
    /// The folders that the arguments start at; the tool has them open as firstFolder, firstFolder + 1 and so on.
    std::vector<Descriptor> folders;
    /// How they are called outside: what the tool says about its paths is told in these names.
    std::vector<std::string> folderNames;
    static constexpr int firstFolder = 10;
};

/**
 * Checks a request and pins its paths. 0, or the errno it is refused with:
 * EACCES for a tool that is not on the list or is not called in the one way that is; EINVAL for a path that is relative
 * or ends in ".."; ENOTDIR for a path that goes through a link, ELOOP for a destination that is one; ENOENT where a
 * folder on the way is missing; EPERM for a system or standard folder, whichever way it was named; EBUSY for the root
 * of a mounted drive; ENOENT for a tool that this system lacks. The home is that of the user on whose behalf it is: its
 * standard folders are refused too.
 *
 * The list is closed: copy, move, create a folder, remove, date. A shell is not on it.
 */
[[nodiscard]] int prepare(const std::string &tool, const std::vector<std::string> &arguments, const std::string &home,
                          Plan &plan);

/** The user's home folder by the user database; empty when there is none. */
[[nodiscard]] std::string homeOf(uid_t user);

} // namespace helper

#pragma once

#include "platform/plain/CopyMonitor.h"
#include "platform/plain/MadeItem.h"

#include <sys/stat.h>

/** One entry's copy, by descriptor. The parts of TreeCopy that do not know of trees; used by it alone. */
namespace platform {

/** What a copy is to be. */
enum class Manner {
    Exact, ///< with the dates and the modes of what is copied
    Fresh, ///< with the present as its date, and with what the place hands on to folders (see PlaceRights)
};

/** What a destination did not take of an item; bits, to be joined. The copy stands all the same. */
enum Lost : unsigned {
    LostNothing = 0,
    LostLabels = 1, ///< an extended attribute of the user's
    LostMode = 2,
    LostOwner = 4,
    LostDates = 8,
};

/** How one entry's copy ended. */
struct EntryResult
{
    int error = 0;       ///< errno, or 0
    bool isMade = false; ///< something was made at the destination, complete or not
    unsigned lost = LostNothing;
    MadeItem made{}; ///< of a fresh copy
};

/** One entry on its way; all it refers to outlives the call. */
struct EntryCopy
{
    int sourceFolder;
    const char *from;
    int destinationFolder;
    const char *to;
    unsigned char type; ///< the DT_ constant that the source folder's listing gave
    Manner manner;
    CopyMonitor *monitor; ///< null when nobody watches
};

/** Copies what is no folder. */
[[nodiscard]] EntryResult copyEntry(const EntryCopy &entry);

/**
 * What a place hands on to the folders that are made in it: a team's folder its group (set-group-ID) or its access
 * list. Without this a copy of folders with 0755 would shut the team out of folders in the team's own folder.
 */
struct PlaceRights
{
    bool groupIsKept = false;   ///< the group comes from the place, and is handed on
    mode_t group = 0070;        ///< what of the group's rights the access list leaves
    mode_t other = 0007;        ///< the same for all others
    bool groupMayWrite = false; ///< who may read in a folder may also write in it
    bool hasAccessList = false; ///< its own takes the place of the copied one's
    [[nodiscard]] mode_t modeOf(mode_t copied) const;
};
/** Of an open folder. */
[[nodiscard]] PlaceRights placeRightsOf(int folder);

/** Mode, dates, owner (as super-user) and extended attributes of an open folder onto another. */
[[nodiscard]] EntryResult finishFolder(int source, int destination, const struct stat &info, Manner manner,
                                       const PlaceRights &rights);

} // namespace platform

#pragma once

#include <QString>

/**
 * Starts the updater, a program of its own that the maker's applications share: the installed one, or the one that
 * ships in the bundle where that is newer, from a copy in the temporary folder. The program itself looks for nothing.
 */
class VTSoftwareUpdate
{
public:
    /** The silent check at the start, on a thread of its own, unless it is switched off ("SUCheckAtStartup"). */
    void startup();
    /** From the menu. False when there is no updater to open. */
    [[nodiscard]] static bool manualUpdateCheck() { return launchSoftwareUpdate(); }

    /** The updater to run, whether it exists or not. Makes the working copy; may block for a moment. */
    [[nodiscard]] static QString updaterPath();
    static bool launchSoftwareUpdate();
    /** Blocks until the updater has been started; any thread. */
    static void automaticallyCheckForUpdates();
};

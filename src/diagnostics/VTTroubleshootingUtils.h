#pragma once

#include <QStringList>

/**
 * Shows the logs, and gathers all that a support request needs into one archive on the desktop: logs, crash reports and
 * preference files of the user and of the machine. Main thread; the window stays alive while it gathers.
 */
class VTTroubleshootingUtils
{
public:
    VTTroubleshootingUtils() = delete;
    enum class Silent { No, Yes };

    /** Opens the current log with its default application; false, after a message, when there is none yet. */
    static bool viewLogForApp(const QString &name);
    static bool viewTaskLogForApp(const QString &name);
    [[nodiscard]] static QString logPath(const QString &name);
    [[nodiscard]] static QString taskLogPath(const QString &name);

    /** The archive is named after the first application; one that is there already stays. The folder is the desktop
       unless another is given. Silent: no messages. The archive's path, null when there is none. */
    static QString gatherLogsForApps(const QStringList &names, Silent silent = Silent::No,
                                     const QStringList &additionalFiles = {}, const QString &toFolder = {});
};

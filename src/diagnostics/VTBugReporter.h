#pragma once

#include <QObject>
#include <QString>
#include <functional>

/**
 * Finds out at the start whether the last run crashed, and hands the newest report to the bug reporting application,
 * which lets the user send it. No state in memory: the launch record is in the settings, or in a property list at a
 * given path. Main thread.
 */
class VTBugReporter
{
public:
    VTBugReporter() = delete;
    /** Told of a crash, on the main thread, later. */
    using Delegate = std::function<void(const QString &report)>;

    /** Checks, tells the delegate, and records this launch. Nulls: the bundle's name, the settings. */
    static void startBugReporter(const QString &name = {}, const QString &plistPath = {},
                                 const Delegate &delegate = {});
    /** Records a clean end. */
    static void stopBugReporter(const QString &plistPath = {});
    /** The report that was found, whether or not anything could be launched with it; null when the last run did not
     * crash. */
    static QString checkForCrashes(const QString &name = {}, const QString &plistPath = {});
    /** A record in somebody's home belongs to them: a path below "Users" goes to the user named there. */
    static void chownPlist(const QString &path);

    /** Whether there is a bug reporter that a report is handed to, and it is not switched off. */
    [[nodiscard]] static bool handsOver();

    /** Where reports are looked for, in this order. */
    [[nodiscard]] static QStringList reportFolders();
};

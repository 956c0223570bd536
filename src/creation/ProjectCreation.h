#pragma once

#include "creation/CreationPlan.h"
#include "creation/Manifest.h"
#include "creation/ProjectRequest.h"
#include "creation/Unfinished.h"
#include "creation/Workplace.h"
#include "platform/files/FileSystem.h"
#include "platform/files/TreeCopy.h"
#include "platform/plain/CopyMonitor.h"

#include <QStringList>
#include <optional>

/** What surrounds a creation: the window with its table, or the command line. */
class CreationHost
{
public:
    virtual ~CreationHost() = default;
    virtual void startProcessing() = 0;
    virtual void finishProcessing() = 0;
    /** The counters have advanced: the next project gets the next number, which can be shown now. */
    virtual void incrementDynamicValues() = 0;
    /** The project stands; shown to the user if the user wants that. */
    virtual void reveal(const QString &project) = 0;
    virtual void quitIfWanted() = 0;
};

/** What became of a creation. */
struct CreationResult
{
    bool cancelled = false; ///< the user did not want the existing project overwritten, or it could not be put away
    bool stopped = false;   ///< it was stopped on the way, and taken back
    bool isTooMany = false; ///< and repeats would have made more items than the user wanted
    bool refused = false;   ///< the template's rules do not allow it; nothing was made
    QStringList errors;     ///< one sentence for each message shown
    QStringList notes;      ///< what is worth a word, and no failure; not shown yet
    ProjectRequest request; ///< what was made: with other numbers than asked for where those had been taken
    qsizetype folders = 0;
    qsizetype files = 0;
    qsizetype renamed = 0;
    Manifest manifest; ///< for undoing it; without a file where there is nothing to undo
    [[nodiscard]] bool ok() const { return !cancelled && !stopped && errors.isEmpty(); }
};

/**
 * Makes one project out of a template: the main road. Main thread; each step that works on files runs on a worker while
 * the event loop turns with the windows closed to input. One object makes one project.
 */
class ProjectCreation
{
public:
    /** One of several that were asked for together. */
    struct Part
    {
        QString batch;                            ///< its name
        platform::CopyMonitor *monitor = nullptr; ///< of all of them
        bool mustBeWhole = false;                 ///< one that lacks something is taken back
    };

    explicit ProjectCreation(CreationHost &host)
        : m_host(host)
    {
    }
    /** One that asks nothing and says nothing: what would be asked is an error of the result. */
    ProjectCreation(CreationHost &host, const Part &part)
        : m_host(host)
        , m_batch(part.batch)
        , m_mustBeWhole(part.mustBeWhole)
        , m_monitor(*part.monitor)
    {
    }

    /** The whole sequence. A folder or a copy that fails does not end it: what could be made is finished and told of.
     */
    [[nodiscard]] CreationResult createProject(const ProjectRequest &request);

    /** Repeats may make as many items as they want without a question. */
    void allowMany() { m_mostRepeated = mostRepeated; }

    /** Set by anyone, a signal's handler too: the creation stops at its next look, and nothing of it is left. */
    [[nodiscard]] std::atomic<bool> &stop() { return m_monitor.cancelled; }

    /** Renames every item below the folder whose name says template, children before their parents, links themselves.
     */
    void renameTemplateFiles(const QString &folder, const QString &newName);
    /** Dates every item below the folder, the folder itself not. */
    void updateTimestamps(const QString &folder);

private:
    [[nodiscard]] bool isAlone() const { return m_batch.isNull(); }
    [[nodiscard]] bool isAllowedByRules();
    [[nodiscard]] bool wantsMany();
    [[nodiscard]] bool hasFlaws();
    void plan();
    platform::Outcome claimDestination();
    platform::Outcome claimOnce();
    [[nodiscard]] bool followsStoredNumbers() const;
    void takeNextNumbers(const FilenameParameters &stored);
    [[nodiscard]] bool putAwayExisting(const QString &destination);
    [[nodiscard]] bool build();
    void tellProgram();
    void takeBack();
    void bringBackOld();
    void remember();
    void copyTemplate();
    void noteLosses(const platform::Losses &losses);
    void finishNames();
    void updateDates();
    [[nodiscard]] bool isMade(std::uint32_t folder) const;
    void count(const platform::TreeFolder &folder);
    void renameBelow(const QString &folder, const QString &newName);
    void renameEntry(const QString &folder, const platform::FolderEntry &entry, const QString &newName);
    void tell(const QString &message, const QString &informativeText);

    CreationHost &m_host;
    CreationResult m_result;
    const QString m_batch; ///< null: it was asked for alone
    const bool m_mustBeWhole = false;
    platform::CopyMonitor m_ownMonitor;
    platform::CopyMonitor &m_monitor = m_ownMonitor;
    bool m_isGivenUp = false; ///< what is begun is not to be finished
    std::optional<Workplace> m_place;
    QString m_hiddenFolder; ///< where it will be built, if it can be; null without a claim
    std::optional<CreationNote> m_note;
    CreationPlan m_plan;
    std::optional<FilenameParameters> m_plannedWith; ///< what the plan was made with; null before there is one
    std::size_t m_mostRepeated = mostRepeatedUnasked;
    QStringList m_copiedByTool; ///< folders in the workplace
    QString m_oldInTrash;       ///< where an existing project lies that was put away; null where there was none
    bool m_hasPutAway = false;  ///< an existing project is in the Trash
    platform::Outcome m_stored; ///< of the numbers that were taken
    QStringList m_levelsMade;   ///< the folders above the project's own that this creation has made, innermost last
};

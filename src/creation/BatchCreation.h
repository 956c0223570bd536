#pragma once

#include "creation/ProjectBatch.h"
#include "creation/ProjectCreation.h"
#include "creation/Undo.h"

enum class BatchManner {
    AllOrNone, ///< what was made is taken back when one cannot be made
    GoOn,      ///< with the rest
};

/** What became of a batch. */
struct BatchResult
{
    QList<Manifest> made{}; ///< what stands, in the order of the rows
    qsizetype failed = 0;   ///< rows that were begun
    qsizetype left = 0;     ///< rows that were not begun: they have problems, or it was over before
    bool stopped = false;   ///< by the user
    bool takenBack = false; ///< nothing of it was to stay
    QList<KeptItem> kept{}; ///< of what was taken back: what stays all the same
    platform::Outcome told; ///< of the program that is told of new projects
};

/**
 * Makes the projects of a batch, one after the other, by the main road; each row has been looked at before. Says
 * nothing itself: what is to be said is in the results. Main thread, as a single creation.
 */
class BatchCreation
{
public:
    BatchCreation(CreationHost &host, BatchManner manner)
        : m_host(host)
        , m_manner(manner)
    {
    }

    /** The function hears of each row that was begun, when it is over. */
    [[nodiscard]] BatchResult run(const ProjectBatch &batch,
                                  const std::function<void(qsizetype row, const CreationResult &)> &done);
    [[nodiscard]] std::atomic<bool> &stop() { return m_monitor.cancelled; }

private:
    void note(const CreationResult &made, BatchResult &result);
    void tellProgram(const QList<CreationResult> &made, BatchResult &result);
    void takeBack(BatchResult &result);

    CreationHost &m_host;
    const BatchManner m_manner;
    platform::CopyMonitor m_monitor;
    QStringList m_notRemembered; ///< projects that stand and cannot be taken back
};

/** Takes back what one batch has made and nobody has touched, the latest first. Blocks; any thread. */
[[nodiscard]] QList<UndoResult> undoBatch(const QList<Manifest> &projects, platform::CopyMonitor &monitor);
/** All that are remembered of the same batch, in the order in which they were made; of none, the project alone. */
[[nodiscard]] QList<Manifest> batchOf(const Manifest &project, const QList<Manifest> &remembered);

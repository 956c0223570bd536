#include "creation/BatchCreation.h"

#include "creation/AfterCreation.h"

#include "platform/base/MainThread.h"
#include "platform/files/FileSystem.h"
#include "support/LongWork.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchCreation)
};

/// What a single creation tells its surroundings comes once, at the end.
class QuietHost : public CreationHost
{
public:
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
};

/// Whether there is a project, complete or not.
bool stands(const CreationResult &made)
{
    return !made.cancelled && !made.stopped && !made.refused;
}

} // namespace

BatchResult BatchCreation::run(const ProjectBatch &batch,
                               const std::function<void(qsizetype row, const CreationResult &)> &done)
{
    BatchResult result;
    QuietHost quiet;
    const QString name = VTLocalPaths::uuid();
    QList<CreationResult> all;
    VTLog::appendLog("Creating %ld projects from a table", batch.rows().size());
    m_host.startProcessing();
    {
        const LongWork work(Text::tr("Creating projects: %L1").arg(batch.rows().size()), m_monitor);
        for (const BatchRow &row : batch.rows())
            m_monitor.itemsTotal += row.problems.isEmpty() ? row.items : 0;
        for (qsizetype row = 0; row < batch.rows().size(); ++row) {
            const bool isOver = result.stopped || (result.failed > 0 && m_manner == BatchManner::AllOrNone);
            if (isOver || !batch.rows()[row].problems.isEmpty()) {
                ++result.left;
                continue;
            }
            ProjectCreation creation(quiet, {name, &m_monitor, m_manner == BatchManner::AllOrNone});
            const CreationResult made = creation.createProject(batch.requestOf(row));
            result.stopped = result.stopped || m_monitor.cancelled;
            result.failed += made.ok() ? 0 : 1;
            note(made, result);
            if (stands(made))
                all.append(made);
            done(row, made);
        }
        if (m_manner == BatchManner::AllOrNone && (result.failed > 0 || result.stopped))
            takeBack(result);
    }
    if (!result.takenBack)
        tellProgram(all, result);
    pruneHistory();
    m_host.incrementDynamicValues();
    if (!result.made.isEmpty())
        m_host.reveal(result.made.constFirst().project);
    if (result.failed == 0 && result.left == 0)
        m_host.quitIfWanted();
    m_host.finishProcessing();
    return result;
}

void BatchCreation::note(const CreationResult &made, BatchResult &result)
{
    if (!made.manifest.file.isEmpty())
        result.made.append(made.manifest);
    else if (stands(made))
        m_notRemembered.append(made.request.destination());
}

/// Of each project, when it is certain that it stays; when the program has failed once, of no other.
void BatchCreation::tellProgram(const QList<CreationResult> &made, BatchResult &result)
{
    m_monitor.cancelled = false; // what was made before it was stopped stays
    for (const CreationResult &one : made) {
        result.told = tellOfProject(one, m_monitor.cancelled);
        if (!result.told.ok())
            return;
    }
}

void BatchCreation::takeBack(BatchResult &result)
{
    result.takenBack = true;
    platform::CopyMonitor monitor; // this is not stopped half way
    const QList<Manifest> made = std::exchange(result.made, {});
    const auto undone = platform::resultInBackground([&] { return undoBatch(made, monitor); });
    for (const UndoResult &one : undone)
        result.kept += one.kept;
    for (const QString &project : std::as_const(m_notRemembered)) {
        if (!platform::isMissing(project))
            result.kept.append({project, KeptItem::Why::Failed});
    }
}

QList<UndoResult> undoBatch(const QList<Manifest> &projects, platform::CopyMonitor &monitor)
{
    QList<UndoResult> results;
    for (auto project = projects.crbegin(); project != projects.crend() && !monitor.cancelled; ++project) {
        UndoResult result = undoCreation(*project, monitor);
        if (!result.outcome.ok())
            result.kept.append({project->project, KeptItem::Why::Failed});
        results.append(result);
    }
    return results;
}

QList<Manifest> batchOf(const Manifest &project, const QList<Manifest> &remembered)
{
    if (project.batch.isEmpty())
        return {project};
    QList<Manifest> batch;
    for (const Manifest &other : remembered) {
        if (other.batch == project.batch)
            batch.prepend(other); // the latest came first
    }
    return batch;
}

// create --from: a project for each row of a table.
#include "commands/CommandLine.h"
#include "commands/CreateCommand.h"
#include "commands/PlanOutput.h"
#include "commands/TerminalOutput.h"
#include "creation/ProjectBatch.h"
#include "creation/ProjectJson.h"
#include "parameters/ParameterStore.h"
#include "platform/base/Console.h"
#include "platform/base/Interruption.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "support/LongWork.h"
#include "support/Settings.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CreateCommandTable)
};

/// More are counted.
constexpr qsizetype mostNamed = 20;

platform::Result<QByteArray> readInput(const QString &file)
{
    return file == u"-" ? platform::readStandardInput(platform::largestWholeFile)
                        : platform::readFile(platform::absolutePath(file));
}

QString shown(const ProjectBatch &batch, qsizetype row, const CellProblem &problem)
{
    const QString column = batch.table().columns.value(problem.column);
    const QString where = column.isEmpty() ? Text::tr("Line %1").arg(batch.table().rows[row].line)
                                           : Text::tr("Line %1, %2").arg(batch.table().rows[row].line).arg(column);
    return where + QStringLiteral(": ") + problem.sentence;
}

} // namespace

int CreateCommand::runTable()
{
    ProjectBatch batch;
    if (m_invocation.has("--ask"))
        return complain(ExitStatus::wrongUsage,
                        Text::tr("--ask asks for one project; a table with --from has its values in its cells."));
    if (!readValues() || !findTemplate() || !findDestination() || !readBatch(batch))
        return m_status;
    complainAbout(batch);
    const bool mayGoOn = m_invocation.has("--go-on");
    if (m_isDryRun)
        printPlans(batch);
    else if (m_status == ExitStatus::done || mayGoOn)
        createAll(batch);
    else
        complain(m_status, Text::tr("Nothing was created. --go-on leaves out the rows with problems."));
    return m_status;
}

bool CreateCommand::readBatch(ProjectBatch &batch)
{
    if (!m_isDryRun)
        keepDamagedParameters();
    const auto bytes = readInput(m_invocation.value("--from"));
    if (!bytes)
        return fail(bytes.outcome(), Text::tr("The table cannot be read."));
    const auto table = readTable(*bytes);
    if (!table)
        return fail(ExitStatus::failed, table.outcome().sentence());
    const BatchBase base{[this](const QString &name) { return requestFor(name); }, m_templateName,
                         settings::strictNaming.isOn()};
    platform::CopyMonitor monitor;
    const platform::Interruption interruption(monitor.cancelled);
    const LongWork work(Text::tr("Looking at projects: %L1").arg(table->rows.size()), monitor);
    platform::performInBackground([&] {
        batch = ProjectBatch(*table, base);
        batch.lookAtDisk(monitor.cancelled);
    });
    return !monitor.cancelled || fail(ExitStatus::stopped, Text::tr("Stopped. Nothing was created."));
}

void CreateCommand::complainAbout(const ProjectBatch &batch)
{
    if (!batch.unknownColumns().isEmpty())
        complain(ExitStatus::done,
                 Text::tr("No parameter is called: %1").arg(batch.unknownColumns().join(QStringLiteral(", "))));
    qsizetype named = 0;
    for (qsizetype row = 0; row < batch.rows().size(); ++row) {
        for (const CellProblem &problem : batch.rows()[row].problems) {
            m_status = ExitStatus::failed;
            if (++named <= mostNamed)
                complain(m_status, shown(batch, row, problem));
        }
    }
    if (named > mostNamed)
        complain(m_status, Text::tr("Other problems: %L1").arg(named - mostNamed));
}

void CreateCommand::printPlans(const ProjectBatch &batch)
{
    std::atomic<bool> stopped = false;
    const platform::Interruption interruption(stopped);
    for (qsizetype row = 0; row < batch.rows().size() && !stopped; ++row) {
        const BatchRow &own = batch.rows()[row];
        QStringList problems;
        for (const CellProblem &problem : own.problems)
            problems.append(shown(batch, row, problem));
        const ProjectRequest request = batch.requestOf(row);
        const CreationPlan plan = planCreation(request.templateFiles, request.planInput(), stopped);
        if (m_invocation.has("--json"))
            printLine(objectOf({request, problems, {}, &plan}));
        else if (problems.isEmpty())
            print(drawn(plan, request.destination()));
    }
    if (stopped)
        fail(ExitStatus::stopped, Text::tr("Stopped."));
}

void CreateCommand::createAll(const ProjectBatch &batch)
{
    const bool isJson = m_invocation.has("--json");
    const auto manner = m_invocation.has("--go-on") ? BatchManner::GoOn : BatchManner::AllOrNone;
    BatchCreation creation(*this, manner);
    const platform::Interruption interruption(creation.stop());
    QList<QJsonObject> objects;
    const BatchResult result = creation.run(batch, [&](qsizetype row, const CreationResult &made) {
        for (const QString &error : made.errors)
            complain(ExitStatus::failed, shown(batch, row, {-1, error}));
        for (const QString &note : made.notes)
            complain(ExitStatus::done, note);
        QJsonObject object = objectOf({made.request, made.errors, made});
        object.insert("line", batch.table().rows[row].line);
        objects.append(object);
    });
    for (const QJsonObject &object : std::as_const(objects)) {
        if (isJson && !result.takenBack)
            printLine(object);
    }
    for (const Manifest &manifest : result.made) {
        if (!isJson)
            print(manifest.project + u'\n');
    }
    if (!result.told.ok())
        fail(result.told, Text::tr("The program that runs after each creation has failed"));
    if (result.takenBack) {
        fail(result.stopped ? ExitStatus::stopped : ExitStatus::failed,
             Text::tr("What had been created was moved to the Trash. --go-on keeps what can be made."));
        for (const KeptItem &item : result.kept)
            complain(m_status, sentenceOf(item));
    } else if (result.stopped) {
        fail(ExitStatus::stopped, Text::tr("Stopped. Projects that were not begun: %L1").arg(result.left));
    } else if (result.failed > 0 || result.left > 0) {
        fail(ExitStatus::failed, Text::tr("Rows left out: %L1. The log names each item and the cause: %2")
                                     .arg(result.left + result.failed)
                                     .arg(VTLog::sharedController().currentLogPath()));
    }
}

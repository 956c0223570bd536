#include "creation/ProjectBatch.h"

#include "creation/RequestCheck.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"

#include <QCoreApplication>
#include <QSet>

using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectBatch)
};

const QString templateColumn = QStringLiteral("Template");

bool isCounter(const FilenameParameter &parameter)
{
    return parameter.kind() == FilenameParameter::Kind::Counter && !parameter.isFixedByTemplate();
}

/// A template's own counters count for it alone.
QString keyOf(const QString &templateName, const FilenameParameter &counter)
{
    return counter.isOwnOfTemplate() ? templateName + u'/' + counter.title() : counter.title();
}

qsizetype rowOf(const FilenameParameters &parameters, const QString &title)
{
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&](const FilenameParameter &parameter) { return parameter.title() == title; });
    return found == parameters.end() ? -1 : found - parameters.begin();
}

} // namespace

ProjectBatch::ProjectBatch(ProjectTable table, const BatchBase &base)
    : m_table(std::move(table))
    , m_strictNaming(base.strictNaming)
    , m_templateColumn(static_cast<int>(m_table.columns.indexOf(templateColumn)))
{
    QSet<QString> titles;
    for (const ProjectTable::Row &row : std::as_const(m_table.rows)) {
        const QString named = m_templateColumn < 0 ? QString() : row.cells[m_templateColumn];
        const QString name = named.isEmpty() ? base.templateName : named;
        m_rows.append({name});
        if (m_bases.contains(name))
            continue;
        const platform::Result<ProjectRequest> project = base.project(name);
        m_bases.insert(name, {project.valueOr({}), project.outcome()});
        for (const FilenameParameter &parameter : std::as_const(m_bases[name].base.parameters))
            titles.insert(parameter.title());
    }
    for (int column = 0; column < m_table.columns.size(); ++column) {
        const QString &title = m_table.columns[column];
        if (column != m_templateColumn && !titles.contains(title))
            m_unknownColumns.append(title.isEmpty() ? Text::tr("column %1").arg(column + 1) : title);
    }
    static const std::atomic<bool> never = false;
    goThrough({}, never);
}

const ProjectBatch::Known &ProjectBatch::baseOf(const QString &templateName) const
{
    return *m_bases.constFind(templateName);
}

/// In the order in which they will be made: another row's project has taken the number before it, and its place; one
/// that was typed is where counting goes on from.
void ProjectBatch::goThrough(const DiskLook &look, const std::atomic<bool> &cancelled)
{
    QHash<QString, QString> next;
    QHash<QString, qsizetype> places; // in letters that some drives do not tell apart
    for (qsizetype row = 0; row < m_rows.size() && !cancelled; ++row) {
        BatchRow &own = m_rows[row];
        const Known &known = baseOf(own.templateName);
        own = {own.templateName};
        if (!known.outcome.ok()) {
            own.problems.append({m_templateColumn, known.outcome.sentence()});
            continue;
        }
        for (const FilenameParameter &parameter : known.base.parameters) {
            if (isCounter(parameter))
                own.numbers.append(next.value(keyOf(own.templateName, parameter), parameter.value()));
        }
        const ProjectRequest request = requestOf(row, own.problems);
        own.project = request.relativePath();
        findProblems(row, request);
        const auto twin = places.constFind(own.project.toCaseFolded());
        if (twin != places.cend())
            own.problems.append(
                {-1, Text::tr("Line %1 makes the same project: %2").arg(m_table.rows[*twin].line).arg(own.project)});
        if (own.problems.isEmpty() && look)
            look(row, request);
        if (!own.problems.isEmpty())
            continue;
        places.insert(own.project.toCaseFolded(), row);
        for (const FilenameParameter &parameter : request.parameters) {
            if (isCounter(parameter))
                next.insert(keyOf(own.templateName, parameter), rules::incrementNumber(parameter.value()));
        }
    }
}

void ProjectBatch::findProblems(qsizetype row, const ProjectRequest &request)
{
    BatchRow &own = m_rows[row];
    if (m_table.rows[row].cells.size() > m_table.columns.size())
        own.problems.append({-1, Text::tr("This row has more cells than there are columns.")});
    const auto problem = own.problems.isEmpty() ? problemOf(request) : std::nullopt;
    if (!problem)
        return;
    const QString title = problem->parameter < 0 ? QString() : request.parameters[problem->parameter].title();
    own.problems.append({static_cast<int>(m_table.columns.indexOf(title)),
                         problem->message + QStringLiteral(". ") + problem->informativeText});
}

ProjectRequest ProjectBatch::requestOf(qsizetype row) const
{
    QList<CellProblem> known;
    return requestOf(row, known);
}

ProjectRequest ProjectBatch::requestOf(qsizetype row, QList<CellProblem> &problems) const
{
    ProjectRequest request = baseOf(m_rows[row].templateName).base;
    const FilenameParameters before = request.parameters;
    qsizetype counter = 0;
    for (FilenameParameter &parameter : request.parameters) {
        if (isCounter(parameter) && counter < m_rows[row].numbers.size())
            parameter.setValue(m_rows[row].numbers[counter++]);
    }
    request.parameters = forms::withComputedValues(request.parameters, before, {request.dateFormat, request.moment});
    const QStringList &cells = m_table.rows[row].cells;
    for (int column = 0; column < m_table.columns.size(); ++column) {
        const QString &title = m_table.columns[column];
        if (column == m_templateColumn || cells[column].isEmpty() || rowOf(request.parameters, title) < 0)
            continue;
        const auto changed = withNamedValue(request, title, cells[column], m_strictNaming);
        if (changed)
            request = *changed;
        else
            problems.append({column, changed.outcome().sentence()});
    }
    return request;
}

qsizetype ProjectBatch::problemRows() const
{
    return std::count_if(m_rows.begin(), m_rows.end(), [](const BatchRow &row) { return !row.problems.isEmpty(); });
}

void ProjectBatch::lookAtDisk(const std::atomic<bool> &cancelled)
{
    QHash<QString, CreationPlan> plans; // a template is read once, and looked at with each row's values
    const auto look = [&](qsizetype row, const ProjectRequest &request) {
        BatchRow &own = m_rows[row];
        if (!request.location.isEmpty() && platform::kindOf(request.destination()) != platform::FileKind::Missing)
            own.problems.append({-1, Text::tr("A project with this name already exists: %1").arg(own.project)});
        auto plan = plans.find(own.templateName);
        if (plan == plans.end())
            plan = plans.insert(own.templateName, planCreation(request.templateFiles, request.planInput(), cancelled));
        else
            planFor(*plan, request.planInput());
        own.items = plan->tree.itemCount() - plan->leftOut;
        if (plan->isCutOff)
            own.problems.append({-1, Text::tr("Repeats would make more than %L1 items.").arg(mostRepeatedUnasked)});
        else if (const QString flaw = plan->firstFlaw(); !flaw.isNull())
            own.problems.append({-1, flaw});
        else if (!plan->unreadable.isEmpty())
            own.problems.append({-1, plan->unreadable.constFirst().description()});
        else if (const QString kept = plan->firstKeptName(); !kept.isNull())
            own.problems.append({-1, Text::tr("The new name of %1 is taken, or too long.").arg(kept)});
    };
    goThrough(look, cancelled);
}

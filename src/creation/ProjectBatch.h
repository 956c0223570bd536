#pragma once

#include "creation/ProjectRequest.h"
#include "creation/ProjectTable.h"
#include "platform/base/Outcome.h"

#include <functional>

/** What is wrong with a row of a table of projects. */
struct CellProblem
{
    int column = -1; ///< -1: of the whole row
    QString sentence;
};

/** A row as a project. */
struct BatchRow
{
    QString templateName;
    QStringList numbers{}; ///< of the counters, in the order of the parameters
    std::size_t items = 0; ///< that will be made; 0 before the disk was looked at
    QString project{};     ///< its levels as one path; empty where there are none
    QList<CellProblem> problems{};
};

/** Where the projects of a batch begin. */
struct BatchBase
{
    /** The project of a template before a row's values: everything but these. Asked once for each template, on the
        thread that makes the batch. */
    std::function<platform::Result<ProjectRequest>(const QString &templateName)> project;
    QString templateName; ///< of rows that name none
    bool strictNaming = false;
};

/**
 * Many projects from a table. A column with a parameter's title gives its value, one called "Template" the template;
 * an empty cell leaves what would be there without it. Counters go on from row to row, as if one project had been
 * created after the other; rows with problems take no number. A value: what is shown of it is what is made.
 */
class ProjectBatch
{
public:
    ProjectBatch() = default;
    ProjectBatch(ProjectTable table, const BatchBase &base);

    [[nodiscard]] const ProjectTable &table() const { return m_table; }
    [[nodiscard]] const QList<BatchRow> &rows() const { return m_rows; }
    /** Columns that give nothing to any row. */
    [[nodiscard]] const QStringList &unknownColumns() const { return m_unknownColumns; }
    [[nodiscard]] ProjectRequest requestOf(qsizetype row) const;
    [[nodiscard]] qsizetype problemRows() const;

    /** What only the disk knows: projects that exist already, and what the templates' rules say of the values. Blocks;
        any thread. Ends early when cancelled. */
    void lookAtDisk(const std::atomic<bool> &cancelled);

private:
    struct Known
    {
        ProjectRequest base;
        platform::Outcome outcome;
    };
    [[nodiscard]] const Known &baseOf(const QString &templateName) const;
    using DiskLook = std::function<void(qsizetype row, const ProjectRequest &request)>;
    void goThrough(const DiskLook &look, const std::atomic<bool> &cancelled);
    void findProblems(qsizetype row, const ProjectRequest &request);
    [[nodiscard]] ProjectRequest requestOf(qsizetype row, QList<CellProblem> &problems) const;

    ProjectTable m_table;
    QList<BatchRow> m_rows;
    QStringList m_unknownColumns;
    QHash<QString, Known> m_bases;
    bool m_strictNaming = false;
    int m_templateColumn = -1;
};

#pragma once

#include "creation/CreationPlan.h"
#include "parameters/ParameterScope.h"
#include "support/StudioCopy.h"

#include <QMap>
#include <QString>
#include <QStringList>

/**
 * One project that is wanted: what was shown when it was asked for, carried to the end. Whatever changes in settings,
 * window or library meanwhile changes this project no more. A plain value; every name follows from it.
 */
struct ProjectRequest
{
    FilenameParameters parameters;  ///< as they were shown, with the day's date
    QMap<qsizetype, QString> typed; ///< by row: values typed for this project alone, not yet in the stored list
    QString separator;
    QString templateName;
    QString templateFiles;    ///< the folder whose contents the project gets
    QString location;         ///< the folder in which the outermost level lies
    TemplateRulesPtr rules{}; ///< of the template; null: none
    QString dateFormat{};     ///< in which the values' dates are
    std::time_t moment = 0;   ///< when it was asked for
    bool isRemembered = true; ///< its values and numbers go into the settings
    studio::Use use{};        ///< of a studio's templates, which stay as they are until the project stands

    /** The folder levels, outermost first; empty when no parameter has a value. */
    [[nodiscard]] QStringList levels() const;
    /** The levels as one path. */
    [[nodiscard]] QString relativePath() const;
    /** The innermost level: what takes the place of the word template. */
    [[nodiscard]] QString name() const;
    /** The project's own folder. */
    [[nodiscard]] QString destination() const;
    [[nodiscard]] PlanInput planInput() const;
};

/** What the rules make of the common parameters. */
[[nodiscard]] ParameterScope scopeOf(const QString &templateName, const TemplateRules &rules);
/** The same of a request: with it numbers are taken and given back. */
[[nodiscard]] ParameterScope scopeOf(const ProjectRequest &request);

/** What tokens stand for in a project: its parameters, "Project" (its name), "Level:1" and so on. */
[[nodiscard]] tokens::Values valuesOfProject(const FilenameParameters &parameters, const QStringList &levels,
                                             const QString &dateFormat, std::time_t moment);

/** The request with the values typed into its rows, by the rules of the form. */
[[nodiscard]] ProjectRequest withTypedValue(ProjectRequest request, qsizetype row, const QString &typed,
                                            bool strictNaming);

/**
 * The request with the numbers that are next by now: those of the stored list, where another program has taken the
 * shown ones. A number that was typed for this project stays.
 */
[[nodiscard]] ProjectRequest withNextNumbers(ProjectRequest request, const FilenameParameters &stored);

/**
 * The stored list once the request's project has been begun: what was typed is in it as far as it is kept beyond a
 * start, and its counters stand at the next number. A counter that another program has moved on stays where it is.
 */
[[nodiscard]] FilenameParameters withNumbersTaken(FilenameParameters stored, const ProjectRequest &request);

/** The stored list after a project was given up: its numbers are free again, unless another has taken the next. */
[[nodiscard]] FilenameParameters withNumbersReturned(FilenameParameters stored, const ProjectRequest &request);

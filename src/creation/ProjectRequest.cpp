#include "creation/ProjectRequest.h"

#include "parameters/ParameterList.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/NativePath.h"

namespace {

bool isCounter(const FilenameParameter &parameter)
{
    return parameter.kind() == FilenameParameter::Kind::Counter;
}

/// Whether the value is there again after the next start, or the default in its place.
bool isKept(const FilenameParameter &parameter)
{
    return rules::asLoaded({parameter}).constFirst() == parameter;
}

forms::Moment momentOf(const ProjectRequest &request)
{
    return {request.dateFormat, request.moment == 0 ? std::time(nullptr) : request.moment};
}

} // namespace

QStringList ProjectRequest::levels() const
{
    return naming::pathComponents(parameters, separator);
}

QString ProjectRequest::relativePath() const
{
    return naming::pathName(levels());
}

QString ProjectRequest::name() const
{
    return naming::projectName(levels());
}

QString ProjectRequest::destination() const
{
    return platform::joined(location, relativePath());
}

PlanInput ProjectRequest::planInput() const
{
    const QStringList all = levels();
    return {all, rules ? valuesOfProject(parameters, all, dateFormat, moment) : tokens::Values(), rules};
}

ParameterScope scopeOf(const QString &templateName, const TemplateRules &rules)
{
    return {templateName, parametersFromVariant(rules.parameters), rules.fixed, rules.hidden};
}

ParameterScope scopeOf(const ProjectRequest &request)
{
    return request.rules ? scopeOf(request.templateName, *request.rules) : ParameterScope();
}

tokens::Values valuesOfProject(const FilenameParameters &parameters, const QStringList &levels,
                               const QString &dateFormat, std::time_t moment)
{
    tokens::Values values;
    tokens::addTo(values, parameters, dateFormat, moment); // a parameter called "Project" is meant where one is
    values.add(QStringLiteral("Project"), {naming::projectName(levels)});
    for (qsizetype i = 0; i < levels.size(); ++i)
        values.add(QStringLiteral("Level:%1").arg(i + 1), {levels[i]});
    return values;
}

ProjectRequest withTypedValue(ProjectRequest request, qsizetype row, const QString &typed, bool strictNaming)
{
    const FilenameParameters before = request.parameters;
    FilenameParameter &parameter = request.parameters[row];
    parameter = rules::withTypedValue(parameter, typed, strictNaming);
    request.typed.insert(row, parameter.value());
    request.parameters = forms::withComputedValues(request.parameters, before, momentOf(request), row);
    return request;
}

ProjectRequest withNextNumbers(ProjectRequest request, const FilenameParameters &stored)
{
    const FilenameParameters before = request.parameters;
    for (qsizetype row = 0; row < request.parameters.size(); ++row) {
        const auto there = parameterlist::rowOfSame(request.parameters, row, stored);
        if (isCounter(request.parameters[row]) && !request.typed.contains(row) && there && isCounter(stored[*there]))
            request.parameters[row].setValue(stored[*there].value());
    }
    request.parameters = forms::withComputedValues(request.parameters, before, momentOf(request));
    return request;
}

FilenameParameters withNumbersTaken(FilenameParameters stored, const ProjectRequest &request)
{
    const FilenameParameters before = stored;
    for (qsizetype row = 0; row < request.parameters.size(); ++row) {
        const auto there = parameterlist::rowOfSame(request.parameters, row, stored);
        if (!there)
            continue;
        FilenameParameter &parameter = stored[*there];
        if (const auto typed = request.typed.constFind(row); typed != request.typed.cend()) {
            const FilenameParameter filledIn = rules::withTypedValue(parameter, *typed, false);
            parameter = isKept(filledIn) ? filledIn : parameter;
        }
        const QString number = request.parameters[row].value();
        if (isCounter(request.parameters[row]) && isCounter(parameter) && parameter.value() == number)
            parameter.setValue(rules::incrementNumber(number));
    }
    return forms::withComputedValues(stored, before, momentOf(request));
}

FilenameParameters withNumbersReturned(FilenameParameters stored, const ProjectRequest &request)
{
    const FilenameParameters before = stored;
    for (qsizetype row = 0; row < request.parameters.size(); ++row) {
        const auto there = parameterlist::rowOfSame(request.parameters, row, stored);
        const QString number = request.parameters[row].value();
        if (there && isCounter(request.parameters[row]) && isCounter(stored[*there]) &&
            stored[*there].value() == rules::incrementNumber(number))
            stored[*there].setValue(number);
    }
    return forms::withComputedValues(stored, before, momentOf(request));
}

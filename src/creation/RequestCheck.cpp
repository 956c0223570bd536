#include "creation/RequestCheck.h"

#include "parameters/ParameterStore.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "support/Settings.h"

#include <QCoreApplication>

using platform::Cause;
using platform::formatString;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RequestCheck)
};

std::optional<RequestProblem> problemOfNames(const ProjectRequest &request, TooLongLevels tooLong)
{
    QString why;
    if (request.relativePath().isEmpty())
        why = Text::tr("You must specify at least one parameter.");
    else if (naming::hasUnusableLevel(request.levels()))
        why = Text::tr("The values give a folder level without a usable name (nothing, or dots only). Please change "
                       "them.");
    else if (const QStringList levels = naming::tooLongLevels(request.levels());
             !levels.isEmpty() && tooLong == TooLongLevels::AreProblems)
        why = Text::tr("The name of a folder can have 255 bytes, and this one has %1. Please shorten a value.")
                  .arg(platform::toNative(levels.constFirst()).size());
    if (why.isNull())
        return std::nullopt;
    return RequestProblem{Text::tr("Unable to create folder"), why};
}

} // namespace

std::optional<RequestProblem> problemOf(const ProjectRequest &request, TooLongLevels tooLong)
{
    if (const auto blank = naming::firstBlankRequired(request.parameters))
        return RequestProblem{formatString(Text::tr("'%@' cannot be left blank"), request.parameters[*blank].title()),
                              Text::tr("Please fill in this parameter before creating a project."), *blank};
    if (const auto counter = rules::firstCounterAtItsEnd(request.parameters))
        return RequestProblem{
            formatString(Text::tr("'%@' cannot count any further"), request.parameters[*counter].title()),
            Text::tr("Its number has too many digits: counters end at 2147483646. A date in front of a number is "
                     "better a parameter of its own."),
            *counter};
    for (qsizetype row = 0; row < request.parameters.size(); ++row) {
        const FilenameParameter &parameter = request.parameters[row];
        QString why = forms::problemOf(parameter);
        if (why.isNull())
            why = forms::problemOfComputed(request.parameters, row, {request.dateFormat, request.moment});
        if (!why.isNull())
            return RequestProblem{formatString(Text::tr("'%@' has to be changed"), parameter.title()), why, row};
    }
    return problemOfNames(request, tooLong);
}

std::optional<RequestProblem> problemOf(const ProjectRequest &request)
{
    return problemOf(request, TooLongLevels::AreProblems);
}

platform::Result<ProjectRequest> withNamedValue(const ProjectRequest &request, const QString &title,
                                                const QString &value, bool strictNaming)
{
    QStringList titles;
    for (const FilenameParameter &parameter : request.parameters)
        titles.append(parameter.title());
    const qsizetype row = titles.indexOf(title);
    QString problem;
    if (row < 0)
        problem = Text::tr("There is no parameter “%1”. %2").arg(title, listed(titles));
    else if (request.parameters[row].isLocked())
        problem = Text::tr("The parameter “%1” is locked.").arg(title);
    else if (request.parameters[row].kind() == FilenameParameter::Kind::Choice &&
             !request.parameters[row].takesSeveral() && !request.parameters[row].choices().contains(value))
        problem = Text::tr("“%1” is not among the choices of “%2”. %3")
                      .arg(value, title, listed(request.parameters[row].choices()));
    if (!problem.isNull())
        return Outcome::failure(Cause::Invalid, {}, problem);
    return withTypedValue(request, row, value, strictNaming);
}

platform::Result<ProjectRequest> freshRequest(const QString &library, const QString &templateName)
{
    const QString bundle = library + formatString("/%@.tzt", templateName);
    const auto use = studio::useCopy();
    const bool isOther = (library == studio::copiedTemplates()) != studio::decidesTemplates(); // since it was chosen
    if (!use || isOther)
        return platform::Outcome::failure(platform::Cause::Busy, {},
                                          Text::tr("The studio’s templates are just being brought up to date. Please "
                                                   "try again in a moment."));
    const auto rules = readRules(bundle);
    if (!rules)
        return rules.outcome();
    ProjectRequest request;
    request.use = *use;
    request.templateName = templateName;
    request.templateFiles = platform::joined(bundle, QStringLiteral("Files"));
    request.rules = std::make_shared<const TemplateRules>(*rules);
    request.parameters = currentParameters(scopeOf(request));
    request.separator = settings::separatorChar.text();
    request.dateFormat = settings::dateFormat.text();
    request.moment = std::time(nullptr);
    return request;
}

QString listed(const QStringList &names)
{
    return names.isEmpty() ? Text::tr("There are none.")
                           : Text::tr("There are: %1.").arg(names.join(QStringLiteral(", ")));
}

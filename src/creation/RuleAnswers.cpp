// What rules answer to values: whether conditions hold, how often a repeat goes round.
#include "creation/TemplateRules.h"

#include "parameters/ValueForms.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TemplateRules)
};

std::optional<double> numberIn(const QString &value)
{
    bool isNumber = false;
    const double number = value.trimmed().replace(u',', u'.').toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// Dates as 2026-11-21 compare as they stand.
bool isDate(const QString &value)
{
    return value.size() == 10 && value[4] == u'-' && value[7] == u'-';
}

Verdict isGreater(const Condition &condition, const QString &value)
{
    if (value.trimmed().isEmpty())
        return {false};
    if (isDate(value) && isDate(condition.value))
        return {value > condition.value};
    const auto number = numberIn(value);
    const auto limit = numberIn(condition.value);
    if (!number || !limit)
        return {false, Text::tr("“%1” is compared by size, and “%2” is no number.")
                           .arg(condition.parameter, number ? condition.value : value)};
    return {*number > *limit};
}

Verdict verdictOf(const Condition &condition, const tokens::Values &values)
{
    const tokens::Value *found = values.find(condition.parameter);
    if (!found)
        return {false,
                Text::tr("A condition asks for the parameter “%1”, which there is none of.").arg(condition.parameter)};
    const QString &value = found->text;
    switch (condition.is) {
    case Condition::Is::Is:
        return {value.compare(condition.value, Qt::CaseInsensitive) == 0};
    case Condition::Is::IsNot:
        return {value.compare(condition.value, Qt::CaseInsensitive) != 0};
    case Condition::Is::Contains:
        return {value.contains(condition.value, Qt::CaseInsensitive)};
    case Condition::Is::IsEmpty:
        return {value.isEmpty()};
    case Condition::Is::IsNotEmpty:
        return {!value.isEmpty()};
    case Condition::Is::IsGreater:
        return isGreater(condition, value);
    }
    return {};
}

} // namespace

Verdict verdictOf(const Conditions &conditions, const tokens::Values &values)
{
    const bool isAny = conditions.join == Conditions::Join::Any;
    Verdict result{!isAny || conditions.tests.isEmpty()};
    for (const Condition &condition : conditions.tests) {
        const Verdict verdict = verdictOf(condition, values);
        if (!verdict.problem.isNull())
            return verdict;
        result.holds = isAny ? result.holds || verdict.holds : result.holds && verdict.holds;
    }
    return result;
}

QStringList listedValues(const QString &value)
{
    return forms::parts(value);
}

Rounds roundsOf(const Repeat &repeat, const tokens::Values &values, std::size_t most)
{
    const tokens::Value *found = values.find(repeat.parameter);
    if (!found)
        return {{}, Text::tr("A repeat asks for the parameter “%1”, which there is none of.").arg(repeat.parameter)};
    if (repeat.over == Repeat::Over::Values)
        return {listedValues(found->text)};
    bool isNumber = false;
    const qlonglong count = found->text.trimmed().toLongLong(&isNumber);
    if (found->text.trimmed().isEmpty())
        return {{}, Text::tr("“%1” has no value yet: how many?").arg(repeat.parameter)};
    if (!isNumber || count < 0)
        return {{}, Text::tr("“%1” is no number to count to: %2").arg(repeat.parameter, found->text)};
    if (count > static_cast<qlonglong>(mostRepeated))
        return {{}, Text::tr("“%1” is too large a number: %2").arg(repeat.parameter, found->text)};
    Rounds rounds;
    const qlonglong last = qMin(count, static_cast<qlonglong>(most) + 1);
    for (qlonglong number = 1; number <= last; ++number)
        rounds.values.append(QString::number(number));
    return rounds;
}

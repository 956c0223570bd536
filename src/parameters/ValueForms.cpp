#include "parameters/ValueForms.h"

#include "parameters/Tokens.h"
#include "platform/base/NativePath.h"

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace forms {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ValueForms)
};

QRegularExpression expressionOf(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::UseUnicodePropertiesOption);
}

bool isWholeNumber(const QString &value)
{
    static const QRegularExpression number(QStringLiteral("^-?[0-9]{1,18}$"));
    return number.match(value).hasMatch();
}

QString problemOfForm(const FilenameParameter &parameter)
{
    const QString &value = parameter.value();
    if (parameter.form() == number && !isWholeNumber(value))
        return Text::tr("This must be a whole number.");
    if (parameter.form() == date && !QDate::fromString(value, Qt::ISODate).isValid())
        return Text::tr("This must be a date as 2026-11-21.");
    return {};
}

QString problemOfChoices(const FilenameParameter &parameter)
{
    if (!parameter.takesSeveral())
        return {};
    const QStringList choices = parameter.choices();
    for (const QString &part : parts(parameter.value())) {
        if (!choices.contains(part))
            return Text::tr("“%1” is not among the choices.").arg(part);
    }
    return {};
}

bool hasComputed(const FilenameParameters &list)
{
    return std::any_of(list.begin(), list.end(),
                       [](const FilenameParameter &parameter) { return !parameter.computed().isEmpty(); });
}

qsizetype rowOf(const FilenameParameters &list, const QString &title)
{
    const auto found = std::find_if(list.begin(), list.end(), [&](const FilenameParameter &parameter) {
        return parameter.title().compare(title, Qt::CaseInsensitive) == 0;
    });
    return found == list.end() ? -1 : found - list.begin();
}

QList<qsizetype> dependenciesOf(const FilenameParameters &list, qsizetype row)
{
    QList<qsizetype> rows;
    for (const tokens::Piece &piece : tokens::piecesOf(list[row].computed()).pieces) {
        if (!piece.token)
            continue;
        const qsizetype whole = rowOf(list, piece.token->whole);
        rows.append(whole >= 0 ? whole : rowOf(list, piece.token->title));
    }
    return rows;
}

bool dependsOnItself(const FilenameParameters &list, qsizetype row)
{
    QSet<qsizetype> seen;
    QList<qsizetype> open = dependenciesOf(list, row);
    while (!open.isEmpty()) {
        const qsizetype next = open.takeLast();
        if (next == row)
            return true;
        if (next < 0 || seen.contains(next))
            continue;
        seen.insert(next);
        open += dependenciesOf(list, next);
    }
    return false;
}

tokens::Filled computedValue(const FilenameParameters &list, qsizetype row, const Moment &moment)
{
    if (dependsOnItself(list, row))
        return {{}, Text::tr("It is computed from itself, by way of others.")};
    tokens::Values values;
    tokens::addTo(values, list, moment.dateFormat, moment.now);
    tokens::Filled value = tokens::filled(list[row].computed(), values);
    value.text = inLetterCase(list[row], value.text);
    return value;
}

} // namespace

QString problemOf(const FilenameParameter &parameter)
{
    const QString value = parameter.value();
    if (value.isEmpty())
        return {};
    if (const QString problem = problemOfForm(parameter) + problemOfChoices(parameter); !problem.isEmpty())
        return problem;
    if (const qsizetype most = parameter.maxLength(); most > 0 && value.toUcs4().size() > most)
        return Text::tr("This may have %1 characters, and has %2.").arg(most).arg(value.toUcs4().size());
    if (parameter.pattern().isEmpty())
        return {};
    const QRegularExpression expression = expressionOf(parameter.pattern());
    if (!expression.isValid())
        return Text::tr("The parameter’s pattern is wrong: %1").arg(expression.errorString());
    if (expression.match(value).hasMatch())
        return {};
    return parameter.patternMessage().isEmpty() ? Text::tr("This does not fit the pattern %1.").arg(parameter.pattern())
                                                : parameter.patternMessage();
}

QString problemOfPattern(const QString &pattern)
{
    const QRegularExpression expression = expressionOf(pattern);
    return expression.isValid() ? QString() : expression.errorString();
}

QString inLetterCase(const FilenameParameter &parameter, const QString &typed)
{
    const QString letterCase = parameter.letterCase();
    if (letterCase != u"upper" && letterCase != u"lower" && letterCase != u"title")
        return typed;
    tokens::Values values;
    values.add(QStringLiteral("v"), {typed});
    return tokens::filled(QStringLiteral("{v|%1}").arg(letterCase), values).text;
}

QString nameValue(const FilenameParameter &parameter)
{
    const QString value = parameter.value();
    return parameter.form() == folder && value.contains(u'/') ? platform::lastComponent(value) : value;
}

QStringList parts(const QString &value)
{
    QStringList found;
    for (const QString &part : value.split(u',')) {
        if (!part.trimmed().isEmpty())
            found.append(part.trimmed());
    }
    return found;
}

bool isComputed(const FilenameParameters &list, qsizetype row, const Moment &moment)
{
    return !list[row].computed().isEmpty() && list[row].value() == computedValue(list, row, moment).text;
}

QString problemOfComputed(const FilenameParameters &list, qsizetype row, const Moment &moment)
{
    if (list[row].computed().isEmpty() || !list[row].value().isEmpty()) // what was typed does in its place
        return {};
    return computedValue(list, row, moment).problem;
}

/// One may be computed from another: those come first.
FilenameParameters withComputedValues(FilenameParameters list, const FilenameParameters &before, const Moment &moment,
                                      std::optional<qsizetype> typedRow)
{
    if (!hasComputed(list))
        return list;
    QList<qsizetype> rows;
    for (qsizetype row = 0; row < list.size(); ++row) {
        if (list[row].computed().isEmpty())
            continue;
        const bool isTyped = typedRow == row && !list[row].value().isEmpty();
        const bool wasFollowing = row >= before.size() || before[row].title() != list[row].title() ||
                                  before[row].value().isEmpty() || isComputed(before, row, moment);
        const bool isSameAsBefore = row < before.size() && before[row].value() == list[row].value();
        if (!isTyped && (list[row].value().isEmpty() || (wasFollowing && isSameAsBefore)))
            rows.append(row);
    }
    for (qsizetype pass = 0; pass < rows.size(); ++pass) { // at the latest after so many each has what it depends on
        bool hasChanged = false;
        for (const qsizetype row : std::as_const(rows)) {
            const tokens::Filled value = computedValue(list, row, moment);
            const QString text = value.ok() ? value.text : QString(QLatin1String(""));
            hasChanged = hasChanged || text != list[row].value();
            list[row].setValue(text);
        }
        if (!hasChanged)
            break;
    }
    return list;
}

} // namespace forms

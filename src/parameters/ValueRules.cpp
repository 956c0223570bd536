#include "parameters/ValueRules.h"

#include "parameters/ValueForms.h"
#include "platform/base/LocalTime.h"

namespace rules {
namespace {

bool isStrictlyAllowed(QChar character)
{
    const char16_t c = character.unicode();
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'-' || c == u'_';
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// Leading digits as a 32-bit signed integer, one more; it wraps as such integers do.
QString nextNumber(QStringView digits)
{
    qint64 number = 0;
    for (const QChar digit : digits) {
        if (!isDigit(digit))
            break;
        number = qMin<qint64>(number * 10 + digit.digitValue(), INT32_MAX);
    }
    return QString::number(static_cast<qint32>(static_cast<quint32>(number) + 1U));
}

} // namespace

QString strictlyNamed(const QString &typed, bool *keptTyped)
{
    QString stripped;
    for (const QChar character : typed) {
        if (isStrictlyAllowed(character))
            stripped.append(character);
    }
    if (keptTyped)
        *keptTyped = stripped.isEmpty();
    return stripped.isEmpty() ? typed : stripped;
}

QStringList historyWith(QStringList history, const QString &value)
{
    history.removeAll(value);
    while (history.size() > historyLimit - 1)
        history.removeLast();
    history.prepend(value);
    return history;
}

FilenameParameter withTypedValue(FilenameParameter parameter, const QString &typed, bool strictNaming, bool *keptTyped)
{
    const bool isPath = parameter.form() == forms::folder; // its blanks and slashes are its own
    const QString shaped = forms::inLetterCase(parameter, typed);
    const QString value = strictNaming && !isPath ? strictlyNamed(shaped, keptTyped) : shaped;
    parameter.setValue(value);
    if (parameter.savesHistory() && !value.isEmpty())
        parameter.setHistory(historyWith(parameter.history(), value));
    return parameter;
}

QString padNumberString(const QString &number, qsizetype length)
{
    return number.rightJustified(length, u'0');
}

QString incrementNumber(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isDigit))
        return padNumberString(nextNumber(text), text.size());
    qsizetype start = text.size();
    while (start > 0 && text[start - 1].isLetterOrNumber())
        --start;
    const QStringView tail = QStringView(text).sliced(start);
    if (tail.isEmpty() || !isDigit(tail.back()))
        return text;
    const auto firstDigit = std::find_if(tail.begin(), tail.end(), isDigit);
    const QStringView digits = tail.sliced(firstDigit - tail.begin());
    return text.chopped(digits.size()) + padNumberString(nextNumber(digits), digits.size());
}

bool isAtItsEnd(const FilenameParameter &parameter)
{
    return parameter.kind() == FilenameParameter::Kind::Counter &&
           incrementNumber(parameter.value()).contains(QLatin1String("-2147483648"));
}

std::optional<qsizetype> firstCounterAtItsEnd(const FilenameParameters &parameters)
{
    const auto first = std::find_if(parameters.begin(), parameters.end(), isAtItsEnd);
    return first == parameters.end() ? std::nullopt : std::optional(first - parameters.begin());
}

QString revertedValue(const FilenameParameter &parameter)
{
    if (parameter.kind() == FilenameParameter::Kind::Choice)
        return parameter.choices().value(0, QLatin1String(""));
    return parameter.defaultValue();
}

QString dateValue(const QString &format, std::time_t now)
{
    const QString value = platform::formatDate(format.isEmpty() ? QStringLiteral("%Y-%m-%d") : format, now);
    return value.isEmpty() ? QString() : value;
}

QString automaticValue(const FilenameParameter &parameter, const AutomaticValues &values)
{
    if (parameter.kind() == FilenameParameter::Kind::Date)
        return values.date;
    return parameter.kind() == FilenameParameter::Kind::UserName ? values.userName : QString();
}

bool isTypedOver(const FilenameParameter &parameter, const AutomaticValues &values)
{
    const QString automatic = automaticValue(parameter, values);
    return !automatic.isNull() && parameter.value() != automatic;
}

FilenameParameters withDynamicValues(FilenameParameters parameters, const AutomaticValues &values)
{
    for (FilenameParameter &parameter : parameters) {
        if (isTypedOver(parameter, values))
            parameter.setValue(automaticValue(parameter, values));
    }
    return parameters;
}

FilenameParameters withDynamicValues(FilenameParameters parameters, const FilenameParameters &known,
                                     const AutomaticValues &before, const AutomaticValues &values)
{
    for (FilenameParameter &parameter : parameters) {
        const bool wasThere = std::any_of(known.begin(), known.end(), [&](const FilenameParameter &other) {
            return other.title() == parameter.title() && other.kind() == parameter.kind();
        });
        if ((!wasThere || !isTypedOver(parameter, before)) && isTypedOver(parameter, values))
            parameter.setValue(automaticValue(parameter, values));
    }
    return parameters;
}

FilenameParameters withHistoryCleared(FilenameParameters parameters)
{
    for (FilenameParameter &parameter : parameters) {
        parameter.removeHistory();
        if (parameter.hasDefaultValue() && !parameter.keepsValue())
            parameter.setValue(parameter.defaultValue());
    }
    return parameters;
}

FilenameParameters withHistoryOf(FilenameParameters parameters, const FilenameParameters &before)
{
    for (FilenameParameter &parameter : parameters) {
        const auto same = std::find_if(before.begin(), before.end(),
                                       [&](const auto &other) { return other.title() == parameter.title(); });
        if (same == before.end())
            continue;
        if (parameter.history().isEmpty() && !same->history().isEmpty())
            parameter.setHistory(same->history());
        if (parameter.value() == parameter.defaultValue() && !parameter.keepsValue())
            parameter.setValue(same->value());
    }
    return parameters;
}

FilenameParameters asLoaded(FilenameParameters parameters)
{
    for (FilenameParameter &parameter : parameters) {
        if (!parameter.savesHistory() && !parameter.keepsValue() && parameter.hasDefaultValue())
            parameter.setValue(parameter.defaultValue());
        else if (!parameter.savesHistory() && !parameter.computed().isEmpty())
            parameter.setValue(QString()); // computed anew
    }
    return parameters;
}

} // namespace rules

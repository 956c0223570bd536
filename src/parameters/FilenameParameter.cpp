#include "parameters/FilenameParameter.h"

#include <algorithm>

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

qlonglong integerOf(const QVariant &value)
{
    const bool counts = isNumber(value) || value.typeId() == QMetaType::QString;
    return counts ? value.toLongLong() : 0;
}

} // namespace

QString FilenameParameter::text(const char *key) const
{
    const QVariant value = m_record.value(QLatin1String(key));
    if (value.typeId() == QMetaType::QString || isNumber(value))
        return value.toString();
    return QLatin1String("");
}

bool FilenameParameter::flag(const char *key) const
{
    return integerOf(m_record.value(QLatin1String(key))) != 0;
}

FilenameParameter::Kind FilenameParameter::kind() const
{
    const qlonglong type = integerOf(m_record.value(QLatin1String(recordkey::kind)));
    return type < 0 || type > 5 ? Kind::Text : static_cast<Kind>(type);
}

bool FilenameParameter::isBlank() const
{
    const QVariant value = m_record.value(QLatin1String(recordkey::value));
    return !value.isValid() || (value.typeId() == QMetaType::QString && value.toString().isEmpty());
}

QStringList FilenameParameter::choices() const
{
    return defaultValue().isEmpty() ? QStringList() : defaultValue().split(u',');
}

bool FilenameParameter::isLocked() const
{
    return integerOf(m_record.value(QLatin1String(recordkey::locked))) == 1;
}

QString FilenameParameter::computed() const
{
    const bool isFree = kind() == Kind::Text || kind() == Kind::OtherText;
    return isFree ? text(recordkey::computed) : QString();
}

qsizetype FilenameParameter::maxLength() const
{
    return static_cast<qsizetype>(qBound(0LL, integerOf(m_record.value(QLatin1String(recordkey::maxLength))), 255LL));
}

QStringList FilenameParameter::history() const
{
    QStringList history;
    const QVariant stored = m_record.value(QLatin1String(recordkey::history));
    if (stored.typeId() != QMetaType::QVariantList && stored.typeId() != QMetaType::QStringList)
        return history;
    for (const QVariant &value : stored.toList()) {
        if (value.typeId() == QMetaType::QString)
            history.append(value.toString());
    }
    return history;
}

void FilenameParameter::setHistory(const QStringList &history)
{
    QVariantList list;
    for (const QString &value : history)
        list.append(value);
    setEntry(QLatin1String(recordkey::history), list);
}

FilenameParameters parametersFromVariant(const QVariant &stored)
{
    FilenameParameters parameters;
    if (stored.typeId() != QMetaType::QVariantList)
        return parameters;
    for (const QVariant &record : stored.toList()) {
        if (record.typeId() == QMetaType::QVariantMap)
            parameters.append(FilenameParameter(record.toMap()));
    }
    return parameters;
}

QVariantList variantFromParameters(const FilenameParameters &parameters)
{
    QVariantList list;
    for (const FilenameParameter &parameter : parameters)
        list.append(parameter.record());
    return list;
}

namespace {

/// The one of the same title and kind, of several the one at the same place among them; null without one.
const FilenameParameter *ownOf(const FilenameParameters &definitions, qsizetype row, const FilenameParameters &own)
{
    const auto isSame = [&definition = definitions[row]](const FilenameParameter &other) {
        return other.title() == definition.title() && other.kind() == definition.kind();
    };
    auto before = std::count_if(definitions.begin(), definitions.begin() + row, isSame);
    for (const FilenameParameter &other : own) {
        if (isSame(other) && before-- == 0)
            return &other;
    }
    return nullptr;
}

} // namespace

FilenameParameters withOwnValues(FilenameParameters definitions, const FilenameParameters &own)
{
    using Kind = FilenameParameter::Kind;
    const FilenameParameters given = definitions;
    for (qsizetype row = 0; row < definitions.size(); ++row) {
        FilenameParameter &definition = definitions[row];
        const FilenameParameter *mine = ownOf(given, row, own);
        if (!mine || (definition.isLocked() && definition.kind() != Kind::Counter)) // which counts by itself
            continue;
        const bool isOffered = definition.kind() != Kind::Choice || definition.takesSeveral() ||
                               definition.choices().contains(mine->value());
        const QVariant value = mine->entry(QLatin1String(recordkey::value));
        if (isOffered && value.isValid())
            definition.setEntry(QLatin1String(recordkey::value), value);
        if (definition.savesHistory() && !mine->history().isEmpty())
            definition.setHistory(mine->history());
    }
    return definitions;
}

FilenameParameters withoutOwnValues(FilenameParameters parameters)
{
    for (FilenameParameter &parameter : parameters) {
        parameter.removeHistory();
        if (parameter.isLocked() && parameter.kind() != FilenameParameter::Kind::Counter)
            continue; // its value is part of the definition
        const QStringList choices = parameter.choices();
        parameter.setValue(parameter.kind() == FilenameParameter::Kind::Choice ? choices.value(0)
                                                                               : parameter.defaultValue());
    }
    return parameters;
}

#include "parameters/ParameterScope.h"

#include <algorithm>

namespace {

constexpr const char *keptKeys[] = {recordkey::value, recordkey::history};

bool isOwn(const ParameterScope &scope, const QString &title)
{
    return std::any_of(scope.own.begin(), scope.own.end(),
                       [&](const FilenameParameter &parameter) { return parameter.title() == title; });
}

bool isThere(const ParameterScope &scope, const QString &title)
{
    return !scope.hidden.contains(title) && !isOwn(scope, title);
}

void takeEntries(const QVariantMap &from, FilenameParameter &to)
{
    for (const char *key : keptKeys) {
        if (const QVariant entry = from.value(QLatin1String(key)); entry.isValid())
            to.setEntry(QLatin1String(key), entry);
    }
}

} // namespace

FilenameParameters effectiveParameters(const FilenameParameters &common, const ParameterScope &scope,
                                       const QVariantMap &ownValues)
{
    FilenameParameters list;
    for (FilenameParameter parameter : common) {
        const QString title = parameter.title();
        if (!isThere(scope, title))
            continue;
        if (scope.fixed.contains(title)) {
            parameter.setValue(scope.fixed.value(title).toString());
            parameter.setEntry(QLatin1String(recordkey::locked), 1LL);
            parameter.setEntry(QLatin1String(recordkey::fixedByTemplate), true);
        }
        list.append(parameter);
    }
    for (FilenameParameter parameter : scope.own) {
        takeEntries(ownValues.value(parameter.title()).toMap(), parameter);
        parameter.setEntry(QLatin1String(recordkey::ownOfTemplate), true);
        list.append(parameter);
    }
    return list;
}

/// The rows of both lists go together one by one: nothing comes or goes while values change.
KeptParameters keptParameters(const FilenameParameters &effective, const FilenameParameters &common,
                              const ParameterScope &scope)
{
    KeptParameters kept{common, {}};
    auto next = effective.begin();
    for (FilenameParameter &parameter : kept.common) {
        if (!isThere(scope, parameter.title()))
            continue;
        if (next == effective.end() || next->title() != parameter.title())
            return {common, {}};
        if (!next->isFixedByTemplate())
            parameter = *next;
        ++next;
    }
    for (; next != effective.end(); ++next) {
        QVariantMap values;
        for (const char *key : keptKeys) {
            if (const QVariant entry = next->entry(QLatin1String(key)); entry.isValid())
                values.insert(QLatin1String(key), entry);
        }
        kept.ownValues.insert(next->title(), values);
    }
    return kept;
}

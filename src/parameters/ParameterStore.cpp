#include "parameters/ParameterStore.h"

#include "parameters/ProjectNaming.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

using platform::Outcome;

namespace {

/// What the studio has locked are the definitions; values, numbers and memories are each user's own.
FilenameParameters listFrom(const QVariant &stored)
{
    if (!settings::filenameTemplate.isLocked())
        return parametersFromVariant(stored);
    const QVariant kept = settings::standard().usersValue(settings::studioParameterValues);
    return withOwnValues(
        parametersFromVariant(settings::filenameTemplate.value()),
        parametersFromVariant(kept.isValid() ? kept : settings::standard().usersValue(settings::filenameTemplate)));
}

/// Where the list is kept: beside the studio's definitions the user's own list stays as it was.
const settings::Setting &placeOfList()
{
    return settings::filenameTemplate.isLocked() ? settings::studioParameterValues : settings::filenameTemplate;
}

} // namespace

FilenameParameters storedParameters()
{
    return listFrom(settings::filenameTemplate.value());
}

FilenameParameters storedParameters(const ParameterScope &scope)
{
    if (scope.isEmpty())
        return storedParameters();
    return effectiveParameters(storedParameters(), scope,
                               settings::ownParameterValues.value().toMap().value(scope.templateName).toMap());
}

FilenameParameters currentParameters(const ParameterScope &scope)
{
    const FilenameParameters list = withDynamicValues(rules::asLoaded(storedParameters(scope)));
    return forms::withComputedValues(list, list, computingMoment());
}

forms::Moment computingMoment()
{
    return {settings::dateFormat.text(), std::time(nullptr)};
}

rules::AutomaticValues automaticValues()
{
    return {rules::dateValue(settings::dateFormat.text(), std::time(nullptr)), VTLocalPaths::username()};
}

FilenameParameters withDynamicValues(FilenameParameters parameters)
{
    return rules::withDynamicValues(std::move(parameters), automaticValues());
}

Outcome changeParameters(const ListChange &change)
{
    return placeOfList().change([&](const QVariant &stored) -> platform::Result<QVariant> {
        const auto list = change(listFrom(stored));
        if (!list)
            return list.outcome();
        return QVariant(variantFromParameters(*list));
    });
}

Outcome changeParameters(const ParameterScope &scope, const ListChange &change)
{
    if (scope.isEmpty())
        return changeParameters(change);
    return settings::standard().changeValues(
        {placeOfList(), settings::ownParameterValues},
        [&](const QVariantList &stored) -> platform::Result<QVariantList> {
            const FilenameParameters common = listFrom(stored[0]);
            QVariantMap all = stored[1].toMap();
            const auto list = change(effectiveParameters(common, scope, all.value(scope.templateName).toMap()));
            if (!list)
                return list.outcome();
            const KeptParameters kept = keptParameters(*list, common, scope);
            if (!scope.own.isEmpty()) { // the template may have others by now
                QVariantMap own = all.value(scope.templateName).toMap();
                own.insert(kept.ownValues);
                all.insert(scope.templateName, own);
            }
            return QVariantList{variantFromParameters(kept.common), all.isEmpty() ? stored[1] : QVariant(all)};
        });
}

Outcome restoreShippedParameters()
{
    return settings::filenameTemplate.reset();
}

void keepDamagedParameters()
{
    const QVariant stored = settings::filenameTemplate.value();
    const bool isList = stored.typeId() == QMetaType::QVariantList;
    const auto damaged = isList ? stored.toList().size() - parametersFromVariant(stored).size() : qsizetype{0};
    if (isList && damaged == 0)
        return;
    if (isList)
        VTLog::appendLog("Leaving out %ld damaged filename parameters", damaged);
    else
        VTLog::appendLog("The filename parameters in the settings are no list; using the shipped ones");
    const Outcome kept = settings::standard().setValue(settings::filenameTemplate + QStringLiteral(".damaged"), stored);
    if (!isList && kept.ok()) // what could not be put away stays where it is
        static_cast<void>(restoreShippedParameters());
}

QString pathNameFromParameters()
{
    return naming::pathName(naming::pathComponents(storedParameters(), settings::separatorChar.text()));
}

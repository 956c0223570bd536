#include "parameters/ParameterStore.h"

#include "parameters/ProjectNaming.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

using platform::Outcome;

FilenameParameters storedParameters()
{
    return parametersFromVariant(settings::filenameTemplate.value());
}

FilenameParameters currentParameters()
{
    return withDynamicValues(rules::asLoaded(storedParameters()));
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
    return settings::filenameTemplate.change([&](const QVariant &stored) -> platform::Result<QVariant> {
        const auto list = change(parametersFromVariant(stored));
        if (!list)
            return list.outcome();
        return QVariant(variantFromParameters(*list));
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

#include "parameters/ParameterStore.h"

#include "parameters/ProjectNaming.h"
#include "support/Settings.h"
#include "support/VTLog.h"

using platform::Outcome;

FilenameParameters storedParameters()
{
    return parametersFromVariant(settings::filenameTemplate.value());
}

Outcome storeParameters(const FilenameParameters &parameters)
{
    return settings::filenameTemplate.store(variantFromParameters(parameters));
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

QStringList pathComponentsFromParameters()
{
    return naming::pathComponents(storedParameters(), settings::separatorChar.text());
}

QString pathNameFromParameters()
{
    return naming::pathName(pathComponentsFromParameters());
}

QString projectNameFromParameters()
{
    return naming::projectName(pathComponentsFromParameters());
}

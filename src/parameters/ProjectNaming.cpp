#include "parameters/ProjectNaming.h"

#include "platform/base/NativePath.h"
#include "support/VTFileManager.h"

namespace naming {

QStringList pathComponents(const FilenameParameters &parameters, const QString &separator)
{
    QStringList components;
    QString current;
    bool breakPending = false;
    for (const FilenameParameter &parameter : parameters) {
        const QString value = parameter.value();
        if (value.isEmpty()) {
            breakPending = breakPending || parameter.beginsFolder();
            continue;
        }
        if (!current.isEmpty()) {
            if (parameter.beginsFolder() || breakPending) {
                components.append(VTFileManager::validateFilename(current));
                current.clear();
                breakPending = false;
            } else {
                current += separator;
            }
        }
        current += value;
    }
    if (!current.isEmpty())
        components.append(VTFileManager::validateFilename(current));
    return components;
}

QString pathName(const QStringList &components)
{
    return QLatin1String("") + components.join(u'/');
}

QString projectName(const QStringList &components)
{
    return components.isEmpty() ? QString(QLatin1String("")) : QLatin1String("") + components.constLast();
}

QStringList tooLongLevels(const QStringList &components)
{
    QStringList tooLong = components;
    tooLong.removeIf([](const QString &level) { return platform::toNative(level).size() <= longestName; });
    return tooLong;
}

bool hasUnusableLevel(const QStringList &components)
{
    return std::any_of(components.begin(), components.end(), [](const QString &component) {
        return component.trimmed().isEmpty() || component == u"." || component == u"..";
    });
}

std::optional<qsizetype> firstBlankRequired(const FilenameParameters &parameters)
{
    for (qsizetype i = 0; i < parameters.size(); ++i) {
        if (parameters[i].isRequired() && parameters[i].isBlank())
            return i;
    }
    return std::nullopt;
}

} // namespace naming

#include "parameters/ProjectNaming.h"

#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/NativePath.h"
#include "support/VTFileManager.h"

#include <functional>

namespace naming {

namespace {

struct Composed
{
    QStringList levels;
    QList<qsizetype> levelOf; ///< of each parameter; -1 for those without a value
};

Composed composed(const FilenameParameters &parameters, const QString &separator)
{
    Composed result;
    QString current;
    bool breakPending = false;
    for (const FilenameParameter &parameter : parameters) {
        if (parameter.isOutsideName()) {
            result.levelOf.append(-1);
            continue;
        }
        const QString value = forms::nameValue(parameter);
        if (value.isEmpty()) {
            breakPending = breakPending || parameter.beginsFolder();
            result.levelOf.append(-1);
            continue;
        }
        if (!current.isEmpty()) {
            if (parameter.beginsFolder() || breakPending) {
                result.levels.append(VTFileManager::validateFilename(current));
                current.clear();
                breakPending = false;
            } else {
                current += separator;
            }
        }
        current += value;
        result.levelOf.append(result.levels.size());
    }
    if (!current.isEmpty())
        result.levels.append(VTFileManager::validateFilename(current));
    return result;
}

bool isTooLong(const QString &level)
{
    return platform::toNative(level).size() > platform::longestName;
}

bool isUnusable(const QString &level)
{
    return level.trimmed().isEmpty() || level == u"." || level == u"..";
}

} // namespace

QStringList pathComponents(const FilenameParameters &parameters, const QString &separator)
{
    return composed(parameters, separator).levels;
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
    tooLong.removeIf(std::not_fn(isTooLong));
    return tooLong;
}

bool hasUnusableLevel(const QStringList &components)
{
    return std::any_of(components.begin(), components.end(), isUnusable);
}

QList<Problem> problems(const FilenameParameters &parameters, const QString &separator)
{
    const Composed all = composed(parameters, separator);
    QList<Problem> found(parameters.size(), Problem::None);
    QList<qsizetype> longest(all.levels.size(), -1); // parameter of each level
    for (qsizetype i = 0; i < parameters.size(); ++i) {
        const qsizetype level = all.levelOf[i];
        if (parameters[i].isRequired() && parameters[i].isBlank())
            found[i] = Problem::Blank;
        else if (rules::isAtItsEnd(parameters[i]))
            found[i] = Problem::CountsNoFurther;
        else if (!forms::problemOf(parameters[i]).isNull())
            found[i] = Problem::Form;
        if (level >= 0 &&
            (longest[level] < 0 || parameters[i].value().size() > parameters[longest[level]].value().size()))
            longest[level] = i;
    }
    for (qsizetype level = 0; level < all.levels.size(); ++level) {
        if (isTooLong(all.levels[level]))
            found[longest[level]] = Problem::TooLong;
        else if (isUnusable(all.levels[level]))
            found[longest[level]] = Problem::NoName;
    }
    return found;
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

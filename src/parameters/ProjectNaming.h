#pragma once

#include "parameters/FilenameParameter.h"

#include <optional>

/** How the values compose the project's folder levels and its name. Pure functions; any thread. */
namespace naming {

/**
 * The folder levels, outermost first, each cleaned for use as a file name; empty when every value is. Values are joined
 * by the separator within a level. The folder flag of the very first value has no effect, and an empty value's flag
 * stays raised until there is a level to close, so that it splits off the value after the next one: both must stay.
 */
[[nodiscard]] QStringList pathComponents(const FilenameParameters &parameters, const QString &separator);

/** The levels joined with "/"; empty without levels. */
[[nodiscard]] QString pathName(const QStringList &components);
/** The innermost level: what replaces the word template in the names of copied items. Empty without levels. */
[[nodiscard]] QString projectName(const QStringList &components);

/** Those that are longer than platform::longestName: their folder cannot be made. */
[[nodiscard]] QStringList tooLongLevels(const QStringList &components);

/** A level that no folder can be named: nothing or blanks after cleaning, or one that leads elsewhere ("..", "."). */
[[nodiscard]] bool hasUnusableLevel(const QStringList &components);

/** What is wrong with a value where it stands. */
enum class Problem {
    None,
    Blank,           ///< a required one
    CountsNoFurther, ///< a counter whose next number would be negative
    Form,            ///< it is not what the parameter wants: forms::problemOf() says what
    TooLong,         ///< the longest of a level whose folder cannot be made
    NoName,          ///< of a level that no folder can be named
};
/** One for each parameter. */
[[nodiscard]] QList<Problem> problems(const FilenameParameters &parameters, const QString &separator);

/** The first required parameter without a value. */
[[nodiscard]] std::optional<qsizetype> firstBlankRequired(const FilenameParameters &parameters);

} // namespace naming

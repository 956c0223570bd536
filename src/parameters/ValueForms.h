#pragma once

#include "parameters/FilenameParameter.h"

#include <ctime>
#include <optional>

/** What a parameter says of its values beside its kind: what they must be, and what they become. Pure; any thread. */
namespace forms {

inline const QString number = QStringLiteral("number");
inline const QString date = QStringLiteral("date");     ///< as 2026-11-21
inline const QString folder = QStringLiteral("folder"); ///< a path; its last part enters the name

/** Why the value cannot be, in one sentence; null where it can, or is empty. */
[[nodiscard]] QString problemOf(const FilenameParameter &parameter);
/** Why the pattern is none; null when it is one. */
[[nodiscard]] QString problemOfPattern(const QString &pattern);

/** What was typed, in the letter case that is wanted. */
[[nodiscard]] QString inLetterCase(const FilenameParameter &parameter, const QString &typed);

/** What enters the name. */
[[nodiscard]] QString nameValue(const FilenameParameter &parameter);

/** The values between commas, without blanks around: several choices are kept with ", " between them. */
[[nodiscard]] QStringList parts(const QString &value);

/** When values are computed, and in which format dates are. */
struct Moment
{
    QString dateFormat;
    std::time_t now = 0;
};
/**
 * The list with what is computed from other values. What was typed in place of it stays, as was seen before: a value
 * that is neither empty nor what was computed then. The row that has just been typed, where there is one, stays too,
 * unless it was emptied.
 */
[[nodiscard]] FilenameParameters withComputedValues(FilenameParameters list, const FilenameParameters &before,
                                                    const Moment &moment, std::optional<qsizetype> typedRow = {});
/** Whether the value is the computed one. */
[[nodiscard]] bool isComputed(const FilenameParameters &list, qsizetype row, const Moment &moment);
/** Why nothing can be computed, in one sentence: a title that is not there, a value that depends on itself. */
[[nodiscard]] QString problemOfComputed(const FilenameParameters &list, qsizetype row, const Moment &moment);

} // namespace forms

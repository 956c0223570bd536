#pragma once

#include <QString>
#include <ctime>
#include <optional>

namespace platform {

/** Local time with a numeric zone offset: "2011-05-03 14:22:10 +0100". Any thread. */
[[nodiscard]] QString dateDescription(std::time_t moment);
[[nodiscard]] QString currentDateDescription();

/**
 * The moment in local time by a strftime format, with English names whatever the locale. Every directive of strftime(3)
 * works, with GNU's flags; %e is the day of the month with neither a leading zero nor a leading blank.
 */
[[nodiscard]] QString formatDate(const QString &format, std::time_t moment);

/** The first second of the day that the text names by the format, with English names; nothing where it names none. */
[[nodiscard]] std::optional<std::time_t> dayOf(const QString &text, const QString &format);

/** What is wrong with a format that a person typed. */
enum class DateFormatProblem { None, NoDate, CutOff, UnknownLetter };
/** Whether every directive of the format is one of strftime(3), and there is one at all. Pure. */
[[nodiscard]] DateFormatProblem problemOfDateFormat(const QString &format);

} // namespace platform

#pragma once

#include "parameters/FilenameParameter.h"

#include <optional>

#include <ctime>

/** How values change: typed, counted up, refreshed, reverted. Pure functions; any thread. */
namespace rules {

inline constexpr qsizetype historyLimit = 50;

/** The text reduced to 0-9, a-z, A-Z, "-" and "_"; as typed when nothing would remain, which keptTyped then says. */
[[nodiscard]] QString strictlyNamed(const QString &typed, bool *keptTyped = nullptr);

/** The remembered values with this one in front, once, at most historyLimit of them. */
[[nodiscard]] QStringList historyWith(QStringList history, const QString &value);

/** The parameter with a value typed into its row: strict naming where it is on, then the history where it is kept. */
[[nodiscard]] FilenameParameter withTypedValue(FilenameParameter parameter, const QString &typed, bool strictNaming,
                                               bool *keptTyped = nullptr);

/**
 * "Job-041" becomes "Job-042", "" becomes "1", "Cut" stays. The number is read from the first digit of the last
 * alphanumeric run, so that "A1B2" becomes "A002": this must stay. Numbers are 32-bit and signed.
 */
[[nodiscard]] QString incrementNumber(const QString &text);
/** Whether it is a counter whose number is the largest of 32 bits or beyond: its next one would be negative. */
[[nodiscard]] bool isAtItsEnd(const FilenameParameter &parameter);
/** The first of these. */
[[nodiscard]] std::optional<qsizetype> firstCounterAtItsEnd(const FilenameParameters &parameters);
/** With "0" in front until it has the length. */
[[nodiscard]] QString padNumberString(const QString &number, qsizetype length);

/** The default value; of a choice list the first choice. */
[[nodiscard]] QString revertedValue(const FilenameParameter &parameter);

/** Today by the format, or by "%Y-%m-%d" when that is empty; null when formatting yields nothing. */
[[nodiscard]] QString dateValue(const QString &format, std::time_t now);

/** What the program fills in by itself; a null one leaves a value as it is. */
struct AutomaticValues
{
    QString date;
    QString userName;

    bool operator==(const AutomaticValues &) const = default;
};
/** Null for the kinds that are not automatic. */
[[nodiscard]] QString automaticValue(const FilenameParameter &parameter, const AutomaticValues &values);
/** Whether somebody has typed another value in place of the automatic one. */
[[nodiscard]] bool isTypedOver(const FilenameParameter &parameter, const AutomaticValues &values);

// The whole list.
[[nodiscard]] FilenameParameters withDynamicValues(FilenameParameters parameters, const AutomaticValues &values);
/** The same, but what was typed over stays: values that are not the ones of before, of parameters that were known and
 * automatic by then. */
[[nodiscard]] FilenameParameters withDynamicValues(FilenameParameters parameters, const FilenameParameters &known,
                                                   const AutomaticValues &before, const AutomaticValues &values);
[[nodiscard]] FilenameParameters withHistoryCleared(FilenameParameters parameters);
/** What clearing took from a list comes back into what it is now: histories that are empty, values that are the
 * default. */
[[nodiscard]] FilenameParameters withHistoryOf(FilenameParameters parameters, const FilenameParameters &before);
/** As at start-up: values without history go back to their defaults, counters and choices stay. */
[[nodiscard]] FilenameParameters asLoaded(FilenameParameters parameters);

} // namespace rules

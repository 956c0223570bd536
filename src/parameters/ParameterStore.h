#pragma once

#include "parameters/ParameterScope.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/Outcome.h"

#include <functional>

/**
 * The list of parameters as it is kept in the settings, where windows and commands share it: whoever changes it says
 * what becomes of the list as it is at that moment, never what it was when they last looked. Any thread.
 */

[[nodiscard]] FilenameParameters storedParameters();
/** As a template has it. */
[[nodiscard]] FilenameParameters storedParameters(const ParameterScope &scope);
/** As the list is when the program starts: defaults in place of values that nobody keeps, today's date, the user. */
[[nodiscard]] FilenameParameters currentParameters(const ParameterScope &scope = {});
/** What values are computed with: today, and the format of the settings. */
[[nodiscard]] forms::Moment computingMoment();
/** Today's date in the format of the settings, and the user's name. */
[[nodiscard]] rules::AutomaticValues automaticValues();
/** The list with these. */
[[nodiscard]] FilenameParameters withDynamicValues(FilenameParameters parameters);

using ListChange = std::function<platform::Result<FilenameParameters>(FilenameParameters)>;
/**
 * Stores what the function makes of the stored list; what it refuses to change stays. It is called exactly once, under
 * the lock of the settings: of several programs at once each builds on what the others made.
 */
platform::Outcome changeParameters(const ListChange &change);
/** The same with the list as a template has it, of which only values and histories may change. */
platform::Outcome changeParameters(const ParameterScope &scope, const ListChange &change);
/** The shipped list applies again. */
platform::Outcome restoreShippedParameters();
/** What stands in place of the list and is none, or records in it that are none, is put away under another key and said
   in the log, so that nothing is lost. */
void keepDamagedParameters();

/** What a project of the stored values is called, all levels. */
[[nodiscard]] QString pathNameFromParameters();

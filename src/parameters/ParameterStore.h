#pragma once

#include "parameters/FilenameParameter.h"
#include "platform/base/Outcome.h"

/** The list of parameters as it is kept in the settings, and what follows from it at the moment of the call. Any
 * thread. */

[[nodiscard]] FilenameParameters storedParameters();
platform::Outcome storeParameters(const FilenameParameters &parameters);
/** The shipped list applies again. */
platform::Outcome restoreShippedParameters();
/** What stands in place of the list and is none, or records in it that are none, is put away under another key and said
   in the log, so that nothing is lost. */
void keepDamagedParameters();

[[nodiscard]] QStringList pathComponentsFromParameters();
[[nodiscard]] QString pathNameFromParameters();
[[nodiscard]] QString projectNameFromParameters();

#pragma once

#include <QStringList>

/**
 * The program's texts in the user's language, the toolkit's own with them. They lie in the application's bundle
 * (Translations/tessaro_LANGUAGE.qm, and qtbase_LANGUAGE.qm beside it). English is what the sources say; its file holds
 * plural forms only.
 */
namespace translations {

/** Loads the first of the desktop's languages that there is (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), else English. Once,
   on the main thread, when the application object exists and before the first text is shown. */
void load();

/** The language that was loaded, as a code of ISO 639 ("de"); "en" before. */
[[nodiscard]] QString language();

} // namespace translations

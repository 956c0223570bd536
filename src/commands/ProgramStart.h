#pragma once

#include <QStringList>

/** The words behind the program's name, byte for byte: a path need not be valid UTF-8. */
[[nodiscard]] QStringList wordsOf(int argc, char **argv);

/** What comes before anything else in main(): the locale, and reports of crashes. */
void prepareProgram();

#pragma once

/** Hints and placeholders have the text's colour, fainter, in every palette from now on: some themes leave them as they
   would be in a light one. Main thread, once, with an application. */
void keepPlaceholdersReadable();

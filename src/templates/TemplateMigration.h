#pragma once

/** The one-time move of a template of the product's first version into the library. */
namespace migration {

/** Does nothing without such a template, and where it has been moved before. Main thread. */
void importFirstVersionTemplate();

} // namespace migration

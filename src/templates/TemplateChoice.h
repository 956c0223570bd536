#pragma once

#include <QStringList>

/**
 * Which template a new project is made from: the one marked as the default, else the one used last, else the first.
 * Null when there is none. Names that are no longer in the library do not count. Pure.
 */
[[nodiscard]] QString chosenTemplate(const QStringList &templates, const QString &defaultTemplate,
                                     const QString &selectedTemplate);

/** The same, from the settings at the moment of the call. */
[[nodiscard]] QString chosenTemplate(const QStringList &templates);

#pragma once

#include "parameters/FilenameParameter.h"

/**
 * What a template makes of the common parameters: it adds some of its own after them, says the value of others, and
 * does without some. A plain value.
 */
struct ParameterScope
{
    QString templateName;
    FilenameParameters own{}; ///< takes the place of a common one of its title
    QVariantMap fixed{};      ///< values by title
    QStringList hidden{};     ///< titles

    [[nodiscard]] bool isEmpty() const { return own.isEmpty() && fixed.isEmpty() && hidden.isEmpty(); }
    bool operator==(const ParameterScope &) const = default;
};

/** The list as its projects have it. The values of its own parameters are kept by their titles. Pure. */
[[nodiscard]] FilenameParameters effectiveParameters(const FilenameParameters &common, const ParameterScope &scope,
                                                     const QVariantMap &ownValues);

/** What is kept of such a list whose values have changed: the common list and the values of its own. Pure. */
struct KeptParameters
{
    FilenameParameters common;
    QVariantMap ownValues;
};
[[nodiscard]] KeptParameters keptParameters(const FilenameParameters &effective, const FilenameParameters &common,
                                            const ParameterScope &scope);

#pragma once

#include <QStringList>

/** New names for several items at once. */
struct RenamePattern
{
    QString find;        ///< empty: the whole name, without its extension
    QString replacement; ///< a run of "#" stands for a number of that many digits at least
    int first = 1;       ///< the first item's number
};

struct RenamedItem
{
    QString name;
    qsizetype stem = 0; ///< how much of it comes before the extension; all of a folder's
};

/** In the same order; a name that does not hold what is looked for stays, and takes no number. Pure. */
[[nodiscard]] QStringList renamedItems(const QList<RenamedItem> &items, const RenamePattern &pattern);

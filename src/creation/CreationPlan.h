#pragma once

#include "templates/TreeListing.h"

#include <QStringList>

/**
 * What a creation will make, as a plain value: computed from the template's tree and the project's folder levels,
 * without looking at the disk. Pure; any thread.
 */
struct PlanItem
{
    enum class Remark {
        None,
        NameTaken,   ///< its new name belongs to a sibling: it will keep its old one
        NameTooLong, ///< its new name has more than 255 bytes: it will keep its old one
    };

    QString folder;  ///< below the project's folder, names as they will be; "" for the project's folder itself
    QString oldName; ///< in the template
    QString newName; ///< in the project
    platform::FileKind kind = platform::FileKind::Missing;
    Remark remark = Remark::None;

    [[nodiscard]] bool isRenamed() const { return oldName != newName; }
};

struct CreationPlan
{
    QStringList levels;        ///< the project's folder levels, outermost first
    QList<PlanItem> items;     ///< in listing order, a folder before what lies in it
    QStringList tooLongLevels; ///< levels whose names have more than 255 bytes: the folder cannot be made

    [[nodiscard]] qsizetype folders() const;
    [[nodiscard]] qsizetype files() const { return items.size() - folders(); }
    [[nodiscard]] qsizetype renamed() const;
};

[[nodiscard]] CreationPlan planCreation(const TreeListing &tree, const QStringList &levels);

/** Most file systems take names of 255 bytes (NAME_MAX of limits.h). */
inline constexpr qsizetype longestName = 255;

/**
 * The name that an item of the template gets in the project. Where the name without its extension contains the word
 * template, every occurrence in the whole name, in any letter case, is replaced; else the name stays.
 */
[[nodiscard]] QString nameInProject(const QString &name, const QString &projectName);

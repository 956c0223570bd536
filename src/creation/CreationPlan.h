#pragma once

#include "platform/files/Tree.h"

#include <QStringList>

/** One item of a plan, as people see it. */
struct PlanItem
{
    enum class Remark : unsigned char {
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

/**
 * What a creation will make, and what will go wrong with it, as a value: computed from the template's tree and the
 * project's folder levels. What a dry run shows is what is made.
 */
struct CreationPlan
{
    QStringList levels;                  ///< the project's folder levels, outermost first
    QStringList tooLongLevels;           ///< levels whose names have more than 255 bytes: the folder cannot be made
    platform::Tree tree;                 ///< each item with its name in the project; its remark is PlanItem's
    QList<platform::Outcome> unreadable; ///< folders of the template, or all of it, in listing order
    std::vector<std::uint32_t> named{};  ///< the tree's folders with an item whose name mentions the word template

    /** In listing order, a folder before what lies in it. */
    void forEachItem(const std::function<void(const PlanItem &)> &visit) const;
    [[nodiscard]] qsizetype folders() const { return static_cast<qsizetype>(tree.folders.size()) - 1; }
    [[nodiscard]] qsizetype files() const { return static_cast<qsizetype>(tree.itemCount()) - folders(); }
    [[nodiscard]] qsizetype renamed() const;
};

/** Reads the template's tree. Ends early when cancelled. Blocks; any thread. */
[[nodiscard]] CreationPlan planCreation(const QString &templateFiles, const QStringList &levels,
                                        const std::atomic<bool> &cancelled);

/**
 * The same plan for other levels: of the tree only the items that take their names from the project are looked at, so
 * that it can be asked for with every key. Pure.
 */
void planForLevels(CreationPlan &plan, const QStringList &levels);

/**
 * Gives each item of one folder its name in the project, one after the other in listing order: a name that is taken at
 * that moment, or too long, is not given, and the item keeps its own. What was given before is forgotten. Pure.
 */
void nameItems(platform::TreeFolder &folder, const QString &projectName);

/**
 * The name that an item of the template gets in the project. Where the name without its extension (which has no blank
 * in it) contains the word template, every occurrence in the whole name, in any letter case, is replaced; else the name
 * stays.
 */
[[nodiscard]] QString nameInProject(const QString &name, const QString &projectName);

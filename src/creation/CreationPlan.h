#pragma once

#include "creation/RuledTree.h"
#include "creation/TextValues.h"

#include <QStringList>

/** One item of a plan, as people see it. */
struct PlanItem
{
    using Remark = ItemRemark;

    QString folder;  ///< below the project's folder, names as they will be; "" for the project's folder itself
    QString oldName; ///< in the template
    QString newName; ///< in the project
    platform::FileKind kind = platform::FileKind::Missing;
    Remark remark = Remark::None;
    QString flaw{}; ///< of Remark::Flawed

    [[nodiscard]] bool isRenamed() const { return oldName != newName; }
};

/** What a project takes its names, its items and its texts from. A plain value. */
struct PlanInput
{
    QStringList levels;       ///< the project's folder levels, outermost first
    tokens::Values values{};  ///< those of the levels and of the project's name among them
    TemplateRulesPtr rules{}; ///< null: none
    std::size_t mostRepeated = mostRepeatedUnasked;
};

/** A template with rules, as it was read: what each expansion begins with. */
struct RuledTemplate
{
    QString files; ///< the folder that it was read from
    platform::Tree tree;
    TemplateRulesPtr rules;
    RuledItems items;
    bool isReadable = true;                         ///< all of it
    QHash<QString, textvalues::TextTokens> texts{}; ///< by their paths in the template
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
    std::vector<std::uint32_t> named{};  ///< the tree's folders with an item whose name may become another one
    // Of a template with rules:
    std::shared_ptr<const RuledTemplate> ruled{};
    std::vector<Flaw> flaws{}; ///< where there is any, nothing is to be made
    std::vector<RuledText> texts{};
    std::vector<std::uint32_t> repeated{}; ///< folders that are one round of a repeat
    std::shared_ptr<const PlanValues> values{};
    QStringList gone{};      ///< paths of rules whose item is not in the template
    std::size_t leftOut = 0; ///< items
    bool isCutOff = false;   ///< there would be more items than were to be made without a question
    QByteArray shape{};      ///< the same as long as nothing but names changes

    /** In listing order, a folder before what lies in it. */
    void forEachItem(const std::function<void(const PlanItem &)> &visit) const;
    [[nodiscard]] qsizetype folders() const { return static_cast<qsizetype>(tree.folders.size()) - 1; }
    [[nodiscard]] qsizetype files() const { return static_cast<qsizetype>(tree.itemCount() - leftOut) - folders(); }
    [[nodiscard]] qsizetype renamed() const;
    /** What is wrong with the item; null when nothing is. */
    [[nodiscard]] QString flawOf(std::uint32_t folder, std::uint32_t item) const;
    /** The first item that keeps its name because the new one cannot be given; null without one. */
    [[nodiscard]] QString firstKeptName() const;
    /** Its path in the project. */
    [[nodiscard]] QString pathOf(const Flaw &flaw) const;
    /** Path in the project and sentence of the first flaw, for those who see no tree; null without one. */
    [[nodiscard]] QString firstFlaw() const;
};

/** Reads the template's tree. Ends early when cancelled. Blocks; any thread. */
[[nodiscard]] CreationPlan planCreation(const QString &templateFiles, const PlanInput &input,
                                        const std::atomic<bool> &cancelled);

/**
 * The same plan for other values: of a tree without rules only the items that take their names from the project are
 * looked at, so that it can be asked for with every key. Pure.
 */
void planFor(CreationPlan &plan, const PlanInput &input);

/** Without what conditions leave out: what is to be copied. */
void dropLeftOut(CreationPlan &plan);

#pragma once

#include "creation/ItemNames.h"
#include "creation/TemplateRules.h"

#include <QRegularExpression>
#include <deque>
#include <unordered_map>
#include <unordered_set>

/** What is wrong with one item of a plan, in a sentence. */
struct Flaw
{
    std::uint32_t folder = 0; ///< its number in the plan's tree
    std::uint32_t item = 0;   ///< in that folder
    QString sentence;
};

/** A file of the plan's tree whose contents get values. */
struct RuledText
{
    std::uint32_t folder = 0;
    std::uint32_t item = 0;
    const tokens::Values *values = nullptr; ///< of its place: repeats have given it more; lives in the expansion
};

/** The values of a plan: the project's, and one set more for each round of a repeat. */
struct PlanValues
{
    tokens::Values ofProject;
    std::deque<tokens::Values> ofRounds{};
};

/**
 * The tree that a project gets from a template's tree and its rules: what a condition leaves out is an item with that
 * remark and nothing below it, what is repeated is there as often. Items keep their names in the template beside those
 * in the project, so that the one is copied to the other.
 */
struct Expansion
{
    platform::Tree tree;
    std::vector<Flaw> flaws{};
    std::vector<RuledText> texts{};
    std::vector<std::uint32_t> named{};    ///< folders with an item whose name depends on values
    std::vector<std::uint32_t> repeated{}; ///< folders that are one round of a repeat
    QStringList gone{};                    ///< paths of rules whose item is not in the template
    std::size_t leftOut = 0;               ///< items
    bool isCutOff = false;                 ///< repeats would have made more items than wanted
    QByteArray shape{};                    ///< the same for trees that differ in their names only
    std::shared_ptr<PlanValues> values;
};

/** Which values, and how much of it. */
struct ExpansionInput
{
    QString projectName;
    tokens::Values values;
    std::size_t mostRepeated = mostRepeatedUnasked;
};

/** The items of a tree that the rules name: found once for a template, used for each expansion. */
class RuledItems
{
public:
    RuledItems(const platform::Tree &source, const TemplateRules &rules);

    /** Null where there is none. */
    [[nodiscard]] const ItemRule *ruleOf(std::uint32_t folder, std::uint32_t item) const;
    /** Whether any of the folder's items has one. */
    [[nodiscard]] bool hasRulesIn(std::uint32_t folder) const { return m_folders.contains(folder); }
    [[nodiscard]] bool hasPatterns() const { return !m_patterns.isEmpty(); }
    /** Whether it is a file whose contents get values. */
    [[nodiscard]] bool isText(const platform::Tree &source, std::uint32_t folder, std::uint32_t item) const;
    /** What lies in a folder that cannot be read is not gone. */
    [[nodiscard]] const QStringList &gone() const { return m_gone; }

private:
    std::unordered_map<std::uint64_t, ItemRule> m_rules;
    std::unordered_set<std::uint32_t> m_folders;
    QList<QRegularExpression> m_patterns;
    QStringList m_gone;
};

/** Pure; ends early when cancelled. */
[[nodiscard]] Expansion expanded(const platform::Tree &source, const TemplateRules &rules, const RuledItems &items,
                                 const ExpansionInput &input, const std::atomic<bool> &cancelled);

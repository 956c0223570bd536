#pragma once

#include "parameters/Tokens.h"
#include "platform/files/Tree.h"

#include <QString>
#include <string_view>
#include <unordered_set>

/** What is to be said of an item of a plan beside its name. */
enum class ItemRemark : unsigned char {
    None,
    NameTaken,   ///< its new name belongs to a sibling: it will keep its old one
    NameTooLong, ///< its new name has more than 255 bytes: it will keep its old one
    LeftOut,     ///< by a condition: it will not be made
    Flawed,      ///< something of its rules or values is wrong: the plan's flaws say what, and nothing will be made
};

/** The names that a folder's items have in the project, one given after the other. */
using NamesTaken = std::unordered_set<std::string>;

/**
 * Gives each item of one folder its name in the project, one after the other in listing order: a name that is taken at
 * that moment, or too long, is not given, and the item keeps its own. What was given before is forgotten. Pure.
 */
void nameItems(platform::TreeFolder &folder, const QString &projectName);
/** One of them. */
void nameItem(platform::TreeFolder &folder, platform::TreeItem &item, const QString &projectName, NamesTaken &taken);

/** Whether the word template is in it, in any letter case; quick. */
[[nodiscard]] bool mentionsTemplate(std::string_view name);

/**
 * The name that an item of the template gets in the project. Where the name without its extension (which has no blank
 * in it) contains the word template, every occurrence in the whole name, in any letter case, is replaced; else the name
 * stays.
 */
[[nodiscard]] QString nameInProject(const QString &name, const QString &projectName);

/** The same for a name with values in it: what a value brings along is left as it is. A sentence where a value, or the
 * whole, makes no name. Pure. */
[[nodiscard]] tokens::Filled filledName(const QString &name, const QString &projectName, const tokens::Values &values);

/** A name for an item of a template, from what was typed: clean, as every name is, but for what stands between braces,
 * where a colon has its meaning. Empty where nothing remains. */
[[nodiscard]] QString cleanedItemName(const QString &typed);

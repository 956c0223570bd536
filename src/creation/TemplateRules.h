#pragma once

#include "parameters/Tokens.h"
#include "platform/base/Outcome.h"

#include <QStringList>
#include <QVariantMap>
#include <memory>

/** Whether a parameter's value is as wanted. Letter case does not count. */
struct Condition
{
    enum class Is { Is, IsNot, Contains, IsEmpty, IsNotEmpty, IsGreater };
    QString parameter; ///< its title
    Is is = Is::Is;
    QString value = {}; ///< nothing for IsEmpty and IsNotEmpty

    bool operator==(const Condition &) const = default;
};

/** When an item is made: always, without a condition. */
struct Conditions
{
    enum class Join { All, Any };
    Join join = Join::All;
    QList<Condition> tests = {};

    bool operator==(const Conditions &) const = default;
};

/** How often an item is made: once for each number from 1, or once for each value of a list. */
struct Repeat
{
    enum class Over { Nothing, Numbers, Values };
    inline static const QString usualName = QStringLiteral("n");

    Over over = Over::Nothing;
    QString parameter = {};   ///< the number, or the list with commas between its values
    QString name = usualName; ///< the token that stands for the number or the value

    bool operator==(const Repeat &) const = default;
};

struct ItemRule
{
    QString path; ///< below Files
    Conditions when = {};
    Repeat repeat = {};
    bool fillsText = false; ///< values in the contents
    QVariantMap rest = {};  ///< what a later version has written

    [[nodiscard]] bool isEmpty() const;
    bool operator==(const ItemRule &) const = default;
};

/** What a template says of its items and parameters beside its Files. A plain value. */
struct TemplateRules
{
    bool fillsNames = false;    ///< values in names
    QStringList textPatterns{}; ///< "*.csv": files with values in their contents
    QList<ItemRule> items{};    ///< none of them empty
    QVariantList parameters{};  ///< records of the template's own
    QVariantMap fixed{};        ///< common parameters, by title, whose value the template says
    QStringList hidden{};       ///< common parameters that its projects do not have
    QVariantMap rest{};

    [[nodiscard]] bool isEmpty() const;
    /** Of nothing where there is none. */
    [[nodiscard]] ItemRule ruleOf(const QString &path) const;
    /** In place of the one that the path had; an empty one goes. */
    void setRule(const ItemRule &rule);
    bool operator==(const TemplateRules &) const = default;
};
using TemplateRulesPtr = std::shared_ptr<const TemplateRules>;

/** No more items are made by repeats without a question. */
inline constexpr std::size_t mostRepeatedUnasked = 10'000;
/** And no more at all. */
inline constexpr std::size_t mostRepeated = 1'000'000;

/** Cause::Damaged, with one sentence that names the entry, for what are no rules; Cause::NotSupported for those of a
    later version. */
[[nodiscard]] platform::Result<TemplateRules> rulesFromVariant(const QVariantMap &stored);
[[nodiscard]] QVariantMap variantFromRules(const TemplateRules &rules);
/** Of a template's bundle; empty without a file. Blocks; any thread. */
[[nodiscard]] platform::Result<TemplateRules> readRules(const QString &bundle);

/** The words by which they are kept. */
[[nodiscard]] QString wordOf(Condition::Is is);
/** For people: "contains". */
[[nodiscard]] QString nameOf(Condition::Is is);
[[nodiscard]] QList<Condition::Is> kindsOfConditions();

/** Whether the conditions hold, or a sentence about the one that cannot be answered. Pure. */
struct Verdict
{
    bool holds = true;
    QString problem = {};
};
[[nodiscard]] Verdict verdictOf(const Conditions &conditions, const tokens::Values &values);

/** What the repeat's token stands for, one time after the other and not much more than the most, or a sentence. Pure.
 */
struct Rounds
{
    QStringList values;
    QString problem = {};
};
[[nodiscard]] Rounds roundsOf(const Repeat &repeat, const tokens::Values &values, std::size_t most = mostRepeated);

/** The values of a list parameter: between commas, without blanks around and empty ones. */
[[nodiscard]] QStringList listedValues(const QString &value);

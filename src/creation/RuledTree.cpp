#include "creation/RuledTree.h"

#include "platform/base/NativePath.h"

#include <QCoreApplication>

using platform::Tree;
using platform::TreeFolder;
using platform::TreeItem;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RuledTree)
};

std::uint64_t placeOf(std::uint32_t folder, std::uint32_t item)
{
    return (std::uint64_t{folder} << 32U) | item;
}

/// The item's place by its path in the tree.
struct Search
{
    std::optional<std::uint64_t> place; ///< nothing where it is not there
    bool isKnown = true;                ///< false: a folder on the way could not be read
};
Search found(const Tree &tree, const QString &path)
{
    std::uint32_t folder = 0;
    const QStringList names = path.split(u'/');
    for (qsizetype depth = 0; depth < names.size(); ++depth) {
        const TreeFolder &own = tree.folders[folder];
        if (own.error != 0)
            return {{}, false};
        const QByteArray name = platform::toNative(names[depth]);
        const auto item = std::find_if(own.items.begin(), own.items.end(),
                                       [&](const TreeItem &other) { return name == own.nameOf(other); });
        if (item == own.items.end())
            return {};
        if (depth + 1 == names.size())
            return {placeOf(folder, static_cast<std::uint32_t>(item - own.items.begin()))};
        if (item->folder == 0)
            return {};
        folder = item->folder;
    }
    return {};
}

class Expander
{
public:
    Expander(const Tree &source, const TemplateRules &rules, const RuledItems &items, const ExpansionInput &input,
             const std::atomic<bool> &cancelled)
        : m_source(source)
        , m_rules(rules)
        , m_items(items)
        , m_input(input)
        , m_cancelled(cancelled)
    {
    }

    Expansion run()
    {
        m_result.values = std::make_shared<PlanValues>(PlanValues{m_input.values});
        m_result.gone = m_items.gone();
        m_result.tree.folders.emplace_back();
        if (!m_source.folders.empty())
            fill(0, 0, m_result.values->ofProject);
        return std::move(m_result);
    }

private:
    /// Most folders of a large template: nothing in them has a rule or a token.
    [[nodiscard]] bool isPlain(std::uint32_t from) const
    {
        const TreeFolder &source = m_source.folders[from];
        return m_repeats == 0 && !m_items.hasRulesIn(from) && !m_items.hasPatterns() &&
               !(m_rules.fillsNames && tokens::mayHaveTokens(source.names));
    }

    void fillPlainly(std::uint32_t from, std::uint32_t to, const tokens::Values &values)
    {
        const TreeFolder &source = m_source.folders[from];
        TreeFolder &target = m_result.tree.folders[to];
        target.error = source.error;
        target.names = source.names;
        target.items = source.items;
        for (std::uint32_t i = 0; i < source.items.size() && !m_cancelled; ++i) {
            if (source.items[i].folder != 0)
                addFolder(source.items[i].folder, to, i, values);
        }
        if (mentionsTemplate(target.names))
            giveNames(to, false);
    }

    void addFolder(std::uint32_t from, std::uint32_t parent, std::uint32_t item, const tokens::Values &values)
    {
        const auto number = static_cast<std::uint32_t>(m_result.tree.folders.size());
        TreeFolder &folder = m_result.tree.folders.emplace_back();
        folder.parent = parent;
        folder.itemInOwn = item;
        m_result.tree.folders[parent].items[item].folder = number;
        fill(from, number, values);
    }

    void fill(std::uint32_t from, std::uint32_t to, const tokens::Values &values)
    {
        if (isPlain(from))
            return fillPlainly(from, to, values);
        const TreeFolder &source = m_source.folders[from];
        m_result.tree.folders[to].error = source.error;
        m_result.tree.folders[to].items.reserve(source.items.size());
        m_result.tree.folders[to].names.reserve(source.names.size());
        bool hasRepeats = false;
        for (std::uint32_t i = 0; i < source.items.size() && !m_cancelled && !m_result.isCutOff; ++i) {
            const ItemRule *rule = m_items.ruleOf(from, i);
            hasRepeats = hasRepeats || (rule && rule->repeat.over != Repeat::Over::Nothing);
            if (!rule)
                addItem(from, i, to, values, nullptr);
            else if (isWanted(*rule, from, i, to, values))
                repeat(*rule, from, i, to, values);
        }
        giveNames(to, hasRepeats);
    }

    /// One whose condition cannot be answered is shown, with the reason.
    bool isWanted(const ItemRule &rule, std::uint32_t from, std::uint32_t item, std::uint32_t to,
                  const tokens::Values &values)
    {
        const Verdict verdict = verdictOf(rule.when, values);
        m_result.shape.append(verdict.holds ? '+' : '-');
        if (verdict.holds)
            return true;
        if (verdict.problem.isNull()) {
            leaveOut(from, item, to);
        } else {
            addBare(from, item, to);
            complain(to, verdict.problem);
        }
        return false;
    }

    void leaveOut(std::uint32_t from, std::uint32_t item, std::uint32_t to)
    {
        addBare(from, item, to).remark = static_cast<unsigned char>(ItemRemark::LeftOut);
        ++m_result.leftOut;
    }

    void repeat(const ItemRule &rule, std::uint32_t from, std::uint32_t item, std::uint32_t to,
                const tokens::Values &values)
    {
        if (rule.repeat.over == Repeat::Over::Nothing)
            return addItem(from, item, to, values, &rule);
        const Rounds rounds = roundsOf(rule.repeat, values, m_input.mostRepeated);
        m_result.shape.append(QByteArray::number(rounds.values.size())).append(rounds.problem.isNull() ? 'x' : '?');
        if (!rounds.problem.isNull()) {
            addBare(from, item, to);
            return complain(to, rounds.problem);
        }
        if (rounds.values.isEmpty())
            return leaveOut(from, item, to);
        ++m_repeats;
        for (const QString &round : rounds.values) {
            tokens::Values &more = m_result.values->ofRounds.emplace_back(&values);
            more.add(rule.repeat.name, {round});
            addItem(from, item, to, more, &rule);
            if (m_result.isCutOff)
                break;
        }
        --m_repeats;
    }

    TreeItem &addBare(std::uint32_t from, std::uint32_t item, std::uint32_t to)
    {
        const TreeFolder &source = m_source.folders[from];
        TreeFolder &target = m_result.tree.folders[to];
        target.add(source.nameOf(source.items[item]), source.items[item].type);
        return target.items.back();
    }

    void complain(std::uint32_t folder, const QString &sentence)
    {
        std::vector<TreeItem> &items = m_result.tree.folders[folder].items;
        items.back().remark = static_cast<unsigned char>(ItemRemark::Flawed);
        m_result.flaws.push_back({folder, static_cast<std::uint32_t>(items.size() - 1), sentence});
    }

    void addItem(std::uint32_t from, std::uint32_t item, std::uint32_t to, const tokens::Values &values,
                 const ItemRule *rule)
    {
        if (m_repeats > 0 && ++m_repeated > m_input.mostRepeated) {
            m_result.isCutOff = true;
            return;
        }
        const std::uint32_t below = m_source.folders[from].items[item].folder;
        addBare(from, item, to);
        const auto place = static_cast<std::uint32_t>(m_result.tree.folders[to].items.size() - 1);
        const bool isRepeated = rule && rule->repeat.over != Repeat::Over::Nothing;
        if (m_rules.fillsNames || isRepeated)
            fillName(to, values);
        if (m_items.isText(m_source, from, item))
            m_result.texts.push_back({to, place, &values});
        if (below == 0)
            return;
        if (isRepeated) // in front: the folders in it have higher numbers
            m_result.repeated.push_back(static_cast<std::uint32_t>(m_result.tree.folders.size()));
        addFolder(below, to, place, values);
    }

    /// Of the last item in the folder.
    void fillName(std::uint32_t folder, const tokens::Values &values)
    {
        TreeFolder &own = m_result.tree.folders[folder];
        TreeItem &item = own.items.back();
        if (!tokens::mayHaveTokens(own.nameOf(item)))
            return;
        const tokens::Filled name = filledName(platform::fromNative(own.nameOf(item)), m_input.projectName, values);
        if (!name.ok())
            return complain(folder, name.problem);
        const QByteArray bytes = platform::toNative(name.text);
        own.rename(item, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }

    /// The names with values have theirs; now the others, as in a template without rules. A name that two would have is
    /// a flaw of the one that has it from values.
    void giveNames(std::uint32_t number, bool hasRepeats)
    {
        TreeFolder &folder = m_result.tree.folders[number];
        const auto isGiven = [](const TreeItem &item) {
            return item.newName != item.name;
        };
        const auto isThere = [](const TreeItem &item) {
            return item.remark == static_cast<unsigned char>(ItemRemark::None);
        };
        const bool hasGiven = std::any_of(folder.items.begin(), folder.items.end(), isGiven);
        const bool mentions = mentionsTemplate(folder.names);
        if (!hasGiven && !mentions && !hasRepeats)
            return;
        m_result.named.push_back(number);
        NamesTaken taken;
        for (const bool isTurnOfGiven : {false, true}) {
            for (std::uint32_t i = 0; i < folder.items.size(); ++i) {
                const TreeItem &item = folder.items[i];
                if (isThere(item) && isGiven(item) == isTurnOfGiven && !taken.insert(folder.newNameOf(item)).second)
                    complainOfTwo(number, i);
            }
        }
        for (TreeItem &item : folder.items) {
            if (isThere(item) && !isGiven(item) && mentionsTemplate(folder.nameOf(item)))
                nameItem(folder, item, m_input.projectName, taken);
        }
    }

    void complainOfTwo(std::uint32_t number, std::uint32_t item)
    {
        TreeFolder &folder = m_result.tree.folders[number];
        folder.items[item].remark = static_cast<unsigned char>(ItemRemark::Flawed);
        const QString name = platform::fromNative(folder.newNameOf(folder.items[item]));
        m_result.flaws.push_back(
            {number, item, Text::tr("Another item here gets the name “%1”, too.").arg(platform::forOneLine(name))});
    }

    const Tree &m_source;
    const TemplateRules &m_rules;
    const RuledItems &m_items;
    const ExpansionInput &m_input;
    const std::atomic<bool> &m_cancelled;
    int m_repeats = 0; ///< of how many the item in hand is part
    std::size_t m_repeated = 0;
    Expansion m_result;
};

} // namespace

RuledItems::RuledItems(const Tree &source, const TemplateRules &rules)
{
    for (const ItemRule &rule : rules.items) {
        const Search search = source.folders.empty() ? Search{{}, false} : found(source, rule.path);
        if (search.place) {
            m_rules.emplace(*search.place, rule);
            m_folders.insert(static_cast<std::uint32_t>(*search.place >> 32U));
        } else if (search.isKnown)
            m_gone.append(rule.path);
    }
    for (const QString &pattern : rules.textPatterns)
        m_patterns.append(QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                                             QRegularExpression::CaseInsensitiveOption));
}

const ItemRule *RuledItems::ruleOf(std::uint32_t folder, std::uint32_t item) const
{
    if (m_rules.empty())
        return nullptr;
    const auto found = m_rules.find(placeOf(folder, item));
    return found == m_rules.end() ? nullptr : &found->second;
}

bool RuledItems::isText(const Tree &source, std::uint32_t folder, std::uint32_t item) const
{
    const TreeFolder &own = source.folders[folder];
    if (platform::kindOfType(own.items[item].type) != platform::FileKind::File)
        return false;
    if (const ItemRule *rule = ruleOf(folder, item); rule && rule->fillsText)
        return true;
    if (m_patterns.isEmpty())
        return false;
    const QString name = platform::fromNative(own.nameOf(own.items[item]));
    return std::any_of(m_patterns.begin(), m_patterns.end(),
                       [&](const QRegularExpression &pattern) { return pattern.match(name).hasMatch(); });
}

Expansion expanded(const Tree &source, const TemplateRules &rules, const RuledItems &items, const ExpansionInput &input,
                   const std::atomic<bool> &cancelled)
{
    return Expander(source, rules, items, input, cancelled).run();
}

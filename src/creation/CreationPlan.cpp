#include "creation/CreationPlan.h"

#include "parameters/ProjectNaming.h"
#include "platform/base/NativePath.h"

#include <algorithm>

using Remark = PlanItem::Remark;

namespace {

QString projectNameOf(const PlanInput &input)
{
    return input.levels.isEmpty() ? QString() : input.levels.constLast();
}

QString below(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? name : folder + u'/' + name;
}

QString pathOf(const platform::Tree &tree, std::uint32_t folder, std::uint32_t item)
{
    const platform::TreeFolder &own = tree.folders[folder];
    return below(tree.pathOf(folder), platform::fromNative(own.nameOf(own.items[item])));
}

QString newPathOf(const platform::Tree &tree, std::uint32_t folder, std::uint32_t item)
{
    const platform::TreeFolder &own = tree.folders[folder];
    return below(tree.newPathOf(folder), platform::fromNative(own.newNameOf(own.items[item])));
}

/// A flaw of the contents is one of the item.
void lookAtTexts(CreationPlan &plan)
{
    for (const RuledText &text : plan.texts) {
        const auto tokens = plan.ruled->texts.constFind(pathOf(plan.tree, text.folder, text.item));
        const QString problem =
            tokens == plan.ruled->texts.cend() ? QString() : textvalues::problemOf(*tokens, *text.values);
        platform::TreeItem &item = plan.tree.folders[text.folder].items[text.item];
        if (problem.isNull() || item.remark == static_cast<unsigned char>(Remark::Flawed))
            continue;
        item.remark = static_cast<unsigned char>(Remark::Flawed);
        plan.flaws.push_back({text.folder, text.item, problem});
    }
}

void expand(CreationPlan &plan, const PlanInput &input, const std::atomic<bool> &cancelled)
{
    Expansion expansion = expanded(plan.ruled->tree, *plan.ruled->rules, plan.ruled->items,
                                   {projectNameOf(input), input.values, input.mostRepeated}, cancelled);
    plan.tree = std::move(expansion.tree);
    plan.named = std::move(expansion.named);
    plan.flaws = std::move(expansion.flaws);
    plan.texts = std::move(expansion.texts);
    plan.repeated = std::move(expansion.repeated);
    plan.values = std::move(expansion.values);
    plan.gone = expansion.gone;
    plan.leftOut = expansion.leftOut;
    plan.isCutOff = expansion.isCutOff;
    plan.shape = expansion.shape;
}

/// Of every file that may get values, whatever conditions and repeats make of it just now.
void readTexts(RuledTemplate &ruled, const tokens::Values &ofProject, const std::atomic<bool> &cancelled)
{
    tokens::Values values(&ofProject);
    for (const ItemRule &rule : ruled.rules->items)
        values.add(rule.repeat.name, {QStringLiteral("1")});
    ruled.tree.forEachFolder([&](std::uint32_t folder) {
        for (std::uint32_t item = 0; item < ruled.tree.folders[folder].items.size() && !cancelled; ++item) {
            if (!ruled.items.isText(ruled.tree, folder, item))
                continue;
            const QString path = pathOf(ruled.tree, folder, item);
            ruled.texts.insert(path, textvalues::readTextTokens(platform::joined(ruled.files, path), values));
        }
    });
}

void findUnreadable(CreationPlan &plan, const QString &templateFiles)
{
    plan.unreadable.clear();
    plan.tree.forEachFolder([&](std::uint32_t number) {
        if (const int error = plan.tree.folders[number].error; error != 0)
            plan.unreadable.append(
                platform::Outcome::fromNumber(error, platform::joined(templateFiles, plan.tree.pathOf(number))));
    });
}

CreationPlan planWithRules(const QString &templateFiles, const PlanInput &input, const std::atomic<bool> &cancelled)
{
    CreationPlan plan{input.levels, naming::tooLongLevels(input.levels), {}, {}};
    platform::Tree tree = platform::readTree(
        templateFiles, [](platform::TreeFolder &) {}, cancelled);
    RuledItems items(tree, *input.rules);
    const auto ruled =
        std::make_shared<RuledTemplate>(RuledTemplate{templateFiles, std::move(tree), input.rules, std::move(items)});
    ruled->isReadable = std::all_of(ruled->tree.folders.begin(), ruled->tree.folders.end(),
                                    [](const platform::TreeFolder &folder) { return folder.error == 0; });
    readTexts(*ruled, input.values, cancelled);
    plan.ruled = ruled;
    expand(plan, input, cancelled);
    lookAtTexts(plan);
    findUnreadable(plan, templateFiles);
    return plan;
}

} // namespace

void CreationPlan::forEachItem(const std::function<void(const PlanItem &)> &visit) const
{
    QHash<quint64, QString> sentences; // there may be one for each item
    for (const Flaw &flaw : flaws)
        sentences.insert((quint64{flaw.folder} << 32U) | flaw.item, flaw.sentence);
    const std::function<void(std::uint32_t, const QString &)> visitFolder = [&](std::uint32_t number,
                                                                                const QString &path) {
        const platform::TreeFolder &folder = tree.folders[number];
        for (std::uint32_t i = 0; i < folder.items.size(); ++i) {
            const platform::TreeItem &item = folder.items[i];
            PlanItem shown{path, platform::fromNative(folder.nameOf(item)),
                           platform::fromNative(folder.newNameOf(item)), platform::kindOfType(item.type),
                           static_cast<Remark>(item.remark)};
            if (shown.remark == Remark::Flawed)
                shown.flaw = sentences.value((quint64{number} << 32U) | i);
            visit(shown);
            if (item.folder != 0)
                visitFolder(item.folder, below(path, shown.newName));
        }
    };
    visitFolder(0, QLatin1String(""));
}

qsizetype CreationPlan::renamed() const
{
    qsizetype count = 0;
    for (const platform::TreeFolder &folder : tree.folders)
        count += std::count_if(folder.items.begin(), folder.items.end(),
                               [](const auto &item) { return item.newName != item.name; });
    return count;
}

QString CreationPlan::flawOf(std::uint32_t folder, std::uint32_t item) const
{
    const auto flaw = std::find_if(flaws.begin(), flaws.end(),
                                   [&](const Flaw &other) { return other.folder == folder && other.item == item; });
    return flaw == flaws.end() ? QString() : flaw->sentence;
}

QString CreationPlan::firstKeptName() const
{
    for (const std::uint32_t number : named) {
        const platform::TreeFolder &folder = tree.folders[number];
        for (std::uint32_t i = 0; i < folder.items.size(); ++i) {
            const auto remark = static_cast<Remark>(folder.items[i].remark);
            if (remark == Remark::NameTaken || remark == Remark::NameTooLong)
                return newPathOf(tree, number, i);
        }
    }
    return {};
}

QString CreationPlan::pathOf(const Flaw &flaw) const
{
    return newPathOf(tree, flaw.folder, flaw.item);
}

QString CreationPlan::firstFlaw() const
{
    return flaws.empty() ? QString() : pathOf(flaws.front()) + QStringLiteral(": ") + flaws.front().sentence;
}

void planFor(CreationPlan &plan, const PlanInput &input)
{
    static const std::atomic<bool> never = false;
    plan.levels = input.levels;
    plan.tooLongLevels = naming::tooLongLevels(input.levels);
    if (plan.ruled) {
        expand(plan, input, never);
        lookAtTexts(plan);
        if (!plan.ruled->isReadable)
            findUnreadable(plan, plan.ruled->files);
        return;
    }
    for (const std::uint32_t folder : plan.named)
        nameItems(plan.tree.folders[folder], projectNameOf(input));
}

CreationPlan planCreation(const QString &templateFiles, const PlanInput &input, const std::atomic<bool> &cancelled)
{
    if (input.rules && !input.rules->isEmpty())
        return planWithRules(templateFiles, input, cancelled);
    CreationPlan plan{input.levels, naming::tooLongLevels(input.levels), {}, {}};
    const QString projectName = projectNameOf(input);
    plan.tree = platform::readTree(
        templateFiles, [&](platform::TreeFolder &folder) { nameItems(folder, projectName); }, cancelled);
    plan.tree.forEachFolder([&](std::uint32_t number) {
        if (mentionsTemplate(plan.tree.folders[number].names))
            plan.named.push_back(number);
    });
    findUnreadable(plan, templateFiles);
    return plan;
}

void dropLeftOut(CreationPlan &plan)
{
    if (plan.leftOut == 0)
        return;
    const auto isLeftOut = [](const platform::TreeItem &item) {
        return item.remark == static_cast<unsigned char>(Remark::LeftOut);
    };
    std::uint32_t counted = UINT32_MAX; // the folder whose items were counted last: those of one follow each other
    std::vector<std::uint32_t> before;  // for each of its items, how many in front of it go
    for (RuledText &text : plan.texts) {
        if (std::exchange(counted, text.folder) != text.folder) {
            before.clear();
            std::uint32_t gone = 0;
            for (const platform::TreeItem &item : plan.tree.folders[text.folder].items) {
                before.push_back(gone);
                gone += isLeftOut(item) ? 1 : 0;
            }
        }
        text.item -= before[text.item];
    }
    for (platform::TreeFolder &folder : plan.tree.folders) {
        std::erase_if(folder.items, isLeftOut);
        for (std::uint32_t i = 0; i < folder.items.size(); ++i) {
            if (folder.items[i].folder != 0)
                plan.tree.folders[folder.items[i].folder].itemInOwn = i;
        }
    }
    plan.leftOut = 0;
}

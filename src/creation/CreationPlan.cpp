#include "creation/CreationPlan.h"

#include "parameters/ProjectNaming.h"
#include "platform/base/NativePath.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>

using Remark = PlanItem::Remark;

namespace {

const QString placeholder = QStringLiteral("template");
constexpr std::string_view placeholderBytes = "template";

/// Most names do not: no texts are made of them.
bool mentionsPlaceholder(std::string_view name)
{
    const auto isSame = [](char inName, char wanted) {
        return (inName | 0x20) == wanted; // the word is of small ASCII letters, and no other byte becomes one of these
    };
    return std::search(name.begin(), name.end(), placeholderBytes.begin(), placeholderBytes.end(), isSame) !=
           name.end();
}

void nameItem(platform::TreeFolder &folder, platform::TreeItem &item, const QString &projectName,
              std::unordered_set<std::string> &taken)
{
    const std::string own = folder.nameOf(item);
    const QString name = platform::fromNative(own);
    const QString inProject = nameInProject(name, projectName);
    const QByteArray wanted = platform::toNative(inProject);
    if (inProject == name)
        return;
    if (wanted.size() > platform::longestName) {
        item.remark = static_cast<unsigned char>(Remark::NameTooLong);
    } else if (taken.contains(wanted.toStdString())) {
        item.remark = static_cast<unsigned char>(Remark::NameTaken);
    } else {
        taken.erase(own);
        taken.insert(wanted.toStdString());
        folder.rename(item, wanted.toStdString());
    }
}

void forgetNames(platform::TreeFolder &folder)
{
    std::size_t end = 0;
    for (platform::TreeItem &item : folder.items) {
        item.newName = item.name;
        item.remark = static_cast<unsigned char>(Remark::None);
        end = std::max(end, item.name + std::strlen(folder.nameOf(item)) + 1);
    }
    folder.names.resize(std::min(folder.names.size(), end)); // new names stand behind those that were read
}

} // namespace

void nameItems(platform::TreeFolder &folder, const QString &projectName)
{
    forgetNames(folder);
    if (!mentionsPlaceholder(folder.names)) // a name's end is a null byte: no word goes across two names
        return;
    std::unordered_set<std::string> taken;
    for (const platform::TreeItem &item : folder.items)
        taken.insert(folder.nameOf(item));
    for (platform::TreeItem &item : folder.items) {
        if (mentionsPlaceholder(folder.nameOf(item)))
            nameItem(folder, item, projectName, taken);
    }
}

QString nameInProject(const QString &name, const QString &projectName)
{
    // "01. Template" has no extension: a blank is in none.
    const bool hasExtension = !platform::extensionOf(name).contains(u' ');
    if (!(hasExtension ? platform::withoutExtension(name) : name).toLower().contains(placeholder))
        return name;
    return QString(name).replace(placeholder, projectName, Qt::CaseInsensitive);
}

void CreationPlan::forEachItem(const std::function<void(const PlanItem &)> &visit) const
{
    const std::function<void(std::uint32_t, const QString &)> visitFolder = [&](std::uint32_t number,
                                                                                const QString &path) {
        const platform::TreeFolder &folder = tree.folders[number];
        for (const platform::TreeItem &item : folder.items) {
            const PlanItem shown{path, platform::fromNative(folder.nameOf(item)),
                                 platform::fromNative(folder.newNameOf(item)), platform::kindOfType(item.type),
                                 static_cast<Remark>(item.remark)};
            visit(shown);
            if (item.folder != 0)
                visitFolder(item.folder, path.isEmpty() ? shown.newName : path + u'/' + shown.newName);
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

void planForLevels(CreationPlan &plan, const QStringList &levels)
{
    plan.levels = levels;
    plan.tooLongLevels = naming::tooLongLevels(levels);
    for (const std::uint32_t folder : plan.named)
        nameItems(plan.tree.folders[folder], levels.isEmpty() ? QString() : levels.constLast());
}

CreationPlan planCreation(const QString &templateFiles, const QStringList &levels, const std::atomic<bool> &cancelled)
{
    CreationPlan plan{levels, naming::tooLongLevels(levels), {}, {}, {}};
    const QString projectName = levels.isEmpty() ? QString() : levels.constLast();
    plan.tree = platform::readTree(
        templateFiles, [&](platform::TreeFolder &folder) { nameItems(folder, projectName); }, cancelled);
    plan.tree.forEachFolder([&](std::uint32_t number) {
        if (mentionsPlaceholder(plan.tree.folders[number].names))
            plan.named.push_back(number);
        if (const int error = plan.tree.folders[number].error; error != 0)
            plan.unreadable.append(
                platform::Outcome::fromNumber(error, platform::joined(templateFiles, plan.tree.pathOf(number))));
    });
    return plan;
}

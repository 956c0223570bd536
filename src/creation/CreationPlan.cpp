#include "creation/CreationPlan.h"

#include "platform/base/NativePath.h"

#include <QHash>
#include <QSet>

using platform::FileKind;
using Remark = PlanItem::Remark;

namespace {

const QString placeholder = QStringLiteral("template");

QString inProject(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? name : folder + u'/' + name;
}

bool isTooLong(const QString &name)
{
    return platform::toNative(name).size() > longestName;
}

/// Follows the names that stand in one folder while its items are renamed, one after the other.
struct FolderNames
{
    QSet<QString> taken;

    void rename(PlanItem &item, const QString &wanted)
    {
        if (wanted == item.oldName)
            return;
        if (isTooLong(wanted)) {
            item.remark = Remark::NameTooLong;
        } else if (taken.contains(wanted)) {
            item.remark = Remark::NameTaken;
        } else {
            taken.remove(item.oldName);
            taken.insert(wanted);
            item.newName = wanted;
        }
    }
};

} // namespace

QString nameInProject(const QString &name, const QString &projectName)
{
    if (!name.contains(placeholder, Qt::CaseInsensitive)) // most names: no copies made of them
        return name;
    if (!platform::withoutExtension(name).toLower().contains(placeholder))
        return name;
    return QString(name).replace(placeholder, projectName, Qt::CaseInsensitive);
}

qsizetype CreationPlan::folders() const
{
    return std::count_if(items.begin(), items.end(), [](const auto &item) { return item.kind == FileKind::Folder; });
}

qsizetype CreationPlan::renamed() const
{
    return std::count_if(items.begin(), items.end(), [](const auto &item) { return item.isRenamed(); });
}

CreationPlan planCreation(const TreeListing &tree, const QStringList &levels)
{
    CreationPlan plan{levels, {}, {}};
    std::copy_if(levels.begin(), levels.end(), std::back_inserter(plan.tooLongLevels), isTooLong);
    const QString projectName = levels.isEmpty() ? QString() : levels.constLast();

    QHash<QString, FolderNames> names; // by the folder's path in the template
    for (const ListedItem &item : tree.items)
        names[item.folder].taken.insert(item.name);

    QHash<QString, QString> folderInProject{{QString(QLatin1String("")), QString(QLatin1String(""))}};
    plan.items.reserve(tree.items.size());
    for (const ListedItem &item : tree.items) {
        PlanItem planned{folderInProject.value(item.folder), item.name, item.name, item.kind, Remark::None};
        names[item.folder].rename(planned, nameInProject(item.name, projectName));
        if (item.kind == FileKind::Folder)
            folderInProject.insert(inProject(item.folder, item.name), inProject(planned.folder, planned.newName));
        plan.items.append(planned);
    }
    return plan;
}

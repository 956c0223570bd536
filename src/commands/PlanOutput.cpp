#include "commands/PlanOutput.h"

#include "commands/TreeDrawing.h"
#include "platform/base/NativePath.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using platform::joined;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CreateCommand)
};

QString remarkText(const PlanItem &item)
{
    switch (item.remark) {
    case PlanItem::Remark::NameTaken:
        return Text::tr("  (keeps this name: its new one is taken)");
    case PlanItem::Remark::NameTooLong:
        return Text::tr("  (keeps this name: its new one is too long)");
    case PlanItem::Remark::LeftOut:
        return Text::tr("  (left out)");
    case PlanItem::Remark::Flawed:
        return QStringLiteral("  (%1)").arg(platform::forOneLine(item.flaw));
    case PlanItem::Remark::None:
        break;
    }
    return item.isRenamed() ? Text::tr("  (was %1)").arg(platform::forOneLine(item.oldName)) : QString();
}

QString remarkWord(PlanItem::Remark remark)
{
    switch (remark) {
    case PlanItem::Remark::NameTaken:
        return QStringLiteral("name taken");
    case PlanItem::Remark::NameTooLong:
        return QStringLiteral("name too long");
    case PlanItem::Remark::Flawed:
        return QStringLiteral("problem");
    case PlanItem::Remark::LeftOut:
    case PlanItem::Remark::None:
        break;
    }
    return {};
}

/// What will be made, and what a condition leaves out.
void addItems(QJsonObject &object, const CreationPlan &plan)
{
    QJsonArray items;
    QJsonArray leftOut;
    plan.forEachItem([&](const PlanItem &item) {
        const QString path =
            platform::forDisplay(item.folder.isEmpty() ? item.newName : joined(item.folder, item.newName));
        if (item.remark == PlanItem::Remark::LeftOut) {
            leftOut.append(path);
            return;
        }
        QJsonObject entry{{"path", path},
                          {"was", platform::forDisplay(item.oldName)},
                          {"folder", item.kind == platform::FileKind::Folder}};
        if (const QString remark = remarkWord(item.remark); !remark.isNull())
            entry.insert("remark", remark);
        if (!item.flaw.isNull())
            entry.insert("problem", platform::forDisplay(item.flaw));
        items.append(entry);
    });
    object.insert("items", items);
    if (!leftOut.isEmpty())
        object.insert("leftOut", leftOut);
}

} // namespace

QString drawn(const CreationPlan &plan, const QString &destination)
{
    QList<DrawnItem> items;
    plan.forEachItem([&](const PlanItem &item) {
        const auto depth = item.folder.isEmpty() ? 0 : static_cast<int>(item.folder.count(u'/')) + 1;
        const QString slash = item.kind == platform::FileKind::Folder ? QStringLiteral("/") : QString();
        items.append({depth, platform::forOneLine(item.newName) + slash + remarkText(item)});
    });
    return drawnTree(platform::forOneLine(destination), items);
}

QJsonObject objectOf(const ProjectOutput &project)
{
    const auto shown = [](const QString &name) {
        return platform::forDisplay(name);
    };
    const CreationPlan *plan = project.plan;
    QJsonObject object{
        {"project", shown(project.request.relativePath())},
        {"name", shown(project.request.name())},
        {"path", shown(project.request.destination())},
        {"template", shown(project.request.templateName)},
        {"folders", plan ? plan->folders() : project.result.folders},
        {"files", plan ? plan->files() : project.result.files},
        {"renamed", plan ? plan->renamed() : project.result.renamed},
        {"errors", QJsonArray::fromStringList(project.problems)},
        {"notes", QJsonArray::fromStringList(project.result.notes)},
    };
    if (plan)
        addItems(object, *plan);
    return object;
}

#include "creation/ProjectJson.h"

#include "platform/base/NativePath.h"
#include "support/JsonPaths.h"

#include <QJsonArray>
#include <QJsonObject>

using platform::joined;

namespace {

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
    QStringList leftOut;
    plan.forEachItem([&](const PlanItem &item) {
        const QString path = item.folder.isEmpty() ? item.newName : joined(item.folder, item.newName);
        if (item.remark == PlanItem::Remark::LeftOut) {
            leftOut.append(path);
            return;
        }
        QJsonObject entry{{"folder", item.kind == platform::FileKind::Folder}};
        insertPath(entry, QStringLiteral("path"), path);
        insertPath(entry, QStringLiteral("was"), item.oldName);
        if (const QString remark = remarkWord(item.remark); !remark.isNull())
            entry.insert("remark", remark);
        if (!item.flaw.isNull())
            entry.insert("problem", platform::forDisplay(item.flaw));
        items.append(entry);
    });
    object.insert("items", items);
    if (!leftOut.isEmpty())
        insertPaths(object, QStringLiteral("leftOut"), leftOut);
}

} // namespace

QJsonObject objectOf(const ProjectOutput &project)
{
    const CreationPlan *plan = project.plan;
    QJsonObject object{
        {"folders", plan ? plan->folders() : project.result.folders},
        {"files", plan ? plan->files() : project.result.files},
        {"renamed", plan ? plan->renamed() : project.result.renamed},
        {"errors", QJsonArray::fromStringList(project.problems)},
        {"notes", QJsonArray::fromStringList(project.result.notes)},
    };
    insertPath(object, QStringLiteral("project"), project.request.relativePath());
    insertPath(object, QStringLiteral("name"), project.request.name());
    insertPath(object, QStringLiteral("path"), project.request.destination());
    insertPath(object, QStringLiteral("template"), project.request.templateName);
    QJsonObject values;
    for (const FilenameParameter &parameter : project.request.parameters)
        values.insert(platform::forDisplay(parameter.title()), platform::forDisplay(parameter.value()));
    object.insert("values", values);
    if (plan)
        addItems(object, *plan);
    return object;
}

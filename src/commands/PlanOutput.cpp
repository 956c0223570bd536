#include "commands/PlanOutput.h"

#include "commands/TreeDrawing.h"
#include "platform/base/NativePath.h"

#include <QCoreApplication>

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

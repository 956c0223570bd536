#include "commands/TreeDrawing.h"

#include <QVarLengthArray>

QString drawnTree(const QString &root, const QList<DrawnItem> &items)
{
    // From the end: whether a later item lies in the same folder is known then without looking for it.
    QList<bool> isLast(items.size());
    QVarLengthArray<bool> hasLater; // by depth, within the folder that is being gone through
    for (qsizetype i = items.size() - 1; i >= 0; --i) {
        const int depth = items[i].depth;
        while (hasLater.size() <= depth)
            hasLater.append(false);
        hasLater.resize(depth + 1);
        isLast[i] = !std::exchange(hasLater[depth], true);
    }
    QString drawing = root + u'\n';
    QStringList columns; // what stands left of an item, by depth
    for (qsizetype i = 0; i < items.size(); ++i) {
        columns.resize(items[i].depth);
        drawing += columns.join(QString()) + (isLast[i] ? QStringLiteral("└── ") : QStringLiteral("├── ")) +
                   items[i].text + u'\n';
        columns.append(isLast[i] ? QStringLiteral("    ") : QStringLiteral("│   "));
    }
    return drawing;
}

#pragma once

#include <QList>
#include <QString>

/** One item of a tree that is printed, in the order of the tree: a folder before what lies in it. */
struct DrawnItem
{
    int depth = 0; ///< 0 right below the root
    QString text;  ///< on one line
};

/** The tree as lines, the root first. Pure. */
[[nodiscard]] QString drawnTree(const QString &root, const QList<DrawnItem> &items);

#pragma once

#include "platform/files/FileSystem.h"

#include <QList>

/** One item of a template's tree. */
struct ListedItem
{
    QString folder; ///< below the tree's root, "" for the root itself
    QString name;
    platform::FileKind kind = platform::FileKind::Missing;
};

/** A template's tree as it was read: every item in listing order, a folder before what lies in it. */
struct TreeListing
{
    QList<ListedItem> items;
    QList<platform::Outcome>
        unreadable; ///< one for each folder that could not be listed, also for a root that is missing
};

/** Reads the tree below a folder; links are items, never entered. Blocks; any thread. */
[[nodiscard]] TreeListing listTree(const QString &root);

#pragma once

#include "platform/FileSystem.h"

#include <QList>

/** One item of a template's tree. */
struct TemplateItem
{
    QString folder; ///< below the tree's root, "" for the root itself
    QString name;
    platform::FileKind kind = platform::FileKind::Missing;
};

/** A template's tree as it was read: every item in listing order, a folder before what lies in it. */
struct TemplateTree
{
    QList<TemplateItem> items;
    QStringList unreadable; ///< folders whose contents could not be listed; the root is "" (missing counts as unreadable)
};

/** Reads the tree below a folder; links are items, never entered. Blocks; any thread. */
[[nodiscard]] TemplateTree readTemplateTree(const QString &root);

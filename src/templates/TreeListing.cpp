#include "templates/TreeListing.h"

#include "platform/base/NativePath.h"

namespace {

void readInto(TreeListing &tree, const QString &root, const QString &folder)
{
    const auto entries = platform::listFolder(platform::joined(root, folder));
    if (!entries) {
        tree.unreadable.append(entries.outcome());
        return;
    }
    for (const platform::FolderEntry &entry : *entries) {
        tree.items.append({folder, entry.name, entry.kind});
        if (entry.kind == platform::FileKind::Folder)
            readInto(tree, root, folder.isEmpty() ? entry.name : platform::joined(folder, entry.name));
    }
}

} // namespace

TreeListing listTree(const QString &root)
{
    TreeListing tree;
    readInto(tree, root, QLatin1String(""));
    return tree;
}

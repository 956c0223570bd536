#include "templates/TemplateTree.h"

#include "platform/NativePath.h"

namespace {

void readInto(TemplateTree &tree, const QString &root, const QString &folder)
{
    const auto entries = platform::listFolder(platform::joined(root, folder));
    if (!entries) {
        tree.unreadable.append(folder);
        return;
    }
    for (const platform::FolderEntry &entry : *entries) {
        tree.items.append({folder, entry.name, entry.kind});
        if (entry.kind == platform::FileKind::Folder)
            readInto(tree, root, folder.isEmpty() ? entry.name : platform::joined(folder, entry.name));
    }
}

} // namespace

TemplateTree readTemplateTree(const QString &root)
{
    TemplateTree tree;
    readInto(tree, root, QLatin1String(""));
    return tree;
}

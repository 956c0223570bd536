#include "platform/files/Tree.h"

#include "platform/base/NativePath.h"
#include "platform/files/JobStack.h"
#include "platform/files/ListingOrder.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FolderReader.h"

#include <QHash>
#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>

namespace platform {
namespace {

class TreeReader
{
    using Descriptor = std::shared_ptr<UniqueDescriptor>;
    struct Job
    {
        Descriptor parent;
        std::uint32_t folder; ///< the parent
        std::uint32_t item;   ///< in it
    };

public:
    TreeReader(const std::function<void(TreeFolder &)> &wasRead, const std::atomic<bool> &cancelled)
        : m_wasRead(wasRead)
        , m_cancelled(cancelled)
    {
    }

    Tree run(const QString &root)
    {
        raiseDescriptorLimit();
        const PathAt at(root);
        const auto opened =
            std::make_shared<UniqueDescriptor>(openat(at.folder(), at.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        m_tree.folders.emplace_back();
        read(opened, 0);
        const Workers workers = m_jobs.waiting().empty() ? Workers::One : Workers::Two;
        m_jobs.workOff([this](const Job &job) { descend(job); }, workers);
        return std::move(m_tree);
    }

private:
    TreeFolder &folder(std::uint32_t number)
    {
        const std::scoped_lock lock(m_mutex);
        return m_tree.folders[number]; // stays where it is when others are added
    }

    void descend(const Job &job)
    {
        if (m_cancelled)
            return;
        const TreeFolder &parent = folder(job.folder);
        const TreeItem &item = parent.items[job.item];
        read(std::make_shared<UniqueDescriptor>(openFolder(job.parent->get(), parent.nameOf(item))), item.folder);
    }

    void read(const Descriptor &opened, std::uint32_t number)
    {
        TreeFolder &own = folder(number);
        const bool isRead = opened->isOpen() && readFolder(opened->get(), [&](const char *name, unsigned char type) {
                                own.add(name, type);
                            });
        if (!isRead) {
            own.error = errno;
            own.items.clear();
            own.names.clear();
        }
        own.names.shrink_to_fit();
        own.items.shrink_to_fit();
        own.sort();
        m_wasRead(own);
        enterFolders(opened, number, own);
    }

    void enterFolders(const Descriptor &opened, std::uint32_t number, TreeFolder &own)
    {
        for (std::uint32_t i = 0; i < own.items.size(); ++i) {
            if (own.items[i].type != DT_DIR)
                continue;
            {
                const std::scoped_lock lock(m_mutex);
                own.items[i].folder = static_cast<std::uint32_t>(m_tree.folders.size());
                TreeFolder &below = m_tree.folders.emplace_back();
                below.parent = number;
                below.itemInOwn = i;
            }
            m_jobs.push({opened, number, i});
        }
    }

    const std::function<void(TreeFolder &)> &m_wasRead;
    const std::atomic<bool> &m_cancelled;
    std::mutex m_mutex;
    Tree m_tree;
    JobStack<Job> m_jobs;
};

} // namespace

void TreeFolder::add(const char *name, unsigned char type)
{
    const auto at = static_cast<std::uint32_t>(names.size());
    names.append(name).push_back('\0');
    items.push_back({at, at, 0, type, 0});
}

void TreeFolder::rename(TreeItem &item, std::string_view newName)
{
    item.newName = static_cast<std::uint32_t>(names.size());
    names.append(newName).push_back('\0');
}

void TreeFolder::sort()
{
    if (isAscii(names)) {
        std::sort(items.begin(), items.end(),
                  [this](const TreeItem &a, const TreeItem &b) { return precedesInAscii(nameOf(a), nameOf(b)); });
        return;
    }
    QList<FolderEntry> entries;
    QHash<QString, TreeItem> byName;
    for (const TreeItem &item : items) {
        entries.append({fromNative(nameOf(item)), FileKind::Missing});
        byName.insert(entries.constLast().name, item);
    }
    entries = inListingOrder(std::move(entries));
    std::transform(entries.begin(), entries.end(), items.begin(),
                   [&](const FolderEntry &entry) { return byName.value(entry.name); });
}

QString Tree::pathBy(NameOf nameOf, std::uint32_t folder) const
{
    QStringList names;
    for (; folder != 0; folder = folders[folder].parent) {
        const TreeFolder &parent = folders[folders[folder].parent];
        names.prepend(fromNative((parent.*nameOf)(parent.items[folders[folder].itemInOwn])));
    }
    return names.join(u'/');
}

QString Tree::pathOf(std::uint32_t folder) const
{
    return pathBy(&TreeFolder::nameOf, folder);
}

QString Tree::newPathOf(std::uint32_t folder) const
{
    return pathBy(&TreeFolder::newNameOf, folder);
}

void Tree::forEachFolder(const std::function<void(std::uint32_t)> &visit, std::uint32_t from) const
{
    visit(from);
    for (const TreeItem &item : folders[from].items) {
        if (item.folder != 0)
            forEachFolder(visit, item.folder);
    }
}

std::size_t Tree::itemCount() const
{
    std::size_t count = 0;
    for (const TreeFolder &folder : folders)
        count += folder.items.size();
    return count;
}

Tree readTree(const QString &root, const std::function<void(TreeFolder &)> &wasRead, const std::atomic<bool> &cancelled)
{
    return TreeReader(wasRead, cancelled).run(root);
}

MadeItem madeItemAt(const QString &path)
{
    struct stat info;
    const PathAt at(path);
    const bool isThere = fstatat(at.folder(), at.name(), &info, AT_SYMLINK_NOFOLLOW) == 0;
    return isThere ? MadeItem::of(info) : MadeItem();
}

FileKind kindOfType(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return FileKind::File;
    case DT_DIR:
        return FileKind::Folder;
    case DT_LNK:
        return FileKind::Link;
    default:
        return FileKind::Other;
    }
}

} // namespace platform

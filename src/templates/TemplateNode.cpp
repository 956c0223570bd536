#include "templates/TemplateNode.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Packages.h"
#include "platform/plain/StartedThread.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"

#include <QDataStream>
#include <QIODevice>
#include <atomic>
#include <mutex>
#include <thread>

using platform::FileKind;
using platform::FolderEntry;

namespace {

/// Deeper than any path can be, and shallow enough to be decoded by recursion.
constexpr int deepestArchive = 2100;

/// Whether the link leads to a folder that its own path goes through, however that is called.
bool leadsBack(const QString &link)
{
    const auto target = platform::identityOf(link + QStringLiteral("/."));
    for (QString above = platform::parentPath(link); target; above = platform::parentPath(above)) {
        if (platform::identityOf(above + QStringLiteral("/.")) == target)
            return true;
        if (above.isEmpty() || above == u"/")
            return false;
    }
    return false;
}

void encode(QDataStream &stream, const TemplateNode &node)
{
    stream << node.isFolderItem() << node.name() << node.filename();
    if (!node.isFolderItem())
        return;
    const auto &children = static_cast<const VTFolderItem &>(node).children();
    stream << static_cast<quint32>(children.size());
    for (const auto &child : children)
        encode(stream, *child);
}

std::unique_ptr<TemplateNode> decode(QDataStream &stream, int depth);

bool decodeList(QDataStream &stream, TemplateNodes &nodes, int depth)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        auto node = decode(stream, depth);
        if (!node)
            return false;
        nodes.push_back(std::move(node));
    }
    return stream.status() == QDataStream::Ok;
}

std::unique_ptr<TemplateNode> decode(QDataStream &stream, int depth)
{
    bool isFolder = false;
    QString name;
    QString filename;
    stream >> isFolder >> name >> filename;
    if (stream.status() != QDataStream::Ok || depth > deepestArchive)
        return nullptr;
    if (!isFolder)
        return std::make_unique<VTFileItem>(name, filename);
    TemplateNodes children;
    if (!decodeList(stream, children, depth + 1))
        return nullptr;
    return std::make_unique<VTFolderItem>(name, filename, std::move(children));
}

/// Reads one tree. Where a folder holds several others, a second worker shares them: a large tree is read in half the
/// time.
class TreeReader
{
public:
    /// The nodes at the top carry their paths; those below have them from their folders.
    TemplateNodes read(const QString &folder) { return read(folder, true); }

    /// Once the reading is over.
    [[nodiscard]] const QList<platform::Outcome> &unreadable() const { return m_unreadable; }

private:
    static constexpr std::size_t worthSharing = 4;
    struct Folder
    {
        VTFolderItem *node;
        QString path;
    };

    TemplateNodes read(const QString &folder, bool isTop)
    {
        TemplateNodes nodes;
        std::vector<Folder> folders;
        const auto entries = platform::listFolder(folder);
        if (!entries) {
            const std::scoped_lock lock(m_mutex);
            m_unreadable.append(entries.outcome());
            return nodes;
        }
        nodes.reserve(static_cast<std::size_t>(entries->size()));
        for (const FolderEntry &entry : *entries) {
            const bool isLink = entry.kind == FileKind::Link;
            const bool mayBeFolder = isLink || entry.kind == FileKind::Folder;
            const QString path = isTop || mayBeFolder ? platform::joined(folder, entry.name) : QString();
            const bool leadsToFolder = entry.kind == FileKind::Folder || (isLink && platform::leadsToFolder(path));
            if (leadsToFolder && !platform::isPackage(path)) {
                const bool isEntered = !isLink || !leadsBack(path);
                auto node = std::make_unique<VTFolderItem>(entry.name, isTop ? path : QString());
                node->setLink(isLink);
                if (isEntered)
                    folders.push_back({node.get(), path});
                nodes.push_back(std::move(node));
            } else if (!entry.name.startsWith(u'.')) {
                nodes.push_back(std::make_unique<VTFileItem>(entry.name, isTop ? path : QString()));
                nodes.back()->setLink(isLink);
            }
        }
        readAll(folders);
        return nodes;
    }

    void readAll(const std::vector<Folder> &folders)
    {
        std::atomic<std::size_t> next = 0;
        const auto work = [&] {
            for (std::size_t i = next++; i < folders.size(); i = next++)
                folders[i].node->setChildren(read(folders[i].path, false));
        };
        std::thread second;
        if (folders.size() >= worthSharing && !m_isShared.exchange(true))
            second = platform::startedThread(work);
        work();
        if (second.joinable()) {
            second.join();
            m_isShared = false;
        }
    }

    std::atomic<bool> m_isShared = false;
    std::mutex m_mutex;
    QList<platform::Outcome> m_unreadable;
};

} // namespace

TemplateNode::TemplateNode(const QString &path, VTFolderItem *parent)
    : m_parent(parent)
    , m_name(platform::lastComponent(path))
    , m_filename(path)
{
}

QString TemplateNode::filename() const
{
    return m_filename.isNull() && m_parent ? platform::joined(m_parent->filename(), m_name) : m_filename;
}

void TemplateNode::rename(const QString &newPath)
{
    m_filename = newPath;
    m_name = platform::lastComponent(newPath);
}

bool TemplateNode::isBehindLink() const
{
    const TemplateNode *above = m_parent;
    while (above && !above->isLink())
        above = above->parent();
    return above;
}

int TemplateNode::colorIndex() const
{
    return VTFileManager::finderColorIndexForPath(filename());
}

std::unique_ptr<VTFileItem> VTFileItem::fileItemWithPath(const QString &path, VTFolderItem *parent)
{
    return std::unique_ptr<VTFileItem>(new VTFileItem(path, parent));
}

std::unique_ptr<VTFolderItem> VTFolderItem::folderItemWithPath(const QString &path, VTFolderItem *parent)
{
    std::unique_ptr<VTFolderItem> folder(new VTFolderItem(path, parent));
    folder->populateChildren();
    return folder;
}

void VTFolderItem::rename(const QString &newPath)
{
    for (const auto &child : m_children)
        child->rename(platform::joined(newPath, child->name()));
    TemplateNode::rename(newPath);
}

void VTFolderItem::setChildren(TemplateNodes children)
{
    m_children = std::move(children);
    adopt(m_children, this);
}

void VTFolderItem::populateChildren()
{
    setChildren(nodesInFolder(filename(), this));
}

void adopt(TemplateNodes &nodes, VTFolderItem *parent)
{
    int row = 0;
    for (const auto &node : nodes) {
        node->m_parent = parent;
        node->m_row = row++;
    }
}

ReadNodes readNodes(const QString &folder)
{
    TreeReader reader;
    ReadNodes read{reader.read(folder), {}};
    adopt(read.nodes, nullptr);
    read.unreadable = reader.unreadable();
    return read;
}

TemplateNodes nodesInFolder(const QString &folder, VTFolderItem *parent)
{
    ReadNodes read = readNodes(folder);
    for (const platform::Outcome &unreadable : std::as_const(read.unreadable))
        VTLog::appendLog("Unable to read folder: %@", unreadable.description());
    adopt(read.nodes, parent);
    return std::move(read.nodes);
}

TemplateNode *nodeWithFilename(const QString &filename, const TemplateNodes &nodes)
{
    for (const auto &node : nodes) {
        if (node->filename() == filename)
            return node.get();
        if (node->isFolderItem() && filename.startsWith(node->filename()))
            return nodeWithFilename(filename, static_cast<const VTFolderItem &>(*node).children());
    }
    return nullptr;
}

QByteArray archivedNodes(const std::vector<const TemplateNode *> &nodes)
{
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream << static_cast<quint32>(nodes.size());
    for (const TemplateNode *node : nodes)
        encode(stream, *node);
    return archive;
}

TemplateNodes nodesFromArchive(const QByteArray &archive)
{
    QDataStream stream(archive);
    TemplateNodes nodes;
    return decodeList(stream, nodes, 0) ? std::move(nodes) : TemplateNodes();
}

#pragma once

#include "platform/base/Outcome.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <vector>

class VTFolderItem;
class TemplateNode;
using TemplateNodes = std::vector<std::unique_ptr<TemplateNode>>;

/**
 * One item of a template's tree in memory: a picture of the disk, which is always the truth. It carries its path, by
 * which it is known, and no contents. Owned by its folder, or at the top by the structure editor. Belongs to one thread
 * at a time; reading the disk may happen on any.
 */
class TemplateNode
{
public:
    virtual ~TemplateNode() = default;
    TemplateNode(const TemplateNode &) = delete;
    TemplateNode &operator=(const TemplateNode &) = delete;

    /** Folders that are no packages; everything else is a VTFileItem. */
    [[nodiscard]] virtual bool isFolderItem() const = 0;

    /** Null at the top of the tree, and for a node out of an archive. */
    [[nodiscard]] VTFolderItem *parent() const { return m_parent; }
    /** Its place among its siblings. */
    [[nodiscard]] int row() const { return m_row; }
    /** The last component of the path: what is shown and edited. */
    [[nodiscard]] const QString &name() const { return m_name; }
    /** Its path: its own, or, as in most of a tree, that of its folder with its name. */
    [[nodiscard]] QString filename() const;
    void setName(const QString &name) { m_name = name; }
    void setFilename(const QString &filename) { m_filename = filename; }

    /** The item itself is a link; for a folder item, one that leads to a folder. */
    [[nodiscard]] bool isLink() const { return m_isLink; }
    void setLink(bool isLink) { m_isLink = isLink; }
    /** It lies in a folder that a link leads to, outside of the template: it is shown, and not changed from here. */
    [[nodiscard]] bool isBehindLink() const;

    /** In memory only: the node, and all below it, follows to the new path. */
    virtual void rename(const QString &newPath);
    /** The item's flags word, whose bits 1 to 3 are the label; read from the disk at each call. */
    [[nodiscard]] int colorIndex() const;

protected:
    TemplateNode(const QString &path, VTFolderItem *parent);
    TemplateNode(QString name, QString filename)
        : m_name(std::move(name))
        , m_filename(std::move(filename))
    {
    }

private:
    friend void adopt(TemplateNodes &nodes, VTFolderItem *parent);
    VTFolderItem *m_parent = nullptr;
    int m_row = 0;
    bool m_isLink = false;
    QString m_name;
    QString m_filename; ///< null: as its folder's says
};

/** A file, or a package, which the desktop shows as one. */
class VTFileItem : public TemplateNode
{
public:
    [[nodiscard]] static std::unique_ptr<VTFileItem> fileItemWithPath(const QString &path, VTFolderItem *parent);
    VTFileItem(QString name, QString filename)
        : TemplateNode(std::move(name), std::move(filename))
    {
    }
    [[nodiscard]] bool isFolderItem() const override { return false; }

private:
    using TemplateNode::TemplateNode;
};

class VTFolderItem : public TemplateNode
{
public:
    /** Reads the whole subtree from the disk; may block for as long as that takes. */
    [[nodiscard]] static std::unique_ptr<VTFolderItem> folderItemWithPath(const QString &path, VTFolderItem *parent);
    /** The children stay without a parent: such a folder is a picture of another one. */
    VTFolderItem(QString name, QString filename, TemplateNodes detached = {})
        : TemplateNode(std::move(name), std::move(filename))
        , m_children(std::move(detached))
    {
    }
    [[nodiscard]] bool isFolderItem() const override { return true; }
    void rename(const QString &newPath) override;

    [[nodiscard]] const TemplateNodes &children() const { return m_children; }
    void setChildren(TemplateNodes children);
    /** Rebuilds the children from the disk. */
    void populateChildren();

private:
    using TemplateNode::TemplateNode;
    TemplateNodes m_children;
};

/**
 * The nodes of what lies in a folder, each with its whole subtree, in listing order; a folder that cannot be read is
 * empty and named beside them. Folders are shown whatever their name, other items only when it does not begin with a
 * dot. A link to a folder is read through, unless it leads back to a folder that its own path goes through: that one
 * stays empty.
 */
struct ReadNodes
{
    TemplateNodes nodes;
    QList<platform::Outcome> unreadable;
};
[[nodiscard]] ReadNodes readNodes(const QString &folder);
/** The same for the window: what cannot be read is logged. */
[[nodiscard]] TemplateNodes nodesInFolder(const QString &folder, VTFolderItem *parent);

/** Sets parent and row of each. */
void adopt(TemplateNodes &nodes, VTFolderItem *parent);

/**
 * The node with the path, in the order of the lists. A folder whose path begins the searched one as plain text is
 * searched and nothing after it; this must stay: with "Shots" before "Shots Extra" the latter is not found.
 */
[[nodiscard]] TemplateNode *nodeWithFilename(const QString &filename, const TemplateNodes &nodes);

/** The form in which dragged nodes travel within the program. What comes back has no parents. Nothing when it is
 * damaged. */
[[nodiscard]] QByteArray archivedNodes(const std::vector<const TemplateNode *> &nodes);
[[nodiscard]] TemplateNodes nodesFromArchive(const QByteArray &archive);

#pragma once

#include "creation/TemplateRules.h"
#include "templates/TemplateNode.h"

#include <QAbstractItemModel>
#include <QStringList>
#include <functional>

class QMimeData;

/** What a drop brings: paths from outside, or the archive of nodes from inside. */
struct TemplateDrop
{
    bool isFromOutside = false;
    QStringList paths;
    QByteArray archive;
};

/** How a drop would be taken; the values are those of the reference desktop. */
enum class DropOperation { Refused = 0, Copy = 1, Move = 16 };

/**
 * The index mechanics of a template's tree, and nothing else: one column of names. What a name that was typed, or a
 * drop, means is asked of the handlers. Main thread only.
 */
class TemplateTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /** The type under which nodes travel within the program. */
    inline static const QString VTPboardType = QStringLiteral("application/x-tessaro-template-items");

    struct Handlers
    {
        /** A name was typed for the item; called when the editor is gone. */
        std::function<void(const QString &filename, const QString &typed)> rename;
        std::function<DropOperation(const TemplateDrop &, const TemplateNode *target)> validate;
        /** The target's path, null for the root; called when the drag is over. */
        std::function<void(const TemplateDrop &, const QString &target)> accept;
    };

    explicit TemplateTreeModel(Handlers handlers, QObject *parent = nullptr);

    [[nodiscard]] const TemplateNodes &nodes() const { return m_nodes; }
    void setNodes(TemplateNodes nodes);
    /** What is said of items by their rules, by path; and whether names have values in them. */
    void setRules(const QHash<QString, ItemRule> &rules, bool fillsNames);
    /** What names may have in braces, where they have values. */
    void setTitles(const QStringList &titles) { m_titles = titles; }
    void setChildren(VTFolderItem &folder, TemplateNodes children);
    /** Its row, and the names below it, have changed. */
    void itemChanged(const TemplateNode &node);

    /** What was typed and waits for its editor to be gone, at once; to be called when no editor is open. */
    void takeTypedNames();

    /** Null for the root. */
    [[nodiscard]] static TemplateNode *nodeAt(const QModelIndex &index);
    [[nodiscard]] QModelIndex indexOf(const TemplateNode *node) const;
    /** The registered type that comes first: paths from outside, or nodes. */
    [[nodiscard]] static TemplateDrop dropOf(const QMimeData &data);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                       const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    [[nodiscard]] const TemplateNodes &childrenOf(const QModelIndex &parent) const;

    [[nodiscard]] QStringList titlesFor(const TemplateNode &node) const;
    [[nodiscard]] QVariant badgesOf(const TemplateNode &node) const;
    [[nodiscard]] QString sentenceOfRules(const TemplateNode &node) const;

    Handlers m_handlers;
    QHash<QString, ItemRule> m_rules;
    bool m_fillsNames = false;
    QStringList m_titles;
    TemplateNodes m_nodes;
    QList<std::pair<QString, QString>> m_typed; ///< path and name
    bool m_isTakingNames = false;
};

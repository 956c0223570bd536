#include "templates/editor/TemplateTreeModel.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Packages.h"
#include "support/VTFileManager.h"
#include "ui/FileIcons.h"
#include "ui/ValueCellDelegate.h"

#include <QColor>
#include <QMimeData>
#include <QUrl>

namespace {

QVariant iconOf(const TemplateNode &node)
{
    using Kind = fileicons::Kind;
    const Kind kind = node.isFolderItem()                    ? Kind::Folder
                      : platform::isPackage(node.filename()) ? Kind::Package
                                                             : Kind::File;
    return fileicons::forName(node.name(), kind);
}

QVariant toolTipOf(const TemplateNode &node)
{
    if (node.isLink())
        return TemplateTreeModel::tr("Link to %1").arg(platform::forDisplay(platform::linkTarget(node.filename())));
    if (node.isBehindLink())
        return TemplateTreeModel::tr("This lies behind a link, outside of the template. It is not changed from here.");
    return {};
}

QVariant colorOf(const TemplateNode &node)
{
    const auto color = VTFileManager::finderColorForPath(node.filename());
    return color ? QVariant(QColor::fromHsvF(static_cast<float>(color->hue), static_cast<float>(color->saturation),
                                             static_cast<float>(color->brightness)))
                 : QVariant();
}

/// For a screen reader, to whom neither icon nor colour says anything.
QString spokenName(const TemplateNode &node)
{
    const QString name = platform::forDisplay(node.name());
    const QString label = VTFileManager::labelName(node.colorIndex());
    const QString kind = node.isLink()         ? TemplateTreeModel::tr("link")
                         : node.isFolderItem() ? TemplateTreeModel::tr("folder")
                                               : TemplateTreeModel::tr("file");
    return label.isNull() ? TemplateTreeModel::tr("%1, %2").arg(name, kind)
                          : TemplateTreeModel::tr("%1, %2, label %3").arg(name, kind, label);
}

QVariant stemLength(const TemplateNode &node)
{
    const QString name = platform::forDisplay(node.name());
    return node.isFolderItem() ? name.size() : platform::withoutExtension(name).size();
}

} // namespace

TemplateTreeModel::TemplateTreeModel(Handlers handlers, QObject *parent)
    : QAbstractItemModel(parent)
    , m_handlers(std::move(handlers))
{
}

void TemplateTreeModel::setNodes(TemplateNodes nodes)
{
    beginResetModel();
    m_nodes = std::move(nodes);
    endResetModel();
}

void TemplateTreeModel::setRules(const QHash<QString, ItemRule> &rules, bool fillsNames)
{
    if (rules == m_rules && fillsNames == m_fillsNames)
        return;
    m_rules = rules;
    m_fillsNames = fillsNames;
    if (!m_nodes.empty()) // the view draws what is in sight
        Q_EMIT dataChanged(index(0, 0, {}), index(rowCount() - 1, 0, {}));
}

/// Repeats of the item and of the folders above have names of their own.
QStringList TemplateTreeModel::titlesFor(const TemplateNode &node) const
{
    QStringList repeats;
    for (const TemplateNode *above = &node; above && !m_rules.isEmpty(); above = above->parent()) {
        const Repeat repeat = m_rules.value(above->filename()).repeat;
        if (repeat.over != Repeat::Over::Nothing)
            repeats.append(repeat.name);
    }
    return m_fillsNames ? repeats + m_titles : repeats;
}

QVariant TemplateTreeModel::badgesOf(const TemplateNode &node) const
{
    QStringList icons;
    const ItemRule rule = m_rules.isEmpty() ? ItemRule() : m_rules.value(node.filename());
    if (!rule.when.tests.isEmpty())
        icons.append(QStringLiteral("rule-condition"));
    if (rule.repeat.over != Repeat::Over::Nothing)
        icons.append(QStringLiteral("rule-repeat"));
    if (rule.fillsText)
        icons.append(QStringLiteral("rule-text"));
    return icons.isEmpty() ? QVariant() : icons;
}

QString TemplateTreeModel::sentenceOfRules(const TemplateNode &node) const
{
    const ItemRule rule = m_rules.isEmpty() ? ItemRule() : m_rules.value(node.filename());
    QStringList sentences;
    for (const Condition &condition : rule.when.tests)
        sentences.append(tr("only when %1 %2 %3").arg(condition.parameter, nameOf(condition.is), condition.value));
    if (rule.repeat.over == Repeat::Over::Numbers)
        sentences.append(tr("once for each number up to %1").arg(rule.repeat.parameter));
    if (rule.repeat.over == Repeat::Over::Values)
        sentences.append(tr("once for each value of %1").arg(rule.repeat.parameter));
    if (rule.fillsText)
        sentences.append(tr("values in its text"));
    return sentences.join(QStringLiteral("; "));
}

void TemplateTreeModel::setChildren(VTFolderItem &folder, TemplateNodes children)
{
    const QModelIndex index = indexOf(&folder);
    if (!folder.children().empty()) {
        beginRemoveRows(index, 0, static_cast<int>(folder.children().size()) - 1);
        folder.setChildren({});
        endRemoveRows();
    }
    if (!children.empty()) {
        beginInsertRows(index, 0, static_cast<int>(children.size()) - 1);
        folder.setChildren(std::move(children));
        endInsertRows();
    }
}

void TemplateTreeModel::itemChanged(const TemplateNode &node)
{
    const QModelIndex index = indexOf(&node);
    Q_EMIT dataChanged(index, index);
}

TemplateNode *TemplateTreeModel::nodeAt(const QModelIndex &index)
{
    return static_cast<TemplateNode *>(index.internalPointer());
}

QModelIndex TemplateTreeModel::indexOf(const TemplateNode *node) const
{
    return node ? createIndex(node->row(), 0, node) : QModelIndex();
}

TemplateDrop TemplateTreeModel::dropOf(const QMimeData &data)
{
    if (data.hasFormat(VTPboardType))
        return {false, {}, data.data(VTPboardType)};
    TemplateDrop drop{data.hasUrls(), {}, {}};
    for (const QUrl &address : data.urls()) {
        if (address.isLocalFile()) // the bytes as they came: a name need not be UTF-8
            drop.paths.append(
                platform::fromNative(QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1())));
    }
    return drop;
}

const TemplateNodes &TemplateTreeModel::childrenOf(const QModelIndex &parent) const
{
    static const TemplateNodes none;
    if (!parent.isValid())
        return m_nodes;
    const TemplateNode *node = nodeAt(parent);
    return node->isFolderItem() ? static_cast<const VTFolderItem *>(node)->children() : none;
}

QModelIndex TemplateTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const TemplateNodes &children = childrenOf(parent);
    if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= children.size())
        return {};
    return createIndex(row, 0, children[static_cast<std::size_t>(row)].get());
}

QModelIndex TemplateTreeModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(nodeAt(child)->parent()) : QModelIndex();
}

int TemplateTreeModel::rowCount(const QModelIndex &parent) const
{
    return static_cast<int>(childrenOf(parent).size());
}

int TemplateTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool TemplateTreeModel::hasChildren(const QModelIndex &parent) const
{
    return !parent.isValid() || nodeAt(parent)->isFolderItem(); // empty folders can be opened, too
}

QVariant TemplateTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TemplateNode &node = *nodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return platform::forDisplay(node.name());
    case Qt::DecorationRole:
        return iconOf(node);
    case Qt::AccessibleTextRole: {
        const QString rules = sentenceOfRules(node);
        return rules.isEmpty() ? spokenName(node) : spokenName(node) + QStringLiteral(", ") + rules;
    }
    case Qt::ToolTipRole: {
        const QVariant toolTip = toolTipOf(node);
        const QString rules = sentenceOfRules(node);
        return toolTip.isValid() || rules.isEmpty() ? toolTip : rules;
    }
    case CellRole::Items:
        return titlesFor(node);
    case CellRole::Badges:
        return badgesOf(node);
    case CellRole::LabelColor:
        return node.isLink() ? QVariant() : colorOf(node); // the colour would be the target's
    case CellRole::StemLength:
        return stemLength(node);
    case CellRole::IsLink:
        return node.isLink();
    default:
        return {};
    }
}

bool TemplateTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const TemplateNode &node = *nodeAt(index);
    if (value.toString() == platform::forDisplay(node.name())) // bytes that cannot be shown stay as they are
        return false;
    // Questions and moves turn the event loop, which an open editor does not survive.
    m_typed.append({node.filename(), value.toString()});
    QMetaObject::invokeMethod(this, &TemplateTreeModel::takeTypedNames, Qt::QueuedConnection);
    return true;
}

void TemplateTreeModel::takeTypedNames()
{
    if (std::exchange(m_isTakingNames,
                      true)) // a question, or a slow disk, has turned the event loop: one after the other
        return;
    while (!m_typed.isEmpty()) {
        const auto [path, typed] = m_typed.takeFirst();
        m_handlers.rename(path, typed);
    }
    m_isTakingNames = false;
}

Qt::ItemFlags TemplateTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    // Said of a file, "every folder opened" opens folders only; else each file is entered into the view's list, too.
    const Qt::ItemFlags own = nodeAt(index)->isFolderItem() ? Qt::NoItemFlags : Qt::ItemFlags(Qt::ItemNeverHasChildren);
    if (nodeAt(index)->isBehindLink())
        return own;
    return own | Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
           Qt::ItemIsDropEnabled;
}

QStringList TemplateTreeModel::mimeTypes() const
{
    return {VTPboardType, QStringLiteral("text/uri-list")};
}

QMimeData *TemplateTreeModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<const TemplateNode *> nodes;
    for (const QModelIndex &index : indexes) {
        bool travelsAlong = false; // with a folder above it
        for (QModelIndex above = index.parent(); above.isValid() && !travelsAlong; above = above.parent())
            travelsAlong = indexes.contains(above);
        if (!travelsAlong)
            nodes.push_back(nodeAt(index));
    }
    auto *data = new QMimeData;
    data->setData(VTPboardType, archivedNodes(nodes));
    return data;
}

Qt::DropActions TemplateTreeModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

Qt::DropActions TemplateTreeModel::supportedDragActions() const
{
    return Qt::MoveAction;
}

bool TemplateTreeModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int,
                                        const QModelIndex &parent) const
{
    return m_handlers.validate(dropOf(*data), nodeAt(parent)) != DropOperation::Refused;
}

bool TemplateTreeModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                     const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    // A question must not be asked while the other program still waits for its drag to end.
    const QString target = parent.isValid() ? nodeAt(parent)->filename() : QString();
    QMetaObject::invokeMethod(
        this, [this, drop = dropOf(*data), target] { m_handlers.accept(drop, target); }, Qt::QueuedConnection);
    return true;
}

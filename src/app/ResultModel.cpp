#include "app/ResultModel.h"

#include "platform/base/NativePath.h"
#include "platform/files/Packages.h"
#include "ui/Colours.h"
#include "ui/FileIcons.h"
#include "ui/Icons.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>

using platform::TreeFolder;
using platform::TreeItem;
using Remark = PlanItem::Remark;

namespace {

/// Above every number of a folder: the identifiers of the levels.
constexpr quintptr levelBase = quintptr{1} << 40;

QColor accent()
{
    return accentText(QApplication::palette());
}

QColor secondary()
{
    const QPalette palette = QApplication::palette();
    return secondaryText(palette.color(QPalette::Base), palette.color(QPalette::Text));
}

bool isProblem(const TreeItem &item)
{
    const auto remark = static_cast<Remark>(item.remark);
    return remark != Remark::None && remark != Remark::LeftOut;
}

bool isLeftOut(const TreeItem &item)
{
    return static_cast<Remark>(item.remark) == Remark::LeftOut;
}

} // namespace

ResultModel::Place ResultModel::placeOf(const QModelIndex &index)
{
    return index.internalId() >= levelBase ? Place{static_cast<int>(index.internalId() - levelBase), 0}
                                           : Place{-1, static_cast<std::uint32_t>(index.internalId())};
}

QModelIndex ResultModel::levelIndex(int level, int column) const
{
    return level < 0 ? QModelIndex() : createIndex(0, column, levelBase + static_cast<quintptr>(level));
}

const TreeItem *ResultModel::itemAt(const QModelIndex &index) const
{
    const Place place = placeOf(index);
    return place.level >= 0 ? nullptr : &m_plan.tree.folders[place.folder].items[static_cast<std::size_t>(index.row())];
}

void ResultModel::setPlan(CreationPlan plan)
{
    beginResetModel();
    m_plan = std::move(plan);
    m_problems.clear();
    endResetModel();
    findProblems();
}

void ResultModel::setInput(const PlanInput &input)
{
    CreationPlan next; // of a template with rules; any other is changed in its place
    if (m_plan.ruled) {
        next.ruled = m_plan.ruled;
        next.unreadable = m_plan.unreadable;
        planFor(next, input);
    }
    const bool hasSameRows = input.levels.size() == m_plan.levels.size() && next.shape == m_plan.shape;
    if (!hasSameRows)
        beginResetModel();
    if (m_plan.ruled)
        m_plan = std::move(next);
    else
        planFor(m_plan, input);
    if (!hasSameRows)
        endResetModel();
    findProblems();
    if (hasSameRows && rowCount() > 0) // the view draws what is in sight
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount_ - 1));
}

QModelIndex ResultModel::indexOfFolder(std::uint32_t folder) const
{
    if (folder == 0)
        return {};
    const TreeFolder &own = m_plan.tree.folders[folder];
    return createIndex(static_cast<int>(own.itemInOwn), 0, quintptr{own.parent});
}

void ResultModel::findProblems()
{
    m_problems.clear();
    for (int level = 0; level < m_plan.levels.size(); ++level) {
        if (m_plan.tooLongLevels.contains(m_plan.levels[level]))
            m_problems.append(levelIndex(level));
    }
    std::vector<std::uint32_t> folders = m_plan.named;
    for (const Flaw &flaw : m_plan.flaws)
        folders.push_back(flaw.folder);
    if (!m_plan.flaws.empty()) { // a tree from rules has its folders' numbers in the order of the rows
        std::sort(folders.begin(), folders.end());
        folders.erase(std::unique(folders.begin(), folders.end()), folders.end());
    }
    for (const std::uint32_t number : folders) {
        const TreeFolder &folder = m_plan.tree.folders[number];
        for (std::size_t i = 0; i < folder.items.size(); ++i) {
            if (isProblem(folder.items[i]))
                m_problems.append(createIndex(static_cast<int>(i), 0, quintptr{number}));
        }
    }
}

QModelIndex ResultModel::problemAfter(const QModelIndex &index) const
{
    if (m_problems.isEmpty())
        return {};
    const auto at = m_problems.indexOf(QPersistentModelIndex(index.siblingAtColumn(0)));
    return m_problems[(at + 1) % m_problems.size()];
}

QModelIndex ResultModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount_)
        return {};
    const int levels = static_cast<int>(m_plan.levels.size());
    const int level = parent.isValid() ? placeOf(parent).level : -1;
    if (!parent.isValid() ? levels > 0 : level >= 0 && level + 1 < levels)
        return levelIndex(level + 1, column);
    const TreeItem *folder = parent.isValid() && level < 0 ? itemAt(parent) : nullptr;
    return createIndex(row, column, quintptr{folder ? folder->folder : 0});
}

QModelIndex ResultModel::parent(const QModelIndex &child) const
{
    if (!child.isValid())
        return {};
    const Place place = placeOf(child);
    if (place.level >= 0)
        return levelIndex(place.level - 1);
    if (place.folder == 0)
        return levelIndex(static_cast<int>(m_plan.levels.size()) - 1);
    const TreeFolder &folder = m_plan.tree.folders[place.folder];
    return createIndex(static_cast<int>(folder.itemInOwn), 0, quintptr{folder.parent});
}

int ResultModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0 || m_plan.tree.folders.empty())
        return 0;
    const auto itemsIn = [this](std::uint32_t folder) {
        return static_cast<int>(m_plan.tree.folders[folder].items.size());
    };
    const auto levels = static_cast<int>(m_plan.levels.size());
    if (!parent.isValid())
        return levels > 0 ? 1 : itemsIn(0);
    if (const Place place = placeOf(parent); place.level >= 0)
        return place.level + 1 < levels ? 1 : itemsIn(0);
    const TreeItem *item = itemAt(parent);
    return item->folder == 0 ? 0 : itemsIn(item->folder);
}

int ResultModel::columnCount(const QModelIndex &) const
{
    return columnCount_;
}

bool ResultModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant ResultModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Place place = placeOf(index);
    return place.level >= 0 ? levelData(place.level, index.column(), role) : itemData(index, role);
}

QVariant ResultModel::levelData(int level, int column, int role) const
{
    const QString name = m_plan.levels.value(level);
    const bool isTooLong = m_plan.tooLongLevels.contains(name);
    const QString remark = isTooLong ? tr("too long for a folder") : QString();
    switch (role) {
    case Qt::DisplayRole:
        return column == NameColumn ? platform::forOneLine(name) : remark;
    case Qt::DecorationRole:
        return column != NameColumn ? QVariant()
               : isTooLong          ? QVariant(icons::named("warning"))
                                    : QVariant(fileicons::forName(name, fileicons::Kind::Folder));
    case Qt::AccessibleTextRole:
        return column == NameColumn ? tr("%1, folder").arg(platform::forOneLine(name)) : remark;
    case Qt::ForegroundRole:
        return column == NameColumn ? QVariant() : secondary();
    default:
        return {};
    }
}

QString ResultModel::remarkOf(const QModelIndex &index) const
{
    const std::uint32_t number = placeOf(index).folder;
    const TreeFolder &folder = m_plan.tree.folders[number];
    const TreeItem &item = folder.items[static_cast<std::size_t>(index.row())];
    if (item.folder != 0 && m_plan.tree.folders[item.folder].error != 0)
        return tr("cannot be read");
    switch (static_cast<Remark>(item.remark)) {
    case Remark::NameTaken:
        return tr("the new name is taken");
    case Remark::NameTooLong:
        return tr("the new name is too long");
    case Remark::LeftOut:
        return tr("left out");
    case Remark::Flawed:
        return m_plan.flawOf(number, static_cast<std::uint32_t>(index.row()));
    case Remark::None:
        break;
    }
    return item.newName == item.name
               ? QString()
               : tr("was %1").arg(platform::forOneLine(platform::fromNative(folder.nameOf(item))));
}

QVariant ResultModel::itemData(const QModelIndex &index, int role) const
{
    const TreeFolder &folder = m_plan.tree.folders[placeOf(index).folder];
    const TreeItem &item = folder.items[static_cast<std::size_t>(index.row())];
    const bool isName = index.column() == NameColumn;
    const auto name = [&] {
        return platform::forOneLine(platform::fromNative(folder.newNameOf(item)));
    };
    switch (role) {
    case Qt::DisplayRole:
        return isName ? name() : remarkOf(index);
    case Qt::DecorationRole:
        if (!isName)
            return {};
        return isProblem(item)
                   ? icons::named("warning")
                   : fileicons::forName(name(), platform::kindOfType(item.type) == platform::FileKind::Folder
                                                    ? fileicons::Kind::Folder
                                                    : fileicons::Kind::File);
    case Qt::ForegroundRole:
        return !isName || isLeftOut(item)  ? QVariant(secondary())
               : item.newName != item.name ? QVariant(accent())
                                           : QVariant();
    case Qt::ToolTipRole: {
        const QString remark = remarkOf(index);
        return remark.isEmpty() ? name() : name() + QStringLiteral(" (%1)").arg(remark);
    }
    case Qt::AccessibleTextRole:
        return !isName ? remarkOf(index) : item.folder != 0 ? tr("%1, folder").arg(name()) : name();
    default:
        return {};
    }
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    return section == NameColumn ? tr("Name") : tr("Remark");
}

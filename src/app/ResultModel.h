#pragma once

#include "creation/CreationPlan.h"

#include <QAbstractItemModel>

/**
 * A project as it will be, from its plan: the folder levels, one in the other, then the template's tree with the names
 * that its items will have; beside each what is to be said of it. Main thread only.
 */
class ResultModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, RemarkColumn, columnCount_ };
    using QAbstractItemModel::QAbstractItemModel;

    void setPlan(CreationPlan plan);
    /** Other values for the same template. As long as levels and rules give as many rows, nothing but names changes.
     */
    void setInput(const PlanInput &input);
    [[nodiscard]] const CreationPlan &plan() const { return m_plan; }

    /** The row of a folder of the plan's tree, none for the project's own. */
    [[nodiscard]] QModelIndex indexOfFolder(std::uint32_t folder) const;
    [[nodiscard]] int problemCount() const { return static_cast<int>(m_problems.size()); }
    /** The problem after the one given, in the order of the rows, and after the last the first; none without problems.
     */
    [[nodiscard]] QModelIndex problemAfter(const QModelIndex &index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Place
    {
        int level = -1;           ///< of a folder level; -1 for an item
        std::uint32_t folder = 0; ///< in which the item lies
    };
    [[nodiscard]] static Place placeOf(const QModelIndex &index);
    [[nodiscard]] QModelIndex levelIndex(int level, int column = 0) const;
    [[nodiscard]] const platform::TreeItem *itemAt(const QModelIndex &index) const;
    [[nodiscard]] QVariant levelData(int level, int column, int role) const;
    [[nodiscard]] QVariant itemData(const QModelIndex &index, int role) const;
    [[nodiscard]] QString remarkOf(const QModelIndex &index) const;
    void findProblems();

    CreationPlan m_plan;
    QList<QPersistentModelIndex> m_problems;
};

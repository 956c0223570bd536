#pragma once

#include "app/ResultModel.h"
#include "creation/BatchCreation.h"

#include <QAbstractTableModel>
#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableView;
class QTreeView;

/** A table of projects as it is looked at before they are created: first what each row gives, then its cells, which can
   be changed. Main thread only. */
class BatchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setBatch(ProjectBatch batch);
    [[nodiscard]] const ProjectBatch &batch() const { return m_batch; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /** A cell has another value: the batch is to be made anew from this table. */
    void tableEdited(const ProjectTable &table);

private:
    [[nodiscard]] QString problemAt(const QModelIndex &index) const;

    ProjectBatch m_batch;
    ProjectTable m_table; ///< as it is shown: the batch may still be made of it
};

/**
 * Asks for a table of projects, from a file or the clipboard, and shows every one of them before it is made: problems
 * in their cells, the tree of the row that is selected. As a sheet. Main thread only; the table is looked at on a
 * thread of its own.
 */
class TableSheet : public QDialog
{
    Q_OBJECT

public:
    /** The base's function is called on other threads. */
    TableSheet(BatchBase base, const QString &location, QWidget *parent);
    ~TableSheet() override;

    [[nodiscard]] const ProjectBatch &batch() const { return m_model.batch(); }
    [[nodiscard]] BatchManner manner() const;
    [[nodiscard]] QString location() const { return m_location; }

    void openFile(const QString &path);
    void paste();

private:
    void build();
    [[nodiscard]] QWidget *builtTables();
    void read(const QByteArray &bytes);
    void look(const ProjectTable &table);
    void show(ProjectBatch batch);
    void showSummary();
    void showTree();
    void tell(const QString &problem);
    void chooseFile();
    void choosePlace();

    BatchBase m_base;
    QString m_location;
    ProjectTable m_table;
    BatchModel m_model;
    ResultModel m_tree;
    QTableView *m_view;
    QTreeView *m_treeView;
    QLineEdit *m_place;
    QLabel *m_summary;
    QRadioButton *m_allOrNone;
    QRadioButton *m_goOn;
    QPushButton *m_create = nullptr;
    quint64 m_trees = 0; ///< raised with each that is asked for
    quint64 m_looks = 0; ///< raised by whatever makes an earlier look old
    bool m_isLooking = false;
    std::shared_ptr<std::atomic<bool>> m_isOver = std::make_shared<std::atomic<bool>>(false);
};

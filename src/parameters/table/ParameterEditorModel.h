#pragma once

#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"

#include <QAbstractTableModel>
#include <functional>

/**
 * The table in which the list of parameters itself is edited. It keeps no copy: every read goes to the stored list,
 * every change is stored at once, and the project pane follows by the two notifications. Main thread only.
 */
class ParameterEditorModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /** The type under which dragged rows travel. */
    inline static const QString VTPboardType = QStringLiteral("application/x-tessaro-parameter-rows");

    /** The stored list. */
    explicit ParameterEditorModel(QObject *parent = nullptr);
    /** A list that is kept elsewhere, in place of the stored one; its own shipped one there is not. */
    struct List
    {
        std::function<FilenameParameters()> read;
        std::function<platform::Outcome(const ListChange &)> change;
    };
    explicit ParameterEditorModel(List list, QObject *parent = nullptr);

    [[nodiscard]] FilenameParameters list() const { return m_list.read(); }
    /** In place of the row's parameter. */
    void replace(int row, const FilenameParameter &parameter);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                       const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    /** Returns the new row. */
    int addNewFilenameParam();
    void remove(const QList<int> &rows);
    /** The shipped list applies again. */
    void restoreDefaultParams();
    /** Take back the last change that was made here, and make it again. Values and numbers stay as they are by then. */
    void undo();
    void redo();
    [[nodiscard]] bool canUndo() const { return !m_done.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !m_undone.isEmpty(); }
    /** Shows the stored list anew: someone else may have changed it. */
    void reload();

    /** Tells the project pane that the list, or what its values depend on, has changed. */
    static void notify();

Q_SIGNALS:
    /** The dragged rows have arrived. */
    void rowsDropped(const QList<int> &rows);
    /** After every change of the list. */
    void listChanged();

private:
    struct Edit
    {
        FilenameParameters before;
        FilenameParameters after;
    };
    void change(const std::function<FilenameParameters(FilenameParameters)> &change);
    void tellOthers() const;
    void remember(const Edit &edit);
    void goTo(const FilenameParameters &wanted);

    const List m_list;
    const bool m_isStored; ///< others show it, too
    QList<Edit> m_done;    ///< the last ones last
    QList<Edit> m_undone;

    int m_rowsSeen = 0; ///< when the views were last told
};

#pragma once

#include "parameters/FilenameParameter.h"
#include "support/ExistsQuestion.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <functional>

class PathControl;
class QLabel;
class Spinner;
class VTTabbedEditTableView;

/**
 * The table in which the user fills in the filename parameters: model and controller. Keeps a working copy of the
 * stored records, equal to the stored list after every change; a change is made to the list as it is stored at that
 * moment, so that what other programs have made of it stays. Every view member may stay unset. Main thread only.
 */
class VTProjectTableController : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TitleColumn, ValueColumn, ColumnCount };

    explicit VTProjectTableController(QObject *parent = nullptr);

    /** The parts of the interface that it drives; not owned. */
    struct Views
    {
        VTTabbedEditTableView *tableView = nullptr;
        QLabel *namePreviewLabel = nullptr;
        PathControl *previewPathControl = nullptr;
        Spinner *spinner = nullptr;
        QLabel *warningImage = nullptr;
    };
    void setViews(const Views &views);
    /** Loads the list and starts to listen to the notifications. Once. */
    void awakeFromNib();

    [[nodiscard]] const FilenameParameters &dataArray() const { return m_dataArray; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /** Not shown, but read to those who do not see the table. */
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /** Commits the value being typed, if any. */
    void finishEditing();
    void startProcessing();
    void finishProcessing();
    void editItem(int row);

    void clearHistory();
    /** Brings back what it took, until forgetClearedHistory(). */
    void restoreHistory();
    [[nodiscard]] bool hasClearedHistory() const { return !m_beforeClearing.isEmpty(); }
    void forgetClearedHistory() { m_beforeClearing.clear(); }
    /** Shows the counters as a creation has left them. */
    void incrementDynamicValues();
    /** The day may have changed since the values were filled in. */
    void bringUpToDate();
    /**
     * Shows what another program has stored. The edit in progress goes on; where its parameter has been removed, the
     * rows follow when it ends.
     */
    void follow();

public Q_SLOTS:
    void loadFilenameData();
    void updateDynamicValues();
    void editFirstItem();
    /** Bound to the delete keys: the first selected row goes back to its default. */
    void revertToDefaultValue();
    void updateFilenamePreview();

Q_SIGNALS:
    /** Between startProcessing() and finishProcessing(). */
    void processingChanged(bool processing);
    /** Whether there is any parameter at all. */
    void emptinessChanged(bool empty);

private:
    void change(const std::function<FilenameParameters(FilenameParameters)> &change);
    void changeRow(int row, const std::function<FilenameParameter(FilenameParameter)> &change);
    void show(FilenameParameters parameters);
    [[nodiscard]] bool isEdited(int row) const;
    [[nodiscard]] bool replaceRows(const FilenameParameters &parameters);
    void replaceRows(int first, int end, const FilenameParameters &list);
    [[nodiscard]] QVariant titleData(const FilenameParameter &parameter, int role) const;
    [[nodiscard]] QVariant valueData(const FilenameParameter &parameter, int role) const;
    void showWarning(bool exists);

    FilenameParameters m_dataArray;
    Views m_views;
    FilenameParameters m_beforeClearing;
    bool m_isBehind = false; ///< the parameter being edited has been removed
    ExistsQuestion m_exists; ///< whether the project that is shown stands already
};

#pragma once

#include "parameters/ParameterScope.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
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

    /** The parameters as a template has them; what was typed stays where both have it. */
    void setScope(const ParameterScope &scope);
    [[nodiscard]] const ParameterScope &scope() const { return m_scope; }

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
    /** The day may have changed since the values were filled in; what was typed over stays. */
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
    /** The folder levels that the values make, the folder in which they will lie, and the values; with every key. */
    void levelsShown(const QStringList &levels, const QString &location, const FilenameParameters &parameters);
    /** Whether there is any parameter at all. */
    void emptinessChanged(bool empty);

private:
    void changeRow(int row, const std::function<FilenameParameter(FilenameParameter)> &change);
    void changeList(const std::function<FilenameParameters(FilenameParameters)> &change,
                    std::optional<QString> typedTitle = {});
    void show(FilenameParameters parameters);
    [[nodiscard]] bool isEdited(int row) const;
    [[nodiscard]] bool replaceRows(const FilenameParameters &parameters);
    void replaceRows(int first, int end, const FilenameParameters &list);
    [[nodiscard]] QVariant titleData(const FilenameParameter &parameter, int role) const;
    [[nodiscard]] QVariant valueData(qsizetype row, int role) const;
    [[nodiscard]] QVariant sayingsOf(qsizetype row, int role) const;
    [[nodiscard]] FilenameParameters withTyped() const;
    [[nodiscard]] FilenameParameter shown(qsizetype row) const;
    void showTyped(const QModelIndex &index, const QString &text);
    void forgetTyped();
    void forgetRemembered(const QModelIndex &index, const QString &value);
    void showProblems(const FilenameParameters &parameters, const QString &separator);
    void showWarning(bool exists);

    ParameterScope m_scope;
    QSet<QString> m_seenTemplates; ///< whose own parameters have begun with their defaults in this run
    FilenameParameters m_dataArray;
    QList<naming::Problem> m_problems;  ///< of each row, with what is being typed
    rules::AutomaticValues m_automatic; ///< as they were filled in
    QPersistentModelIndex m_typedCell;  ///< of the edit in progress, once something has been typed
    QString m_typed;
    Views m_views;
    FilenameParameters m_beforeClearing;
    bool m_isBehind = false; ///< the parameter being edited has been removed
    ExistsQuestion m_exists; ///< whether the project that is shown stands already
};

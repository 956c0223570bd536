#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <optional>

class QAction;
class ChangeHistory;
class VTTableView;
class VTTemplateOutlineController;

/**
 * The list of templates: its rows are the store's names, in their order, and it holds none of its own. Selecting a row
 * loads that template into the structure editor. Every change is made on disk first and the list is read anew. Main
 * thread only, but for addTemplateFromFile().
 */
class VTTemplateTableController : public QAbstractListModel
{
    Q_OBJECT

public:
    VTTemplateTableController(VTTemplateOutlineController &outlineController, ChangeHistory &history,
                              QObject *parent = nullptr);

    /** Not owned. The menu item's title follows the selected template. */
    void setViews(VTTableView *tableView, QAction *menuItemToggleDefault);
    void awakeFromNib();

    /** Builds the list and shows the template used last, else the first. */
    void switchedToView();
    /** Builds the list and reads the tree anew; the selection stays. */
    void readAnew();
    /** Takes in a name that is being typed, before this returns. */
    void finishEditing();
    void loadDataForCurrentSelection();
    void selectTemplateWithName(const QString &name);
    /** Brings a bundle into the library and selects it. Any thread; waits for the main one. */
    bool addTemplateFromFile(const QString &path);

    [[nodiscard]] static bool isDefaultTemplate(const QString &name);
    void setDefaultTemplate(const QString &name);
    void unsetDefaultTemplate();
    /** Null without a selection. */
    [[nodiscard]] QString selectedTemplate() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

public Q_SLOTS:
    /** Shows the store's list as it is. */
    void reload();
    void createNewTemplate();
    void duplicateTemplate();
    void removeTemplate();
    void toggleDefault();
    void revealTemplateInFinder();
    void editSelectedName();

Q_SIGNALS:
    /** The main window's pop-up is to be built anew. */
    void populateTemplatePopUp();
    /** Whether there is a selected template. */
    void selectionChanged(bool any);

private:
    void rename(const QString &name, const QString &typed);
    void rebuild();
    void takeTypedName();
    void showNames(const QStringList &names);
    void selectRow(const QString &name);
    void editName(const QString &name);
    void load(const QString &name);

    VTTemplateOutlineController &m_outlineController;
    ChangeHistory &m_history;
    QPointer<VTTableView> m_tableView;
    QPointer<QAction> m_menuItemToggleDefault;
    QStringList m_names;                                ///< what the view was last told of the store's list
    QString m_loaded;                                   ///< the template that the editor shows
    std::optional<std::pair<QString, QString>> m_typed; ///< a template and its new name, until the editor is gone
    bool m_isStale = true; ///< what the editor shows is to be read anew, even if it is the same template
};

#pragma once

#include "templates/editor/VTTemplateOutlineController.h"
#include "templates/editor/VTTemplateTableController.h"

#include <QWidget>
#include <memory>

class ElidedLabel;
class QAction;
class QMenu;
class TreeFilter;

namespace Ui {
class TemplatePane;
}

/** The template pane: the list beside the tree, their buttons, menus and keys. Draws and forwards; the two controllers,
   which it owns, do the rest. */
class TemplatePane : public QWidget
{
    Q_OBJECT

public:
    explicit TemplatePane(QWidget *parent = nullptr);
    ~TemplatePane() override;

    /** Fills the pane; to be called once, before it is shown first. */
    void awakeFromNib();
    [[nodiscard]] VTTemplateTableController &tableController() { return m_table; }
    [[nodiscard]] VTTemplateOutlineController &outlineController() { return m_outline; }
    /** What was done to the library and its templates in this window. */
    [[nodiscard]] ChangeHistory &history() { return m_history; }
    /** Takes in a name that is being typed, before this returns. */
    void finishEditing();
    /** The commands of the list, of the tree, and those that an Edit menu has; for the menu bar. */
    [[nodiscard]] const QList<QAction *> &listActions() const { return m_listActions; }
    [[nodiscard]] const QList<QAction *> &treeActions() const { return m_treeActions; }
    [[nodiscard]] const QList<QAction *> &editActions() const { return m_editActions; }
    [[nodiscard]] QMenu *labelMenu();
    /** Shows what other programs have done, unless a name is being typed. */
    void followDisk();
    /** Take back the last change, and do it again; what cannot be done is said. */
    void undo();
    void redo();

Q_SIGNALS:
    /** The parameters of the template are to be shown. */
    void parametersWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildTable();
    void buildOutline();
    void buildLabels();
    void buildInspector();
    void showInspector(bool shown);
    void updateInspector();
    void drawLabels();
    void showAfter(const platform::Outcome &outcome, const QString &sentence);
    bool greyForStudio();
    void setTreeSelection(qsizetype count, bool isLoaded);

    std::unique_ptr<Ui::TemplatePane> m_ui;
    ChangeHistory m_history;
    VTTemplateOutlineController m_outline;
    VTTemplateTableController m_table;
    QAction *m_toggleDefault;
    QMenu *m_addMenu;
    ElidedLabel *m_studioLine;
    QList<QAction *> m_listActions;
    QList<QAction *> m_treeActions;
    QList<QAction *> m_editActions;
    QAction *m_paste = nullptr;
    QAction *m_rules = nullptr; ///< shows the inspector
    TreeFilter *m_filter = nullptr;
    QList<QAction *> m_labels;      ///< none, then the seven
    QList<QAction *> m_forTemplate; ///< need a selected template
    QList<QAction *> m_forItems;    ///< need selected items
    QList<QAction *> m_changing;    ///< change the library; the first makes a template
};

#pragma once

#include <QMainWindow>
#include <QPointer>
#include <memory>

class QAction;
class Spinner;
class TemplatePane;
class TessaroAppDelegate;
class VTProjectTableController;

namespace Ui {
class MainWindow;
}

/** The main window: draws the two panes and forwards what the user does to the application delegate. Holds no rule. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(TessaroAppDelegate &delegate);
    ~MainWindow() override;

    void connectTable(VTProjectTableController &controller);

    /** Made when it is first asked for: it would only slow the start. */
    [[nodiscard]] TemplatePane &templatePane();

    enum class Pane { Project, Templates };
    void showPane(Pane pane);
    [[nodiscard]] Pane shownPane() const;

    void setTemplates(const QStringList &names, const QString &selected);
    /** In the place of the templates: that the library cannot be reached, and what can be done; null: it can. To be
       followed by setTemplates(). */
    void setLibraryProblem(const QString &sentence);
    [[nodiscard]] QString selectedTemplate() const;
    [[nodiscard]] QStringList shownTemplates() const;

    /** Removes the toolbar's last item: the user has the product that it is about. */
    void removeProductFamilyItem();
    /** Names of the toolbar's items that stand for a pane. */
    [[nodiscard]] QStringList selectableToolbarItems() const;

    /** A line at the bottom that says what was created, with a button that shows it; a null path clears it. */
    void showCreated(const QString &project, const QString &location = {});
    /** What the menu's Undo takes back, and its Redo does again; a null name: nothing. */
    void setUndoable(const QString &undoName, const QString &redoName);
    /** The same for several; without "Show". */
    void showCreatedMany(qsizetype projects, const QString &location);
    /** A line in its place that says something else; until the next project. */
    void showMessage(const QString &text);
    void setProcessing(bool processing);
    /** The second half of the project pane: what will be made. */
    void setResultShown(bool shown);
    [[nodiscard]] bool isResultShown() const;
    /** Their menu item is disabled while they are. */
    void setPreferencesOpen(bool open);

Q_SIGNALS:
    void firstPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildToolbar();
    void buildMenus();
    void connectPanes();
    void connectPlace();
    void showPaneInMenus();
    void setParametersEmpty(bool empty);
    void tell(const QString &text);

    TessaroAppDelegate &m_delegate;
    std::unique_ptr<Ui::MainWindow> m_ui;
    TemplatePane *m_templatePane = nullptr;
    QAction *m_newProjectItem = nullptr;
    QAction *m_templatesItem = nullptr;
    QAction *m_productFamilyItem = nullptr;
    QList<QAction *> m_busyActions;  ///< not to be started while a project is being created
    QList<QAction *> m_paneActions;  ///< of the template pane, while it is shown
    QPointer<QWidget> m_focusBefore; ///< what had the focus when the controls were dimmed
    QString m_created;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
    QAction *m_resultAction = nullptr;
    bool m_isUndoable = false;
    bool m_isRedoable = false;
    bool m_painted = false;
    bool m_preferencesOpen = false;
};

#include "app/MainWindow.h"

#include "app/MainMenu.h"
#include "app/TessaroAppDelegate.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/NativePath.h"
#include "support/Settings.h"
#include "templates/TemplateLibrary.h"
#include "templates/VTDataController.h"
#include "templates/editor/TemplatePane.h"
#include "ui/Icons.h"
#include "ui/ProgressLine.h"
#include "ui/ValueCellDelegate.h"
#include "ui/WindowPlace.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int toolbarIconSide = 24;
constexpr int warningSide = 16;
constexpr int besideFrom = 900;         // pixels: the result has room beside the parameters
constexpr int longestCreatedName = 220; // pixels

QStringList bundlesIn(const QMimeData &data)
{
    QStringList bundles;
    for (const QUrl &url : data.urls()) {
        if (library::isTemplateFile(url.toLocalFile()))
            bundles.append(url.toLocalFile());
    }
    return bundles;
}

} // namespace

MainWindow::MainWindow(TessaroAppDelegate &delegate)
    : m_delegate(delegate)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    m_ui->tableView->setItemDelegate(new ValueCellDelegate(m_ui->tableView));
    m_ui->warningImage->setPixmap(icons::named("warning").pixmap(warningSide, warningSide));
    m_ui->emptyParameters->setContents("empty-parameters", tr("No parameters yet"), tr("Edit the Parameters…"));
    m_ui->centralLayout->addWidget(new ProgressLine(m_ui->centralwidget));
    setAcceptDrops(true);
    buildToolbar();
    buildMenus();
    connectPanes();
    connectPlace();
    showCreated({});
    resizeWithFont(*this, width(), height());
    keepPlaceOf(*this, settings::mainWindowPlace);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildToolbar()
{
    m_ui->toolbar->setIconSize({toolbarIconSide, toolbarIconSide});
    const auto add = [this](const char *name, const char *icon, const QString &text, auto slot) {
        QAction *item = m_ui->toolbar->addAction(icons::named(icon), text);
        item->setObjectName(QLatin1String(name));
        connect(item, &QAction::triggered, &m_delegate, slot);
        return item;
    };
    m_newProjectItem =
        add("toolbarNewProject", "new-project", tr("New Project"), &TessaroAppDelegate::toolbarNewProjectAction);
    m_templatesItem = add("toolbarTemplates", "templates", tr("Templates"), &TessaroAppDelegate::toolbarTemplateAction);
    auto *space = new QWidget(m_ui->toolbar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_ui->toolbar->addWidget(space);
    m_productFamilyItem =
        add("toolbarProductFamily", "more-products", tr("More Products"), &TessaroAppDelegate::helpLumadexHome);
    for (QAction *item : {m_newProjectItem, m_templatesItem})
        item->setCheckable(true);
    m_newProjectItem->setToolTip(tr("Start a project (Ctrl+1)"));
    m_templatesItem->setToolTip(tr("Look after the templates (Ctrl+2)"));
}

void MainWindow::buildMenus()
{
    m_busyActions = ::buildMenus(*menuBar(), m_delegate);
    m_busyActions += {m_newProjectItem, m_templatesItem};
    m_undoAction = menuBar()->findChild<QAction *>(QStringLiteral("Undo"));
    m_redoAction = menuBar()->findChild<QAction *>(QStringLiteral("Redo"));
    m_resultAction = menuBar()->findChild<QAction *>(QStringLiteral("Show Result"));
    m_resultAction->setCheckable(true);
    setUndoable({}, {});
}

void MainWindow::connectPanes()
{
    connect(m_ui->createButton, &QPushButton::clicked, &m_delegate, &TessaroAppDelegate::createNewProject);
    connect(m_ui->tableView, &VTTabbedEditTableView::filledIn, m_ui->createButton, &QPushButton::animateClick);
    for (QPushButton *button : {m_ui->createButton, m_ui->showButton, m_ui->undoButton, m_ui->installTemplates,
                                m_ui->retryLibrary, m_ui->chooseLibrary}) {
        button->setAutoDefault(true); // Return presses the one that has the focus
        button->installEventFilter(this);
    }
    connect(m_ui->projectTemplatePopUp, &QComboBox::activated, &m_delegate, &TessaroAppDelegate::changeProjectTemplate);
    connect(m_ui->projectTemplatePopUp, &QComboBox::currentIndexChanged, this, [this] {
        const QString name = selectedTemplate();
        m_ui->resultPane->setTemplate(name.isEmpty() ? QString() : VTDataController::filesFolder(name));
        m_delegate.followRules();
    });
    connect(m_ui->emptyParameters, &EmptyState::activated, &m_delegate, &TessaroAppDelegate::editParameters);
    connect(m_ui->installTemplates, &QPushButton::clicked, &m_delegate, &TessaroAppDelegate::installStandardTemplates);
    connect(m_ui->retryLibrary, &QPushButton::clicked, &m_delegate, &TessaroAppDelegate::populateTemplatePopUp);
    connect(m_ui->chooseLibrary, &QPushButton::clicked, &m_delegate, &TessaroAppDelegate::showPreferences);
    connect(m_ui->undoButton, &QPushButton::clicked, &m_delegate, &TessaroAppDelegate::undoCreation);
    connect(m_ui->showButton, &QPushButton::clicked, this, [this] { m_delegate.showProject(m_created); });
}

void MainWindow::connectPlace()
{
    connect(m_ui->previewPathControl, &PathControl::placeChanged, m_ui->placeButton, &PlaceButton::setPlace);
    connect(m_ui->placeButton, &PlaceButton::placeChosen, &m_delegate, &TessaroAppDelegate::takePlace);
    connect(m_ui->placeButton, &PlaceButton::panelWanted, &m_delegate, &TessaroAppDelegate::choosePlace);
    connect(m_ui->placeButton, &PlaceButton::pinned, &m_delegate, &TessaroAppDelegate::pinPlace);
}

void MainWindow::connectTable(VTProjectTableController &controller)
{
    controller.setViews(
        {m_ui->tableView, m_ui->namePreviewLabel, m_ui->previewPathControl, m_ui->spinner, m_ui->warningImage});
    connect(&controller, &VTProjectTableController::levelsShown, m_ui->resultPane, &ResultPane::setValues);
    connect(&controller, &VTProjectTableController::processingChanged, this, &MainWindow::setProcessing);
    connect(&controller, &VTProjectTableController::emptinessChanged, this, &MainWindow::setParametersEmpty);
}

void MainWindow::setResultShown(bool shown)
{
    m_ui->resultPane->setVisible(shown);
    m_resultAction->setChecked(shown);
}

bool MainWindow::isResultShown() const
{
    return !m_ui->resultPane->isHidden();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_ui->projectSplitter->setOrientation(width() >= besideFrom ? Qt::Horizontal : Qt::Vertical);
}

TemplatePane &MainWindow::templatePane()
{
    if (!m_templatePane) {
        m_templatePane = new TemplatePane(m_ui->panes);
        m_ui->panes->addWidget(m_templatePane);
        showPaneInMenus();
    }
    return *m_templatePane;
}

/// Its commands stand in the menu bar, too, while it is shown.
void MainWindow::showPaneInMenus()
{
    const auto menuOf = [this](const char *command) {
        return qobject_cast<QMenu *>(menuBar()->findChild<QAction *>(QLatin1String(command))->parent());
    };
    QMenu *edit = menuOf("Undo");
    m_paneActions += edit->addSeparator();
    edit->addActions(m_templatePane->editActions());
    m_paneActions += m_templatePane->editActions();
    QMenu *list = menuOf("New Template");
    QAction *before = list->findChild<QAction *>(QStringLiteral("Restore Default Templates…"));
    list->insertActions(before, m_templatePane->listActions());
    m_paneActions += m_templatePane->listActions();
    m_paneActions += list->insertSeparator(before);
    auto *items = new QMenu(tr("&Items"), menuBar());
    items->addActions(m_templatePane->treeActions());
    items->insertSeparator(items->actions().value(2)); // below what adds
    items->addSeparator();
    items->addMenu(m_templatePane->labelMenu());
    m_paneActions += menuBar()->insertMenu(menuBar()->actions().constLast(), items);
    for (QAction *action : std::as_const(m_paneActions))
        action->setVisible(false); // until it is shown
}

void MainWindow::showPane(Pane pane)
{
    m_newProjectItem->setChecked(pane == Pane::Project);
    m_templatesItem->setChecked(pane == Pane::Templates);
    m_ui->panes->setCurrentWidget(pane == Pane::Project ? m_ui->viewProject : &templatePane());
    for (QAction *action : std::as_const(m_paneActions))
        action->setVisible(pane == Pane::Templates);
    if (pane == Pane::Project) // the template may have been changed
        m_ui->resultPane->followDisk();
    m_resultAction->setEnabled(pane == Pane::Project); // its keys are another command's over there
}

MainWindow::Pane MainWindow::shownPane() const
{
    return m_ui->panes->currentWidget() == m_ui->viewProject ? Pane::Project : Pane::Templates;
}

void MainWindow::setTemplates(const QStringList &names, const QString &selected)
{
    auto *popUp = m_ui->projectTemplatePopUp;
    popUp->clear();
    for (const QString &name : names)
        popUp->addItem(platform::forDisplay(name), name);
    popUp->setCurrentIndex(popUp->findData(selected));
    popUp->setVisible(!names.isEmpty());
    m_ui->installTemplates->setVisible(names.isEmpty() && m_ui->libraryProblem->text().isEmpty());
    m_ui->createButton->setEnabled(!names.isEmpty());
}

void MainWindow::setLibraryProblem(const QString &sentence)
{
    m_ui->libraryProblem->setText(sentence);
    m_ui->libraryProblem->setToolTip(sentence);
    for (QWidget *part : QList<QWidget *>{m_ui->libraryProblem, m_ui->retryLibrary, m_ui->chooseLibrary})
        part->setVisible(!sentence.isEmpty());
}

QString MainWindow::selectedTemplate() const
{
    return m_ui->projectTemplatePopUp->currentData().toString();
}

QStringList MainWindow::shownTemplates() const
{
    QStringList names;
    for (int i = 0; i < m_ui->projectTemplatePopUp->count(); ++i)
        names.append(m_ui->projectTemplatePopUp->itemData(i).toString());
    return names;
}

void MainWindow::removeProductFamilyItem()
{
    m_ui->toolbar->removeAction(m_productFamilyItem);
}

QStringList MainWindow::selectableToolbarItems() const
{
    return {m_newProjectItem->objectName(), m_templatesItem->objectName()};
}

void MainWindow::showCreated(const QString &project, const QString &location)
{
    m_created = project;
    const QString name = platform::forOneLine(platform::lastComponent(project));
    const QString place = platform::forOneLine(platform::lastComponent(location));
    tell(project.isNull() ? QString() : tr("Created ‘%1’ in %2.").arg(name, place));
    m_ui->createdLabel->setToolTip(platform::forDisplay(project));
    m_ui->showButton->setVisible(!project.isNull());
    m_ui->undoButton->setVisible(!project.isNull());
}

void MainWindow::showCreatedMany(qsizetype projects, const QString &location)
{
    showCreated({});
    tell(tr("Created in %1: %L2 projects.").arg(platform::forOneLine(platform::lastComponent(location))).arg(projects));
    m_ui->undoButton->setVisible(projects > 0);
}

void MainWindow::setUndoable(const QString &undoName, const QString &redoName)
{
    const auto forMenu = [this](const QString &name) {
        QString shown = fontMetrics().elidedText(name, Qt::ElideMiddle, longestCreatedName);
        return shown.replace(u'&', QLatin1String("&&"));
    };
    m_isUndoable = !undoName.isNull();
    m_isRedoable = !redoName.isNull();
    m_undoAction->setText(m_isUndoable ? tr("&Undo %1", "what is undone").arg(forMenu(undoName)) : tr("&Undo"));
    m_redoAction->setText(m_isRedoable ? tr("&Redo %1", "what is done again").arg(forMenu(redoName)) : tr("&Redo"));
    m_undoAction->setEnabled(m_isUndoable);
    m_redoAction->setEnabled(m_isRedoable);
}

void MainWindow::showMessage(const QString &text)
{
    showCreated({});
    tell(text);
}

/// A screen reader hears of it, too, wherever the focus is.
void MainWindow::tell(const QString &text)
{
    m_ui->createdLabel->setText(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent event(m_ui->createdLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MainWindow::setProcessing(bool processing)
{
    if (processing)
        m_focusBefore = focusWidget();
    for (QWidget *control :
         QList<QWidget *>{m_ui->projectTemplatePopUp, m_ui->parameterStack, m_ui->createButton,
                          m_ui->previewPathControl, m_ui->placeButton, m_ui->showButton, m_ui->undoButton})
        control->setEnabled(!processing);
    for (QAction *action : std::as_const(m_busyActions))
        action->setEnabled(!processing);
    m_resultAction->setEnabled(!processing && shownPane() == Pane::Project);
    m_undoAction->setEnabled(!processing && m_isUndoable);
    m_redoAction->setEnabled(!processing && m_isRedoable);
    if (!processing && m_preferencesOpen)
        setPreferencesOpen(true);
    m_ui->createButton->setEnabled(!processing && m_ui->projectTemplatePopUp->count() > 0);
    if (!processing && m_focusBefore)
        m_focusBefore->setFocus();
}

void MainWindow::setPreferencesOpen(bool open)
{
    m_preferencesOpen = open;
    for (QAction *action : std::as_const(m_busyActions)) {
        if (action->objectName().startsWith(QLatin1String("Preferences")))
            action->setEnabled(!open);
    }
}

void MainWindow::setParametersEmpty(bool empty)
{
    m_ui->parameterStack->setCurrentWidget(empty ? static_cast<QWidget *>(m_ui->emptyParameters) : m_ui->tableView);
}

/// A key that is held down presses nothing: five projects would be made before it is let go.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->isAutoRepeat())
        return true;
    return QMainWindow::eventFilter(watched, event);
}

bool MainWindow::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::Paint && !std::exchange(m_painted, true))
        QTimer::singleShot(0, this, &MainWindow::firstPainted);
    return handled;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_delegate.mayClose())
        QMainWindow::closeEvent(event);
    else
        event->ignore();
}

/// Bundles may be dropped anywhere but on the tree, which takes them as items.
void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!bundlesIn(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits until the drop has ended, and the import may ask something.
    QMetaObject::invokeMethod(
        &m_delegate, [this, bundles = bundlesIn(*event->mimeData())] { m_delegate.openFiles(bundles); },
        Qt::QueuedConnection);
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_ui->warningImage)
        m_ui->warningImage->setPixmap(icons::named("warning").pixmap(warningSide, warningSide));
}

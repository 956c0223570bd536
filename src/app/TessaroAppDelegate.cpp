// Start-up, panes and the template pop-up. Creation and Help live in files of their own.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "diagnostics/VTBugReporter.h"
#include "diagnostics/VTSoftwareUpdate.h"
#include "parameters/ProjectNaming.h"
#include "parameters/VTProjectTableController.h"
#include "platform/ApplicationBundle.h"
#include "platform/Desktop.h"
#include "platform/MainThread.h"
#include "preferences/VTPreferenceController.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTLog.h"
#include "templates/TemplateChoice.h"
#include "templates/TemplatePane.h"
#include "templates/VTDataController.h"

#include <QApplication>

namespace {

/// A sibling application of the same maker: who has it needs no advertisement for it.
const QString siblingApplication = QStringLiteral("com.vantrel.Clipwell");

} // namespace

TessaroAppDelegate::TessaroAppDelegate()
{
    VTBugReporter::startBugReporter(); // what it finds is the last run's, and so goes into the last run's log
    VTLog::createNewLog();
    settings::registerDefaults();
}

TessaroAppDelegate::~TessaroAppDelegate()
{
    delete m_preferences; // it speaks to the window when it goes
    while (m_imports > 0) // a template that is half in the library would look like a whole one
        platform::MainThread::turnLoop(std::chrono::milliseconds(50));
    if (m_tableController) // a value that is being typed when the window closes counts, too
        m_tableController->finishEditing();
    VTDataController::sharedController().setWindow(nullptr);
}

bool TessaroAppDelegate::awakeFromNib()
{
    if (std::exchange(m_awakeCount, 1) != 0)
        return true;
    if (settings::standard().equalsOne(settings::requireAdminPassword) &&
        !VTAuthorization::sharedController().authStart())
        return false;
    VTSoftwareUpdate().startup();
    m_tableController = std::make_unique<VTProjectTableController>();
    m_window = std::make_unique<MainWindow>(*this);
    m_window->connectTable(*m_tableController);
    VTDataController::sharedController().setWindow(m_window.get());
    m_tableController->awakeFromNib();
    importOldTessaroTemplate();
    populateTemplatePopUp();
    if (!platform::registeredApplication(siblingApplication).isNull())
        m_window->removeProductFamilyItem();
    toolbarNewProjectAction();
    return true;
}

void TessaroAppDelegate::applicationDidFinishLaunching()
{
    auto &defaults = settings::standard();
    if (defaults.boolean(settings::firstRun)) {
        const int answer = VTAlert::alertSheetWithMessageText(
            tr("Welcome to Tessaro"), tr("OK"), tr("User Manual"), {},
            tr("Simplify your creative workflows by organizing your assets before you start. Tessaro makes it easy to "
               "create customized folder structures for each project.\n\nModify the included templates to meet your "
               "needs or create your own from scratch."),
            m_window.get(), VTAlert::Block::Yes);
        if (answer == VTAlert::alternateReturn)
            helpUserManual();
        defaults.setValue(settings::firstRun, false);
    }
    Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
}

QStringList TessaroAppDelegate::toolbarSelectableItemIdentifiers() const
{
    return m_window->selectableToolbarItems();
}

void TessaroAppDelegate::toolbarNewProjectAction()
{
    VTLog::appendLog("Showing project pane");
    if (m_templatesShown)
        m_window->templatePane().finishEditing();
    m_window->showPane(MainWindow::Pane::Project);
}

void TessaroAppDelegate::toolbarTemplateAction()
{
    VTLog::appendLog("Showing template pane");
    m_tableController->finishEditing();
    m_window->showPane(MainWindow::Pane::Templates);
    auto &pane = m_window->templatePane();
    if (std::exchange(m_templatesShown, true))
        return pane.tableController().switchedToView();
    connect(&pane.tableController(), &VTTemplateTableController::populateTemplatePopUp, this,
            &TessaroAppDelegate::populateTemplatePopUp);
    pane.awakeFromNib();
}

void TessaroAppDelegate::changeProjectTemplate()
{
    const QString selected = m_window->selectedTemplate();
    VTLog::appendLog("Project template changed to %@", selected);
    if (!selected.isEmpty())
        settings::standard().setValue(settings::selectedProjectTemplate, selected);
}

void TessaroAppDelegate::populateTemplatePopUp()
{
    VTLog::appendLog("Populating template popup list");
    auto &store = VTDataController::sharedController();
    store.populateTemplates();
    const QStringList names = store.templates();
    const QString selected = chosenTemplate(names);
    m_window->setTemplates(names, selected);
    if (!names.isEmpty())
        settings::standard().setValue(settings::selectedProjectTemplate, selected);
}

QStringList TessaroAppDelegate::pathComponentsFromParameters() const
{
    return ::pathComponentsFromParameters();
}

QString TessaroAppDelegate::pathNameFromParameters() const
{
    return ::pathNameFromParameters();
}

QString TessaroAppDelegate::projectNameFromParameters() const
{
    return ::projectNameFromParameters();
}

void TessaroAppDelegate::useStandardParameters()
{
    settings::standard().removeValue(settings::filenameTemplate);
    Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams();
    Q_EMIT Notifications::hub().VTTessaroRefreshDynamicValues();
    Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
}

void TessaroAppDelegate::installStandardTemplates()
{
    VTDataController::sharedController().populateDefaultTemplates(VTDataController::Force::Yes);
    populateTemplatePopUp();
}

void TessaroAppDelegate::showTemplateLibrary()
{
    platform::openWithDefaultApplication(VTDataController::templateLocation());
}

void TessaroAppDelegate::showProject(const QString &project)
{
    platform::revealInFileBrowser(project);
}

void TessaroAppDelegate::quit()
{
    m_tableController->finishEditing();
    if (m_templatesShown)
        m_window->templatePane().finishEditing();
    QApplication::quit();
}

// The create action: from the filled-in table to a finished project.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "creation/RequestCheck.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/desktop/RecentFiles.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"
#include "ui/VTSavePanel.h"

#include <QApplication>

namespace {

constexpr std::chrono::milliseconds pauseBetweenProjects{1000};

} // namespace

void TessaroAppDelegate::createNewProject()
{
    if (m_creating || m_savePanel) // a shortcut may arrive while the sheet of the last one is up
        return;
    if (m_window->shownPane() != MainWindow::Pane::Project) // nothing is made unseen
        toolbarNewProjectAction();
    m_tableController->finishEditing();
    m_tableController->bringUpToDate();
    if (isRepeated())
        return VTLog::appendLog("A project was created a moment ago; another one needs a change, or a moment's pause");
    VTLog::appendLog("Creating new project");
    ProjectRequest request = shownRequest();
    if (!takeRules(request) || !isComplete(request))
        return;
    VTLog::appendLog("Validated folder name: %@", request.relativePath());

    request.location = settings::fixedProjectLocationPath.text();
    const bool isFixed = settings::useFixedProjectLocation.isOn() && !request.location.isEmpty();
    if (!isFixed) {
        m_request = std::move(request);
        return askForDestination();
    }
    VTLog::appendLog("Creating project at fixed location %@", request.destination());
    if (mayOverwriteAtFixedLocation(request)) // a shortcut may ask for another project meanwhile: this one is this
        createTemplate(request);
}

/// A second Return right behind the first is meant for something that has just gone, not for a project with the next
/// number.
bool TessaroAppDelegate::isRepeated() const
{
    return m_sinceCreation.isValid() && m_sinceCreation.elapsed() < pauseBetweenProjects.count() &&
           m_tableController->dataArray() == m_afterCreation;
}

ProjectRequest TessaroAppDelegate::shownRequest() const
{
    ProjectRequest request;
    request.parameters = m_tableController->dataArray();
    request.separator = settings::separatorChar.text();
    const QString selected = m_window->selectedTemplate();
    request.templateName = selected.isEmpty() ? settings::selectedProjectTemplate.text() : selected;
    request.templateFiles = VTDataController::filesFolder(request.templateName);
    request.dateFormat = settings::dateFormat.text();
    request.moment = std::time(nullptr);
    return request;
}

bool TessaroAppDelegate::isComplete(const ProjectRequest &request)
{
    const auto problem = problemOf(request);
    if (!problem)
        return true;
    VTAlert::show({problem->message, problem->informativeText});
    m_tableController->editItem(static_cast<int>(qMax(qsizetype{0}, problem->parameter)));
    return false;
}

bool TessaroAppDelegate::mayOverwriteAtFixedLocation(const ProjectRequest &request)
{
    const bool exists =
        platform::resultInBackground([&] { return VTFileManager::fileExistsAtPath(request.destination()); });
    if (!exists)
        return true;
    VTLog::appendLog("Destination file already exists; asking user what to do");
    const int answer =
        VTAlert::show({tr("Project already exists"),
                       platform::formatString(tr("Are you sure you wish to overwrite %@?"), request.relativePath()),
                       tr("Overwrite"),
                       tr("Cancel"),
                       {},
                       VTAlert::alternateReturn});
    const bool overwrite = answer == VTAlert::defaultReturn;
    VTLog::appendLog(overwrite ? "User chose to overwrite" : "User chose to cancel");
    return overwrite;
}

void TessaroAppDelegate::createTemplate(const ProjectRequest &request)
{
    setCreating(true);
    m_window->showCreated({});
    const CreationResult result = ProjectCreation(*this).createProject(request);
    setCreating(false);
    m_tableController->follow(); // what came during the creation
    if (result.ok()) {
        m_sinceCreation.start();
        m_tableController->forgetClearedHistory(); // the creation is what Undo means now
    }
    m_afterCreation = m_tableController->dataArray();
    for (const QString &note : result.notes)
        VTAlert::show({note, {}});
    if (result.ok()) {
        rememberPlace(result.request.location);
        platform::performInBackground(
            [folder = result.request.destination()] { platform::rememberForDesktop(folder); });
    }
    if (!result.manifest.file.isEmpty())
        m_undoable = {result.manifest};
    showUndo();
    if (result.stopped)
        m_window->showMessage(tr("Stopped; nothing of the project was kept."));
    else if (result.ok())
        m_window->showCreated(result.request.destination(), result.request.location);
    m_tableController->follow(); // the next one goes where this one went
}

void TessaroAppDelegate::startProcessing()
{
    platform::MainThread::perform([this] { m_tableController->startProcessing(); }, platform::Waiting::Yes);
}

void TessaroAppDelegate::finishProcessing()
{
    platform::MainThread::perform([this] { m_tableController->finishProcessing(); }, platform::Waiting::Yes);
}

void TessaroAppDelegate::incrementDynamicValues()
{
    m_tableController->incrementDynamicValues();
}

void TessaroAppDelegate::reveal(const QString &project)
{
    if (settings::autoOpenFolder.isOn())
        platform::revealInFileBrowser(project);
}

void TessaroAppDelegate::quitIfWanted()
{
    if (settings::autoQuit.isOn())
        QApplication::quit();
}

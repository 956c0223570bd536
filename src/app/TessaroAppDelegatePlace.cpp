// Where projects go: the destination panel, and the place that the line below the table begins with.
#include "app/TessaroAppDelegate.h"

#include "app/BrowseAccessory.h"
#include "app/MainWindow.h"
#include "parameters/table/VTProjectTableController.h"
#include "support/AdministratorQuestion.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "ui/FilePanels.h"
#include "ui/VTSavePanel.h"

/// A panel that begins where the next project would go, or the latest one that is there.
VTSavePanel *TessaroAppDelegate::placePanel()
{
    auto *panel = new VTSavePanel(m_window.get());
    const QStringList places = QStringList{nextPlace()} + recentPlaces() + pinnedPlaces();
    panel->setRecentFolders(places);
    const auto start = std::find_if(places.begin(), places.end(), VTFileManager::isDirectoryAtPath);
    panel->setDirectory(start != places.end() ? *start : VTLocalPaths::userDirectory());
    return panel;
}

void TessaroAppDelegate::askForDestination()
{
    VTLog::appendLog("Prompting for destination");
    m_savePanel = placePanel();
    m_savePanel->setWindowTitle(tr("Choose a destination"));
    auto *accessory = new BrowseAccessory(m_request.relativePath());
    m_savePanel->setAccessoryView(accessory);
    connect(m_savePanel, &VTSavePanel::folderChanged, accessory, &BrowseAccessory::setFolder);
    accessory->setFolder(m_savePanel->chosenFolder());
    whenLeft<VTSavePanel>(*m_savePanel, *this, [this](VTSavePanel &, bool accepted) {
        destinationBrowseDidEnd(accepted ? QDialog::Accepted : QDialog::Rejected);
    });
    m_savePanel->open();
}

void TessaroAppDelegate::destinationBrowseDidEnd(int returnCode)
{
    VTSavePanel *panel = m_savePanel;
    m_savePanel = nullptr;
    ProjectRequest request = std::exchange(m_request, {});
    if (returnCode != QDialog::Accepted)
        return;
    request.location = panel->chosenFolder();
    if (settings::useFixedProjectLocation.isOn())
        static_cast<void>(
            settings::fixedProjectLocationPath.store(request.location)); // logged; this project goes there all the same
    createTemplate(request);
}

/// One panel at a time; the function gets the folder that was chosen.
void TessaroAppDelegate::chooseFolder(const QString &title, const QString &button, FolderUse use)
{
    if (m_savePanel)
        return;
    m_savePanel = placePanel();
    m_savePanel->setWindowTitle(title);
    m_savePanel->setLabelText(QFileDialog::Accept, button);
    whenLeft<VTSavePanel>(*m_savePanel, *this, [this, use](VTSavePanel &panel, bool accepted) {
        m_savePanel = nullptr;
        if (accepted)
            (this->*use)(panel.chosenFolder());
    });
    m_savePanel->open();
}

void TessaroAppDelegate::choosePlace()
{
    chooseFolder(tr("Choose where projects go"), tr("Choose"), &TessaroAppDelegate::takePlace);
}

void TessaroAppDelegate::chooseProjectToCheck()
{
    chooseFolder(tr("Choose the project to check"), tr("Check"), &TessaroAppDelegate::checkProjectAt);
}

void TessaroAppDelegate::takePlace(const QString &folder)
{
    const bool isSetting = settings::useFixedProjectLocation.isOn() && settings::requireAdminPasswordForPrefs.isOn();
    if (isSetting && !administratorAgrees()) // the preferences would have asked
        return;
    if (settings::useFixedProjectLocation.isOn() && settings::fixedProjectLocationPath.isLocked()) {
        VTAlert::show({tr("Where projects go is set by your studio"), settings::fixedProjectLocationPath.text()});
        return;
    }
    VTLog::appendLog("The next project goes to %@", folder);
    setNextPlace(folder);
    m_tableController->updateFilenamePreview();
}

void TessaroAppDelegate::pinPlace(const QString &folder, bool pinned)
{
    setPinned(folder, pinned);
}

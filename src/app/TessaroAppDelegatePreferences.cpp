// The preferences, and commands that come from outside.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "app/StudioFollower.h"
#include "parameters/table/VTProjectTableController.h"
#include "preferences/VTPreferenceController.h"
#include "support/AdministratorQuestion.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/editor/TemplatePane.h"
#include "ui/WindowPlace.h"

#include <QHash>

void TessaroAppDelegate::showPreferences()
{
    if (m_preferences) { // a command from outside may come while they are open
        m_preferences->raise();
        m_preferences->activateWindow();
        return;
    }
    if (settings::requireAdminPasswordForPrefs.isOn() && !administratorAgrees())
        return;
    m_tableController->finishEditing();
    VTLog::appendLog("Showing preferences");
    m_preferences = new VTPreferenceController(this, m_window.get());
    connect(m_preferences, &VTPreferenceController::templateLocationChanged, this, [this] {
        populateTemplatePopUp();
        if (m_templatesShown)
            m_window->templatePane().tableController().switchedToView();
    });
    connect(m_preferences, &VTPreferenceController::sharedSetupChanged, this, &TessaroAppDelegate::followStudio);
    connect(m_preferences, &VTPreferenceController::sharedSetupChanged, m_studio.get(), &StudioFollower::follow);
    m_preferences->setWindowFlag(Qt::Window);
    // In front of the window that they belong to, and on its screen, until they have been put elsewhere.
    if (!keepPlaceOf(*m_preferences, settings::preferencesPlace))
        moveOver(*m_preferences, *m_window);
    m_preferences->show();
    m_preferences->raise();
    m_preferences->activateWindow();
}

void TessaroAppDelegate::editParameters()
{
    showPreferences();
    if (m_preferences)
        m_preferences->toolbarParameters();
}

void TessaroAppDelegate::enablePrefsMenu()
{
    m_window->setPreferencesOpen(false);
}

void TessaroAppDelegate::disablePrefsMenu()
{
    m_window->setPreferencesOpen(true);
}

const QHash<QString, void (TessaroAppDelegate::*)()> &TessaroAppDelegate::commandsOfShortcuts()
{
    using Delegate = TessaroAppDelegate;
    static const QHash<QString, void (Delegate::*)()> commands{
        {"new-project", &Delegate::beginNewProject},
        {"create-project", &Delegate::createNewProject},
        {"show-project-pane", &Delegate::toolbarNewProjectAction},
        {"show-template-pane", &Delegate::toolbarTemplateAction},
        {"new-template", &Delegate::newTemplate},
        {"import-template", &Delegate::importTemplate},
        {"preferences", &Delegate::showPreferences},
    };
    return commands;
}

/// What the file browsers' menus offer.
void TessaroAppDelegate::performWithFolder(const QString &identifier, const QString &folder)
{
    bringToFront();
    if (m_creating)
        return m_window->showMessage(tr("Tessaro is at work; please ask again when it has finished."));
    if (identifier == u"check-project")
        return checkProjectAt(folder);
    if (identifier != u"new-project-here")
        return VTLog::appendLog("Unknown command %@", identifier);
    if (!VTFileManager::isDirectoryAtPath(folder)) {
        VTAlert::show({tr("No project can be created there"), tr("%1 is not a folder.").arg(folder)});
        return;
    }
    takePlace(folder);
    beginNewProject();
}

void TessaroAppDelegate::performCommand(const QString &identifier, const QString &folder)
{
    if (!folder.isNull())
        return performWithFolder(identifier, folder);
    const auto command = commandsOfShortcuts().constFind(identifier);
    if (command == commandsOfShortcuts().cend()) {
        VTLog::appendLog("Unknown command %@", identifier);
        return;
    }
    if (m_creating)
        return;
    if (!m_preferences || identifier != QLatin1String("preferences")) // they come to the front themselves
        bringToFront();
    (this->**command)();
}

void TessaroAppDelegate::beginNewProject()
{
    toolbarNewProjectAction();
    m_tableController->editFirstItem();
}

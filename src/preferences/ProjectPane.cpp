#include "preferences/ProjectPane.h"

#include "preferences/BoundSwitch.h"
#include "preferences/FolderChoice.h"
#include "preferences/PathField.h"
#include "support/Notifications.h"
#include "support/VTLog.h"
#include "ui/LockedControls.h"
#include "ui_Prefs_Dialog.h"

ProjectPane::ProjectPane(Ui::Prefs_Dialog &ui, QWidget &window)
    : QObject(&window)
    , m_window(window)
    , m_path(
          new PathField(*ui.prefsFixedPath, *ui.hintFixed,
                        {settings::fixedProjectLocationPath, [] { return settings::fixedProjectLocationPath.text(); },
                         [this](const QString &typed) {
                             modifyFixedPath(typed);
                         }}))
{
    connect(ui.browseFixed, &QPushButton::clicked, this, [this] {
        folderchoice::browse(m_window, tr("Choose the Project Location"),
                             [this](const QString &path) { modifyFixedPath(path); });
    });
    bindSwitch(*ui.useFixedProjectLocation, settings::useFixedProjectLocation);
    bindSwitch(*ui.strictNaming, settings::strictNaming);
    const auto grey = [this, &ui] {
        m_path->follow();
        greyWhereLocked(settings::fixedProjectLocationPath, {ui.prefsFixedPath, ui.browseFixed});
        sayWhereGrey(*ui.hintGreyProject);
    };
    grey();
    connect(&Notifications::hub(), &Notifications::settingsWritten, this, grey);
}

void ProjectPane::modifyFixedPath(const QString &typed)
{
    const auto path = folderchoice::usablePath(m_window, settings::fixedProjectLocationPath, typed);
    if (path && folderchoice::makeFolder(m_window, *path)) {
        static_cast<void>(settings::fixedProjectLocationPath.store(*path)); // logged; the field shows what is stored
        VTLog::appendLog("User changed project location path to %@.", *path);
    }
    m_path->refresh();
}

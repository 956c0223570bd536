#include "preferences/ProjectPane.h"

#include "platform/base/NativePath.h"
#include "preferences/BoundSwitch.h"
#include "preferences/FolderChoice.h"
#include "support/VTLog.h"
#include "ui_Prefs_Dialog.h"

ProjectPane::ProjectPane(Ui::Prefs_Dialog &ui, QWidget &window)
    : QObject(&window)
    , m_ui(ui)
    , m_window(window)
{
    ui.prefsFixedPath->setText(platform::forDisplay(settings::fixedProjectLocationPath.text()));
    connect(ui.prefsFixedPath, &QLineEdit::editingFinished, this, [this] {
        if (m_ui.prefsFixedPath->isModified())
            modifyFixedPath(m_ui.prefsFixedPath->text());
        m_ui.prefsFixedPath->setModified(false);
    });
    connect(ui.browseFixed, &QPushButton::clicked, this, [this] {
        folderchoice::browse(m_window, tr("Choose the Project Location"),
                             [this](const QString &path) { modifyFixedPath(path); });
    });
    bindSwitch(*ui.useFixedProjectLocation, settings::useFixedProjectLocation);
    bindSwitch(*ui.strictNaming, settings::strictNaming);
}

void ProjectPane::modifyFixedPath(const QString &typed)
{
    if (const auto path = folderchoice::usablePath(m_window, settings::fixedProjectLocationPath, typed)) {
        static_cast<void>(settings::fixedProjectLocationPath.store(*path)); // logged; the field shows what is stored
        folderchoice::makeFolder(m_window, *path);
        VTLog::appendLog("User changed project location path to %@.", *path);
    }
    m_ui.prefsFixedPath->setText(platform::forDisplay(settings::fixedProjectLocationPath.text()));
}

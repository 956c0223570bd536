#include "preferences/GeneralPane.h"

#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "preferences/BoundSwitch.h"
#include "preferences/FolderChoice.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"
#include "ui_Prefs_Dialog.h"

using platform::formatString;
using platform::joined;

namespace {

constexpr std::chrono::seconds movePatience{10};

} // namespace

GeneralPane::GeneralPane(Ui::Prefs_Dialog &ui, QWidget &window)
    : QObject(&window)
    , m_ui(ui)
    , m_window(window)
{
    ui.prefsTemplatePath->setText(platform::forDisplay(VTDataController::templateLocation()));
    connect(ui.prefsTemplatePath, &QLineEdit::editingFinished, this, [this] {
        if (m_ui.prefsTemplatePath->text() != platform::forDisplay(VTDataController::templateLocation()))
            modifyTemplatePath(m_ui.prefsTemplatePath->text());
    });
    connect(ui.browseTemplates, &QPushButton::clicked, this, [this] {
        folderchoice::browse(m_window, tr("Choose the Template Library"),
                             [this](const QString &path) { modifyTemplatePath(path); });
    });
    bindSwitch(*ui.autoOpenFolder, settings::autoOpenFolder);
    bindSwitch(*ui.autoQuit, settings::autoQuit);
    bindSwitch(*ui.autoExpandFolders, settings::autoExpandFolders);
    if (!settings::holdForEveryUser())
        ui.hintAdmin->setText(
            tr("An administrator’s. It holds for you alone, unless an administrator sets it for every "
               "user of this computer. Switching one off asks for it."));
    bindProtection(*ui.prefsAdminPass, settings::requireAdminPassword);
    bindProtection(*ui.prefsAdminPassEditing, settings::requireAdminPasswordForEditing);
    bindProtection(*ui.prefsAdminPassPrefs, settings::requireAdminPasswordForPrefs);
}

void GeneralPane::modifyTemplatePath(const QString &typed)
{
    const QString old = VTDataController::templateLocation();
    const auto path = folderchoice::usablePath(m_window, settings::templateLocation, typed);
    if (!path || *path == old) {
        m_ui.prefsTemplatePath->setText(platform::forDisplay(old));
        return;
    }
    static_cast<void>(settings::templateLocation.store(*path)); // logged; the field shows what is stored
    folderchoice::makeFolder(m_window, *path);
    VTLog::appendLog("User changed template path from %@ to %@. Asking user to confirm moving over old files.", old,
                     *path);
    if (!VTFileManager::isFolderEmpty(old))
        moveTemplates(old, *path);
    static_cast<void>(VTDataController::sharedController().populateTemplates()); // said and logged where it failed
    m_ui.prefsTemplatePath->setText(platform::forDisplay(VTDataController::templateLocation()));
    Q_EMIT templateLocationChanged();
}

void GeneralPane::moveTemplates(const QString &from, const QString &to)
{
    const int answer = VTAlert::show(
        {tr("Would you like to move your templates to the new location?"),
         tr("Any templates outside of the new backup location will not be displayed in the Templates pane."),
         tr("Move"), tr("Don't Move")},
        &m_window);
    if (answer != VTAlert::defaultReturn)
        return;
    VTLog::appendLog("User chose to move files");
    const auto entries = platform::listFolder(from);
    if (!entries)
        VTAlert::show({formatString(tr("Unable to move file %@ to %@"), from, to), checkDestination(entries.outcome())},
                      &m_window);
    for (const auto &entry : entries.valueOr({})) {
        const QString source = joined(from, entry.name);
        if (!entry.name.endsWith(QLatin1String(".tzt"), Qt::CaseInsensitive))
            continue;
        const platform::Outcome moved = fileoperations::moveFile(source, joined(to, entry.name), movePatience);
        if (!moved.ok())
            VTAlert::show({formatString(tr("Unable to move file %@ to %@"), source, to), checkDestination(moved)},
                          &m_window);
    }
}

// Templates from outside, the shipped ones put back, the template of the first version, and the history.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "support/FileOperations.h"
#include "support/Notifications.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "templates/TemplateLibrary.h"
#include "templates/TemplateMigration.h"
#include "templates/VTDataController.h"
#include "templates/editor/TemplatePane.h"
#include "ui/FilePanels.h"
#include "ui/ImportPanel.h"

#include <QFileDialog>

void TessaroAppDelegate::importTemplate()
{
    if (!studioAllowsEditing())
        return;
    auto *panel = new ImportPanel(m_window.get(), ImportPanel::Takes::Bundles, QStringLiteral("tzt"));
    panel->setWindowTitle(tr("Import Template"));
    whenLeft<ImportPanel>(*panel, *this, [this](ImportPanel &left, bool) { openFiles(left.chosen()); });
    panel->open();
}

static bool mayReplace(const QString &file)
{
    return VTAlert::show({platform::formatString(TessaroAppDelegate::tr("%@ already exists. Overwrite?"),
                                                 platform::lastComponent(file)),
                          TessaroAppDelegate::tr("What is there goes to the Trash."),
                          TessaroAppDelegate::tr("Overwrite"),
                          TessaroAppDelegate::tr("Cancel"),
                          {},
                          VTAlert::alternateReturn}) == VTAlert::defaultReturn;
}

void TessaroAppDelegate::exportTemplate()
{
    const QString name = m_window->shownPane() == MainWindow::Pane::Templates
                             ? m_window->templatePane().tableController().selectedTemplate()
                             : m_window->selectedTemplate();
    if (name.isEmpty())
        return;
    auto *panel = new QFileDialog(m_window.get());
    panel->setWindowTitle(tr("Export “%1”").arg(platform::forOneLine(name)));
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(QStringLiteral("*.tzt.zip"));
    panel->setWindowModality(Qt::WindowModal);
    panel->setDirectory(VTLocalPaths::userDirectory());
    panel->selectFile(name + QStringLiteral(".tzt.zip"));
    panel->setLabelText(QFileDialog::Accept, tr("Export"));
    makePlain(*panel);
    whenLeft<QFileDialog>(*panel, *this, [this, name](QFileDialog &left, bool accepted) {
        const QString given = left.selectedFiles().value(0);
        if (!accepted || given.isEmpty())
            return;
        const QString file = library::exportFile(name, given);
        if (file != given && platform::targetExists(file) && !mayReplace(file)) // the panel has asked about another
            return;
        if (library::exportTemplate(name, file).ok())
            platform::revealInFileBrowser(file);
    });
    panel->open();
}

bool TessaroAppDelegate::openFile(const QString &path)
{
    VTLog::appendLog("User opened file %@", path);
    if (!library::isTemplateFile(path))
        return false;
    if (!studioAllowsEditing())
        return true; // it was said
    bringToFront();
    if (m_window->shownPane() != MainWindow::Pane::Templates) // where a name may be being typed
        toolbarTemplateAction();
    ++m_imports;
    auto &list = m_window->templatePane().tableController();
    platform::performBeside([&list, path] { list.addTemplateFromFile(path); },
                            [this] {
                                --m_imports;
                                closeIfWanted();
                            });
    return true;
}

bool TessaroAppDelegate::isImporting() const
{
    return m_imports > 0 || (m_templatesShown && m_window->templatePane().outlineController().isImporting());
}

/// The window stays while something is taken in: what is half in the library or a template would look like a whole one,
/// and whoever imports wants to hear how it ends.
bool TessaroAppDelegate::mayClose()
{
    m_closesLater = isImporting();
    if (m_closesLater) // in the title, which both panes have
        m_window->setWindowTitle(tr("Tessaro: closes when everything has been taken in"));
    return !m_closesLater;
}

void TessaroAppDelegate::closeIfWanted()
{
    if (std::exchange(m_closesLater, false))
        m_window->close();
}

void TessaroAppDelegate::openFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (!openFile(path))
            VTAlert::show({platform::formatString(tr("%@ is not a template"), platform::lastComponent(path)),
                           tr("Tessaro takes in templates: folders whose name ends in “.tzt”, and archives of them, in "
                              "“.tzt.zip”.")});
    }
}

void TessaroAppDelegate::bringToFront()
{
    if (std::exchange(m_closesLater, false)) // somebody wants to see it after all
        m_window->setWindowTitle(tr("Tessaro"));
    if (m_window->isMinimized())
        m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
}

void TessaroAppDelegate::importOldTessaroTemplate()
{
    migration::importFirstVersionTemplate();
}

void TessaroAppDelegate::restoreShippedTemplates()
{
    using Force = VTDataController::Force;
    DiskSteps steps;
    const platform::Outcome restored =
        VTDataController::sharedController().populateDefaultTemplates(Force::Yes, &steps);
    m_window->templatePane().history().add({tr("Restore of the Default Templates"), steps});
    if (!restored.ok())
        VTAlert::show({tr("Not all templates could be restored"),
                       withCause(tr("Those that could not be replaced were left as they are."), restored)});
}

void TessaroAppDelegate::restoreDefaultTemplates()
{
    if (!studioAllowsEditing())
        return;
    const int answer = VTAlert::show({tr("Are you sure you wish to restore the default Tessaro templates?"),
                                      tr("This will restore the templates Tessaro ships with by default and will "
                                         "overwrite any modifications you have "
                                         "made to them."),
                                      tr("Restore"),
                                      tr("Cancel"),
                                      {},
                                      VTAlert::alternateReturn});
    if (answer != VTAlert::defaultReturn)
        return;
    restoreShippedTemplates();
    populateTemplatePopUp();
    Q_EMIT Notifications::hub().VTTessaroRefreshTemplates();
}

void TessaroAppDelegate::clearHistory()
{
    m_tableController->finishEditing();
    m_tableController->clearHistory();
    showUndo();
    VTAlert::show(
        {tr("History successfully cleared"),
         tr("To switch history logging off entirely, go to Preferences and deselect Save History next to each "
            "parameter in the Parameters tab."),
         {},
         {},
         {},
         {},
         true});
}

void TessaroAppDelegate::newTemplate()
{
    toolbarTemplateAction();
    m_window->templatePane().tableController().createNewTemplate();
}

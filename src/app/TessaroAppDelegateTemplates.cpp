// Templates from outside, the shipped ones put back, the template of the first version, and the history.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "app/TemplateMigration.h"
#include "parameters/VTProjectTableController.h"
#include "platform/NativePath.h"
#include "support/Notifications.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/TemplatePane.h"
#include "templates/VTDataController.h"
#include "ui/ImportPanel.h"

#include <QThread>

void TessaroAppDelegate::importTemplate()
{
    auto *panel = new ImportPanel(m_window.get(), ImportPanel::Takes::Bundles, QStringLiteral("tzt"));
    panel->setWindowTitle(tr("Import Template"));
    connect(panel, &QDialog::accepted, this, [this, panel] { openFile(panel->chosen().constFirst()); });
    panel->open();
}

bool TessaroAppDelegate::openFile(const QString &path)
{
    VTLog::appendLog("User opened file %@", path);
    const QString plain = path.size() > 1 && path.endsWith(u'/') ? path.chopped(1) : path;
    if (platform::extensionOf(plain).toLower() != u"tzt")
        return false;
    bringToFront();
    toolbarTemplateAction();
    auto *thread =
        QThread::create([this, plain] { m_window->templatePane().tableController().addTemplateFromFile(plain); });
    ++m_imports;
    connect(thread, &QThread::finished, this, [this, thread] {
        thread->deleteLater();
        --m_imports;
    });
    thread->start();
    return true;
}

void TessaroAppDelegate::openFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (!openFile(path))
            VTAlert::alertSheetWithMessageText(
                platform::formatString(tr("%@ is not a template"), platform::lastComponent(path)),
                tr("Tessaro takes in templates: folders whose name ends in “.tzt”."), m_window.get());
    }
}

void TessaroAppDelegate::bringToFront()
{
    if (m_window->isMinimized())
        m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
}

void TessaroAppDelegate::importOldTessaroTemplate()
{
    migration::importFirstVersionTemplate();
}

void TessaroAppDelegate::restoreDefaultTemplates()
{
    const int answer = VTAlert::alertSheetWithMessageText(
        tr("Are you sure you wish to restore the default Tessaro templates?"), tr("Restore"), tr("Cancel"), {},
        tr("This will restore the templates Tessaro ships with by default and will overwrite any modifications you "
           "have "
           "made to them."),
        m_window.get(), VTAlert::Block::Yes);
    if (answer != VTAlert::defaultReturn)
        return;
    VTDataController::sharedController().populateDefaultTemplates(VTDataController::Force::Yes);
    populateTemplatePopUp();
    Q_EMIT Notifications::hub().VTTessaroRefreshTemplates();
}

void TessaroAppDelegate::clearHistory()
{
    m_tableController->clearHistory();
    VTAlert::alertSheetWithMessageText(tr("History successfully cleared"),
                                       tr("To switch history logging off entirely, go to Preferences and deselect Save "
                                          "History next to each parameter in "
                                          "the Parameters tab."),
                                       m_window.get());
}

void TessaroAppDelegate::newTemplate()
{
    toolbarTemplateAction();
    m_window->templatePane().tableController().createNewTemplate();
}

// The projects that were made: opened, shown, undone.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "creation/ProjectCheck.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "support/LongWork.h"
#include "support/VTAlert.h"
#include "templates/VTDataController.h"
#include "templates/editor/TemplatePane.h"

#include <QMenu>

namespace {

/// A longer menu is no help; the command line lists them all.
constexpr qsizetype mostShown = 20;
constexpr qsizetype mostNamed = 8;
constexpr int widestName = 360; // pixels

QString shownName(const Manifest &manifest)
{
    return platform::forOneLine(manifest.name());
}

/// Many projects have the same name, in folders of their own: the folder comes along.
QString forMenu(const Manifest &manifest, const QFontMetrics &letters)
{
    const QString folder = platform::forOneLine(platform::lastComponent(platform::parentPath(manifest.project)));
    const QString whole = folder + QStringLiteral(" ▸ ") + shownName(manifest);
    // In a menu an ampersand would mark a letter.
    return letters.elidedText(whole, Qt::ElideMiddle, widestName).replace(u'&', QStringLiteral("&&"));
}

} // namespace

void TessaroAppDelegate::undoCreation()
{
    if (m_creating || m_undoable.isEmpty())
        return;
    m_undoable.size() == 1 ? undoProject(m_undoable.constFirst()) : undoProjects(m_undoable);
}

void TessaroAppDelegate::undo()
{
    if (m_window->shownPane() == MainWindow::Pane::Templates)
        return m_window->templatePane().undo();
    if (!m_tableController->hasClearedHistory())
        return undoCreation();
    m_tableController->finishEditing();
    m_tableController->restoreHistory();
    showUndo();
}

void TessaroAppDelegate::redo()
{
    if (m_window->shownPane() == MainWindow::Pane::Templates)
        m_window->templatePane().redo();
}

/// The menu says what Undo and Redo would do in the pane that is shown.
void TessaroAppDelegate::showUndo()
{
    const bool inTemplates = m_window->shownPane() == MainWindow::Pane::Templates;
    QString undone;
    if (!inTemplates && m_undoable.size() == 1)
        undone = tr("Creation of ‘%1’").arg(shownName(m_undoable.constFirst()));
    else if (!inTemplates && !m_undoable.isEmpty())
        undone = tr("Creation From Table");
    if (!inTemplates && m_tableController->hasClearedHistory()) // later than any creation
        undone = tr("Clear History");
    QString redone;
    if (inTemplates) {
        undone = m_window->templatePane().history().undoName();
        redone = m_window->templatePane().history().redoName();
    }
    m_window->setUndoable(undone, redone);
}

void TessaroAppDelegate::undoProject(const Manifest &given)
{
    const Manifest manifest = given; // it may be the one that is forgotten below
    setCreating(true);
    startProcessing();
    platform::CopyMonitor monitor;
    UndoResult result;
    {
        const LongWork work(tr("Undoing %1").arg(shownName(manifest)), monitor);
        result = platform::resultInBackground([&] { return ::undoCreation(manifest, monitor); });
    }
    finishProcessing();
    setCreating(false);
    m_tableController->follow();
    const bool isOver = result.outcome.ok() || result.outcome.is(platform::Cause::Missing);
    if (isOver) {
        m_undoable.removeIf([&](const Manifest &other) { return other.file == manifest.file; });
        showUndo();
    }
    if (result.outcome.is(platform::Cause::Cancelled))
        return;
    if (!result.outcome.ok()) {
        VTAlert::show({tr("‘%1’ cannot be undone").arg(shownName(manifest)),
                       result.outcome.is(platform::Cause::Missing) ? tr("It is not at its place any more.")
                                                                   : result.outcome.description()});
        return;
    }
    m_window->showMessage(tr("‘%1’ is in the Trash.").arg(shownName(manifest)));
    if (!result.kept.isEmpty())
        tellWhatStays(manifest, result.kept);
    if (result.hadOldProject && !result.oldProject.ok())
        VTAlert::show({tr("The old project is still in the Trash"), result.oldProject.description()});
}

void TessaroAppDelegate::tellWhatStays(const Manifest &manifest, const QList<KeptItem> &kept) const
{
    m_window->showMessage(tr("What was untouched is in the Trash."));
    QStringList lines;
    for (const KeptItem &item : kept.mid(0, mostNamed))
        lines.append(QStringLiteral("• ") + sentenceOf(item, manifest.project));
    if (kept.size() > mostNamed)
        lines.append(tr("and %n more; the log names each", nullptr, static_cast<int>(kept.size() - mostNamed)));
    VTAlert::show({tr("Part of ‘%1’ stays").arg(shownName(manifest)), lines.join(u'\n')});
}

void TessaroAppDelegate::fillRecentProjects(QMenu *menu)
{
    menu->clear();
    const QList<Manifest> projects = recentProjects().mid(0, mostShown);
    if (projects.isEmpty())
        menu->addAction(tr("None Yet"))->setEnabled(false);
    for (const Manifest &manifest : projects) {
        QMenu *project = menu->addMenu(forMenu(manifest, menu->fontMetrics()));
        project->setToolTip(platform::forDisplay(manifest.project));
        if (platform::identityOf(manifest.project) != manifest.identity) {
            project->addAction(tr("Not There Any More"))->setEnabled(false);
            continue;
        }
        project->addAction(tr("&Open"), this,
                           [path = manifest.project] { platform::openWithDefaultApplication(path); });
        project->addAction(tr("&Show in Its Folder"), this, [this, path = manifest.project] { showProject(path); });
        project->addAction(tr("&Check…"), this, [this, path = manifest.project] { checkProjectAt(path); })
            ->setEnabled(!m_creating);
        project->addAction(tr("&Undo"), this, [this, manifest] { undoProject(manifest); })->setEnabled(!m_creating);
    }
}

/// What is said of a project that was looked at.
static VTAlert::Texts textsOf(const ProjectCheck &check)
{
    const QString name = platform::forOneLine(platform::lastComponent(check.project));
    if (!check.outcome.ok())
        return {TessaroAppDelegate::tr("‘%1’ cannot be checked").arg(name), check.outcome.description()};
    QStringList lines;
    if (!check.isRemembered)
        lines.append(
            TessaroAppDelegate::tr("Tessaro does not remember this project; it was compared with the template “%1”.")
                .arg(check.templateName));
    for (const CheckFinding &finding : check.findings.mid(0, mostNamed))
        lines.append(QStringLiteral("• ") + sentenceOf(finding));
    if (const auto others = static_cast<int>(check.findings.size() - mostNamed); others > 0)
        lines.append(TessaroAppDelegate::tr("and %n more; “Tessaro check” names each", nullptr, others));
    if (check.notLooked > 0)
        lines.append(TessaroAppDelegate::tr("Items that depend on values, not looked for: %L1").arg(check.notLooked));
    if (check.isComplete())
        lines.append(TessaroAppDelegate::tr("Items looked for: %L1").arg(check.looked));
    const QString head = check.isComplete() ? TessaroAppDelegate::tr("‘%1’ is complete")
                                            : TessaroAppDelegate::tr("Something is missing in ‘%1’");
    VTAlert::Texts texts{head.arg(name), lines.join(u'\n')};
    texts.isGoodNews = check.isComplete();
    return texts;
}

void TessaroAppDelegate::checkProjectAt(const QString &folder)
{
    const QString name = m_window->selectedTemplate();
    const QString files = name.isEmpty() ? QString() : VTDataController::filesFolder(name);
    setCreating(true);
    startProcessing();
    platform::CopyMonitor monitor;
    ProjectCheck check;
    {
        const LongWork work(tr("Checking %1").arg(platform::forOneLine(platform::lastComponent(folder))), monitor);
        check = platform::resultInBackground([&] { return ::checkProject(folder, name, files, monitor); });
    }
    finishProcessing();
    setCreating(false);
    if (!check.outcome.is(platform::Cause::Cancelled))
        VTAlert::show(textsOf(check));
}

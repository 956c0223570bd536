// Many projects from a table: asked for in a sheet, made and undone together.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "app/OwnParametersSheet.h"
#include "app/TableSheet.h"
#include "creation/RequestCheck.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/RecentFiles.h"
#include "support/LongWork.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"
#include "templates/editor/TemplatePane.h"
#include "ui/FilePanels.h"
#include "ui/VTSavePanel.h"

namespace {

constexpr qsizetype mostNamed = 8;

QString shortened(const QStringList &lines)
{
    QString text = QStringList(lines.mid(0, mostNamed)).join(u'\n');
    if (lines.size() > mostNamed)
        text += u'\n' + TessaroAppDelegate::tr("and others: %L1; the log names each").arg(lines.size() - mostNamed);
    return text;
}

/// Any thread.
platform::Result<ProjectRequest> requestFor(const QString &name, const QStringList &templates)
{
    if (!templates.contains(name))
        return platform::Outcome::failure(platform::Cause::Invalid, {},
                                          TessaroAppDelegate::tr("There is no template “%1”.").arg(name));
    return freshRequest(VTDataController::templateLocation(), name);
}

} // namespace

void TessaroAppDelegate::createFromTable()
{
    if (m_creating || m_savePanel)
        return;
    if (m_window->shownPane() != MainWindow::Pane::Project)
        toolbarNewProjectAction();
    m_tableController->finishEditing();
    const QStringList templates = m_window->shownTemplates();
    const BatchBase base{[templates](const QString &name) { return requestFor(name, templates); },
                         m_window->selectedTemplate(), settings::strictNaming.isOn()};
    const bool isFixed = settings::useFixedProjectLocation.isOn();
    const QString fixed = settings::fixedProjectLocationPath.text();
    auto *sheet = new TableSheet(base, isFixed && !fixed.isEmpty() ? fixed : nextPlace(), m_window.get());
    whenLeft<TableSheet>(*sheet, *this, [this](const TableSheet &left, bool accepted) {
        if (accepted && !m_creating)
            createBatch(left.batch(), left.manner(), left.location());
    });
    sheet->open();
}

void TessaroAppDelegate::createBatch(const ProjectBatch &batch, BatchManner manner, const QString &location)
{
    setCreating(true);
    m_window->showCreated({});
    QStringList problems;
    const BatchResult result = BatchCreation(*this, manner).run(batch, [&](qsizetype, const CreationResult &made) {
        for (const QString &error : made.errors)
            problems.append(platform::forOneLine(made.request.name()) + QStringLiteral(": ") + error);
        problems += made.notes;
    });
    setCreating(false);
    for (const KeptItem &kept : result.kept)
        problems.append(sentenceOf(kept));
    if (!result.made.isEmpty()) {
        m_undoable = result.made;
        rememberPlace(location);
        platform::performInBackground([location] { platform::rememberForDesktop(location); });
    }
    showUndo();
    m_tableController->follow();
    if (result.takenBack)
        m_window->showMessage(tr("Nothing was kept: what had been created is in the Trash."));
    else
        m_window->showCreatedMany(result.made.size(), location);
    if (result.left > 0 && !result.takenBack)
        problems.append(tr("Rows that were left out: %L1").arg(result.left));
    if (!result.told.ok())
        problems.append(tr("The program that runs after each creation has failed") + QStringLiteral(": ") +
                        result.told.description());
    if (!problems.isEmpty())
        VTAlert::show({result.takenBack ? tr("The projects could not all be created") : tr("Not all went well"),
                       shortened(problems)});
}

/// The latest first. What stays of each is said once, together.
void TessaroAppDelegate::undoProjects(const QList<Manifest> &given)
{
    const QList<Manifest> projects = given; // they may be the ones that are forgotten below
    setCreating(true);
    startProcessing();
    platform::CopyMonitor monitor;
    QList<UndoResult> results;
    {
        const LongWork work(tr("Undoing projects: %L1").arg(projects.size()), monitor);
        results = platform::resultInBackground([&] { return undoBatch(projects, monitor); });
    }
    finishProcessing();
    setCreating(false);
    m_tableController->follow();
    QStringList stays;
    qsizetype undone = 0;
    m_undoable = projects.mid(0, projects.size() - results.size()); // those that Cancel has left, and what failed
    for (qsizetype i = 0; i < results.size(); ++i) {
        const Manifest &project = projects[projects.size() - 1 - i];
        undone += results[i].outcome.ok() ? 1 : 0;
        if (!results[i].outcome.ok() && !results[i].outcome.is(platform::Cause::Missing))
            m_undoable.append(project);
        if (!results[i].outcome.is(platform::Cause::Cancelled)) {
            for (const KeptItem &kept : results[i].kept)
                stays.append(sentenceOf(kept));
        }
    }
    showUndo();
    m_window->showMessage(tr("In the Trash: %L1 projects.").arg(undone));
    if (!stays.isEmpty())
        VTAlert::show({tr("Part of the projects stays"), shortened(stays)});
}

void TessaroAppDelegate::editTemplateParameters()
{
    auto &outline = m_window->templatePane().outlineController();
    const QString bundle = outline.baseFilename();
    if (bundle.isNull() || !outline.rules().isRead || !outline.rules().problem.ok())
        return;
    auto *sheet = new OwnParametersSheet(platform::withoutExtension(platform::lastComponent(bundle)),
                                         outline.rules().rules, m_window.get());
    whenLeft<OwnParametersSheet>(*sheet, *this, [this, bundle](const OwnParametersSheet &left, bool accepted) {
        auto &now = m_window->templatePane().outlineController();
        if (accepted && now.baseFilename() != bundle)
            VTAlert::show({tr("The parameters were not stored"),
                           tr("Another template is shown by now: that of a studio’s set-up, or of another library.")});
        else if (accepted)
            now.changeRules(tr("Parameters"), [&](TemplateRules &rules) { left.takeInto(rules); });
    });
    sheet->open();
}

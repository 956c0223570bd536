// Start-up, panes and the template pop-up. Creation and Help live in files of their own.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "app/StudioFollower.h"
#include "creation/Unfinished.h"
#include "diagnostics/VTBugReporter.h"
#include "diagnostics/VTSoftwareUpdate.h"
#include "parameters/ParameterStore.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/ApplicationLauncher.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileWatch.h"
#include "preferences/VTPreferenceController.h"
#include "preferences/VTShortcutKeyTableDelegate.h"
#include "support/FileOperations.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTLog.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"
#include "templates/editor/TemplatePane.h"
#include "templates/editor/VTTemplateTableController.h"

#include <QApplication>
#include <QTimer>

namespace {

/// A sibling application of the same maker: who has it needs no advertisement for it.
constexpr std::chrono::seconds libraryPatience{5};
constexpr qsizetype mostDoubtfulNamed = 3; // in one sheet; the log names all
const QString siblingApplication = QStringLiteral("com.vantrel.Clipwell");

} // namespace

TessaroAppDelegate::TessaroAppDelegate()
{
    VTBugReporter::startBugReporter({}, {}, [this](const QString &report) {
        m_crashReport = report;
    }); // what it finds is the last run's, and so goes into the last run's log
    VTLog::createNewLog();
    settings::registerDefaults();
}

TessaroAppDelegate::~TessaroAppDelegate()
{
    delete m_preferences; // it speaks to the window when it goes
    while (isImporting()) // while the window is whole: what waits here shows its progress and its questions in it
        platform::MainThread::turnLoop(std::chrono::milliseconds(50));
    if (m_tableController) // a value that is being typed when the window closes counts, too
        m_tableController->finishEditing();
}

bool TessaroAppDelegate::awakeFromNib()
{
    if (std::exchange(m_awakeCount, 1) != 0)
        return true;
    if (settings::requireAdminPassword.isOn() && !VTAuthorization::sharedController().authStart()) {
        VTAlert::show({tr("Tessaro needs an administrator’s password to start"),
                       tr("It was not given, or there is nobody who could ask for it. An administrator can switch this "
                          "off with: sudo Tessaro settings unset requireAdminPassword")});
        return false;
    }
    if (const platform::Outcome problem = settings::standard().problem(); !problem.ok())
        VTAlert::show({tr("Your settings cannot be read"),
                       withCause(tr("Tessaro shows its defaults instead. What you change and the numbers that projects "
                                    "take are not kept until the file can be read again."),
                                 problem)});
    VTSoftwareUpdate().startup();
    m_tableController = std::make_unique<VTProjectTableController>();
    m_window = std::make_unique<MainWindow>(*this);
    m_window->connectTable(*m_tableController);
    m_tableController->awakeFromNib();
    importOldTessaroTemplate();
    populateTemplatePopUp();
    if (!platform::registeredApplication(siblingApplication).isNull())
        m_window->removeProductFamilyItem();
    m_window->setResultShown(settings::showResult.isOn());
    toolbarNewProjectAction();
    watchSettings();
    m_studio = std::make_unique<StudioFollower>();
    connect(m_studio.get(), &StudioFollower::changed, this, &TessaroAppDelegate::followStudio);
    connect(m_studio.get(), &StudioFollower::unreachable, m_window.get(), &MainWindow::showMessage);
    m_studio->follow();
    return true;
}

void TessaroAppDelegate::watchSettings()
{
    m_seenTemplate = settings::selectedProjectTemplate.text();
    m_seenDefault = settings::defaultTemplate.text();
    m_settingsWatch = std::make_unique<platform::FileWatch>(settings::userFile(), [this] { followSettings(); });
    // A home on a share may have been written to from another machine; and the day may be another.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive)
            return;
        followSettings();
        if (m_templatesShown && !m_creating)
            m_window->templatePane().followDisk();
    });
}

/// Of a creation, an undoing or a look at a project, each from its begin to its end.
void TessaroAppDelegate::setCreating(bool isCreating)
{
    m_creating = isCreating;
    if (!isCreating && m_hasMissedStudio)
        QMetaObject::invokeMethod(this, &TessaroAppDelegate::followStudio, Qt::QueuedConnection);
}

/// What is typed stays; everything else may come from the studio.
void TessaroAppDelegate::followStudio()
{
    m_hasMissedStudio = m_creating;
    if (m_creating)
        return;
    populateTemplatePopUp();
    if (m_templatesShown)
        m_window->templatePane().tableController().switchedToView();
    followSettings();
}

void TessaroAppDelegate::followSettings()
{
    if (m_creating) // its own steps write settings, and it follows at its end
        return;
    m_tableController->bringUpToDate();
    followTemplate(settings::selectedProjectTemplate.text(), m_seenTemplate);
    followTemplate(settings::defaultTemplate.text(), m_seenDefault);
    Q_EMIT Notifications::hub().settingsWritten();
}

/// Only what was changed moves the pop-up: what the user chose in it stays.
void TessaroAppDelegate::followTemplate(const QString &name, QString &seen)
{
    if (std::exchange(seen, name) != name && m_window->shownTemplates().contains(name))
        m_window->setTemplates(m_window->shownTemplates(), name);
}

/// Three kinds of work to begin with, as far as their templates are there; the first project can be made at once.
void TessaroAppDelegate::welcome()
{
    struct Kind
    {
        QString name;
        QString templateName;
    };
    QList<Kind> kinds{{tr("Editing: from ingest to delivery"), QStringLiteral("Editing Template")},
                      {tr("Photography: from card to client"), QStringLiteral("Photography")},
                      {tr("Podcast and sound: an episode, a mix"), QStringLiteral("Podcast and Sound")}};
    kinds.removeIf([this](const Kind &kind) { return !m_window->shownTemplates().contains(kind.templateName); });
    VTAlert::Texts texts{
        tr("Welcome to Tessaro"),
        tr("Simplify your creative workflows by organizing your assets before you start. Tessaro makes it easy to "
           "create customized folder structures for each project.\n\nModify the included templates to meet your "
           "needs or create your own from scratch."),
        tr("OK"),
        tr("User Manual"),
        {},
        VTAlert::defaultReturn};
    texts.isGoodNews = true;
    texts.chosen = std::make_shared<int>(0);
    if (kinds.size() > 1) {
        texts.choicesTitle = tr("What would you like to start with?");
        for (const Kind &kind : std::as_const(kinds))
            texts.choices.append(kind.name);
    }
    const int answer = VTAlert::show(texts);
    if (!texts.choices.isEmpty()) {
        const QString chosen = kinds[*texts.chosen].templateName;
        static_cast<void>(settings::selectedProjectTemplate.store(chosen)); // logged; the pop-up shows it
        m_window->setTemplates(m_window->shownTemplates(), chosen);
        m_seenTemplate = chosen;
    }
    if (answer == VTAlert::alternateReturn)
        helpUserManual();
    static_cast<void>(settings::firstRun.turn(false)); // who cannot store it is greeted again
}

void TessaroAppDelegate::applicationDidFinishLaunching()
{
    auto &keys = VTShortcutKeyTableDelegate::sharedController();
    connect(&keys, &VTShortcutKeyTableDelegate::commandRequested, this,
            [this](const QString &identifier) { performCommand(identifier); });
    if (VTShortcutKeyTableDelegate::hasKeys()) // else nobody needs to be asked
        keys.watchKeys();
    if (settings::firstRun.isOn())
        welcome();
    tellOfCrash();
    lookForLeftovers();
    Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
}

/// Where a bug reporter is installed, it has done so.
void TessaroAppDelegate::tellOfCrash()
{
    const QString report = std::exchange(m_crashReport, {});
    if (report.isNull() || VTBugReporter::handsOver())
        return;
    const int answer = VTAlert::show(
        {tr("Tessaro ended unexpectedly the last time"),
         tr("A report of it lies on this computer; what it says of the program helps to mend the fault. Your projects "
            "and templates are as they were."),
         tr("OK"),
         tr("Show Report"),
         {},
         VTAlert::defaultReturn});
    if (answer == VTAlert::alternateReturn)
        platform::revealInFileBrowser(report);
}

/// On a thread: they may lie on a share whose server does not answer.
void TessaroAppDelegate::lookForLeftovers()
{
    struct Found
    {
        QList<Leftover> leftovers;
        QList<DoubtfulProject> doubtful;
    };
    const auto found = std::make_shared<Found>();
    platform::performBeside(
        [found] {
            found->leftovers = leftovers();
            found->doubtful = doubtfulProjects();
        },
        [found, window = QPointer(m_window.get()), this] {
            if (!window) // and with it this
                return;
            for (const Leftover &leftover : std::as_const(found->leftovers))
                offerToPutAway(leftover);
            tellOfDoubtfulProjects(found->doubtful);
        });
}

void TessaroAppDelegate::offerToPutAway(const Leftover &leftover)
{
    VTLog::appendLog("A creation of %@ was cut off; %@ is left of it", leftover.destination, leftover.folder);
    const int answer = VTAlert::show(
        {tr("A project was not finished"),
         tr("Tessaro or the computer stopped while ‘%1’ was being made. What had been copied is here:\n\n%2")
             .arg(platform::lastComponent(leftover.destination), leftover.folder),
         tr("Move to Trash"),
         tr("Keep"),
         {},
         VTAlert::alternateReturn});
    const platform::Outcome ended = answer == VTAlert::defaultReturn ? putAway(leftover) : forget(leftover);
    if (!ended.ok())
        VTAlert::show({tr("The unfinished project could not be put away"), ended.description()});
}

/// One sheet for all of them.
void TessaroAppDelegate::tellOfDoubtfulProjects(const QList<DoubtfulProject> &doubtful)
{
    if (doubtful.isEmpty())
        return;
    QStringList sentences;
    for (const DoubtfulProject &project : doubtful) {
        VTLog::appendLog("After the computer went down %@ is not as it was made: %@", project.project,
                         descriptionOf(project));
        if (sentences.size() < mostDoubtfulNamed)
            sentences.append(platform::forDisplay(project.project) + u'\n' + descriptionOf(project));
    }
    const int answer =
        VTAlert::show({doubtful.size() == 1 ? tr("‘%1’ is not whole").arg(platform::lastComponent(doubtful[0].project))
                                            : tr("Projects that are not whole: %1").arg(doubtful.size()),
                       sentences.join(QStringLiteral("\n\n")) + QStringLiteral("\n\n") +
                           tr("Create it once more, or take these files from the template."),
                       tr("OK"),
                       tr("Show"),
                       {},
                       VTAlert::defaultReturn});
    if (answer == VTAlert::alternateReturn)
        showProject(doubtful.constFirst().project);
    for (const DoubtfulProject &project : doubtful)
        static_cast<void>(forget(project)); // one that stays is said again
}

QStringList TessaroAppDelegate::toolbarSelectableItemIdentifiers() const
{
    return m_window->selectableToolbarItems();
}

void TessaroAppDelegate::toolbarNewProjectAction()
{
    VTLog::appendLog("Showing project pane");
    if (m_templatesShown)
        m_window->templatePane().finishEditing();
    m_window->showPane(MainWindow::Pane::Project);
    followRules();
    showUndo();
}

void TessaroAppDelegate::toolbarTemplateAction()
{
    VTLog::appendLog("Showing template pane");
    m_tableController->finishEditing();
    const bool isShown = m_window->shownPane() == MainWindow::Pane::Templates;
    m_window->showPane(MainWindow::Pane::Templates);
    auto &pane = m_window->templatePane();
    showUndo();
    if (std::exchange(m_templatesShown, true))
        return isShown ? pane.tableController().readAnew() : pane.tableController().switchedToView();
    connect(&pane.history(), &ChangeHistory::changed, this, &TessaroAppDelegate::showUndo);
    connect(&pane.tableController(), &VTTemplateTableController::populateTemplatePopUp, this,
            &TessaroAppDelegate::populateTemplatePopUp);
    connect(&pane.outlineController(), &VTTemplateOutlineController::importsEnded, this,
            &TessaroAppDelegate::closeIfWanted);
    connect(&pane, &TemplatePane::parametersWanted, this, &TessaroAppDelegate::editTemplateParameters);
    pane.awakeFromNib();
}

void TessaroAppDelegate::changeProjectTemplate()
{
    const QString selected = m_window->selectedTemplate();
    VTLog::appendLog("Project template changed to %@", selected);
    if (!selected.isEmpty())
        static_cast<void>(settings::selectedProjectTemplate.store(selected)); // logged
}

void TessaroAppDelegate::populateTemplatePopUp()
{
    VTLog::appendLog("Populating template popup list");
    const auto late = [window = QPointer(m_window.get()), this](const platform::Outcome &read) {
        if (window) // and with it this
            showLibrary(read);
    };
    showLibrary(VTDataController::sharedController().populateTemplatesInTime(late)); // said and logged where it failed
}

void TessaroAppDelegate::showLibrary(const platform::Outcome &read)
{
    const bool isGone = read.is(platform::Cause::Unreachable);
    m_window->setLibraryProblem(
        isGone
            ? tr("The library at %1 cannot be reached.").arg(platform::forDisplay(VTDataController::templateLocation()))
            : QString());
    if (isGone && !std::exchange(m_awaitsLibrary, true)) // it comes back by itself when its drive does
        QTimer::singleShot(libraryPatience, this, [this] {
            m_awaitsLibrary = false;
            populateTemplatePopUp();
            if (m_templatesShown)
                m_window->templatePane().followDisk();
        });
    const QStringList names = VTDataController::sharedController().templates();
    const QString selected = chosenTemplate(names);
    m_window->setTemplates(names, selected);
    if (!names.isEmpty())
        static_cast<void>(settings::selectedProjectTemplate.store(selected)); // logged
}

void TessaroAppDelegate::installStandardTemplates()
{
    restoreShippedTemplates();
    populateTemplatePopUp();
}

void TessaroAppDelegate::showTemplateLibrary()
{
    platform::openWithDefaultApplication(VTDataController::templateLocation());
}

void TessaroAppDelegate::showResult()
{
    const bool isWanted = !m_window->isResultShown();
    static_cast<void>(settings::showResult.turn(isWanted)); // logged; it is shown all the same
    m_window->setResultShown(isWanted);
}

void TessaroAppDelegate::showProject(const QString &project)
{
    platform::revealInFileBrowser(project);
}

void TessaroAppDelegate::quit()
{
    m_tableController->finishEditing();
    if (m_templatesShown)
        m_window->templatePane().finishEditing();
    QApplication::quit();
}

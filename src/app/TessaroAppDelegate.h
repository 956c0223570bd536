#pragma once

#include "app/HelpPages.h"
#include "creation/BatchCreation.h"
#include "creation/Unfinished.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <memory>
#include <optional>

class MainWindow;
class StudioFollower;
class QMenu;
class VTProjectTableController;
class VTPreferenceController;
class VTSavePanel;

namespace platform {
class FileWatch;
}

/**
 * The application's delegate and the owner of its one window: start-up, the two panes, the template pop-up, the
 * creation of projects, Help. Main thread only. Made before the interface; awakeFromNib() makes that;
 * applicationDidFinishLaunching() comes when the window has been painted.
 */
class TessaroAppDelegate : public QObject, private CreationHost
{
    Q_OBJECT

public:
    /** Starts a new log and registers the default settings. */
    TessaroAppDelegate();
    ~TessaroAppDelegate() override;

    /** Once; later calls do nothing. False when the administrator's rights were asked for and refused: quit. */
    [[nodiscard]] bool awakeFromNib();
    void applicationDidFinishLaunching();

    [[nodiscard]] MainWindow *mainWindow() const { return m_window.get(); }
    [[nodiscard]] VTProjectTableController &tableController() const { return *m_tableController; }

    /** The toolbar's items that stand for a pane: all but the one that opens a web page. */
    [[nodiscard]] QStringList toolbarSelectableItemIdentifiers() const;

    /** Reads the library anew and selects the template of the next project. */
    void populateTemplatePopUp();

    /** What the project pane shows, as one value: everything about the project but where it goes. */
    [[nodiscard]] ProjectRequest shownRequest() const;

    /** Takes in a template bundle, in the background, and shows it. False, and nothing happens, for others. */
    bool openFile(const QString &path);
    void openFiles(const QStringList &paths); ///< what is no template is said
    void bringToFront();
    /** False, and the window closes by itself later, while something is being taken in. */
    [[nodiscard]] bool mayClose();

    void createTemplate(const ProjectRequest &request); ///< whatever is shown by then

    /** By the identifiers of the shortcut keys' list (VTKeys.plist). */
    [[nodiscard]] static const QHash<QString, void (TessaroAppDelegate::*)()> &commandsOfShortcuts();

public Q_SLOTS:
    void toolbarNewProjectAction();
    void toolbarTemplateAction();
    void changeProjectTemplate();
    void createNewProject(); ///< the create action: checks the parameters, finds the destination, creates
    void createFromTable();  ///< the same for many
    void undoCreation();     ///< the last one of this window
    /** Of the pane that is shown: the last creation, or the last change to the templates. */
    void undo();
    void redo();
    void destinationBrowseDidEnd(int returnCode);

    void importTemplate();
    void exportTemplate(); ///< the one that is selected, as an archive for people elsewhere
    void restoreDefaultTemplates();
    void clearHistory();
    void newTemplate();

    void showPreferences();
    void enablePrefsMenu();
    void disablePrefsMenu();
    /** Carries out a command of the shortcut keys' list by its identifier, or what a file browser asks for of a folder;
       one that is not known is logged. */
    void performCommand(const QString &identifier, const QString &folder = {});
    void beginNewProject();

    void editParameters(); ///< in the preferences
    void editTemplateParameters();
    void takePlace(const QString &folder); ///< the next project goes there
    void choosePlace();                    ///< the same, asked for by a panel
    void pinPlace(const QString &folder, bool pinned);
    void installStandardTemplates();
    void showTemplateLibrary();
    void followRules(); ///< the table gets the parameters of the chosen template
    void showResult();  ///< beside the parameters what will be made, or no longer; remembered
    void showProject(const QString &project);
    void fillRecentProjects(QMenu *menu); ///< with what is remembered, when it opens
    void chooseProjectToCheck();

    void checkForUpdates();
    void viewLog();
    void viewTaskLog();
    void gatherLogs();
    void helpUserManual();
    void showManual(); ///< in a window of its own
    void helpAppHome();
    void helpMoreProducts();
    void helpLumadexHome();
    void helpReportBug();
    void helpSuggestFeature();
    void helpVTHome();
    void showAbout();
    void quit();

private:
    void startProcessing() override;
    void finishProcessing() override;
    void incrementDynamicValues() override;
    void reveal(const QString &project) override;
    void quitIfWanted() override;

    void importOldTessaroTemplate();
    void restoreShippedTemplates();
    void showLibrary(const platform::Outcome &read);
    void lookForLeftovers();
    void offerToPutAway(const Leftover &leftover);
    void tellOfDoubtfulProjects(const QList<DoubtfulProject> &doubtful);
    void tellOfCrash();
    void checkProjectAt(const QString &folder);
    void performWithFolder(const QString &identifier, const QString &folder);
    [[nodiscard]] bool isImporting() const;
    void showUndo();
    void closeIfWanted();
    void watchSettings();
    void welcome();
    void followSettings();
    void followStudio();
    void setCreating(bool isCreating);
    void followTemplate(const QString &name, QString &seen);
    void createBatch(const ProjectBatch &batch, BatchManner manner, const QString &location);
    void undoProject(const Manifest &manifest);
    void undoProjects(const QList<Manifest> &given);
    void tellWhatStays(const Manifest &manifest, const QList<KeptItem> &kept) const;
    [[nodiscard]] bool isRepeated() const;
    [[nodiscard]] bool isComplete(const ProjectRequest &request);
    [[nodiscard]] bool takeRules(ProjectRequest &request);
    [[nodiscard]] bool mayOverwriteAtFixedLocation(const ProjectRequest &request);
    void askForDestination();
    [[nodiscard]] VTSavePanel *placePanel();
    using FolderUse = void (TessaroAppDelegate::*)(const QString &folder);
    void chooseFolder(const QString &title, const QString &button, FolderUse use);

    int m_awakeCount = 0;
    bool m_creating = false;
    bool m_hasMissedStudio = false;     ///< it came during a creation
    QElapsedTimer m_sinceCreation;      ///< not valid before the first
    FilenameParameters m_afterCreation; ///< what the table showed when it had ended
    bool m_templatesShown = false;      ///< the pane is filled when it is first shown: that would only slow the start
    bool m_closesLater = false;
    bool m_awaitsLibrary = false;
    QString m_crashReport;          ///< of the last run; null when it ended well
    QSet<QString> m_rulesBeingRead; ///< of these templates
    int m_imports = 0;              ///< bundles that are being taken in
    QString m_seenTemplate;         ///< "selectedProjectTemplate" and "defaultTemplate" when they were last looked at
    QString m_seenDefault;
    std::unique_ptr<platform::FileWatch> m_settingsWatch;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<StudioFollower> m_studio;
    std::unique_ptr<VTProjectTableController> m_tableController;
    QPointer<VTSavePanel> m_savePanel;
    QList<Manifest> m_undoable; ///< the last creation of this window, until it is undone
    ProjectRequest m_request;   ///< the project for which the panel asks
    QPointer<VTPreferenceController> m_preferences;
};

#pragma once

#include "creation/TemplateRules.h"
#include "templates/ImportJobs.h"
#include "templates/editor/TemplateTreeModel.h"

#include <QPointer>
#include <QSet>

class ImportPanel;
class QMenu;
class QToolButton;
class Spinner;
class VTColoredOutlineView;

/**
 * The structure editor: shows a template's tree and changes it. Every change is made on disk first; then the tree is
 * read anew, and what was open, selected and in sight stays so where it still exists. Main thread only; reading happens
 * on a worker while the window stays alive, imports run on threads of their own.
 */
class VTTemplateOutlineController : public QObject
{
    Q_OBJECT

public:
    struct Views
    {
        VTColoredOutlineView *outlineView = nullptr;
        QToolButton *addPopUp = nullptr;
        QMenu *addMenu = nullptr; ///< holds the static items; the project items go before them
        Spinner *spinner = nullptr;
    };

    explicit VTTemplateOutlineController(ChangeHistory &history, QObject *parent = nullptr);
    ~VTTemplateOutlineController() override;

    /** Not owned. */
    void setViews(const Views &views);
    void awakeFromNib();

    /** The bundle of a template; null for none, which empties the outline. */
    void loadDataFromFile(const QString &bundle);
    void populateTemplateStructure();
    void reloadOutlineView();
    void reloadOutlineViewItem(const TemplateNode *node);

    [[nodiscard]] const TemplateNodes &dataArray() const { return m_model.nodes(); }
    [[nodiscard]] QString baseFilename() const { return m_baseFilename; }
    [[nodiscard]] TemplateNode *itemFromFilename(const QString &path) const;
    [[nodiscard]] TemplateTreeModel &model() { return m_model; }

    [[nodiscard]] DropOperation validateDrop(const TemplateDrop &drop, const TemplateNode *target) const;
    /** The target's path, null for the root. False when nothing was taken. */
    bool acceptDrop(const TemplateDrop &drop, const QString &target);

    /** Starts the import on a thread of its own. */
    void copyFilesOnThread(const ImportJob &job);
    void createFolderStructureOnThread(const ImportJob &job);
    /** Takes in a name that is being typed, before this returns. */
    void finishEditing();
    [[nodiscard]] bool isEditing() const;
    /** Blocks until no import runs any more, turning the event loop. */
    void waitForImports();
    [[nodiscard]] bool isImporting() const { return m_jobs > 0; }

    /** What the template says beside its files; the problem says why that cannot be read. */
    struct ReadRules
    {
        TemplateRules rules{};
        platform::Outcome problem{};
        QStringList gone{};  ///< paths of rules whose item is not there
        bool isRead = false; ///< false until they have been
    };
    [[nodiscard]] const ReadRules &rules() const { return m_rules; }
    /** As one change that can be undone; the name is what the menu says. */
    void changeRules(const QString &name, const std::function<void(TemplateRules &)> &edit);
    void setRulesAside();
    /** The path below Files of the one item that is selected; null for none or several. */
    [[nodiscard]] QString selectedItem() const;

public Q_SLOTS:
    void showAddPopUp();
    /** In the selected folder, and beside the selected item. */
    void addFolder();
    void addFolderBeside();
    void addProject(const QString &source);
    void showImportFileDialog();
    void showImportFolderStructureDialog();
    void removeFiles();
    void duplicateFiles();
    /** To the desktop's clipboard: as items, as files, and as a list of names. */
    void copyItems();
    /** The same, to be moved by the next paste. */
    void cutItems();
    /** Into the selected folder: items, files from elsewhere, or folders as an indented list. */
    void paste();
    void revealFilesInFinder();
    void openSelectedFiles();
    /** 0 takes the label away, 1 to 7 are the labels. */
    void colorCodeFiles(int tag);
    /** Of several by a sheet. */
    void editSelectedName();

Q_SIGNALS:
    /** How many items are selected; whether a template is loaded at all. */
    void selectionChanged(qsizetype count, bool isLoaded);
    /** Something is about to be shown, or edited, that a filter might hide. */
    void needsWholeTree();
    /** None runs any more. */
    void importsEnded();
    /** They have been read anew. */
    void rulesChanged();

private:
    struct ViewState;
    /// Where a command puts something: the folder's path, "top" when it is the tree's root.
    struct Target
    {
        QString path;
        bool isTop = false;
    };

    [[nodiscard]] QString filesFolder() const;
    [[nodiscard]] QModelIndexList selectedIndexes() const;
    [[nodiscard]] QStringList selectedPaths() const;
    [[nodiscard]] QList<Target> targets() const;
    [[nodiscard]] QMimeData *selectionAsData() const;
    void pasteCopies(const QByteArray &archive, QString folder);
    void pasteFolders(const QString &text, const QString &folder);
    void showPasted(const DiskChange &change, const QString &folder);
    void renameSeveral();
    [[nodiscard]] static QString problemOfNames(const QStringList &paths, const QStringList &names);
    void renameAll(const QStringList &paths, const QStringList &names);
    void addFolderTo(const QList<Target> &places);
    [[nodiscard]] bool isInSight(const QModelIndex &index) const;
    [[nodiscard]] TemplateNode *nodeAtPath(const QString &path) const;
    [[nodiscard]] ViewState viewState() const;
    void restore(const ViewState &state, const QModelIndex &below);
    void rereadFolder(const QString &folder);
    void readInTime(const QString &folder, const std::function<void(TemplateNodes)> &show);
    void showTree(quint64 generation, TemplateNodes nodes);
    void showFolder(const QString &folder, quint64 generation, TemplateNodes children);
    void rereadParentOf(const QString &path);
    void insertInto(QList<Target> places, const QString &name,
                    const std::function<QString(const QString &folder)> &insert);
    [[nodiscard]] bool putsOffReading();
    void catchUp();
    void editItem(const QString &path);
    void selectOnly(const QString &path);
    void selectNear(const QString &folder, int row);
    void rename(const QString &path, const QString &typed);
    void record(DiskChange change, const changes::Copies &copies = {});
    void rereadRules();
    void showRules(const ReadRules &read);
    void fillAddMenu();
    void showImportPanel(bool foldersOnly);
    [[nodiscard]] QString importDestination() const;
    [[nodiscard]] QString destinationFolder(const QString &target) const;
    bool moveInside(const TemplateNode &dragged, const QString &folder, QStringList &moved, DiskSteps &steps);
    void startJob(const ImportJob &job, platform::Outcome (*work)(const ImportJob &, const ImportHost &));
    void announceSelection();

    ChangeHistory &m_history;
    Views m_views;
    QString m_baseFilename;
    TemplateTreeModel m_model;
    ReadRules m_rules;
    quint64 m_ruleReadings = 0;
    quint64 m_readings = 0;    ///< raised by whatever makes an earlier reading old
    QSet<QString> m_beingRead; ///< folders whose reading has not ended
    quint64 m_generation = 0;  ///< counts loads: one that was overtaken while it read is thrown away
    bool m_isBehind = false;   ///< the tree is to be read anew when the open editor has been left
    bool m_hasMoved = false;   ///< whether the last drop inside did anything
    int m_spinning = 0;
    int m_jobs = 0;
};

// The template pane in a real window: what is done there with mouse and keys, and what the disk and a project made of
// it say.
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "harness/HeldFile.h"
#include "harness/Records.h"
#include "harness/SheetAnswerer.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/desktop/Desktop.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"
#include "templates/editor/RenameSheet.h"
#include "templates/editor/TemplatePane.h"
#include "ui/ImportPanel.h"
#include "ui/SheetPresenter.h"
#include "ui/Spinner.h"
#include "ui/VTOutlineView.h"
#include "ui/VTTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDirIterator>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <unistd.h>

using platform::joined;
using platform::targetExists;

Q_DECLARE_METATYPE(std::function<void()>)

/// Milliseconds: the shipped templates are hundreds of files, and other tests run beside this one.
static constexpr int patience = 60'000;

class TestTemplatePane : public QObject
{
    Q_OBJECT

    SheetPresenter m_sheets;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    template <typename Widget> Widget *part(const char *name) const
    {
        return window().findChild<Widget *>(QLatin1String(name));
    }
    VTTemplateOutlineController &editor() const { return window().templatePane().outlineController(); }
    VTTemplateTableController &list() const { return window().templatePane().tableController(); }
    VTColoredOutlineView *outline() const { return part<VTColoredOutlineView>("outlineView"); }
    QString files(const QString &path = {}) const { return joined(joined(editor().baseFilename(), "Files"), path); }
    QModelIndex row(const QString &path) const
    {
        return editor().model().indexOf(editor().itemFromFilename(files(path)));
    }
    void select(const QStringList &paths) const
    {
        outline()->clearSelection();
        for (const QString &path : paths) {
            QVERIFY2(row(path).isValid(), qPrintable(path));
            outline()->selectionModel()->setCurrentIndex(row(path), QItemSelectionModel::Select);
        }
        outline()->setFocus();
    }
    QString selected() const
    {
        const QModelIndexList rows = outline()->selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : TemplateTreeModel::nodeAt(rows.first())->name();
    }
    /// As a drag ends: on the target, null for the root.
    bool drop(QMimeData *data, const QString &target) const
    {
        const std::unique_ptr<QMimeData> owner(data);
        const QModelIndex index = target.isNull() ? QModelIndex() : row(target);
        return editor().model().dropMimeData(data, Qt::MoveAction, -1, -1, index);
    }
    QMimeData *dragged(const QStringList &paths) const
    {
        QModelIndexList indexes;
        for (const QString &path : paths)
            indexes.append(row(path));
        return editor().model().mimeData(indexes);
    }
    static QMimeData *fromOutside(const QStringList &paths)
    {
        auto *data = new QMimeData;
        QList<QUrl> addresses;
        for (const QString &path : paths)
            addresses.append(QUrl::fromLocalFile(path));
        data->setUrls(addresses);
        return data;
    }
    QStringList everythingInTheLibrary() const
    {
        QStringList paths;
        for (QDirIterator all(m_work->filePath("Library"), QDirIterator::Subdirectories); all.hasNext();)
            paths.append(all.next());
        paths.sort();
        return paths;
    }
    void type(const QString &text) const
    {
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QCoreApplication::processEvents(); // the stem gets selected
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    void key(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
    }

private Q_SLOTS:
    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        storeSetting(settings::filenameTemplate, QVariantList{record({{"title", "Title"}, {"val", "Promo"}})});
        writeFile(m_work->filePath("Library/Film.tzt/Files/A/x.txt"), "x");
        writeFile(m_work->filePath("Library/Film.tzt/Files/B/y.txt"), "y");
        writeFile(m_work->filePath("Library/Film.tzt/Files/top.txt"), "top");
        open();
    }
    void open()
    {
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        m_delegate->toolbarTemplateAction();
        QCOMPARE(list().selectedTemplate(), QString("Film"));
    }
    void cleanup() { m_delegate.reset(); }

    /// The whole way, through the keyboard alone.
    void fromAnEmptyTemplateToAProject()
    {
        key(&window(), Qt::Key_N, Qt::ControlModifier);
        type("Feature");
        QTRY_COMPARE(list().selectedTemplate(), QString("Feature"));
        QVERIFY(editor().dataArray().empty());
        outline()->setFocus();
        key(outline(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        type("Footage");
        QTRY_VERIFY(row("Footage").isValid());
        key(outline(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier); // inside the selected one
        type("Day 1");
        QTRY_VERIFY(row("Footage/Day 1").isValid());
        QVERIFY(targetExists(files("Footage/Day 1")));
        key(outline(), Qt::Key_2, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(VTFileManager::finderColorIndexForPath(files("Footage/Day 1")), 4);
        QVERIFY(selected().isNull()); // colouring ends the selection
        // A project item from the menu: it is called "Template" and its stem is edited.
        select({"Footage"});
        key(outline(), Qt::Key_Escape);
        editor().addProject(joined(m_work->path(), "Library/Film.tzt/Files/top.txt"));
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QCoreApplication::processEvents();
        QCOMPARE(qobject_cast<QLineEdit *>(QApplication::focusWidget())->selectedText(), QString("Template"));
        key(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(targetExists(files("Footage/Template.txt")));
        select({"Footage/Template.txt"});
        key(outline(), Qt::Key_D, Qt::ControlModifier);
        QTRY_VERIFY(row("Footage/Template Duplicate.txt").isValid());
        QCOMPARE(selected(), QString("Template.txt")); // the user's place is kept
        key(outline(), Qt::Key_F2);
        type("Notes template");
        QTRY_VERIFY(targetExists(files("Footage/Notes template.txt"))); // the extension stayed
        SheetAnswerer answers({"Remove"});
        select({"Footage/Template Duplicate.txt"});
        key(outline(), Qt::Key_Delete);
        QTRY_VERIFY(!row("Footage/Template Duplicate.txt").isValid());
        QCOMPARE(
            answers.seen,
            QStringList(
                "Are you sure you wish to remove this item?|What is removed goes to the Trash. Undo brings it back."));

        list().toggleDefault();
        QCOMPARE(window().selectedTemplate(), QString("Feature"));
        key(&window(), Qt::Key_1, Qt::ControlModifier);
        m_delegate->createNewProject();
        const QString project = m_work->filePath("Projects/Promo");
        QVERIFY(targetExists(project + "/Footage/Day 1"));
        QCOMPARE(VTFileManager::finderColorIndexForPath(project + "/Footage/Day 1"), 4);
        QCOMPARE(readFile(project + "/Footage/Notes Promo.txt"), "top");
    }

    void theList()
    {
        auto *table = part<VTTableView>("templateTable");
        table->setFocus();
        key(table, Qt::Key_D, Qt::ControlModifier);
        type("Copy");
        QTRY_COMPARE(list().selectedTemplate(), QString("Copy"));
        QCOMPARE(readFile(files("A/x.txt")), "x");
        QCOMPARE(window().shownTemplates(), QStringList({"Copy", "Film"}));
        SheetAnswerer answers({"OK", "Cancel", "Remove"});
        key(table, Qt::Key_F2);
        type("Film");
        QTRY_COMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].startsWith("Template already exists|You cannot rename this template to Film "));
        table->setFocus();
        key(table, Qt::Key_Backspace);
        QTRY_COMPARE(answers.seen.size(), 2);
        QCOMPARE(list().rowCount(), 2);
        key(table, Qt::Key_Delete);
        QTRY_COMPARE(list().rowCount(), 1);
        QTRY_COMPARE(list().selectedTemplate(), QString("Film")); // the neighbour, loaded
        QVERIFY(row("A").isValid());
        QCOMPARE(window().shownTemplates(), QStringList("Film"));
    }

    void draggingInside()
    {
        // Onto a file: refused. Into the folder it is in already, onto itself: nothing happens.
        QVERIFY(!drop(dragged({"top.txt"}), "A/x.txt"));
        QVERIFY(drop(dragged({"A/x.txt", "A"}), "A") && drop(dragged({"top.txt"}), {}));
        QCoreApplication::processEvents();
        QVERIFY(row("A/x.txt").isValid() && row("top.txt").isValid());
        QVERIFY(drop(dragged({"top.txt"}), "A"));
        QTRY_VERIFY(row("A/top.txt").isValid());
        QVERIFY(!row("top.txt").isValid());
        // A file is moved onto the folder itself, where only the tool puts it inside.
        VTLog::finishWriting();
        QVERIFY(readFile(VTLog::sharedController().currentLogPath())
                    .contains("Error moving file: " + files("A").toUtf8() + ": "));
        // Into its own descendant: refused, and what stands there is not deleted for it.
        writeFile(files("A/B/A/kept"), "kept");
        editor().populateTemplateStructure();
        SheetAnswerer answers({"OK", "Ignore", "Overwrite"});
        QVERIFY(drop(dragged({"A"}), "A/B"));
        QTRY_COMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].startsWith("Unable to move file "));
        QCOMPARE(readFile(files("A/B/A/kept")), "kept");
        // A namesake is asked about: with no, both stay; with yes, the one there goes.
        QVERIFY(drop(dragged({"B"}), "A"));
        QTRY_COMPARE(answers.seen.size(), 2);
        QCOMPARE(answers.seen[1], QString("B already exists. Overwrite?|What is there goes to the Trash."));
        QTRY_VERIFY(row("B/y.txt").isValid() && row("A/B/A/kept").isValid());
        QVERIFY(drop(dragged({"B"}), "A"));
        QTRY_VERIFY(row("A/B/y.txt").isValid());
        QVERIFY(!targetExists(files("B")) && !targetExists(files("A/B/A")));
        QVERIFY(answers.buttons.isEmpty());
    }

    /// Each change, taken back and done again, as the disk has it.
    void renameSelected(const QString &replacement, int first) const
    {
        auto *sheet = window().findChild<RenameSheet *>();
        QVERIFY(sheet);
        sheet->findChild<QSpinBox *>()->setValue(first);
        QTRY_COMPARE(QApplication::activeWindow(), sheet);
        auto *with = sheet->findChildren<QLineEdit *>().at(1);
        QTest::keyClicks(with, replacement);
        QTest::keyClick(with, Qt::Key_Return);
    }
    void everyChangeIsUndone_data()
    {
        QTest::addColumn<std::function<void()>>("change");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("buttons");
        const auto row = [](const char *what, const char *name, std::function<void()> change,
                            const QStringList &buttons = {}) {
            QTest::newRow(what) << std::move(change) << name << buttons;
        };
        row("new folder", "New Folder", [this] { editor().addFolder(); });
        row("new item", "New Item", [this] { editor().addProject(m_work->filePath("in/x.txt")); });
        row("duplicate", "Duplicate", [this] { editor().duplicateFiles(); });
        row("rename", "Rename", [this] { outline()->model()->setData(this->row("A"), "C", Qt::EditRole); });
        row("rename, letter case", "Rename",
            [this] { outline()->model()->setData(this->row("A"), "a", Qt::EditRole); });
        row("label", "Label", [this] { editor().colorCodeFiles(3); });
        row("remove", "Remove", [this] { editor().removeFiles(); }, {"Remove"});
        row("remove several", "Remove",
            [this] {
                select({"A", "A/x.txt", "B/y.txt"});
                editor().removeFiles();
            },
            {"Remove"});
        row("move", "Move", [this] { drop(dragged({"B", "top.txt"}), "A"); });
        row("move over another", "Move", [this] { drop(dragged({"over/x.txt"}), "A"); }, {"Overwrite"});
        row("move a package", "Move", [this] { drop(dragged({"over/Song.logicx"}), "A"); }, {"Overwrite"});
        row("import", "Import", [this] { drop(fromOutside({m_work->filePath("in/x.txt")}), "B"); });
        row("import over another", "Import", [this] { drop(fromOutside({m_work->filePath("in/x.txt")}), "A"); },
            {"Overwrite"});
        row("structure", "Import of Folders", [this] {
            editor().createFolderStructureOnThread({{m_work->filePath("in/tree")}, files()});
        });
        row("paste copies", "Paste", [this] {
            select({"A", "top.txt"});
            key(outline(), Qt::Key_C, Qt::ControlModifier);
            select({"B"});
            key(outline(), Qt::Key_V, Qt::ControlModifier);
        });
        row("cut and paste", "Move", [this] {
            select({"A", "top.txt"});
            key(outline(), Qt::Key_X, Qt::ControlModifier);
            select({"B"});
            key(outline(), Qt::Key_V, Qt::ControlModifier);
        });
        row("paste a list", "Paste", [this] {
            QGuiApplication::clipboard()->setText("x.txt is a file here\n  010\n    Comp\nB\n\tnew");
            outline()->clearSelection();
            key(outline(), Qt::Key_V, Qt::ControlModifier);
        });
        row("rename several", "Rename", [this] {
            select({"A", "A/x.txt", "B"});
            QTimer::singleShot(0, this, [this] { renameSelected("Day #", 1); });
            key(outline(), Qt::Key_F2);
        });
        row("swap names", "Rename", [this] { // one gets the name that the other gives up
            select({"1", "2"});
            QTimer::singleShot(0, this, [this] { renameSelected("#", 2); });
            key(outline(), Qt::Key_F2);
        });
        row("new template", "New Template", [this] { list().createNewTemplate(); });
        row("duplicate template", "Duplicate", [this] { list().duplicateTemplate(); });
        row("remove template", "Remove", [this] { list().removeTemplate(); }, {"Remove"});
        row("rename template", "Rename", [this] {
            list().setDefaultTemplate("Film");
            list().setData(list().index(0), "Movie", Qt::EditRole);
        });
        row("import template", "Import of ‘Film’", [this] { m_delegate->openFile(m_work->filePath("in/Film.tzt")); });
        row("restore", "Restore of the Default Templates", [this] { m_delegate->restoreDefaultTemplates(); },
            {"Restore"});
    }
    QStringList contentsOfTheLibrary() const
    {
        QStringList items;
        for (const QString &path : everythingInTheLibrary()) {
            const QByteArray contents = QFileInfo(path).isFile() ? readFile(path) : QByteArray();
            items.append(path + ": " + QString::fromUtf8(contents.left(100)) +
                         QString::number(VTFileManager::finderColorIndexForPath(path)));
        }
        return items + QStringList{settings::defaultTemplate.text()};
    }
    void everyChangeIsUndone()
    {
        QFETCH(std::function<void()>, change);
        QFETCH(QStringList, buttons);
        writeFile(m_work->filePath("in/x.txt"), "new");
        writeFile(m_work->filePath("in/tree/a/b/x.txt"), "not copied");
        writeFile(m_work->filePath("in/Film.tzt/Files/z"), "z");
        writeFile(files("over/x.txt"), "over");
        writeFile(files("over/Song.logicx/data"), "song");
        writeFile(files("A/Song.logicx/data"), "older song");
        for (const char *name : {"1", "2"})
            writeFile(files(name), name);
        editor().populateTemplateStructure();
        select({"A/x.txt"});
        SheetAnswerer answers(buttons);
        auto &history = window().templatePane().history();
        QSignalSpy added(&history, &ChangeHistory::changed);
        QStringList before = contentsOfTheLibrary();
        change();
        QTRY_VERIFY(!added.isEmpty());
        QTest::qWait(0);
        editor().waitForImports();
        window().templatePane().finishEditing();
        QTEST(history.undoName(), "name");
        const QStringList after = contentsOfTheLibrary();
        QVERIFY(after != before || !settings::defaultTemplate.text().isEmpty());
        if (!settings::defaultTemplate.text().isEmpty())
            before.last() = "Film";
        for (int round = 0; round < 2; ++round) {
            key(&window(), Qt::Key_Z, Qt::ControlModifier);
            QTRY_COMPARE_WITH_TIMEOUT(contentsOfTheLibrary(), before, patience);
            key(&window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QTRY_COMPARE_WITH_TIMEOUT(contentsOfTheLibrary(), after, patience);
        }
        QVERIFY(answers.buttons.isEmpty());
        QVERIFY(!history.canRedo());
    }

    /// What another program did meanwhile is not written over, and what cannot be taken back does not stand in the way.
    /// What cannot be is said while it is typed, and nothing is renamed.
    void namesThatCannotBe()
    {
        select({"A", "B"});
        key(outline(), Qt::Key_F2);
        auto *sheet = window().findChild<RenameSheet *>();
        QVERIFY(sheet);
        auto *find = sheet->findChildren<QLineEdit *>().at(0);
        auto *with = sheet->findChildren<QLineEdit *>().at(1);
        const auto *ok = sheet->findChildren<QPushButton *>().at(1);
        QVERIFY(!ok->isEnabled());
        for (const auto &[name, problem] :
             {std::pair("a/b", "“a/b” cannot be a name."), {"Same", "Two of them would be called “Same”."}, {"", ""}}) {
            with->setText(name);
            QVERIFY(!ok->isEnabled());
            QCOMPARE(sheet->findChild<QLabel *>("problem")->text(), problem);
        }
        find->setText("A");
        with->setText("top.txt");
        QVERIFY(sheet->findChild<QLabel *>("problem")->text().startsWith("There is another"));
        key(with, Qt::Key_Escape);
        QVERIFY(row("A").isValid() && row("B").isValid());
    }

    /// What another program puts in the way meanwhile is not written over, by a rename or by its undo.
    void renamesNothingAway()
    {
        for (const char *name : {"take 1", "take 2", "Take 2"})
            writeFile(files(name), name);
        editor().populateTemplateStructure();
        SheetAnswerer answers({"OK", "OK"});
        select({"take 1", "take 2"});
        key(outline(), Qt::Key_F2);
        QPointer sheet = window().findChild<RenameSheet *>();
        QVERIFY(sheet);
        const auto ask = [&](const QString &replacement) {
            sheet->findChildren<QLineEdit *>().at(1)->setText(replacement);
            sheet->findChild<QSpinBox *>()->setValue(2);
        };
        ask("Take #");
        QVERIFY(sheet->findChild<QLabel *>("problem")->text().startsWith("There is another"));
        ask("take #"); // 2 and 3: they cross
        writeFile(files("take 3"), "theirs");
        sheet->accept();
        QTRY_COMPARE(answers.seen.size(), 1);
        QCOMPARE(readFile(files("take 3")), "theirs");
        QVERIFY(platform::removeTree(files("take 3")).ok());
        QTRY_VERIFY(!sheet);
        editor().editSelectedName();
        sheet = window().findChild<RenameSheet *>();
        QVERIFY(sheet);
        ask("take #");
        sheet->accept();
        QTRY_VERIFY(targetExists(files("take 3")) && !targetExists(files("take 1")));
        QVERIFY(platform::removeTree(files("take 2")).ok()); // the one that was 1
        window().templatePane().undo();
        QCOMPARE(answers.seen.size(), 2);
        QCOMPARE(readFile(files("take 3")), "take 2"); // whole or not at all: it has its later name again
        QCOMPARE(QDir(files()).entryList({"*renamed*"}, QDir::Hidden | QDir::AllEntries), QStringList());
        QCOMPARE(readFile(files("Take 2")), "Take 2");
    }

    void theFilter()
    {
        writeFile(files("A/Deep/needle.txt"), "n");
        editor().populateTemplateStructure();
        outline()->collapseAll();
        outline()->expand(row("B"));
        select({"B", "A"});
        key(outline(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "NEEDLE");
        QTRY_COMPARE(outline()->selectionModel()->selectedRows().size(), 1); // what is not in sight is not meant
        const auto isShown = [this](const QString &path) {
            return !outline()->visualRect(row(path)).isEmpty();
        };
        QVERIFY(isShown("A/Deep/needle.txt") && !isShown("B") && !isShown("A/x.txt"));
        writeFile(files("A/Deep/needle 2.txt"), "n");
        writeFile(files("other"), "n");
        editor().populateTemplateStructure(); // what comes meanwhile is filtered, too
        QVERIFY(isShown("A/Deep/needle 2.txt") && !isShown("other"));
        key(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(isShown("B/y.txt") && isShown("other") && !isShown("A/x.txt") && outline()->hasFocus());
        key(outline(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "needle");
        outline()->clearSelection();
        editor().addFolder(); // never out of sight
        QTRY_VERIFY(isShown("New Folder") && isShown("B"));
        key(QApplication::focusWidget(), Qt::Key_Escape);
    }

    /// Over rows that fill the view, the lowest strip is the top level.
    void droppedAtTheTopLevel()
    {
        for (int i = 0; i < 60; ++i)
            writeFile(files("B/%1").arg(i));
        editor().populateTemplateStructure();
        outline()->expandAll();
        outline()->scrollToBottom();
        const std::unique_ptr<QMimeData> data(dragged({"A/x.txt"}));
        const QPoint bottom(40, outline()->viewport()->height() - 4);
        QDragEnterEvent enter(bottom, Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(outline()->viewport(), &enter);
        QDragMoveEvent move(bottom, Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(outline()->viewport(), &move);
        QVERIFY(enter.isAccepted() && move.isAccepted());
        QDropEvent drop(bottom, Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(outline()->viewport(), &drop);
        QTRY_VERIFY(row("x.txt").isValid());
        QVERIFY(targetExists(files("x.txt")));
    }

    void commandsInTheMenuBar()
    {
        QStringList commands;
        const auto collect = [&] {
            commands.clear();
            for (const QAction *menu : window().menuBar()->actions()) {
                for (const QAction *action : menu->isVisible() ? menu->menu()->actions() : QList<QAction *>())
                    commands += action->isVisible() ? action->text().remove(u'&') : QString();
            }
        };
        const QStringList ofThePane{"Cut",  "Copy",   "Paste",   "Filter", "New Folder",          "New Folder Beside",
                                    "Open", "Rename", "Remove…", "Label",  "Show in File Manager"};
        collect();
        for (const QString &command : ofThePane)
            QVERIFY2(commands.contains(command), qPrintable(command));
        m_delegate->toolbarNewProjectAction();
        collect();
        for (const QString &command : ofThePane)
            QVERIFY2(!commands.contains(command), qPrintable(command));
    }

    void undoMeetsAnotherProgram()
    {
        outline()->model()->setData(row("A"), "C", Qt::EditRole);
        outline()->model()->setData(row("B"), "D", Qt::EditRole);
        QTRY_VERIFY(targetExists(files("D/y.txt")));
        writeFile(files("B/theirs"), "theirs");
        SheetAnswerer answers({"OK"});
        window().templatePane().undo();
        QCOMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].startsWith("“Rename” cannot be undone|"));
        QVERIFY(targetExists(files("D/y.txt")) && targetExists(files("B/theirs")));
        window().templatePane().undo();
        QVERIFY(targetExists(files("A/x.txt")));
    }

    /// Another program takes the item away, and the tree is read anew, while the question is up.
    void whatIsAskedAboutGoes()
    {
        select({"top.txt"});
        QTimer::singleShot(0, this, [this] {
            QTRY_VERIFY(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()));
            QVERIFY(platform::removeTree(files("top.txt")).ok());
            window().templatePane().followDisk();
            for (QAbstractButton *button : qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->buttons()) {
                if (button->text().remove('&') == "Remove")
                    return button->click();
            }
        });
        editor().removeFiles();
        QVERIFY(!row("top.txt").isValid() && row("A").isValid());
        QVERIFY(!window().templatePane().history().canUndo());
    }

    /// What lies behind a link is another folder's: it is shown, and nothing here changes it.
    void linksAreNoDoors()
    {
        writeFile(m_work->filePath("outside/deep/x.txt"), "outside");
        QCOMPARE(symlink(m_work->filePath("outside").toUtf8(), files("Link").toUtf8()), 0);
        editor().populateTemplateStructure();
        QCOMPARE(row("Link").data(Qt::ToolTipRole).toString(), "Link to " + m_work->filePath("outside"));
        QVERIFY(row("Link").data(CellRole::IsLink).toBool());
        QVERIFY(row("Link/deep/x.txt").isValid() && !row("Link/deep/x.txt").flags().testFlag(Qt::ItemIsEnabled));
        QVERIFY(!drop(dragged({"A/x.txt"}), "Link") && !drop(dragged({"A/x.txt"}), "Link/deep"));
        QVERIFY(!drop(fromOutside({files("top.txt")}), "Link"));
        select({"Link"});
        editor().colorCodeFiles(2);
        QCOMPARE(VTFileManager::finderColorIndexForPath(m_work->filePath("outside")), 0);
        select({"Link"});
        editor().addFolder(); // beside it, not in it
        window().templatePane().finishEditing();
        QVERIFY(targetExists(files("New Folder")));
        QVERIFY(drop(dragged({"Link"}), "B"));
        QTRY_VERIFY(row("B/Link").isValid());
        SheetAnswerer answers({"Remove"});
        select({"B/Link"});
        editor().removeFiles();
        QVERIFY(platform::isMissing(files("B/Link")));
        window().templatePane().undo();
        QCOMPARE(platform::linkTarget(files("B/Link")), m_work->filePath("outside"));
        QCOMPARE(readFile(m_work->filePath("outside/deep/x.txt")), "outside");
        QCOMPARE(QDir(m_work->filePath("outside")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    }

    /// A name that is being typed is taken in, whatever comes in between.
    void whatIsTypedIsTakenIn_data()
    {
        QTest::addColumn<bool>("inTree");
        QTest::addColumn<std::function<void()>>("interruption");
        for (const bool inTree : {true, false}) {
            const auto row = [inTree](const char *name, std::function<void()> interruption) {
                QTest::addRow("%s, %s", inTree ? "tree" : "list", name) << inTree << std::move(interruption);
            };
            row("another template", [this] {
                auto *table = part<VTTableView>("templateTable");
                QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                                  table->visualRect(table->model()->index(list().rowCount() - 1, 0)).center());
            });
            row("Ctrl+1", [this] { key(&window(), Qt::Key_1, Qt::ControlModifier); });
            row("Ctrl+2", [this] { key(&window(), Qt::Key_2, Qt::ControlModifier); });
            row("Ctrl+N", [this] { key(&window(), Qt::Key_N, Qt::ControlModifier); });
            row("Undo", [this] { window().templatePane().undo(); });
            row("the add menu", [this] {
                part<QToolButton>("addButton")->click();
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            });
            row("quitting", [this] { m_delegate->quit(); });
        }
    }
    void whatIsTypedIsTakenIn()
    {
        QFETCH(bool, inTree);
        QFETCH(std::function<void()>, interruption);
        writeFile(m_work->filePath("Library/Other.tzt/Files/x"), "x");
        list().readAnew();
        if (inTree) {
            select({"A"});
            editor().editSelectedName();
        } else {
            list().editSelectedName();
        }
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClicks(QApplication::focusWidget(), "Typed");
        const bool isUndone = QByteArray(QTest::currentDataTag()).endsWith("Undo");
        interruption();
        const QString renamed = m_work->filePath(inTree ? "Library/Film.tzt/Files/Typed" : "Library/Typed.tzt");
        if (isUndone)
            QVERIFY(!targetExists(renamed) && window().templatePane().history().redoName() == "Rename");
        else
            QTRY_VERIFY(targetExists(renamed));
    }

    /// An import ends while a name is typed: the editor stays, and the tree follows afterwards.
    void anImportEndsWhileOneTypes_data()
    {
        QTest::addColumn<bool>("inTree");
        QTest::newRow("a name in the tree") << true;
        QTest::newRow("a name in the list") << false;
    }
    void anImportEndsWhileOneTypes()
    {
        QFETCH(bool, inTree);
        writeFile(m_work->filePath("in/new.txt"), "new");
        writeFile(m_work->filePath("in/Early.tzt/Files/x"), "x");
        if (inTree) {
            select({"B"});
            editor().editSelectedName();
        } else {
            list().editSelectedName();
        }
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QCoreApplication::processEvents(); // the stem gets selected
        const QPointer<QWidget> field = QApplication::focusWidget();
        QTest::keyClicks(field, "Ty");
        editor().copyFilesOnThread({{m_work->filePath("in/new.txt")}, files()});
        QVERIFY(m_delegate->openFile(m_work->filePath("in/Early.tzt")));
        QTRY_VERIFY(targetExists(m_work->filePath("Library/Early.tzt")) && targetExists(files("new.txt")));
        editor().waitForImports();
        QTest::qWait(50);
        QVERIFY(field && QApplication::focusWidget() == field);
        QTest::keyClicks(field, "ped");
        QTest::keyClick(field, Qt::Key_Return);
        const QString renamed = m_work->filePath(inTree ? "Library/Film.tzt/Files/Typed" : "Library/Typed.tzt");
        QTRY_VERIFY(targetExists(renamed));
        QTRY_VERIFY(row("new.txt").isValid());
        QTRY_COMPARE(list().rowCount(), 2);
    }

    void severalAtOnce()
    {
        writeFile(files("B/x.txt"), "other x");
        editor().populateTemplateStructure();
        const std::unique_ptr<QMimeData> both(dragged({"A/x.txt", "B/x.txt", "A"}));
        QVERIFY(unlink(files("top.txt").toUtf8()) == 0);
        // "A" carries its x along; the file that vanished is said; the two of one name are asked about.
        SheetAnswerer answers({"OK"});
        QVERIFY(drop(dragged({"top.txt"}), "B"));
        QTRY_COMPARE(answers.seen.size(), 1);
        QTRY_VERIFY(!row("top.txt").isValid());
        writeFile(files("C/.keep"), {});
        editor().populateTemplateStructure();
        auto *data = new QMimeData;
        data->setData(TemplateTreeModel::VTPboardType, both->data(TemplateTreeModel::VTPboardType));
        QVERIFY(drop(data, "C"));
        QTRY_VERIFY(row("C/A/x.txt").isValid());
        QCOMPARE(readFile(files("C/x.txt")), "other x");
        QCOMPARE(readFile(files("C/A/x.txt")), "x");
    }

    /// Where an administrator has to agree and nobody can be asked, nothing changes, whatever is tried.
    void editingIsGuarded_data()
    {
        QTest::addColumn<std::function<void()>>("edit");
        const auto row = [](const char *name, std::function<void()> edit) {
            QTest::newRow(name) << std::move(edit);
        };
        row("new folder", [this] { editor().addFolder(); });
        row("project item", [this] { editor().addProject(m_work->filePath("in/x.txt")); });
        row("import files", [this] { editor().showImportFileDialog(); });
        row("import folders", [this] { editor().showImportFolderStructureDialog(); });
        row("remove items", [this] { editor().removeFiles(); });
        row("duplicate items", [this] { editor().duplicateFiles(); });
        row("drag inside", [this] { drop(dragged({"top.txt"}), "A"); });
        row("drop from outside", [this] { drop(fromOutside({m_work->filePath("in/x.txt")}), "B"); });
        row("new template", [this] { list().createNewTemplate(); });
        row("duplicate template", [this] { list().duplicateTemplate(); });
        row("remove template", [this] { list().removeTemplate(); });
        row("default template", [this] { list().toggleDefault(); });
        row("undo", [this] {
            window().templatePane().history().add({"Test", {{DiskStep::Kind::Made, files("top.txt")}}});
            window().templatePane().undo();
        });
    }
    void editingIsGuarded()
    {
        if (platform::isSuperUser())
            QSKIP("Nobody has to agree to what the super-user does.");
        QFETCH(std::function<void()>, edit);
        writeFile(m_work->filePath("in/x.txt"), "new");
        storeSetting(settings::requireAdminPasswordForEditing, 1LL);
        auto &authorization = VTAuthorization::sharedController();
        authorization.setHasGUI(VTAuthorization::UserInterface::No);
        const auto restore = qScopeGuard([&] { authorization.setHasGUI(VTAuthorization::UserInterface::Yes); });
        select({"A/x.txt"});
        const QStringList before = everythingInTheLibrary();
        SheetAnswerer answers({"OK"});
        edit();
        QTRY_COMPARE(answers.seen.size(), 1); // a drop is taken in when the drag is over
        QVERIFY(answers.seen[0].startsWith("This needs an administrator’s password|"));
        editor().waitForImports();
        QCOMPARE(everythingInTheLibrary(), before);
        QVERIFY(!window().findChild<ImportPanel *>());
        QVERIFY(settings::defaultTemplate.text().isEmpty());
    }

    void droppingFromOutside()
    {
        for (int i = 0; i < 300; ++i)
            writeFile(m_work->filePath("in/Many/%1").arg(i), "n");
        writeFile(m_work->filePath("in/x.txt"), "new x");
        // Onto a file it lands beside it; a name that is taken is asked about on the job's thread.
        SheetAnswerer answers({"Overwrite"});
        QVERIFY(drop(fromOutside({m_work->filePath("in/x.txt"), m_work->filePath("in/Many")}), "A/x.txt"));
        QTRY_VERIFY(row("A/Many/299").isValid());
        QCOMPARE(readFile(files("A/x.txt")), "new x");
        QVERIFY(targetExists(m_work->filePath("in/x.txt"))); // copied, not moved
        // Two imports at once into one folder, onto the root; the spinner turns until both are through.
        const HeldFile held(m_work->filePath("held"));
        editor().copyFilesOnThread({{m_work->filePath("in/Many"), m_work->filePath("held")}, files("B")});
        editor().createFolderStructureOnThread({{m_work->filePath("in")}, files("B")});
        QTRY_VERIFY(row("B/in/Many").isValid());
        QVERIFY(part<Spinner>("importSpinner")->isSpinning());
        held.letGo();
        editor().waitForImports();
        QVERIFY(!part<Spinner>("importSpinner")->isSpinning());
        QVERIFY(row("B/Many/0").isValid() && row("B/in/Many").isValid() && !row("B/in/Many/0").isValid());
    }

    void namesAsTheyAreTyped()
    {
        SheetAnswerer answers({"OK", "OK"});
        const auto rename = [&](const QString &path, const QString &typed) {
            outline()->model()->setData(row(path), typed, Qt::EditRole);
            QCoreApplication::processEvents();
        };
        rename("A", " :/ ");
        QTRY_COMPARE(answers.seen,
                     QStringList("Invalid filename|You must enter a filename without invalid characters."));
        rename("A", "B");
        QTRY_COMPARE(answers.seen.size(), 2);
        QVERIFY(answers.seen[1].startsWith("Item already exists|"));
        rename("A", "a");
        QTRY_VERIFY(row("a/x.txt").isValid()); // letter case alone, and all below follows
        QVERIFY(targetExists(files("a/x.txt")) && !targetExists(files("A")));
        const QString strange = QString::fromUtf8("\u202Eright to left \u05D0\nline");
        rename("a", strange);
        QTRY_VERIFY(row(strange + "/x.txt").isValid());
        // Edited by another program between the click and the action.
        QVERIFY(platform::removeTree(files("B")).ok());
        SheetAnswerer gone({"OK"});
        rename("B", "C");
        QTRY_COMPARE(gone.seen.size(), 1);
    }

    void comesFromElsewhere()
    {
        writeFile(m_work->filePath("in/Doc.TZT/Files/d"), "d");
        QVERIFY(!m_delegate->openFile(m_work->filePath("in")));
        m_delegate->toolbarNewProjectAction();
        QVERIFY(rename(m_work->filePath("in/Doc.TZT").toUtf8(), m_work->filePath("in/Doc.tzt").toUtf8()) == 0);
        QVERIFY(m_delegate->openFile(m_work->filePath("in/Doc.tzt/")));
        QTRY_COMPARE(list().selectedTemplate(), QString("Doc"));
        QCOMPARE(window().shownPane(), MainWindow::Pane::Templates);
        QTRY_VERIFY(row("d").isValid());
        // The drive with the library is gone: the pane says what the disk says.
        QVERIFY(::rename(m_work->filePath("Library").toUtf8(), m_work->filePath("Unplugged").toUtf8()) == 0);
        editor().populateTemplateStructure();
        QVERIFY(editor().dataArray().empty());
        SheetAnswerer answers({"Restore"});
        m_delegate->restoreDefaultTemplates();
        QVERIFY(list().rowCount() > 3);
    }

    void bundlesAreDroppedOnTheWindow()
    {
        writeFile(m_work->filePath("in/Doc.tzt/Files/d"), "d");
        m_delegate->toolbarNewProjectAction();
        for (const char *path : {"in", "in/Doc.tzt/"}) {
            const std::unique_ptr<QMimeData> data(fromOutside({m_work->filePath(path)}));
            QDragEnterEvent entered({20, 20}, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
            entered.ignore();
            QApplication::sendEvent(&window(), &entered);
            const bool isBundle = QLatin1String(path) != "in";
            QCOMPARE(entered.isAccepted(), isBundle);
            if (!isBundle)
                continue;
            QDropEvent dropped({20, 20}, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
            QApplication::sendEvent(&window(), &dropped);
        }
        QTRY_COMPARE(list().selectedTemplate(), QString("Doc"));
        QVERIFY(targetExists(m_work->filePath("in/Doc.tzt/Files/d"))); // a copy
    }

    /// Closed while something is taken in, the window stays until that has ended, and somebody who comes for it keeps
    /// it.
    void closedDuringAnImport_data()
    {
        QTest::addColumn<bool>("isWanted");
        QTest::newRow("closes by itself") << false;
        QTest::newRow("a second start") << true;
    }
    void closedDuringAnImport()
    {
        QFETCH(bool, isWanted);
        writeFile(m_work->filePath("in/top.txt"), "new");
        editor().copyFilesOnThread({{m_work->filePath("in/top.txt")}, files()}); // asks, and waits as long as it takes
        QTRY_VERIFY(qobject_cast<QMessageBox *>(QApplication::activeWindow()));
        const QString file = files("top.txt");
        QVERIFY(!window().close() && window().isVisible());
        QVERIFY(window().windowTitle().contains("closes when"));
        if (isWanted)
            m_delegate->bringToFront();
        SheetAnswerer answers({"Overwrite"});
        QTRY_COMPARE(readFile(file), "new");
        QTRY_VERIFY(!editor().isImporting());
        QTRY_COMPARE(window().isVisible(), isWanted);
        QCOMPARE(window().windowTitle() == "Tessaro", isWanted);
    }

    /// A second start hands its file to the first and ends; the first takes it in.
    void intoTheRunningProgram()
    {
        m_delegate.reset();
        const QString program = QCoreApplication::applicationDirPath() + "/Tessaro";
        QProcess first;
        first.start(program, QStringList{});
        QVERIFY(first.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(platform::SingleInstance::handOver({}), 20'000);
        writeFile(m_work->filePath("in/N\u00FCll #1.tzt/Files/d"), "d");
        QProcess second;
        second.setWorkingDirectory(m_work->filePath("in"));
        second.start(program, {"N\u00FCll #1.tzt"});
        QVERIFY(second.waitForFinished(20'000));
        QCOMPARE(second.exitCode(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(readFile(m_work->filePath("Library/N\u00FCll #1.tzt/Files/d")), "d", 20'000);
        // A command of the shortcut keys, by its identifier, as the desktop calls it.
        auto command = QDBusMessage::createMethodCall("com.vantrel.Tessaro", "/com/vantrel/Tessaro",
                                                      "org.freedesktop.Application", "ActivateAction");
        command << "new-template" << QVariantList() << QVariantMap();
        QCOMPARE(QDBusConnection::sessionBus().call(command).type(), QDBusMessage::ReplyMessage);
        QTRY_VERIFY_WITH_TIMEOUT(targetExists(m_work->filePath("Library/Untitled.tzt/Files")), 20'000);
        QCOMPARE(first.state(), QProcess::Running);
        first.terminate();
        QVERIFY(first.waitForFinished(20'000));
    }

    /// The first version's template, moved in once.
    void theFirstVersionsTemplate()
    {
        m_delegate.reset();
        const QString old = qEnvironmentVariable("HOME") + "/Library/Application Support/Tessaro/Template";
        writeFile(old + "/Sub/x", "x");
        writeFile(old + "/y", "y");
        writeFile(old + "/.hidden", {});
        open();
        const QString moved = VTDataController::filesFolder("Tessaro 1.0 Template");
        QVERIFY(targetExists(moved + "/Sub/x") && targetExists(moved + "/y") && !targetExists(moved + "/.hidden"));
        QVERIFY(targetExists(old + "/.hidden")); // not empty: left where it is
        writeFile(old + "/z", "z");
        m_delegate.reset();
        open();
        QVERIFY(targetExists(old + "/z") && !targetExists(moved + "/z"));
        QVERIFY(platform::removeTree(platform::parentPath(old)).ok());
    }
};

TESSARO_TEST_MAIN(QApplication, TestTemplatePane)
#include "test_template_pane.moc"

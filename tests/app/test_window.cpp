// The window, driven by keys and clicks, from its first start to a finished project.
#include "app/MainWindow.h"
#include "app/PlaceButton.h"
#include "app/TessaroAppDelegate.h"
#include "creation/Unfinished.h"
#include "diagnostics/VTBugReporter.h"
#include "harness/Records.h"
#include "harness/SheetAnswerer.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "preferences/VTPreferenceController.h"
#include "support/RecentPlaces.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "ui/EmptyState.h"
#include "ui/SheetPresenter.h"
#include "ui/Spinner.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTabbedEditTableView.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<useconds_t> slowness = 0; ///< of each file's copy, in microseconds

} // namespace

/// In the C library's place: a disk that takes its time.
extern "C" ssize_t copy_file_range(int source, off64_t *sourceOffset, int destination, off64_t *destinationOffset,
                                   size_t length, unsigned flags)
{
    usleep(slowness);
    return syscall(SYS_copy_file_range, source, sourceOffset, destination, destinationOffset, length, flags);
}

class TestWindow : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    SheetPresenter m_sheets;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    template <typename Widget> Widget *part(const char *name) const
    {
        return window().findChild<Widget *>(QLatin1String(name));
    }
    QString fixed(const QString &path = {}) const { return platform::joined(m_work->filePath("Fixed"), path); }
    QString value(int row) const { return m_delegate->tableController().dataArray()[row].value(); }

    void open(bool firstRun = false)
    {
        storeSetting(settings::firstRun, firstRun);
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        m_delegate->applicationDidFinishLaunching();
    }
    void typeInto(const char *text)
    {
        QTRY_VERIFY(QApplication::focusWidget()); // the window manager takes its time to give it back
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents(); // Return ends the edit by way of the event loop
    }

private Q_SLOTS:
    /// What the list of keys offers, the program can do, and the other way round.
    void keysAndCommandsAgree()
    {
        const QString list = platform::ApplicationBundle::main().path() + "/Contents/VTKeys.plist";
        QStringList offered;
        for (const QVariant &command : platform::readPropertyListFile(list)->toMap()["VTKeys"].toList())
            offered << command.toMap()["id"].toString();
        QStringList known = TessaroAppDelegate::commandsOfShortcuts().keys();
        std::sort(offered.begin(), offered.end());
        std::sort(known.begin(), known.end());
        QCOMPARE(offered, known);
    }

    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        writeFile(m_work->filePath("Library/One.tzt/Files/Template.txt"), "one");
        writeFile(m_work->filePath("Library/Two.tzt/Files/Sub/two template.txt"), "two");
        storeSetting(settings::fixedProjectLocationPath, fixed());
        storeSetting(settings::filenameTemplate,
                     QVariantList{record({{"title", "Client"}, {"saveHistory", true}}),
                                  record({{"title", "Job"}, {"type", 2}, {"val", "007"}}),
                                  record({{"title", "Title"}, {"folder", true}, {"disallowEmpty", true}})});
    }
    void cleanup() { m_delegate.reset(); }

    /// Three words, Return twice, and there is the project.
    void fromTheKeyboardToAProject()
    {
        open();
        typeInto("Acme");
        press(Qt::Key_Tab);
        press(Qt::Key_Return); // the job number stays
        typeInto("Promo");
        QSignalSpy processing(&m_delegate->tableController(), &VTProjectTableController::processingChanged);
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        QTRY_COMPARE(processing.size(), 2);
        QCOMPARE(readFile(fixed("Acme_007/Promo/Promo.txt")), QByteArray("one"));
        QCOMPARE(value(1), QString("008"));
        QCOMPARE(m_delegate->shownRequest().relativePath(), QString("Acme_008/Promo"));
        QCOMPARE(part<QLabel>("createdLabel")->text(), QString("Created ‘Promo’ in Fixed."));
        QVERIFY(!part<Spinner>("spinner")->isSpinning() && part<QPushButton>("createButton")->isEnabled());
    }

    /// Neither a key that is held down nor a second press right behind the first makes another project.
    void oneProjectForOneReturn()
    {
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        auto *create = part<QPushButton>("createButton");
        create->setFocus();
        QTest::keyClick(create, Qt::Key_Return);
        QTRY_VERIFY(platform::targetExists(fixed("007/P/P.txt")));
        for (int i = 0; i < 5; ++i) {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QApplication::sendEvent(create, &held);
            QTest::keyClick(create, Qt::Key_Return);
            QTest::keyClick(&window(), Qt::Key_Return, Qt::ControlModifier);
        }
        QCOMPARE(platform::listFolder(fixed())->size(), 1);
        // A change is meant.
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "Q", Qt::EditRole);
        QTest::keyClick(&window(), Qt::Key_Return, Qt::ControlModifier);
        QTRY_VERIFY(platform::targetExists(fixed("008/Q/Q.txt")));
        // From the other pane it is seen what is made; Return on another button presses that one.
        m_delegate->toolbarTemplateAction();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "R", Qt::EditRole);
        QTest::keyClick(&window(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(window().shownPane(), MainWindow::Pane::Project);
        QTRY_VERIFY(platform::targetExists(fixed("009/R/R.txt")));
        part<QPushButton>("undoButton")->setFocus();
        QTest::keyClick(part<QPushButton>("undoButton"), Qt::Key_Return);
        QTRY_VERIFY(!platform::targetExists(fixed("009")));
    }

    /// Ctrl+Z while a row is in edit and nothing was typed there is the window's.
    void undoFromTheKeyboard_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Ctrl+Z") << true;
        QTest::newRow("the button") << false;
    }
    void undoFromTheKeyboard()
    {
        QFETCH(bool, byKey);
        open();
        auto &table = m_delegate->tableController();
        table.setData(table.index(2, 1), "P", Qt::EditRole);
        m_delegate->createNewProject();
        QCOMPARE(value(1), QString("008"));
        auto *action = window().findChild<QAction *>("Undo");
        QVERIFY(action->isEnabled() && action->text().contains("P"));
        table.editItem(0);
        if (byKey) {
            typeInto("x");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier); // what was typed
            QVERIFY(platform::targetExists(fixed("007/P")));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        } else {
            part<QPushButton>("undoButton")->click();
        }
        QTRY_VERIFY(!platform::targetExists(fixed("007")));
        QTRY_COMPARE(value(1), QString("007"));
        QCOMPARE(part<QLabel>("createdLabel")->text(), QString("‘P’ is in the Trash."));
        QVERIFY(!action->isEnabled() && !part<QPushButton>("undoButton")->isVisible());
    }

    void recentProjects()
    {
        open();
        auto &table = m_delegate->tableController();
        table.setData(table.index(2, 1), "A & B", Qt::EditRole);
        m_delegate->createNewProject();
        writeFile(fixed("007/A & B/mine"), "work");
        QMenu menu;
        m_delegate->fillRecentProjects(&menu);
        QMenu *latest = menu.actions().constFirst()->menu();
        QCOMPARE(latest->title(), QString("007 ▸ A && B"));
        SheetAnswerer answers({"OK"});
        latest->actions().constLast()->trigger();
        QCOMPARE(answers.seen, QStringList{"Part of ‘A & B’ stays|• mine: the creation has not made it"});
        QCOMPARE(platform::listFolder(fixed("007/A & B"))->size(), 1);
    }

    /// The way out of long work is open while everything else is closed.
    void aLongCreationIsStopped_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Escape") << true;
        QTest::newRow("Cancel") << false;
    }
    void aLongCreationIsStopped()
    {
        QFETCH(bool, byKey);
        for (int i = 0; i < 300; ++i)
            writeFile(m_work->filePath(QString("Library/One.tzt/Files/Folder/%1").arg(i)), "x");
        open();
        auto &table = m_delegate->tableController();
        table.setData(table.index(2, 1), "P", Qt::EditRole);
        slowness = 100'000;
        bool wasShown = false;
        bool createIsClosed = false;
        QTimer::singleShot(1000, &window(), [&] {
            auto *line = part<QWidget>("progressLine");
            auto *cancel = line->findChild<QPushButton *>();
            const auto labels = line->findChildren<QLabel *>();
            wasShown =
                line->isVisible() && labels[0]->text() == "Creating P" && labels[1]->text().contains(" of 302 items");
            const auto inWindow = [&](QWidget *widget) {
                return widget->mapTo(&window(), widget->rect().center());
            };
            QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, inWindow(part<QPushButton>("createButton")));
            QTest::keyClick(window().windowHandle(), Qt::Key_2, Qt::ControlModifier);
            createIsClosed = window().shownPane() == MainWindow::Pane::Project;
            if (byKey)
                QTest::keyClick(window().windowHandle(), Qt::Key_Escape);
            else
                QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, inWindow(cancel));
        });
        m_delegate->createNewProject();
        slowness = 0;
        QVERIFY(wasShown && createIsClosed);
        QVERIFY(!platform::targetExists(fixed("007")));
        QCOMPARE(value(1), QString("007"));
        QVERIFY(!part<QWidget>("progressLine")->isVisible());
        QCOMPARE(part<QLabel>("createdLabel")->text(), QString("Stopped; nothing of the project was kept."));
    }

    void whatIsBeingTypedCounts()
    {
        open();
        SheetAnswerer answers({"OK"});
        m_delegate->createNewProject();
        QCOMPARE(answers.seen, QStringList{"'Title' cannot be left blank|Please fill in this parameter before "
                                           "creating a project."});
        QCOMPARE(part<VTTabbedEditTableView>("tableView")->currentIndex().row(), 2);
        QVERIFY(!platform::targetExists(fixed()));
        m_delegate->tableController().editItem(2);
        typeInto("Still typing");
        part<QPushButton>("createButton")->click();
        QTRY_VERIFY(platform::targetExists(fixed("007/Still typing/Still typing.txt")));
    }

    void anExistingProjectIsAskedForTwice()
    {
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        writeFile(fixed("007/P/work"), "days");
        for (const bool overwritten : {false, true}) {
            SheetAnswerer answerer({"Overwrite", overwritten ? "Overwrite" : "Cancel"});
            m_delegate->createNewProject();
            QVERIFY(answerer.buttons.isEmpty());
            QCOMPARE(answerer.seen[0], QString("Project already exists|Are you sure you wish to overwrite 007/P?"));
            QCOMPARE(platform::targetExists(fixed("007/P/work")), !overwritten);
            QCOMPARE(platform::targetExists(fixed("007/P/P.txt")), overwritten);
            QCOMPARE(value(1), QString(overwritten ? "008" : "007"));
        }
    }

    void theDestinationPanel_data()
    {
        QTest::addColumn<qlonglong>("isFixed");
        QTest::addColumn<QString>("before");
        QTest::newRow("which is kept where projects go to one place") << 1LL << "";
        QTest::newRow("for this once where they do not") << 0LL << "/somewhere else";
    }
    void theDestinationPanel()
    {
        QFETCH(qlonglong, isFixed);
        QFETCH(QString, before);
        storeSetting(settings::useFixedProjectLocation, isFixed);
        storeSetting(settings::fixedProjectLocationPath, before);
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        const QString folder = m_work->filePath("Chosen");
        QVERIFY(platform::makeFolders(folder + "/007").ok()); // the outermost level exists already: no walking into it
        m_delegate->createNewProject();
        auto *panel = window().findChild<VTSavePanel *>();
        QVERIFY(panel);
        m_delegate->createNewProject(); // a second press while the panel is up opens no second one
        QCOMPARE(window().findChildren<VTSavePanel *>().size(), 1);
        panel->setDirectory(folder);
        QTRY_COMPARE(panel->findChild<QLabel *>("wholePath")->text(), "Makes: " + folder + "/007/P");
        QTest::keyClick(panel->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
        QTRY_VERIFY(platform::targetExists(folder + "/007/P/P.txt"));
        QCOMPARE(settings::standard().string(settings::fixedProjectLocationPath), isFixed == 1 ? folder : before);
        QTRY_VERIFY(!window().findChild<VTSavePanel *>());
        if (isFixed == 1)
            return;
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "Next", Qt::EditRole);
        m_delegate->createNewProject(); // begins where the last one went
        QVERIFY(QTest::qWaitFor([&] { return window().findChild<VTSavePanel *>() != nullptr; }));
        QCOMPARE(window().findChild<VTSavePanel *>()->directory().absolutePath(), folder);
        window().findChild<VTSavePanel *>()->reject();
        QTRY_VERIFY(!window().findChild<VTSavePanel *>());
    }

    /// Sheets come up while the panel ends: the question about the project that is there, and a failure.
    void sheetsAfterTheDestinationPanel_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isMade");
        QTest::newRow("overwrite") << "P"
                                   << "Overwrite" << true;
        QTest::newRow("cancel") << "P"
                                << "Cancel" << false;
    }
    void sheetsAfterTheDestinationPanel()
    {
        QFETCH(QString, title);
        QFETCH(QString, button);
        storeSetting(settings::useFixedProjectLocation, 0LL);
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), title, Qt::EditRole);
        const QString folder = m_work->filePath("Chosen");
        writeFile(folder + "/007/P/mine", "work");
        m_delegate->createNewProject();
        auto *panel = window().findChild<VTSavePanel *>();
        panel->setDirectory(folder);
        QTRY_VERIFY(panel->findChild<QLabel *>("existsWarning")->isVisible());
        SheetAnswerer answers({button, "OK", "OK"});
        QSignalSpy gone(panel, &QObject::destroyed);
        panel->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Open)->click();
        QTRY_COMPARE(gone.size(), 1);
        QVERIFY(!answers.seen.isEmpty());
        QTEST(platform::targetExists(folder + "/007/P/P.txt"), "isMade");
        QCOMPARE(platform::targetExists(folder + "/007/P/mine"), button != "Overwrite");
    }

    void aClearedHistoryComesBack()
    {
        open();
        auto &table = m_delegate->tableController();
        table.setData(table.index(0, 1), "Acme", Qt::EditRole);
        table.setData(table.index(0, 1), "Bolt", Qt::EditRole);
        SheetAnswerer answers({"OK"});
        m_delegate->clearHistory();
        QVERIFY(table.dataArray()[0].history().isEmpty());
        QVERIFY(window().findChild<QAction *>("Undo")->text().contains("Clear History"));
        m_delegate->undo();
        QCOMPARE(table.dataArray()[0].history(), QStringList({"Bolt", "Acme"}));
        QCOMPARE(value(0), QString("Bolt"));
        QVERIFY(!window().findChild<QAction *>("Undo")->isEnabled());
    }

    /// Looking into another window in mid-word ends nothing, and half a word gets into no history.
    void anEditGoesOn()
    {
        open();
        m_delegate->tableController().editItem(0);
        typeInto("Ac");
        const QPointer<QWidget> field = QApplication::focusWidget();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(m_delegate->tableController().dataArray()[0].history().isEmpty());
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        QTRY_VERIFY(field && field->hasFocus());
        QTest::keyClicks(field, "me");
        press(Qt::Key_Return);
        QTRY_COMPARE(value(0), QString("Acme"));
        QCOMPARE(m_delegate->tableController().dataArray()[0].history(), QStringList("Acme"));
    }

    /// Before anything is asked, taken or made.
    void aNameThatIsTooLong()
    {
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), QString(300, 'n'),
                                              Qt::EditRole);
        SheetAnswerer answers({"OK"});
        m_delegate->createNewProject();
        QVERIFY(answers.seen.value(0).startsWith("Unable to create folder|The name of a folder can have 255 bytes, "));
        QCOMPARE(value(1), QString("007"));
        QVERIFY(!platform::targetExists(fixed()));
    }

    void thePopUp()
    {
        storeSetting(settings::selectedProjectTemplate, "Two");
        storeSetting(settings::defaultTemplate, "One");
        open();
        QCOMPARE(window().shownTemplates(), QStringList({"One", "Two"}));
        QCOMPARE(window().selectedTemplate(), QString("One"));
        QTest::keyClick(part<QComboBox>("projectTemplatePopUp"), Qt::Key_Down);
        QCOMPARE(settings::standard().string(settings::selectedProjectTemplate), QString("Two"));
    }

    /// Another program on the same settings: the window shows it, and makes what it shows.
    /// The line under the table begins with the place: a click chooses another, pins it, and it holds.
    void thePlaceIsChosen()
    {
        writeFile(m_work->filePath("Drive/there"));
        const QString drive = m_work->filePath("Drive");
        rememberPlace(drive);
        open();
        auto *place = part<PlaceButton>("placeButton");
        QCOMPARE(place->text(), "Fixed");
        const auto choose = [&](int entry) {
            QTimer::singleShot(0, place, [place, entry] {
                place->menu()->actions().at(entry)->trigger();
                place->menu()->close();
            });
            place->setFocus();
            QTest::keyClick(place, Qt::Key_Space);
        };
        choose(0); // the latest one
        QCOMPARE(place->text(), "Drive");
        QCOMPARE(m_delegate->shownRequest().location, QString());
        QCOMPARE(settings::fixedProjectLocationPath.text(), drive);
        choose(3); // below the panel's line
        QCOMPARE(pinnedPlaces(), QStringList(drive));
        QTimer::singleShot(0, this, [&] {
            auto *panel = window().findChild<VTSavePanel *>();
            QVERIFY(panel);
            panel->findChild<QLineEdit *>("fileNameEdit")->setText(m_work->path());
            panel->findChild<QDialogButtonBox *>()->buttons().constFirst()->click();
        });
        m_delegate->choosePlace();
        QTRY_COMPARE(settings::fixedProjectLocationPath.text(), m_work->path());
        QTRY_COMPARE(place->toolTip(), "The project goes to " + m_work->path());
    }

    void aLongListIsSearched()
    {
        for (int i = 0; i < 60; ++i)
            writeFile(m_work->filePath("Library/Film %1.tzt/Files/a").arg(i));
        open();
        auto *popUp = part<QComboBox>("projectTemplatePopUp");
        const QString before = popUp->currentText();
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
            popUp->showPopup();
            QPointer<QWidget> list = QApplication::activePopupWidget();
            QVERIFY(list);
            auto *line = list->findChild<QLineEdit *>();
            QTRY_VERIFY(line->hasFocus());
            QTest::keyClicks(line, "ilm 4");
            QCOMPARE(list->findChild<QListView *>()->model()->rowCount(), 11);
            QTest::keyClick(line, Qt::Key_Down);
            QTest::keyClick(line, key);
            QTRY_VERIFY(!list);
            QCOMPARE(popUp->currentText(), key == Qt::Key_Escape ? before : "Film 40");
        }
        QCOMPARE(settings::selectedProjectTemplate.text(), "Film 40");
    }

    void windowsComeBackWhereTheyWere()
    {
        open();
        window().setGeometry(120, 90, 700, 560);
        QTRY_COMPARE(window().geometry(), QRect(120, 90, 700, 560));
        m_delegate->showPreferences();
        auto *preferences = window().findChild<VTPreferenceController *>();
        QVERIFY(QTest::qWaitForWindowActive(preferences));
        preferences->setGeometry(60, 70, 900, 600);
        QTRY_COMPARE(preferences->geometry(), QRect(60, 70, 900, 600));
        preferences->close();
        m_delegate.reset();
        open();
        QTRY_COMPARE(window().geometry(), QRect(120, 90, 700, 560));
        m_delegate->showPreferences();
        QTRY_COMPARE(window().findChild<VTPreferenceController *>()->geometry(), QRect(60, 70, 900, 600));
    }

    void followsOtherPrograms()
    {
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        platform::UserDefaults other(settings::userFile(), m_work->filePath("machine.plist"), [](const QString &) {});
        QVariantList list = other.value(settings::filenameTemplate).toList();
        QVariantMap job = list[1].toMap();
        job["val"] = "009";
        list[1] = job;
        list.append(record({{"title", "Reel"}, {"val", "R1"}}));
        QVERIFY(other.setValue(settings::filenameTemplate, list).ok());
        QVERIFY(other.setValue(settings::separatorChar, "-").ok());
        QVERIFY(other.setValue(settings::selectedProjectTemplate, "Two").ok());
        QTRY_COMPARE(m_delegate->shownRequest().relativePath(), QString("009/P-R1"));
        QTRY_COMPARE(window().selectedTemplate(), QString("Two"));
        m_delegate->createNewProject();
        QVERIFY(platform::targetExists(fixed("009/P-R1/Sub/two P-R1.txt")));
        QCOMPARE(value(1), QString("010"));
        QCOMPARE(other.value(settings::filenameTemplate).toList()[1].toMap()["val"].toString(), "010");
    }

    /// Seen while one types, before it is made; remembered; and its keys belong to another command in the other pane.
    void theResultIsSeen()
    {
        open();
        auto *result = part<QTreeView>("resultTree");
        QVERIFY(!result->isVisible());
        QTest::keyClick(&window(), Qt::Key_R, Qt::ControlModifier);
        QVERIFY(result->isVisible());
        typeInto("Acme");
        const auto row = [&](std::initializer_list<int> rows) {
            QModelIndex index;
            for (const int one : rows)
                index = result->model()->index(one, 0, index);
            return index.data().toString();
        };
        QTRY_COMPARE(row({0}), QString("Acme_007"));
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        typeInto("Promo");
        QTRY_COMPARE(row({0, 0, 0}), QString("Promo.txt"));
        window().resize(1000, 600);
        QCOMPARE(part<QSplitter>("projectSplitter")->orientation(), Qt::Horizontal);
        window().resize(640, 600);
        QCOMPARE(part<QSplitter>("projectSplitter")->orientation(), Qt::Vertical);
        m_delegate->toolbarTemplateAction();
        QVERIFY(!window().menuBar()->findChild<QAction *>("Show Result")->isEnabled());
        m_delegate.reset();
        open();
        QVERIFY(part<QTreeView>("resultTree")->isVisible());
        QTest::keyClick(&window(), Qt::Key_R, Qt::ControlModifier);
        QVERIFY(!part<QTreeView>("resultTree")->isVisible());
    }

    void offersToPutAwayWhatAKillHasLeft()
    {
        const QString hidden = m_work->filePath("Projects/.P.tessaro-1");
        const auto cutOff = [&] {
            writeFile(hidden + "/half", "x");
            writeFile(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) + "/Vantrel/Tessaro/Unfinished/n",
                      platform::writePropertyList(
                          QVariantMap{{"folder", hidden}, {"destination", m_work->filePath("Projects/P")}}));
        };
        for (const bool isKept : {true, false}) {
            cutOff();
            SheetAnswerer answers({isKept ? "Keep" : "Move to Trash"});
            open();
            QTRY_COMPARE(answers.seen.size(), 1);
            QVERIFY(answers.seen[0].contains(hidden));
            QTRY_COMPARE(platform::targetExists(hidden), isKept);
            QTRY_VERIFY(leftovers().isEmpty());
            m_delegate.reset();
        }
    }

    /// What a power cut has emptied is named once, by the next start; what a user has moved or emptied is his.
    void tellsWhatAPowerCutHasEmptied()
    {
        const auto note = [&](const QString &name) {
            writeFile(VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) +
                          "/Vantrel/Tessaro/Unfinished/Placed/another-run.1/" + name,
                      platform::writePropertyList(
                          QVariantMap{{"destination", m_work->filePath("Projects/" + name).toUtf8()},
                                      {"template", m_work->filePath("Library/One.tzt/Files").toUtf8()}}));
        };
        for (const char *name : {"Emptied", "Whole", "Moved"})
            note(QLatin1String(name));
        writeFile(m_work->filePath("Projects/Emptied/One.txt"), "");
        writeFile(m_work->filePath("Projects/Whole/One.txt"), "one");
        SheetAnswerer answers({"OK"});
        open();
        QTRY_COMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].contains("‘Emptied’ is not whole") && answers.seen[0].contains("One.txt"));
        QTRY_VERIFY(doubtfulProjects().isEmpty());
    }

    /// Where no bug reporter is installed, the next start says it, once.
    void aCrashIsSaid()
    {
        const QDateTime launched = QDateTime::currentDateTimeUtc().addSecs(-60);
        storeSetting(settings::launch, launched);
        const QString report = VTBugReporter::reportFolders().constFirst() + "/Tessaro_crashed.crash";
        writeFile(report, "report");
        QFile file(report);
        QVERIFY(file.open(QIODevice::ReadWrite) &&
                file.setFileTime(launched.addSecs(30), QFileDevice::FileModificationTime));
        for (const bool isTold : {true, false}) {
            SheetAnswerer answers({"OK"});
            open();
            QCOMPARE(answers.seen.size(), isTold ? 1 : 0);
            m_delegate.reset();
            if (isTold)
                QVERIFY(answers.seen[0].startsWith("Tessaro ended unexpectedly the last time|"));
        }
        QVERIFY(QFile::remove(report));
    }

    void withoutTemplatesOrParameters()
    {
        storeSetting(settings::filenameTemplate, QVariantList{});
        storeSetting(settings::templateLocation, m_work->path()); // a library without templates
        storeSetting(settings::selectedProjectTemplate, "kept");
        SheetAnswerer welcome({"OK"});
        open(true);
        QVERIFY(welcome.buttons.isEmpty() && !settings::standard().boolean(settings::firstRun));
        QVERIFY(window().shownTemplates().isEmpty());
        QCOMPARE(settings::standard().string(settings::selectedProjectTemplate), QString("kept"));
        QVERIFY(!part<QPushButton>("createButton")->isEnabled());
        part<QPushButton>("installTemplates")->click();
        QTRY_VERIFY(part<QPushButton>("createButton")->isEnabled());
        part<EmptyState>("emptyParameters")->findChild<QPushButton *>()->click(); // where they can be added or restored
        auto *preferences = window().findChild<VTPreferenceController *>();
        QVERIFY(preferences && preferences->findChild<QTableView *>("parameterTable")->isVisible());
        preferences->close();
    }
};

TESSARO_TEST_MAIN(QApplication, TestWindow)
#include "test_window.moc"

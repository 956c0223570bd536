// The preferences in a real window: what is set there is what is stored, and it is in force at once.
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "harness/Records.h"
#include "harness/SheetAnswerer.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "preferences/VTPreferenceController.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "templates/VTDataController.h"
#include "ui/PathControl.h"
#include "ui/SheetPresenter.h"
#include "ui/VTTableView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <unistd.h>

using platform::joined;
using platform::targetExists;

class TestPreferences : public QObject
{
    Q_OBJECT

    SheetPresenter m_sheets;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    VTPreferenceController *preferences() const
    {
        return m_delegate->mainWindow()->findChild<VTPreferenceController *>();
    }
    template <typename Widget> Widget *part(const char *name) const
    {
        return preferences()->findChild<Widget *>(QLatin1String(name));
    }
    QVariant stored(const QString &key) const
    {
        const QString file = VTLocalPaths::prefsDirectory(VTLocalPaths::Domain::User) + "/com.vantrel.Tessaro.plist";
        return platform::readPropertyList(readFile(file))->toMap().value(key);
    }
    void open() const
    {
        m_delegate->showPreferences();
        QVERIFY(QTest::qWaitForWindowActive(preferences()));
    }
    void typePath(const char *field, const QString &path) const
    {
        auto *line = part<QLineEdit>(field);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, path);
        QTest::keyClick(line, Qt::Key_Return);
    }
    QString library(const QString &path = {}) const { return joined(m_work->filePath("Library"), path); }

private Q_SLOTS:
    void init()
    {
        settings::registerDefaults();
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        for (const settings::Setting *setting : settings::all())
            removeSetting(*setting);
        storeSetting(settings::firstRun, false);
        storeSetting(settings::templateLocation, library());
        storeSetting(settings::filenameTemplate, QVariantList{record({{"title", "Client"}, {"val", "Acme"}}),
                                                              record({{"title", "Title"}, {"val", "Promo"}})});
        writeFile(library("A.tzt/Files/x"), "x");
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        m_delegate->mainWindow()->show();
    }
    void cleanup() { m_delegate.reset(); }

    void oneAtATime()
    {
        QAction *menu = nullptr;
        for (QAction *action : m_delegate->mainWindow()->findChildren<QAction *>()) {
            if (action->objectName().startsWith("Preferences"))
                menu = action;
        }
        QVERIFY(menu && menu->isEnabled());
        open();
        QVERIFY(!menu->isEnabled());
        QCOMPARE(preferences()->toolbarSelectableItemIdentifiers(),
                 QStringList({"general", "project", "parameters", "hotkeys"}));
        preferences()->toolbarHotkeys();
        const QPointer<VTPreferenceController> first = preferences();
        m_delegate->performCommand("preferences"); // from outside: the same window
        QCOMPARE(preferences(), first);
        // Pressed until it is heard: the window manager may still be changing its mind about which window is active.
        QTRY_VERIFY(!first || (QTest::keyClick(first.data(), Qt::Key_Escape), !first));
        QVERIFY(menu->isEnabled());
        open();
        QCOMPARE(part<QStackedWidget>("panes")->currentIndex(), 0); // General first, whatever was shown last
    }

    void switches()
    {
        open();
        const auto toggle = [&](const char *name) {
            part<QCheckBox>(name)->click();
        };
        toggle("autoOpenFolder");
        toggle("autoQuit");
        toggle("autoExpandFolders");
        preferences()->toolbarProject();
        toggle("useFixedProjectLocation");
        toggle("strictNaming");
        QCOMPARE(stored(settings::autoOpenFolder), QVariant(0LL));
        QCOMPARE(stored(settings::autoQuit), QVariant(1LL));
        QCOMPARE(stored(settings::autoExpandFolders), QVariant(0LL));
        QCOMPARE(stored(settings::useFixedProjectLocation), QVariant(1LL));
        QCOMPARE(stored(settings::strictNaming), QVariant(true));
        // Protections: on without a question; off only with a password, and nobody is there to give one.
        if (getuid() == 0)
            QSKIP("The super-user is asked nothing, and would change the machine's own settings.");
        preferences()->toolbarGeneral();
        toggle("prefsAdminPassEditing");
        QVERIFY(settings::standard().equalsOne(settings::requireAdminPasswordForEditing));
        SheetAnswerer refused({"OK"});
        toggle("prefsAdminPassEditing");
        QTRY_COMPARE(refused.seen.size(), 1);
        QVERIFY(refused.seen[0].startsWith("This needs an administrator’s password|"));
        QTRY_VERIFY(part<QCheckBox>("prefsAdminPassEditing")->isChecked());
        QVERIFY(settings::standard().equalsOne(settings::requireAdminPasswordForEditing));
        // The one that would keep the program from ever starting again is not switched on where that could not be met.
        SheetAnswerer answers({"OK"});
        toggle("prefsAdminPass");
        QTRY_VERIFY(answers.buttons.isEmpty());
        QVERIFY(answers.seen[0].startsWith("The switch was left off|Administrator rights could not be had"));
        QVERIFY(!part<QCheckBox>("prefsAdminPass")->isChecked() && !settings::requireAdminPassword.isOn());
        QVERIFY(part<QLabel>("hintAdmin")->text().contains("for you alone"));
    }

    void theLibraryMoves()
    {
        writeFile(library("b.TZT/Files/y"), "y");
        writeFile(library("notes.txt"), "mine");
        writeFile(m_work->filePath("New/A.tzt/Files/other"), "other"); // in the way: nothing is replaced
        open();
        SheetAnswerer answers({"Move", "OK"});
        typePath("prefsTemplatePath", m_work->filePath("New/"));
        QTRY_VERIFY(answers.buttons.isEmpty());
        QVERIFY(answers.seen[0].startsWith("Would you like to move your templates to the new location?|Any templates"));
        QVERIFY(answers.seen[1].startsWith("Unable to move file " + library("A.tzt")));
        QVERIFY(targetExists(m_work->filePath("New/b.TZT/Files/y")) && targetExists(library("A.tzt/Files/x")));
        QVERIFY(targetExists(m_work->filePath("New/A.tzt/Files/other")) && targetExists(library("notes.txt")));
        QCOMPARE(stored(settings::templateLocation), QVariant(m_work->filePath("New")));
        QCOMPARE(m_delegate->mainWindow()->shownTemplates(), QStringList({"A", "b"}));
        // Into a folder inside the old one, made for it.
        SheetAnswerer inside({"Move"});
        typePath("prefsTemplatePath", m_work->filePath("New/Deeper/Still"));
        QTRY_COMPARE(stored(settings::templateLocation), QVariant(m_work->filePath("New/Deeper/Still")));
        QTRY_VERIFY(targetExists(m_work->filePath("New/Deeper/Still/A.tzt/Files/other")));
        QTRY_COMPARE(m_delegate->mainWindow()->shownTemplates(), QStringList({"A", "b"}));
        QVERIFY(!targetExists(m_work->filePath("New/A.tzt")));
    }

    void placesThatCannotBeUsed_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("relative") << "Templates";
        QTest::newRow("a file") << "%/a file";
        QTest::newRow("empty") << " ";
    }
    void placesThatCannotBeUsed()
    {
        QFETCH(QString, path);
        writeFile(m_work->filePath("a file"), "x");
        open();
        for (const char *field : {"prefsTemplatePath", "prefsFixedPath"}) {
            preferences()->toolbarGeneral();
            if (QLatin1String(field) == "prefsFixedPath")
                preferences()->toolbarProject();
            const QString before = part<QLineEdit>(field)->text();
            const auto *hint = part<QLabel>(QLatin1String(field) == "prefsFixedPath" ? "hintFixed" : "hintTemplates");
            const QString usual = hint->text();
            typePath(field, QString(path).replace('%', m_work->path()));
            QVERIFY(hint->text().startsWith("Please ") || hint->text().startsWith("A file stands there."));
            // Looking into another program, or at another field with the mouse, applies nothing and asks nothing.
            part<QLineEdit>(field)->clearFocus();
            QTest::qWait(20);
            QVERIFY(!QApplication::activeModalWidget());
            // Escape gives the old one back; only the next one closes the window.
            part<QLineEdit>(field)->setFocus();
            QTest::keyClick(part<QLineEdit>(field), Qt::Key_Escape);
            QCOMPARE(part<QLineEdit>(field)->text(), before);
            QCOMPARE(hint->text(), usual);
        }
        QCOMPARE(stored(settings::templateLocation), QVariant(library()));
        typePath("prefsFixedPath", "~/Projects here");
        QTRY_COMPARE(stored(settings::fixedProjectLocationPath),
                     QVariant(VTLocalPaths::userDirectory() + "/Projects here"));
        QVERIFY(targetExists(VTLocalPaths::userDirectory() + "/Projects here"));
    }

    /// Half a path is nobody's: it stays as it was left, and comes into force by Return or Tab alone.
    void halfAPath()
    {
        open();
        auto *line = part<QLineEdit>("prefsFixedPath");
        preferences()->toolbarProject();
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, m_work->filePath("Proj"));
        m_delegate->mainWindow()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_delegate->mainWindow()));
        QTest::qWait(20);
        QVERIFY(!targetExists(m_work->filePath("Proj")) && !stored(settings::fixedProjectLocationPath).isValid());
        preferences()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(preferences()));
        QCOMPARE(line->text(), m_work->filePath("Proj"));
        line->setFocus();
        QTRY_VERIFY(line->hasFocus());
        line->setCursorPosition(static_cast<int>(line->text().size()));
        QTest::keyClicks(line, "ects");
        QTest::keyClick(line, Qt::Key_Tab);
        QTRY_COMPARE(stored(settings::fixedProjectLocationPath), QVariant(m_work->filePath("Projects")));
        QVERIFY(targetExists(m_work->filePath("Projects")) && !targetExists(m_work->filePath("Proj")));
    }

    /// Each end of the panel, with the sheets that follow it.
    void thePanelAndItsSheets_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isTaken");
        QTest::addColumn<bool>("isMoved");
        QTest::newRow("move") << "Move" << true << true;
        QTest::newRow("leave") << "Don't Move" << true << false;
        QTest::newRow("cancel") << "Cancel" << false << false;
    }
    void thePanelAndItsSheets()
    {
        QFETCH(QString, button);
        QFETCH(bool, isTaken);
        QFETCH(bool, isMoved);
        QVERIFY(platform::makeFolders(m_work->filePath("New")).ok());
        open();
        part<QPushButton>("browseTemplates")->click();
        auto *panel = preferences()->findChild<QFileDialog *>();
        QVERIFY(panel);
        panel->setDirectory(m_work->filePath("New"));
        SheetAnswerer answers({button});
        QSignalSpy gone(panel, &QObject::destroyed);
        QTest::keyClick(panel->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
        QTRY_COMPARE(gone.size(), 1);
        QCOMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].contains("Templates in " + library() + ": 1") &&
                answers.seen[0].contains(m_work->filePath("New")));
        QCOMPARE(stored(settings::templateLocation), QVariant(isTaken ? m_work->filePath("New") : library()));
        QCOMPARE(targetExists(m_work->filePath("New/A.tzt")), isMoved);
        QCOMPARE(targetExists(library("A.tzt")), !isMoved);
    }

    void parametersInForceAtOnce()
    {
        open();
        preferences()->toolbarParameters();
        auto *preview = part<PathControl>("parametersPreview");
        QCOMPARE(preview->path(), QString("/Acme_Promo"));
        part<QToolButton>("addParameter")->click();
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClicks(QApplication::focusWidget(), "Reel");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(stored(settings::filenameTemplate).toList()[2].toMap()["title"], QVariant("Reel"));
        QCOMPARE(m_delegate->tableController().rowCount(), 3);
        auto *table = part<VTTableView>("parameterTable");
        table->model()->setData(table->model()->index(1, static_cast<int>(parameterlist::Column::Folder)), Qt::Checked,
                                Qt::CheckStateRole);
        QCOMPARE(preview->path(), QString("/Acme/Promo"));
        part<QComboBox>("separator")->setEditText("-");
        QCOMPARE(stored(settings::separatorChar), QVariant("-"));
        auto *separator = part<QComboBox>("separator")->lineEdit();
        separator->setFocus();
        separator->selectAll();
        QTest::keyClicks(separator, "x/:");
        QCOMPARE(stored(settings::separatorChar), QVariant("x")); // what no name can hold cannot be typed

        SheetAnswerer answers({"Cancel", "Remove"});
        for (const int left : {3, 2}) {
            table->selectRow(table->model()->rowCount() - 1);
            part<QToolButton>("removeParameter")->click();
            QTRY_COMPARE(table->model()->rowCount(), left);
        }
        QVERIFY(answers.buttons.isEmpty());
        part<QPushButton>("restoreParameters")->click();
        QVERIFY(m_delegate->tableController().rowCount() > 3);
    }

    /// A kind is one click away; choices are lines, and what is not one of them is not left as the value.
    void choicesAreAList()
    {
        open();
        preferences()->toolbarParameters();
        auto *table = part<VTTableView>("parameterTable");
        const auto cell = [&](parameterlist::Column column) {
            return table->model()->index(0, static_cast<int>(column));
        };
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(cell(parameterlist::Column::Kind)).center());
        auto *kinds = qobject_cast<QComboBox *>(table->indexWidget(cell(parameterlist::Column::Kind)));
        QVERIFY(kinds && kinds->view()->isVisible());
        QTest::keyClick(kinds->view(), Qt::Key_End);
        QTest::keyClick(kinds->view(), Qt::Key_Return);
        QCOMPARE(stored(settings::filenameTemplate).toList()[0].toMap()["type"].toInt(), 5);
        QTRY_VERIFY(!QApplication::activePopupWidget() && QApplication::activeWindow() == preferences());
        table->finishEditing();
        table->edit(cell(parameterlist::Column::Default));
        auto *lines = qobject_cast<QPlainTextEdit *>(table->indexWidget(cell(parameterlist::Column::Default)));
        QVERIFY(lines && lines->height() > 3 * table->rowHeight(0) / 2);
        QTRY_VERIFY(lines->hasFocus());
        lines->selectAll();
        QTest::keyClicks(lines, " Red ");
        QTest::keyClick(lines, Qt::Key_Return);
        QTest::keyClick(lines, Qt::Key_Return);
        QTest::keyClicks(lines, "Light green,Blue, ");
        QTest::keyClick(lines, Qt::Key_Tab);
        const QVariantMap parameter = stored(settings::filenameTemplate).toList()[0].toMap();
        QCOMPARE(parameter["defaultVal"].toString(), "Red,Light green,Blue");
        QCOMPARE(parameter["val"].toString(), "Red");
    }

    /// Each change of the list, and what was typed and counted meanwhile stays.
    void parametersAreUndone()
    {
        storeSetting(settings::filenameTemplate, QVariantList{record({{"title", "Client"}, {"saveHistory", true}}),
                                                              record({{"title", "Job"}, {"type", 2}, {"val", "007"}}),
                                                              record({{"title", "Title"}, {"val", "Promo"}})});
        open();
        preferences()->toolbarParameters();
        auto *table = part<VTTableView>("parameterTable");
        table->setFocus();
        QTRY_VERIFY(table->hasFocus());
        const auto titles = [&] {
            QStringList all;
            for (const QVariant &parameter : stored(settings::filenameTemplate).toList())
                all << parameter.toMap()["title"].toString();
            return all.join(',');
        };
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTRY_VERIFY(QApplication::activeWindow() == preferences()); // shortcuts are an active window's
            QTest::keyClick(table, key, modifiers);
        };
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier); // nothing yet
        table->selectRow(2);
        press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(titles(), QString("Client,Title,Job"));
        QCOMPARE(table->firstSelectedRow(), std::optional(1));
        table->model()->setData(table->model()->index(2, 0), "Number", Qt::EditRole);
        SheetAnswerer answers({"Remove"});
        table->selectRow(0);
        press(Qt::Key_Delete, Qt::NoModifier);
        QTRY_COMPARE(titles(), QString("Title,Number"));
        part<QPushButton>("restoreParameters")->click();
        const QString shipped = titles();
        for (const char *before : {"Title,Number", "Client,Title,Number", "Client,Title,Job", "Client,Job,Title"}) {
            press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(titles(), QString(before));
        }
        // A project has taken the number meanwhile.
        QVERIFY(changeParameters([](FilenameParameters list) {
                    list[1].setValue("008");
                    return platform::Result<FilenameParameters>(list);
                }).ok());
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(titles(), QString("Client,Title,Number"));
        QCOMPARE(stored(settings::filenameTemplate).toList()[2].toMap()["val"].toString(), QString("008"));
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(titles(), shipped);
    }

    void dateFormats()
    {
        open();
        preferences()->toolbarParameters();
        auto *popUp = part<QComboBox>("dateFormatPopUp");
        auto *custom = part<QLineEdit>("dateFormatText");
        QCOMPARE(popUp->count(), 11);
        QVERIFY(custom->isHidden());
        popUp->setCurrentIndex(6);
        Q_EMIT popUp->activated(6);
        QCOMPARE(stored(settings::dateFormat), QVariant("%Y-%m"));
        popUp->setCurrentIndex(10);
        Q_EMIT popUp->activated(10);
        QVERIFY(!custom->isHidden());
        custom->setText("%d.%m.");
        QCOMPARE(stored(settings::dateFormat), QVariant("%d.%m."));
        for (const char *bad : {"", "%", "plain"}) {
            custom->setText(bad);
            QVERIFY2(!part<QLabel>("hintDate")->text().startsWith("Today"), bad);
        }
        custom->setText("%Y/%m");
        QVERIFY(part<QLabel>("hintDate")->text().startsWith("Slashes"));
        preferences()->close();
        QTRY_VERIFY(!preferences());
        open();
        QCOMPARE(part<QComboBox>("dateFormatPopUp")->currentText(), QString("Custom"));
        QCOMPARE(part<QLineEdit>("dateFormatText")->text(), QString("%Y/%m"));
    }
};

TESSARO_TEST_MAIN(QApplication, TestPreferences)
#include "test_preferences.moc"

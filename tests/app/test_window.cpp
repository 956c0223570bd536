// The window, driven by keys and clicks, from its first start to a finished project.
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "parameters/VTProjectTableController.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/TemporaryHome.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "ui/SheetPresenter.h"
#include "ui/Spinner.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTabbedEditTableView.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>

namespace {

/// Waits for sheets and answers them, one after the other, by the titles of their buttons.
class SheetAnswerer : public QObject
{
public:
    explicit SheetAnswerer(QStringList buttons) : m_buttons(std::move(buttons))
    {
        connect(&m_timer, &QTimer::timeout, this, &SheetAnswerer::look);
        m_timer.start(5);
    }
    [[nodiscard]] const QStringList &seen() const { return m_seen; }
    [[nodiscard]] bool isThrough() const { return m_buttons.isEmpty(); }

private:
    void look()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            if (!box || !box->isVisible() || m_buttons.isEmpty())
                continue;
            for (QAbstractButton *button : box->buttons()) {
                if (button->text().remove('&') != m_buttons.constFirst())
                    continue;
                m_seen << box->text() + '|' + box->informativeText();
                m_buttons.removeFirst();
                return button->click();
            }
        }
    }
    QStringList m_buttons;
    QStringList m_seen;
    QTimer m_timer;
};

QVariantMap record(const QVariantMap &entries)
{
    QVariantMap whole{{"title", "T"}, {"type", 0}, {"val", ""}, {"folder", false}};
    whole.insert(entries);
    return whole;
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    SheetPresenter m_sheets;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return window().findChild<Widget *>(QLatin1String(name));
    }
    QString fixed(const QString &path = {}) const { return platform::joined(m_work->filePath("Fixed"), path); }
    QString value(int row) const { return m_delegate->tableController().dataArray()[row].value(); }

    void open(bool firstRun = false)
    {
        settings::standard().setValue(settings::firstRun, firstRun);
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        m_delegate->applicationDidFinishLaunching();
    }
    void typeInto(const char *text)
    {
        auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        auto *combo = qobject_cast<QComboBox *>(QApplication::focusWidget());
        QVERIFY(line || combo);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents(); // Return ends the edit by way of the event loop
    }

private Q_SLOTS:
    void initTestCase() { settings::registerDefaults(); }

    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        auto &defaults = settings::standard();
        for (const QString &key : {settings::defaultTemplate, settings::selectedProjectTemplate, settings::autoQuit})
            defaults.removeValue(key);
        defaults.setValue(settings::templateLocation, m_work->filePath("Library"));
        writeFile(m_work->filePath("Library/One.tzt/Files/Template.txt"), "one");
        writeFile(m_work->filePath("Library/Two.tzt/Files/Sub/two template.txt"), "two");
        defaults.setValue(settings::useFixedProjectLocation, 1LL);
        defaults.setValue(settings::fixedProjectLocationPath, fixed());
        defaults.setValue(settings::autoOpenFolder, 0LL);
        defaults.setValue(settings::filenameTemplate,
                          QVariantList{record({{"title", "Client"}, {"saveHistory", true}}),
                                       record({{"title", "Job"}, {"type", 2}, {"val", "007"}}),
                                       record({{"title", "Title"}, {"folder", true}, {"disallowEmpty", true}})});
    }
    void cleanup()
    {
        m_delegate.reset();
        VTAlert::setPresenter(nullptr);
    }

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
        QCOMPARE(m_delegate->pathNameFromParameters(), QString("Acme_008/Promo"));
        QCOMPARE(part<QLabel>("createdLabel")->text(), QString("Created ‘Promo’."));
        QVERIFY(part<QPushButton>("showButton")->isVisible());
        QVERIFY(!part<Spinner>("spinner")->isSpinning());
        QVERIFY(part<QPushButton>("createButton")->isEnabled());
    }

    void whatIsBeingTypedCounts()
    {
        open();
        m_delegate->tableController().editItem(2);
        typeInto("Still typing");
        part<QPushButton>("createButton")->click();
        QTRY_VERIFY(platform::targetExists(fixed("007/Still typing/Still typing.txt")));
    }

    void aRequiredValueIsAskedFor()
    {
        open();
        SheetAnswerer answers({"OK"});
        m_delegate->createNewProject();
        QCOMPARE(answers.seen(), QStringList{"'Title' cannot be left blank|Please fill in this parameter before "
                                             "creating a project."});
        QCOMPARE(part<VTTabbedEditTableView>("tableView")->currentIndex().row(), 2);
        QVERIFY(!platform::targetExists(fixed()));
    }

    void anExistingProjectIsAskedForTwice_data()
    {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<bool>("overwritten");
        QTest::newRow("cancelled at once") << QStringList{"Cancel"} << false;
        QTest::newRow("cancelled at the second question") << QStringList{"Overwrite", "Cancel"} << false;
        QTest::newRow("overwritten") << QStringList{"Overwrite", "Overwrite"} << true;
    }
    void anExistingProjectIsAskedForTwice()
    {
        QFETCH(QStringList, answers);
        QFETCH(bool, overwritten);
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        writeFile(fixed("007/P/work"), "days");
        QTRY_VERIFY(part<QLabel>("warningImage")->isHidden());
        m_delegate->tableController().updateFilenamePreview();
        QTRY_VERIFY(part<QLabel>("warningImage")->isVisible());
        SheetAnswerer answerer(answers);
        m_delegate->createNewProject();
        QVERIFY(answerer.isThrough());
        QCOMPARE(answerer.seen().constFirst(),
                 QString("Project already exists|Are you sure you wish to overwrite 007/P?"));
        QCOMPARE(platform::targetExists(fixed("007/P/work")), !overwritten);
        QCOMPARE(platform::targetExists(fixed("007/P/P.txt")), overwritten);
        QCOMPARE(value(1), QString(overwritten ? "008" : "007"));
        QVERIFY(!part<Spinner>("spinner")->isSpinning());
    }

    void theSavePanelGivesTheFolderOnly()
    {
        settings::standard().setValue(settings::fixedProjectLocationPath, "");
        open();
        m_delegate->tableController().setData(m_delegate->tableController().index(2, 1), "P", Qt::EditRole);
        const QString folder = m_work->filePath("Chosen");
        QVERIFY(platform::makeFolders(folder + "/007").ok()); // the outermost level exists already: no walking into it
        m_delegate->createNewProject();
        auto *panel = window().findChild<VTSavePanel *>();
        QVERIFY(panel && panel->windowTitle() == "Choose a destination");
        m_delegate->createNewProject(); // a second press while the panel is up opens no second one
        QCOMPARE(window().findChildren<VTSavePanel *>().size(), 1);
        panel->setDirectory(folder);
        auto *name = panel->findChild<QLineEdit *>("fileNameEdit");
        QVERIFY(name);
        QCOMPARE(name->text(), QString("007"));
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_VERIFY(platform::targetExists(folder + "/007/P/P.txt"));
        QCOMPARE(settings::standard().string(settings::fixedProjectLocationPath), folder);
    }

    void theWelcomeComesOnce()
    {
        {
            SheetAnswerer answers({"OK"});
            open(true);
            QVERIFY(answers.isThrough());
            QVERIFY(answers.seen().constFirst().startsWith("Welcome to Tessaro|Simplify your creative workflows"));
        }
        QCOMPARE(settings::standard().boolean(settings::firstRun), false);
        QVERIFY(part<VTTabbedEditTableView>("tableView")->findChild<QComboBox *>()); // the first row is in edit
    }

    void thePopUp()
    {
        settings::standard().setValue(settings::selectedProjectTemplate, "Two");
        open();
        QCOMPARE(window().shownTemplates(), QStringList({"One", "Two"}));
        QCOMPARE(window().selectedTemplate(), QString("Two"));
        settings::standard().setValue(settings::defaultTemplate, "One");
        m_delegate->populateTemplatePopUp();
        QCOMPARE(window().selectedTemplate(), QString("One"));
        QCOMPARE(settings::standard().string(settings::selectedProjectTemplate), QString("One"));
        auto *popUp = part<QComboBox>("projectTemplatePopUp");
        popUp->setFocus();
        QTest::keyClick(popUp, Qt::Key_Down);
        QCOMPARE(settings::standard().string(settings::selectedProjectTemplate), QString("Two"));
    }

    void withoutTemplatesOrParameters()
    {
        settings::standard().setValue(settings::filenameTemplate, QVariantList{});
        settings::standard().setValue(settings::selectedProjectTemplate, "kept");
        QVERIFY(platform::removeTree(m_work->filePath("Library")).ok());
        QVERIFY(platform::makeFolders(m_work->filePath("Library")).ok());
        open();
        QVERIFY(window().shownTemplates().isEmpty());
        QCOMPARE(settings::standard().string(settings::selectedProjectTemplate), QString("kept"));
        QVERIFY(!part<QPushButton>("createButton")->isEnabled());
        QVERIFY(part<QWidget>("emptyParameters")->isVisible());
        m_delegate->useStandardParameters();
        QVERIFY(part<VTTabbedEditTableView>("tableView")->isVisible());
        part<QPushButton>("installTemplates")->click();
        QTRY_VERIFY(part<QPushButton>("createButton")->isEnabled());
    }

    void panesAndToolbar()
    {
        open();
        QCOMPARE(m_delegate->toolbarSelectableItemIdentifiers(), QStringList({"toolbarNewProject", "toolbarTemplates"}));
        QTest::keyClick(&window(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(window().shownPane(), MainWindow::Pane::Templates);
        QTest::keyClick(&window(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(window().shownPane(), MainWindow::Pane::Project);
        QVERIFY(m_delegate->awakeFromNib()); // a second time changes nothing
        QCOMPARE(window().findChildren<VTTabbedEditTableView *>().size(), 1);

        m_delegate.reset();
        const QString entry = VTLocalPaths::userDirectory() + "/.local/share/applications/com.vantrel.Clipwell.desktop";
        writeFile(entry, "[Desktop Entry]\nType=Application\nName=Clipwell\nExec=true\n");
        open();
        const QList<QAction *> items = part<QToolBar>("toolbar")->actions();
        QVERIFY(std::none_of(items.begin(), items.end(), [](QAction *a) { return a->text() == "More Products"; }));
        QVERIFY(platform::removeTree(entry).ok());
    }

    /// Every control can be told apart by a screen reader.
    void everyControlHasAName()
    {
        open();
        for (const QWidget *control : window().findChildren<QWidget *>()) {
            const bool isControl = qobject_cast<const QAbstractButton *>(control) ||
                                   qobject_cast<const QComboBox *>(control) ||
                                   qobject_cast<const QAbstractItemView *>(control);
            if (!isControl || !control->isVisible() || control->objectName().startsWith("qt_"))
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
        }
    }
};

TESSARO_TEST_MAIN(QApplication, TestWindow)
#include "test_window.moc"

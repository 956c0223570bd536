// The manual in its languages, F1, the welcome's kinds of work, and what file browsers ask of the window.
#include "app/MainWindow.h"
#include "app/ManualChapters.h"
#include "app/ManualWindow.h"
#include "app/TessaroAppDelegate.h"
#include "harness/SheetAnswerer.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/base/System.h"
#include "support/VTAlert.h"
#include "ui/SheetPresenter.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

namespace {

const QString folder = QStringLiteral(TESSARO_SOURCE_DIR "/docs/manual/");

QString manual(const char *name)
{
    return QString::fromUtf8(readFile(folder + QLatin1String(name)));
}

QStringList keysOf(const QList<ManualChapter> &chapters)
{
    QStringList keys;
    for (const ManualChapter &chapter : chapters)
        keys.append(chapter.key);
    return keys;
}

} // namespace

class TestManual : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    SheetPresenter m_sheets;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    static ManualWindow *shown()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *found = qobject_cast<ManualWindow *>(widget); found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    static QString shownTitle()
    {
        const auto *list = shown() ? shown()->findChild<QListWidget *>() : nullptr;
        return list && list->currentItem() ? list->currentItem()->text() : QString();
    }

private Q_SLOTS:
    void initTestCase() { openManualByKey(); }
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        VTAlert::setPresenter(&m_sheets);
        m_delegate = std::make_unique<TessaroAppDelegate>();
        m_sheets.setMainWindow([this] { return m_delegate->mainWindow(); });
        QVERIFY(m_delegate->awakeFromNib());
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    void cleanup()
    {
        delete shown();
        VTAlert::setPresenter(nullptr);
        m_delegate.reset();
    }

    void chapters()
    {
        const auto taken = chaptersOf("# Top\n\nText\n\n<!-- chapter: a -->\n## One\nx\n<!-- chapter: b -->\n## Two\n");
        QCOMPARE(keysOf(taken), QStringList({"", "a", "b"}));
        QCOMPARE(taken[1].title, "One");
        QCOMPARE(taken[1].markdown, "## One\nx\n");
        QVERIFY(chaptersOf({}).isEmpty());
    }

    /// One manual in two languages: the same chapters, those that windows ask for among them, and pictures that are
    /// there.
    void languages()
    {
        const auto english = chaptersOf(manual("manual.md"));
        QCOMPARE(keysOf(chaptersOf(manual("manual.de.md"))), keysOf(english));
        for (const char *wanted : {"first-project", "result", "many", "templates", "tree", "rules", "parameters",
                                   "preferences", "hotkeys", "studio", "trouble"})
            QVERIFY2(keysOf(english).contains(QLatin1String(wanted)), wanted);
        static const QRegularExpression picture(R"(!\[[^\]]+\]\(([^)]+)\))");
        int pictures = 0;
        for (const char *name : {"manual.md", "manual.de.md"}) {
            for (const auto &match : picture.globalMatch(manual(name))) {
                ++pictures;
                QVERIFY2(QFile::exists(folder + match.captured(1)), qPrintable(match.captured(1)));
            }
        }
        QVERIFY(pictures > 10);
    }

    void byKey()
    {
        QTRY_VERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QTRY_COMPARE(shownTitle(), "Start a project");
        m_delegate->toolbarTemplateAction();
        auto *tree = window().findChild<QTreeView *>("outlineView");
        window().activateWindow();
        tree->setFocus();
        QTRY_VERIFY(tree->hasFocus());
        QTest::keyClick(tree, Qt::Key_F1);
        QTRY_COMPARE(shownTitle(), "Change what a template holds");
        auto *search = shown()->findChild<QLineEdit *>();
        search->setText("spreadsheet");
        const auto *list = shown()->findChild<QListWidget *>();
        QVERIFY(!list->currentItem()->isHidden());
        int left = 0;
        for (int row = 0; row < list->count(); ++row)
            left += list->item(row)->isHidden() ? 0 : 1;
        QVERIFY(left > 0 && left < list->count() / 2);
        search->setText("no chapter says this");
        search->clear();
        QVERIFY(!list->item(0)->isHidden());
        QTest::keyClick(shown(), Qt::Key_Escape);
        QTRY_VERIFY(!shown());
    }

    void welcome()
    {
        storeSetting(settings::firstRun, true);
        QTimer::singleShot(0, this, [] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                for (auto *choice : widget->findChildren<QRadioButton *>()) {
                    if (choice->text().startsWith("Photography"))
                        choice->click();
                }
            }
        });
        SheetAnswerer answers({"OK"});
        m_delegate->applicationDidFinishLaunching();
        QVERIFY(answers.buttons.isEmpty() && !settings::firstRun.isOn());
        QCOMPARE(settings::selectedProjectTemplate.text(), "Photography");
        QCOMPARE(window().findChild<QComboBox *>("projectTemplatePopUp")->currentText(), "Photography");
    }

    void fromFileBrowsers()
    {
        const QString place = m_work->filePath("Here");
        QVERIFY(QDir().mkpath(place));
        m_delegate->toolbarTemplateAction();
        m_delegate->performCommand("new-project-here", place);
        QCOMPARE(settings::fixedProjectLocationPath.text(), place);
        QCOMPARE(window().shownPane(), MainWindow::Pane::Project);
        SheetAnswerer answers({"OK", "OK", "OK"});
        m_delegate->performCommand("new-project-here", m_work->filePath("Gone"));
        QCOMPARE(settings::fixedProjectLocationPath.text(), place);
        m_delegate->performCommand("check-project", m_work->filePath("Gone"));
        m_delegate->performCommand("check-project", place);
        QCOMPARE(answers.seen.size(), 3);
        QCOMPARE(answers.seen[0].section('|', 0, 0), "No project can be created there");
        QCOMPARE(answers.seen[1].section('|', 0, 0), QString::fromUtf8("‘Gone’ cannot be checked"));
        QCOMPARE(answers.seen[2].section('|', 0, 0), QString::fromUtf8("Something is missing in ‘Here’"));
    }
};

TESSARO_TEST_MAIN(QApplication, TestManual)
#include "test_manual.moc"

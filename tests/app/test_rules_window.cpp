// Rules in a real window: the inspector, items that take their rules along, a template's own parameters in the table,
// and projects from a table.
#include "app/MainWindow.h"
#include "app/OwnParametersSheet.h"
#include "app/TableSheet.h"
#include "app/TessaroAppDelegate.h"
#include "harness/Records.h"
#include "harness/SheetAnswerer.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "support/VTAlert.h"
#include "templates/RuleFile.h"
#include "templates/editor/RuleInspector.h"
#include "templates/editor/TemplatePane.h"
#include "ui/SheetPresenter.h"
#include "ui/VTOutlineView.h"
#include "ui/VTTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>

using platform::joined;

class TestRulesWindow : public QObject
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
    VTColoredOutlineView *outline() const { return part<VTColoredOutlineView>("outlineView"); }
    RuleInspector &inspector() const { return *part<RuleInspector>("inspector"); }
    QString bundle() const { return m_work->filePath("Library/Film.tzt"); }
    QString files(const QString &path) const { return joined(bundle() + "/Files", path); }
    TemplateRules rules() const { return *readRules(bundle()); }
    QStringList paths() const
    {
        QStringList found;
        for (const ItemRule &rule : rules().items)
            found << rule.path;
        return found;
    }
    void select(const QString &path) const
    {
        const QModelIndex index = editor().model().indexOf(editor().itemFromFilename(files(path)));
        QVERIFY2(index.isValid(), qPrintable(path));
        outline()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        outline()->setFocus();
    }
    void rename(const QString &path, const QString &name) const
    {
        select(path);
        outline()->edit(outline()->currentIndex());
        auto *line = outline()->findChild<QLineEdit *>();
        QVERIFY(line);
        line->selectAll();
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY(!platform::isMissing(files(platform::joined(platform::parentPath(path), name))) ||
                    !platform::isMissing(files(name)));
    }
    QComboBox *box(const char *name) const
    {
        for (QComboBox *candidate : inspector().findChildren<QComboBox *>()) {
            if (candidate->accessibleName() == QLatin1String(name) && !candidate->isHidden())
                return candidate;
        }
        return nullptr;
    }
    static void choose(QComboBox *box, const QString &text)
    {
        QVERIFY(box && box->findText(text) >= 0);
        box->setCurrentIndex(box->findText(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    QPushButton *button(const QWidget &parent, const char *text) const
    {
        for (QPushButton *candidate : parent.findChildren<QPushButton *>()) {
            if (candidate->text().remove('&') == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }
    QStringList table() const
    {
        QStringList rows;
        for (const FilenameParameter &parameter : m_delegate->tableController().dataArray())
            rows << parameter.title() + '=' + parameter.value();
        return rows;
    }

private Q_SLOTS:
    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        removeSetting(settings::ownParameterValues);
        storeSetting(settings::filenameTemplate,
                     QVariantList{record({{"title", "Client"}, {"val", "Acme"}, {"saveHistory", true}}),
                                  record({{"title", "Job"}, {"type", 2LL}, {"val", "01"}})});
        for (const char *path : {"A/x.txt", "B/y.txt", "top.txt"})
            writeFile(files(path), "{Client}");
        writeFile(m_work->filePath("Library/Plain.tzt/Files/p.txt"), "p");
        QVERIFY(platform::makeFolders(m_work->filePath("Projects")).ok());
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        window().resize(1100, 700);
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    void cleanup() { m_delegate.reset(); }

    void theInspector()
    {
        m_delegate->toolbarTemplateAction();
        QVERIFY(!inspector().isVisible());
        QTest::keyClick(outline(), Qt::Key_I, Qt::ControlModifier);
        QVERIFY(inspector().isVisible() && settings::showRules.isOn());
        select("A");
        button(inspector(), "Add Condition")->click();
        QTRY_COMPARE(rules().ruleOf("A").when.tests.size(), 1);
        choose(box("Comparison"), "is greater than");
        QTest::qWait(200); // the row is made anew when the rules have been read again
        auto *value = inspector().findChild<QLineEdit *>();
        for (QLineEdit *line : inspector().findChildren<QLineEdit *>())
            value = line->accessibleName() == "Value" && line->isVisible() ? line : value;
        value->setFocus();
        QTRY_VERIFY(value->hasFocus());
        QTest::keyClicks(value, "5");
        select("B"); // what was typed is taken in, and belongs to A
        QTRY_COMPARE(rules().ruleOf("A").when.tests.value(0).value, "5");
        QVERIFY(rules().ruleOf("B").isEmpty());
        choose(box("How often it is made"), "once for each number");
        choose(box("Of the parameter"), "Job");
        QTRY_COMPARE(rules().ruleOf("B").repeat.parameter, "Job");
        select("top.txt");
        QCheckBox *text = nullptr;
        for (QCheckBox *candidate : inspector().findChildren<QCheckBox *>())
            text = candidate->text().remove('&') == "Fill in values in its text" ? candidate : text;
        QVERIFY(text->isVisible());
        text->click();
        QTRY_VERIFY(rules().ruleOf("top.txt").fillsText);
        const QModelIndex top = editor().model().indexOf(editor().itemFromFilename(files("top.txt")));
        QTRY_COMPARE(top.data(CellRole::Badges).toStringList(), QStringList{"rule-text"});
        m_delegate->undo();
        QTRY_VERIFY(!rules().ruleOf("top.txt").fillsText);
        m_delegate->redo();
        QTRY_VERIFY(rules().ruleOf("top.txt").fillsText);
    }

    void itemsTakeTheirRulesAlong()
    {
        TemplateRules some{.fillsNames = true};
        for (const char *path : {"A", "A/x.txt", "top.txt"})
            some.setRule({path, {Conditions::Join::All, {{"Client", Condition::Is::Is, path}}}});
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(some); }).ok());
        m_delegate->toolbarTemplateAction();
        rename("A", "Day {n:00}"); // the colon has a meaning
        QTRY_COMPARE(paths(), QStringList({"Day {n:00}", "Day {n:00}/x.txt", "top.txt"}));
        select("Day {n:00}");
        editor().duplicateFiles();
        QTRY_COMPARE(paths().size(), 5);
        QVERIFY(paths().contains("Day {n:00} Duplicate/x.txt"));
        SheetAnswerer answers({"Remove"});
        select("top.txt");
        editor().removeFiles();
        QTRY_VERIFY(!paths().contains("top.txt"));
        // Another program says something of an item meanwhile: it stays.
        QVERIFY(rulefile::change(bundle(), [](const QVariantMap &now) {
                    TemplateRules rules = *rulesFromVariant(now);
                    rules.setRule({.path = "B", .fillsText = true});
                    return variantFromRules(rules);
                }).ok());
        for (int i = 0; i < 3; ++i)
            m_delegate->undo();
        QStringList all = paths();
        all.sort();
        QCOMPARE(all, QStringList({"A", "A/x.txt", "B", "top.txt"}));
        QCOMPARE(rules().ruleOf("A/x.txt").when.tests.value(0).value, "A/x.txt");
        for (int i = 0; i < 3; ++i)
            m_delegate->redo();
        QVERIFY(paths().contains("Day {n:00} Duplicate") && !paths().contains("top.txt"));
    }

    void rulesGoFromOneTemplateToAnother()
    {
        TemplateRules some;
        some.setRule({.path = "A", .fillsText = true});
        some.setRule({.path = "A/x.txt", .fillsText = true});
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(some); }).ok());
        m_delegate->toolbarTemplateAction();
        select("A");
        editor().cutItems();
        window().templatePane().tableController().selectTemplateWithName("Plain");
        editor().paste();
        const QString plain = m_work->filePath("Library/Plain.tzt");
        QTRY_VERIFY(!platform::isMissing(plain + "/Files/A/x.txt"));
        QTRY_VERIFY(rules().isEmpty());
        QCOMPARE(readRules(plain)->items.size(), 2);
        m_delegate->undo();
        QTRY_COMPARE(paths(), QStringList({"A", "A/x.txt"}));
        QVERIFY(readRules(plain)->isEmpty());
    }

    void goneAndDamaged()
    {
        TemplateRules some;
        some.setRule({.path = "nowhere", .fillsText = true});
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(some); }).ok());
        storeSetting(settings::showRules, true);
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        window().show();
        m_delegate->toolbarTemplateAction();
        QToolButton *remove = nullptr;
        const auto findRemove = [&] {
            for (QToolButton *candidate : inspector().findChildren<QToolButton *>())
                remove = candidate->toolTip() == "Remove the rule of nowhere" ? candidate : remove;
            return remove;
        };
        QTRY_VERIFY(findRemove());
        remove->click();
        QTRY_VERIFY(rules().isEmpty());
        writeFile(rulefile::pathIn(bundle()), "nonsense");
        editor().populateTemplateStructure();
        QTRY_VERIFY(button(inspector(), "Put Them Aside")->isVisible());
        SheetAnswerer answers({"OK"});
        button(inspector(), "Put Them Aside")->click();
        QTRY_VERIFY(!button(inspector(), "Put Them Aside")->isVisible());
        QCOMPARE(readFile(bundle() + "/Rules (damaged).plist"), "nonsense");
    }

    /// A project is made of what is shown; of rules that cannot be read, or values that do not fit, nothing.
    void theTable()
    {
        TemplateRules some{.fillsNames = true};
        some.parameters = {
            record({{"title", "Days"}, {"val", "2"}, {"defaultVal", "2"}, {"form", "number"}, {"outsideName", true}})};
        some.hidden = {"Job"};
        some.items = {{.path = "A", .repeat = {Repeat::Over::Numbers, "Days"}}};
        QVERIFY(QFile::rename(files("A"), files("A {n}")));
        some.items[0].path = "A {n}";
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(some); }).ok());
        m_delegate->tableController().finishEditing();
        m_delegate->followRules();
        QTRY_COMPARE(table(), QStringList({"Client=Acme", "Days=2"}));
        auto &controller = m_delegate->tableController();
        QVERIFY(controller.setData(controller.index(1, 1), "x", Qt::EditRole));
        {
            SheetAnswerer answers({"OK"});
            m_delegate->createNewProject();
            QCOMPARE(answers.seen, QStringList{"'Days' has to be changed|This must be a whole number."});
            QVERIFY(QDir(m_work->filePath("Projects")).isEmpty());
        }
        QTRY_VERIFY(QApplication::focusWidget()); // the sheet gives it back when the window is active again
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(controller.setData(controller.index(1, 1), "3", Qt::EditRole));
        QVERIFY(controller.setData(controller.index(0, 1), "Bolt", Qt::EditRole));
        m_delegate->createNewProject();
        QCOMPARE(QDir(m_work->filePath("Projects/Bolt")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({"A 1", "A 2", "A 3", "B", "top.txt"}));
        // What was typed stays with the other template, as far as it has it.
        auto *popUp = part<QComboBox>("projectTemplatePopUp");
        popUp->setCurrentIndex(popUp->findData("Plain"));
        QTRY_COMPARE(table(), QStringList({"Client=Bolt", "Job=01"}));
        popUp->setCurrentIndex(popUp->findData("Film"));
        QTRY_COMPARE(table(), QStringList({"Client=Bolt", "Days=3"}));
        // Other parameters than those that are shown are not made a project of.
        some.hidden.clear();
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(some); }).ok());
        SheetAnswerer answers({"OK", "OK"});
        QVERIFY(controller.setData(controller.index(0, 1), "New", Qt::EditRole));
        m_delegate->createNewProject();
        QCOMPARE(answers.seen.value(0).section('|', 0, 0), "The template has other parameters by now");
        QCOMPARE(table(), QStringList({"Client=New", "Job=01", "Days=3"}));
        QVERIFY(platform::isMissing(m_work->filePath("Projects/New")));
        writeFile(rulefile::pathIn(bundle()), "nonsense");
        m_delegate->createNewProject();
        QCOMPARE(answers.seen.value(1).section('|', 0, 0), "The template’s rules cannot be read");
    }

    void ownParameters()
    {
        m_delegate->toolbarTemplateAction();
        QTRY_VERIFY(window().templatePane().outlineController().rules().isRead);
        m_delegate->editTemplateParameters();
        auto *sheet = window().findChild<OwnParametersSheet *>();
        QVERIFY(sheet && QTest::qWaitForWindowExposed(sheet));
        for (QToolButton *add : sheet->findChildren<QToolButton *>()) {
            if (add->toolTip() == "Add a parameter")
                add->click();
        }
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClicks(QApplication::focusWidget(), "Days");
        for (QComboBox *kind : sheet->findChildren<QComboBox *>()) {
            if (kind->accessibleName() == "What becomes of Job")
                kind->setCurrentIndex(2);
        }
        button(*sheet, "OK")->click(); // with what is being typed
        QTRY_COMPARE(rules().hidden, QStringList{"Job"});
        QCOMPARE(rules().parameters.value(0).toMap().value("title").toString(), "Days");
        m_delegate->undo();
        QTRY_VERIFY(rules().isEmpty());
    }

    void manyAtOnce()
    {
        m_delegate->createFromTable();
        auto *sheet = window().findChild<TableSheet *>();
        QVERIFY(sheet && QTest::qWaitForWindowExposed(sheet));
        auto *view = sheet->findChild<QTableView *>();
        const QAbstractItemModelTester tester(view->model());
        QPushButton *create = button(*sheet, "Create Projects");
        QVERIFY(!create->isEnabled());
        QApplication::clipboard()->setText("Client\tTemplate\tNote\nA\t\t\nB\tNone\tx\nC\tPlain\t\n");
        button(*sheet, "Paste")->click();
        QTRY_COMPARE(view->model()->rowCount(), 3);
        QVERIFY(!create->isEnabled());
        QVERIFY(view->model()->index(1, 2).data(Qt::ToolTipRole).toString().startsWith("There is no template “None”"));
        for (QRadioButton *manner : sheet->findChildren<QRadioButton *>()) {
            manner->click();
            QCOMPARE(create->isEnabled(), manner->text().contains("Leave"));
        }
        sheet->findChild<QRadioButton *>()->click();
        QVERIFY(view->model()->setData(view->model()->index(1, 2), "Plain")); // mended where it is marked
        QTRY_VERIFY(create->isEnabled());
        QCOMPARE(view->model()->index(2, 0).data().toString(), "C_03");
        create->click();
        QTRY_COMPARE(QDir(m_work->filePath("Projects")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                     QStringList({"A_01", "B_02", "C_03"}));
        QTRY_COMPARE(table().constLast(), "Job=04");
        QVERIFY(!platform::isMissing(m_work->filePath("Projects/C_03/p.txt")));
        m_delegate->undo();
        QTRY_VERIFY(QDir(m_work->filePath("Projects")).isEmpty());
        QCOMPARE(table().constLast(), "Job=01");
    }
};

TESSARO_TEST_MAIN(QApplication, TestRulesWindow)
#include "test_rules_window.moc"

// The form in which a project is named, driven by keys in a window, and as an engine without one.
#include "harness/OffscreenMessages.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/desktop/Desktop.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "ui/PathControl.h"
#include "ui/VTTabbedEditTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

QVariantMap record(const QString &value, const QVariantMap &more = {})
{
    QVariantMap record{{"title", "T"}, {"type", 0}, {"val", value}, {"defaultVal", "default"}};
    record.insert(more);
    return record;
}
const QVariantMap remembered{{"saveHistory", true}, {"history", QVariantList{"Beta", "Alpha"}}};
const QVariantMap chosen{{"type", 5}, {"defaultVal", "Red,Green"}};
const QVariantMap locked{{"locked", 1}};

/// The form as its window has it.
struct Form
{
    QWidget window;
    VTTabbedEditTableView table;
    PathControl path;
    QLabel warning;
    VTProjectTableController controller;
    QAbstractItemModelTester tester{&controller, QAbstractItemModelTester::FailureReportingMode::QtTest};

    explicit Form(const QVariantList &records)
    {
        storeSetting(settings::filenameTemplate, records);
        auto *column = new QVBoxLayout(&window);
        for (QWidget *widget : std::initializer_list<QWidget *>{&table, &path, &warning})
            column->addWidget(widget);
        table.setItemDelegate(new ValueCellDelegate(&table));
        warning.hide();
        controller.setViews({&table, nullptr, &path, nullptr, &warning});
        controller.awakeFromNib();
        window.resize(500, 500);
        window.show();
        window.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&window));
    }
    QWidget *editor(int row) const { return table.indexWidget(controller.index(row, 1)); }
    /// The row that is being edited with the keys going there, -1 when the table has them, -2 when neither.
    int editedRow() const
    {
        for (int row = 0; row < controller.rowCount(); ++row) {
            if (editor(row) && editor(row) == QApplication::focusWidget())
                return row;
        }
        return table.hasFocus() ? -1 : -2;
    }
    QString value(int row) const { return controller.dataArray().at(row).value(); }
    bool isStored() const { return storedParameters() == controller.dataArray(); }
    void set(int row, const QString &text) { controller.setData(controller.index(row, 1), text, Qt::EditRole); }
};

void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}
void type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

} // namespace

class TestProjectTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        keepBackOffscreenMessages();
        settings::registerDefaults();
    }

    void walks_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("Tab into a history") << 0 << Qt::Key_Tab << 1;
        QTest::newRow("Tab goes round") << 2 << Qt::Key_Tab << 0;
        QTest::newRow("Shift-Tab out of a history") << 1 << Qt::Key_Backtab << 0;
        QTest::newRow("Shift-Tab goes round") << 0 << Qt::Key_Backtab << 2;
        QTest::newRow("Return") << 1 << Qt::Key_Return << 2;
        QTest::newRow("Enter on the last row leaves") << 2 << Qt::Key_Enter << -1;
        QTest::newRow("Escape puts back") << 1 << Qt::Key_Escape << -1;
    }
    void walks()
    {
        QFETCH(int, start);
        QFETCH(Qt::Key, key);
        QFETCH(int, row);
        Form form({record("one"), record("two", remembered), record("three")});
        const QString old = form.value(start);
        form.controller.editItem(start);
        type("typed over"); // the whole old text was selected
        press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QTRY_COMPARE(form.editedRow(), row);
        QCOMPARE(form.table.firstSelectedRow(), std::optional(row < 0 ? start : row));
        QCOMPARE(form.value(start), key == Qt::Key_Escape ? old : "typed over");
        QVERIFY(form.isStored() && form.path.path().contains(form.value(start)));
    }

    /// Locked rows are passed over; one that is selected with the mouse has the keys, and changes nothing.
    void passesOverLockedRows()
    {
        Form form({record("one"), record("two", locked), record("three", locked), record("four")});
        Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
        QCOMPARE(form.editedRow(), 0);
        for (const int row : {3, 0, 3}) {
            press(Qt::Key_Tab);
            QCOMPARE(form.editedRow(), row);
        }
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(form.editedRow(), 0);
        press(Qt::Key_Escape);
        form.table.selectRow(1);
        type("x");
        press(Qt::Key_F2);
        QCOMPARE(form.editedRow(), -1);
        QCOMPARE(form.value(1), "default");
        press(Qt::Key_Return); // on to the next that can be typed
        QCOMPARE(form.editedRow(), 3);
    }

    void isReadAloud()
    {
        Form form({record("one", remembered), record("two")});
        const auto *model = form.table.model();
        QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), "Parameter");
        QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), "Value");
        QCOMPARE(model->headerData(1, Qt::Vertical).toString(), form.controller.dataArray()[1].title());
        form.controller.editItem(0);
        const auto *combo = form.table.findChild<QComboBox *>();
        QVERIFY(combo && combo->lineEdit());
        QCOMPARE(combo->lineEdit()->accessibleName(), form.controller.dataArray()[0].title());
        QCOMPARE(combo->accessibleDescription(), form.controller.dataArray()[0].title());
    }

    void pastesIntoTheRow()
    {
        Form form({record("one"), record("two", locked)});
        form.table.setFocus();
        QGuiApplication::clipboard()->setText("Acme \nsecond line");
        for (int row = 0; row < 2; ++row) {
            form.table.selectRow(row);
            press(Qt::Key_V, Qt::ControlModifier);
        }
        QCOMPARE(form.value(0), "Acme");
        QCOMPARE(form.value(1), "default");
        QVERIFY(form.isStored());
    }

    /// The form is filled in when Return comes anew behind the last value, and at no other time.
    void returnBehindTheLastValue()
    {
        Form form({record("one"), record("two"), record("three", locked)});
        QSignalSpy filledIn(&form.table, &VTTabbedEditTableView::filledIn);
        form.table.setFocus();
        form.table.selectRow(0);
        press(Qt::Key_Return); // edits the row
        QCOMPARE(form.editedRow(), 0);
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), 1);
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), -1);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(&form.table, &held);
        QCOMPARE(filledIn.size(), 0);
        form.table.selectRow(0); // somebody goes elsewhere first
        press(Qt::Key_Return);
        QCOMPARE(form.editedRow(), 0);
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), 1);
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), -1);
        press(Qt::Key_Return);
        QCOMPARE(filledIn.size(), 1);
    }

    void deleteKeysRevert()
    {
        Form form({record("typed", {{"saveHistory", true}}), record("typed", {{"saveHistory", true}, {"locked", 1}}),
                   record("", chosen)});
        form.table.setFocus();
        for (const auto key : {Qt::Key_Backspace, Qt::Key_Delete}) {
            form.set(2, "Green");
            for (int row = 0; row < 3; ++row) {
                form.table.selectRow(row);
                press(key);
                QCOMPARE(form.value(row), row == 2 ? "Red" : "default");
            }
            QVERIFY(form.isStored() && form.controller.dataArray()[0].history().isEmpty());
        }
    }

    void historyCombo()
    {
        Form form({record("", remembered)});
        for (const char *typed : {"1", "2", "3"})
            form.set(0, typed);
        form.controller.editFirstItem();
        auto *combo = qobject_cast<QComboBox *>(form.editor(0));
        QVERIFY(combo && combo->isEditable() && combo->count() == 5 && combo->currentText() == "3");
        press(Qt::Key_Down);
        QCOMPARE(combo->currentText(), "2");
        form.controller.finishEditing();
        QCOMPARE(form.controller.dataArray()[0].history(), QStringList({"2", "3", "1", "Beta", "Alpha"}));
    }

    void choiceCombo()
    {
        Form form({record("Blue", chosen), record("two")});
        form.controller.editFirstItem();
        auto *combo = qobject_cast<QComboBox *>(form.editor(0));
        QVERIFY(combo && !combo->isEditable() && combo->count() == 2 && combo->currentIndex() == -1);
        press(Qt::Key_Tab);
        QCOMPARE(form.value(0), "Blue"); // passing through chooses nothing
        form.controller.editFirstItem();
        type("g");
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), 1);
        QCOMPARE(form.value(0), "Green");
        QVERIFY(form.isStored());
    }

    /// The line below the table and the words beside a value follow every key; Escape puts back what was.
    void followsTheKeys()
    {
        Form form({record("one", {{"disallowEmpty", true}, {"saveHistory", true}}), record("Red", chosen),
                   record("2147483646", {{"type", 2}, {"folder", true}})});
        const auto hint = [&](int row) {
            return form.controller.index(row, 1).data(CellRole::Hint).toString();
        };
        form.controller.editFirstItem();
        type("two");
        QTRY_COMPARE(form.path.path(), "/two_Red/2147483646");
        QCOMPARE(form.value(0), "one");
        press(Qt::Key_Escape);
        QCOMPARE(form.path.path(), "/one_Red/2147483646");
        form.controller.editFirstItem();
        press(Qt::Key_Backspace);
        QTRY_COMPARE(hint(0), "required");
        const int whole = form.table.columnWidth(1);
        QVERIFY(form.editor(0)->width() < whole); // makes room for the words
        type("ab");                               // both letters: what is said of the first selects nothing
        QTRY_COMPARE(form.path.path(), "/ab_Red/2147483646");
        type(QString(300, u'x'));
        QTRY_COMPARE(hint(0), "too long");
        press(Qt::Key_Escape);
        QCOMPARE(hint(0), "");
        form.controller.editItem(2);
        type("2147483647");
        QCOMPARE(hint(2), "counts no further");
        type("8"); // of ten digits and more
        QCOMPARE(hint(2), "counts no further");
        press(Qt::Key_Escape);
        form.controller.editItem(1);
        auto *choices = qobject_cast<QComboBox *>(form.editor(1));
        choices->showPopup();
        QTest::keyClick(choices->view(), Qt::Key_Down);
        QTest::keyClick(choices->view(), Qt::Key_Return);
        QCOMPARE(form.value(1), "Green"); // counts at once, while its editor is open
        QCOMPARE(form.path.path(), "/one_Green/2147483646");
        QVERIFY(form.isStored());
    }

    void oneRememberedValueGoes()
    {
        Form form({record("x", remembered)});
        form.controller.editFirstItem();
        type("half");
        auto *combo = qobject_cast<QComboBox *>(form.editor(0));
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(0, 0));
        QTest::keyClick(combo->view(), Qt::Key_Delete);
        QCOMPARE(storedParameters()[0].history(), QStringList("Alpha"));
        QCOMPARE(combo->currentText(), "half");
        QVERIFY(combo->count() == 1 && combo->view()->isVisible());
        combo->hidePopup();
        form.controller.finishEditing();
        QCOMPARE(storedParameters()[0].history(), QStringList({"half", "Alpha"}));
        form.controller.editFirstItem(); // the one that is shown goes, too
        combo = qobject_cast<QComboBox *>(form.editor(0));
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(0, 0));
        QTest::keyClick(combo->view(), Qt::Key_Delete);
        combo->hidePopup();
        form.controller.finishEditing();
        QCOMPARE(storedParameters()[0].history(), QStringList("Alpha"));
    }

    /// What was typed in place of the date stays until somebody wants the date back.
    void typedOver()
    {
        Form form({record("", {{"type", 3}, {"defaultVal", "unused"}})});
        const QString today = form.value(0);
        const QModelIndex cell = form.controller.index(0, 1);
        QVERIFY(today.size() == 10 && cell.data(CellRole::Secondary).toBool());
        form.set(0, "2001-01-01");
        form.controller.bringUpToDate();
        QCOMPARE(form.value(0), "2001-01-01");
        QVERIFY(!cell.data(CellRole::Secondary).toBool() && cell.data(Qt::ToolTipRole).toString().contains(today));
        form.table.setFocus();
        form.table.selectRow(0);
        press(Qt::Key_Delete);
        QCOMPARE(form.value(0), today);
        QCOMPARE(cell.data(CellRole::Hint).toString(), "");
        QVERIFY(form.isStored());
        // A date that another program has added is filled in, and what is typed over stays beside it.
        form.set(0, "2001-01-01");
        storeSetting(settings::filenameTemplate,
                     QVariantList{storedParameters()[0].record(), record("", {{"title", "Day"}, {"type", 3}})});
        form.controller.bringUpToDate();
        QCOMPARE(form.value(0), "2001-01-01");
        QCOMPARE(form.value(1), today);
    }

    void engineWithoutViews()
    {
        storeSetting(settings::filenameTemplate,
                     QVariantList{record("one"), record("two", remembered), record("7", {{"type", 2}}),
                                  record("", {{"type", 3}}), record("Green", chosen)});
        VTProjectTableController engine;
        engine.awakeFromNib();
        const auto values = [&engine] {
            QStringList list;
            for (const FilenameParameter &parameter : engine.dataArray())
                list.append(parameter.isAutomatic() ? QString() : parameter.value());
            return storedParameters() == engine.dataArray() ? list : QStringList("The stored list is another");
        };
        QCOMPARE(values(), QStringList({"default", "two", "7", "", "Green"}));
        for (int row = 0; row < 3; ++row)
            QVERIFY(engine.setData(engine.index(row, 1), "9", Qt::EditRole));
        QVERIFY(engine.setData(engine.index(2, 1), "10", Qt::EditRole));
        QCOMPARE(values(), QStringList({"9", "9", "10", "", "Green"}));
        Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams(); // what was typed without a history goes
        Q_EMIT Notifications::hub().VTTessaroRefreshDynamicValues();
        QCOMPARE(values(), QStringList({"default", "9", "10", "", "Green"}));
        QCOMPARE(engine.dataArray()[3].value().size(), 10);
        engine.clearHistory();
        QCOMPARE(values(), QStringList({"default", "default", "10", "", "Green"}));
        storeSetting(settings::filenameTemplate, QVariantList());
        Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams();
        QCOMPARE(engine.rowCount(), 0); // an empty list is a list
        storeSetting(settings::filenameTemplate, "rubbish");
        Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams();
        QVERIFY(engine.rowCount() > 1 && storedParameters() == engine.dataArray());
        QCOMPARE(settings::standard().string("filenameTemplate.damaged"), "rubbish");
    }

    /// Another program changes the list while a value is being typed here.
    void followsOthers_data()
    {
        QTest::addColumn<QVariantList>("theirs");
        QTest::addColumn<QStringList>("while typing");
        QTest::addColumn<QStringList>("after");
        const auto titled = [](const char *title, const char *value, const QVariantMap &more = {}) {
            QVariantMap record{{"title", title}, {"type", 0}, {"val", value}};
            record.insert(more);
            return QVariant(record);
        };
        QTest::newRow("a value") << QVariantList{titled("A", "new"), titled("B", "2"), titled("C", "3")}
                                 << QStringList{"A=new", "B=2", "C=3"} << QStringList{"A=new", "B=typed", "C=3"};
        QTest::newRow("the value being typed")
            << QVariantList{titled("A", "1"), titled("B", "new"), titled("C", "3")}
            << QStringList{"A=1", "B=new", "C=3"} << QStringList{"A=1", "B=typed", "C=3"};
        QTest::newRow("rows around it") << QVariantList{titled("Z", "0"), titled("B", "2"), titled("C", "3"),
                                                        titled("D", "4")}
                                        << QStringList{"Z=0", "B=2", "C=3", "D=4"}
                                        << QStringList{"Z=0", "B=typed", "C=3", "D=4"};
        QTest::newRow("its row moved") << QVariantList{titled("B", "2"), titled("C", "3"), titled("A", "1")}
                                       << QStringList{"B=2", "C=3", "A=1"} << QStringList{"B=typed", "C=3", "A=1"};
        QTest::newRow("its row gone") << QVariantList{titled("A", "1"), titled("C", "9")}
                                      << QStringList{"A=1", "B=2", "C=3"} << QStringList{"A=1", "C=9"};
        QTest::newRow("its kind") << QVariantList{titled("A", "1"), titled("B", "2", {{"type", 2}}), titled("C", "3")}
                                  << QStringList{"A=1", "B=2", "C=3"} << QStringList{"A=1", "B=typed", "C=3"};
    }
    void followsOthers()
    {
        QFETCH(QVariantList, theirs);
        const auto titled = [](const char *title, const char *value) {
            return QVariant(QVariantMap{{"title", title}, {"type", 0}, {"val", value}});
        };
        Form form({titled("A", "1"), titled("B", "2"), titled("C", "3")});
        const auto values = [&] {
            QStringList list;
            for (const FilenameParameter &parameter : form.controller.dataArray())
                list << parameter.title() + '=' + parameter.value();
            return list;
        };
        form.controller.editItem(1);
        QApplication::focusWidget()->setProperty("mine", true);
        type("typ");
        storeSetting(settings::filenameTemplate, theirs);
        form.controller.follow();
        QTEST(values(), "while typing");
        QVERIFY(QApplication::focusWidget() && QApplication::focusWidget()->property("mine").toBool());
        type("ed");
        form.controller.finishEditing();
        QTEST(values(), "after");
        QVERIFY(form.isStored());
    }

    /// An editor that is open and untouched shows the new value, and leaving it puts nothing back.
    void anUntouchedEditorFollows()
    {
        Form form({record("old", {{"title", "A"}, {"saveHistory", true}}), record("x", {{"title", "B"}})});
        form.controller.editItem(0);
        storeSetting(settings::filenameTemplate, QVariantList{record("new", {{"title", "A"}, {"saveHistory", true}}),
                                                              record("x", {{"title", "B"}})});
        form.controller.follow();
        QCOMPARE(qobject_cast<QComboBox *>(form.editor(0))->currentText(), "new");
        press(Qt::Key_Tab);
        QTRY_COMPARE(form.editedRow(), 1);
        QCOMPARE(form.value(0), "new");
        form.controller.editItem(0);
        type("typed over"); // the whole text was selected
        form.controller.finishEditing();
        QCOMPARE(form.value(0), "typed over");
        QVERIFY(form.isStored());
    }

    /// What this window only shows, it does not put back when it stores something else.
    void putsNothingBack()
    {
        Form form({record("041", {{"title", "Job"}, {"type", 2}}), record("x", {{"title", "Name"}})});
        storeSetting(settings::filenameTemplate,
                     QVariantList{record("042", {{"title", "Job"}, {"type", 2}}), record("x", {{"title", "Name"}}),
                                  record("a", {{"title", "Reel"}})});
        form.set(1, "Promo");
        const FilenameParameters stored = storedParameters();
        QCOMPARE(stored.size(), 3);
        QCOMPARE(stored[0].value(), "042");
        QCOMPARE(stored[1].value(), "Promo");
        QVERIFY(form.isStored() && form.path.path().contains("042_Promo"));
    }

    void warnsOfAnExistingProject()
    {
        const QString projects = QDir::homePath() + "/Projects";
        writeFile(projects + "/Acme/041/notes");
        storeSetting(settings::fixedProjectLocationPath, projects);
        Form form({record("", {{"defaultVal", ""}}), record("041", {{"defaultVal", "041"}, {"folder", true}})});
        form.set(0, "Acme");
        QTRY_VERIFY(form.warning.isVisible());
        form.set(0, "Other");
        QTRY_VERIFY(!form.warning.isVisible());
        form.set(0, "Acme"); // the answer about a name no longer shown does not count
        form.set(0, "Other");
        QTest::qWait(100);
        QVERIFY(!form.warning.isVisible());
    }
};

TESSARO_TEST_MAIN(QApplication, TestProjectTable)
#include "test_project_table.moc"

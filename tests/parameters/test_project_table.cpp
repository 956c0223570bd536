// The form in which a project is named, driven by keys in a window, and as an engine without one.
#include "parameters/ProjectNaming.h"
#include "parameters/VTProjectTableController.h"
#include "platform/Desktop.h"
#include "support/Notifications.h"
#include "support/OffscreenMessages.h"
#include "support/Settings.h"
#include "support/TemporaryHome.h"
#include "support/VTLog.h"
#include "ui/PathControl.h"
#include "ui/Spinner.h"
#include "ui/VTTabbedEditTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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

/// The form as its window has it, with a control on either side that takes the focus too.
struct Form
{
    QWidget window;
    QLineEdit before;
    VTTabbedEditTableView table;
    QPushButton after;
    PathControl path;
    Spinner spinner;
    QLabel label, warning;
    VTProjectTableController controller;
    QAbstractItemModelTester tester{&controller, QAbstractItemModelTester::FailureReportingMode::QtTest};

    explicit Form(const QVariantList &records)
    {
        settings::standard().setValue(settings::filenameTemplate, records);
        auto *column = new QVBoxLayout(&window);
        for (QWidget *widget :
             std::initializer_list<QWidget *>{&before, &table, &after, &path, &spinner, &label, &warning})
            column->addWidget(widget);
        table.setItemDelegate(new ValueCellDelegate(&table));
        warning.hide();
        controller.setViews({&table, &label, &path, &spinner, &warning});
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

QByteArray logged()
{
    VTLog::finishWriting();
    return readFile(VTLog::sharedController().currentLogPath());
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
        VTLog::createNewLog();
    }
    void cleanupTestCase() { QFile::remove(VTLog::sharedController().currentLogPath()); }
    void cleanup()
    {
        for (const QString &key : {settings::strictNaming, settings::fixedProjectLocationPath})
            settings::standard().removeValue(key);
    }

    void walks_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("Tab into a history") << 0 << int(Qt::Key_Tab) << 1;
        QTest::newRow("Tab out of a history") << 1 << int(Qt::Key_Tab) << 2;
        QTest::newRow("Tab goes round") << 2 << int(Qt::Key_Tab) << 0;
        QTest::newRow("Shift-Tab") << 2 << int(Qt::Key_Backtab) << 1;
        QTest::newRow("Shift-Tab goes round") << 0 << int(Qt::Key_Backtab) << 2;
        QTest::newRow("Return") << 0 << int(Qt::Key_Return) << 1;
        QTest::newRow("Enter on the last row leaves") << 2 << int(Qt::Key_Enter) << -1;
        QTest::newRow("Return on the last row leaves") << 2 << int(Qt::Key_Return) << -1;
        QTest::newRow("Escape puts back") << 0 << int(Qt::Key_Escape) << -1;
        QTest::newRow("Escape in a history") << 1 << int(Qt::Key_Escape) << -1;
    }
    void walks()
    {
        QFETCH(int, start);
        QFETCH(int, key);
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

    /// A locked row is a step on the way, and no trap: there the table itself has the keys.
    void walksOverLockedRows()
    {
        Form form({record("one"), record("two", locked), record("three", locked), record("four")});
        Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
        QCOMPARE(form.editedRow(), 0);
        for (const int row : {-1, -1, 3}) {
            press(Qt::Key_Tab);
            QCOMPARE(form.editedRow(), row);
        }
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(form.table.firstSelectedRow(), std::optional(1));
        type("x");
        press(Qt::Key_F2);
        QCOMPARE(form.editedRow(), -1);
        QCOMPARE(form.value(1), "default");
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        press(Qt::Key_Escape);
        press(Qt::Key_Backtab, Qt::ShiftModifier); // above the first row the keys go on to the next control
        QCOMPARE(QApplication::focusWidget(), &form.before);
    }

    void deleteKeysRevert_data()
    {
        QTest::addColumn<QVariantMap>("more");
        QTest::addColumn<QString>("value");
        QTest::newRow("text") << QVariantMap() << "default";
        QTest::newRow("locked") << locked << "default";
        QTest::newRow("choices") << chosen << "Red";
    }
    void deleteKeysRevert()
    {
        QFETCH(QVariantMap, more);
        more.insert("saveHistory", true); // keeps the typed value at loading, but no reverted one is remembered
        for (const auto key : {Qt::Key_Backspace, Qt::Key_Delete}) {
            Form form({record("first"), record("typed", more)});
            form.table.setFocus();
            form.table.selectRow(1);
            const auto lines = logged().count("Reverting (null) to its default value\n");
            press(key);
            QTEST(form.value(1), "value");
            QVERIFY(form.isStored() && form.controller.dataArray()[1].history().isEmpty());
            QCOMPARE(logged().count("Reverting (null) to its default value\n"), lines + 1);
        }
    }

    void historyCombo()
    {
        Form form({record("", remembered)});
        for (int i = 1; i <= 51; ++i)
            form.set(0, QString::number(i));
        form.controller.editFirstItem();
        auto *combo = qobject_cast<QComboBox *>(form.editor(0));
        QVERIFY(combo && combo->isEditable());
        QCOMPARE(combo->count(), 50);
        QVERIFY(combo->itemText(0) == "51" && combo->itemText(49) == "2" && combo->currentText() == "51");
        press(Qt::Key_Down);
        QCOMPARE(combo->currentText(), "50");
        form.controller.finishEditing();
        QCOMPARE(form.controller.dataArray()[0].history().mid(0, 3), QStringList({"50", "51", "49"}));
        QVERIFY(form.isStored());
    }

    void choiceCombo()
    {
        Form form({record("Blue", chosen), record("two")});
        form.controller.editFirstItem();
        auto *combo = qobject_cast<QComboBox *>(form.editor(0));
        QVERIFY(combo && !combo->isEditable() && combo->count() == 2 && combo->currentIndex() == -1);
        press(Qt::Key_Tab);
        QCOMPARE(form.value(0), "Blue"); // passing through chooses nothing
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        type("Purple");
        form.controller.finishEditing();
        QCOMPARE(form.value(0), "Blue");
        form.controller.editFirstItem();
        type("g");
        press(Qt::Key_Return);
        QTRY_COMPARE(form.editedRow(), 1);
        QCOMPARE(form.value(0), "Green");
        QVERIFY(form.isStored());
    }

    void finishEditingCommits()
    {
        settings::standard().setValue(settings::strictNaming, true);
        Form form({record("one")});
        form.controller.finishEditing(); // nothing to commit
        form.controller.editFirstItem();
        type("still typing!");
        form.controller.finishEditing();
        QCOMPARE(form.editedRow(), -1);
        QCOMPARE(storedParameters().at(0).value(), "stilltyping");
        form.set(0, "!!!");
        QVERIFY(form.value(0) == "!!!" && logged().contains("string length is 0"));
    }

    void engineWithoutViews()
    {
        settings::standard().setValue(settings::filenameTemplate,
                                      QVariantList{record("one"), record("two", remembered), record("7", {{"type", 2}}),
                                                   record("", {{"type", 3}}), record("Green", chosen)});
        VTProjectTableController engine;
        const QAbstractItemModelTester tester(&engine, QAbstractItemModelTester::FailureReportingMode::QtTest);
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
        QVERIFY(!engine.setData(engine.index(0, 0), "title", Qt::EditRole));
        engine.incrementDynamicValues();
        QCOMPARE(values(), QStringList({"9", "9", "10", "", "Green"}));
        Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams(); // what was typed without a history goes
        Q_EMIT Notifications::hub().VTTessaroRefreshDynamicValues();
        QCOMPARE(values(), QStringList({"default", "9", "10", "", "Green"}));
        QCOMPARE(engine.dataArray()[3].value().size(), 10);
        engine.clearHistory();
        QCOMPARE(values(), QStringList({"default", "default", "10", "", "Green"}));
        engine.finishEditing();
        engine.revertToDefaultValue();
        Q_EMIT Notifications::hub().VTTessaroEditFirstParameter();
        settings::standard().setValue(settings::filenameTemplate, QVariantList());
        Q_EMIT Notifications::hub().VTTessaroReloadFilenameParams();
        QCOMPARE(engine.rowCount(), 0); // an empty list is a list
    }

    void damagedListFallsBack()
    {
        settings::standard().setValue(settings::filenameTemplate, "rubbish");
        VTProjectTableController engine;
        engine.awakeFromNib();
        QVERIFY(engine.rowCount() > 1 && storedParameters() == engine.dataArray());
        QCOMPARE(settings::standard().string("filenameTemplate.damaged"), "rubbish");
    }

    void warnsOfAnExistingProject()
    {
        const QString projects = QDir::homePath() + "/Projects";
        writeFile(projects + "/Acme/041/notes");
        settings::standard().setValue(settings::fixedProjectLocationPath, projects);
        Form form({record("", {{"defaultVal", ""}}), record("041", {{"defaultVal", "041"}, {"folder", true}})});
        for (const double raised : {1.6, 3.2, 4.8}) {
            form.set(0, "Acme");
            QTRY_VERIFY(form.warning.isVisible());
            QCOMPARE(form.path.originRaised(), raised);
            QCOMPARE(form.path.path(), "/Acme/041");
            form.set(0, "Other");
            QTRY_VERIFY(!form.warning.isVisible());
        }
        form.set(0, "Acme"); // the answer about a name that is no longer shown does not count
        form.set(0, "Other");
        QTest::qWait(100);
        QVERIFY(!form.warning.isVisible());
    }

    void anyViewMayBeMissing()
    {
        settings::standard().setValue(settings::filenameTemplate, QVariantList{record("one")});
        PathControl path;
        VTProjectTableController controller;
        controller.setViews({nullptr, nullptr, &path, nullptr, nullptr});
        controller.awakeFromNib();
        QTest::qWait(100);
        QCOMPARE(path.path(), "/default");
    }
};

TESSARO_TEST_MAIN(QApplication, TestProjectTable)
#include "test_project_table.moc"

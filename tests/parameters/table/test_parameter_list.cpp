// Editing the list of parameters: what is shown of it, and where dragged rows arrive.
#include "harness/Records.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "parameters/table/ParameterEditorModel.h"
#include "platform/base/LocalTime.h"
#include "platform/desktop/Desktop.h"
#include "support/Notifications.h"
#include "support/Settings.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using parameterlist::Column;

namespace {

FilenameParameters listOf(const QString &titles)
{
    FilenameParameters list;
    for (const QChar title : titles)
        list.append(FilenameParameter(record({{"title", QString(title)}})));
    return list;
}

QString titlesOf(const FilenameParameters &list)
{
    QString titles;
    for (const FilenameParameter &parameter : list)
        titles += parameter.title();
    return titles;
}

} // namespace

class TestParameterList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drags_data()
    {
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<int>("dropRow");
        QTest::addColumn<QString>("order");
        QTest::addColumn<QList<int>>("selection");
        QTest::newRow("third above the first") << QList<int>{2} << 0 << "CABD" << QList<int>{0};
        QTest::newRow("two arrive in reverse") << QList<int>{1, 2} << 0 << "CBAD" << QList<int>{0, 0};
        QTest::newRow("in whatever order they were selected") << QList<int>{2, 1} << 0 << "CBAD" << QList<int>{0, 0};
        QTest::newRow("just above itself goes to the end") << QList<int>{1} << 1 << "ACDB" << QList<int>{3};
        QTest::newRow("to the end") << QList<int>{0, 2} << 4 << "BDAC" << QList<int>{2, 3};
        QTest::newRow("downwards") << QList<int>{0} << 2 << "BACD" << QList<int>{1};
        QTest::newRow("all of them") << QList<int>{0, 1, 2, 3} << 1 << "ABCD" << QList<int>{0, 1, 2, 3};
    }
    void drags()
    {
        QFETCH(QList<int>, rows);
        QFETCH(int, dropRow);
        const auto moved = parameterlist::moved(listOf("ABCD"), rows, dropRow);
        QVERIFY(moved);
        QTEST(titlesOf(moved->list), "order");
        QTEST(moved->selection, "selection");
    }

    void equalTitles()
    {
        QVERIFY(!parameterlist::moved(listOf("AB"), {}, 0) && !parameterlist::moved(listOf("AB"), {7, -1}, 0));
        // Equal records cannot be told apart: the first of them is where the drop goes.
        QCOMPARE(titlesOf(parameterlist::moved(listOf("AABA"), {2}, 3)->list), QString("BAAA"));
        QCOMPARE(titlesOf(parameterlist::without(listOf("AABA"), {1, 2})), QString("AA"));
    }

    void theTable()
    {
        settings::registerDefaults();
        storeSetting(
            settings::filenameTemplate,
            QVariantList{
                record({{"title", "Day"}, {"type", 3}, {"defaultVal", "x"}}),
                record(
                    {{"title", "Kind"}, {"type", 5}, {"saveHistory", true}, {"defaultVal", "a,b"}, {"unknown", 7}})});
        ParameterEditorModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto at = [&](int row, Column column) {
            return model.index(row, static_cast<int>(column));
        };
        QCOMPARE(at(0, Column::Default).data(), "(auto)");
        QVERIFY(!(model.flags(at(0, Column::Default)) & Qt::ItemIsEditable));
        QCOMPARE(at(0, Column::Folder).data(Qt::CheckStateRole), Qt::Checked); // the first always begins the path
        QVERIFY(!model.setData(at(0, Column::Folder), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(at(1, Column::History).data(Qt::CheckStateRole), Qt::Unchecked);
        QVERIFY(!model.setData(at(1, Column::History), Qt::Checked, Qt::CheckStateRole));

        QSignalSpy reloaded(&Notifications::hub(), &Notifications::VTTessaroReloadFilenameParams);
        QSignalSpy refreshed(&Notifications::hub(), &Notifications::VTTessaroRefreshDynamicValues);
        QVERIFY(model.setData(at(1, Column::Kind), "Counter", Qt::EditRole));
        QVERIFY(model.setData(at(1, Column::Locked), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(model.setData(at(1, Column::Title), "", Qt::EditRole)); // an empty title is the user's own
        QCOMPARE(storedParameters()[1].kind(), FilenameParameter::Kind::Counter);
        QVERIFY(storedParameters()[1].isLocked());
        QCOMPARE(storedParameters()[1].entry("unknown"), QVariant(7LL)); // what it does not know it keeps
        QCOMPARE(model.addNewFilenameParam(), 2);
        QCOMPARE(storedParameters()[2].title(), QString("New Parameter"));
        const std::unique_ptr<QMimeData> dragged(model.mimeData({at(2, Column::Title), at(2, Column::Kind)}));
        QVERIFY(model.dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, {}));
        QCOMPARE(storedParameters()[0].title(), QString("New Parameter"));
        QCOMPARE(reloaded.size(), 5);
        QCOMPARE(refreshed.size(), 5);
        model.restoreDefaultParams();
        QCOMPARE(storedParameters()[0].title(), QString("Client"));
        QMimeData foreign;
        foreign.setText("x");
        QVERIFY(!model.canDropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));
    }

    void listsFromElsewhere()
    {
        QCOMPARE(parameterlist::checkedList(QVariantList{record({})})->size(), 1);
        QVERIFY(!parameterlist::checkedList("text"));
        QVERIFY(parameterlist::checkedList(QVariantList{record({}), 5}).outcome().sentence().contains('2'));
        QVERIFY(!parameterlist::checkedList(QVariantList{QVariantMap{{"title", 5}}}));
    }

    void dateFormats()
    {
        for (const QString &format : parameterlist::dateFormats())
            QVERIFY(!platform::formatDate(format, 1'304'424'000).isEmpty());
        QCOMPARE(platform::formatDate(parameterlist::dateFormats()[1], 1'304'424'000), QString("11-05-3"));
    }
};

TESSARO_TEST_MAIN(QApplication, TestParameterList)
#include "test_parameter_list.moc"

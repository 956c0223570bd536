// How values compose the folder levels of a project. Every path here was worked out by hand.
#include "parameters/ProjectNaming.h"
#include "platform/Desktop.h"
#include "support/Settings.h"
#include "support/TemporaryHome.h"

#include <QTest>

namespace {

/// A value that goes on in its level, and one that begins a level of its own.
QVariant same(const QVariant &value)
{
    return QVariantMap{{"title", "Some title"}, {"val", value}, {"folder", false}};
}
QVariant level(const QVariant &value, const QVariant &flag = true)
{
    return QVariantMap{{"title", "Some title"}, {"val", value}, {"folder", flag}};
}

const QString long300(300, 'n');

} // namespace

class TestNaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void composes_data()
    {
        QTest::addColumn<QVariantList>("records");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("separator");
        const auto row = [](const char *name, const QVariantList &records, const QString &path,
                            const QString &separator = "_") {
            QTest::newRow(name) << records << path << separator;
        };

        row("levels", {same("Acme"), level("2011-05-03"), same("Promo"), same("")}, "Acme/2011-05-03_Promo");
        row("the first flag closes nothing", {level("Acme"), same("041")}, "Acme_041");
        row("an empty level splits off the next", {same("x"), level(""), same("y")}, "x/y");
        row("before any text it waits for one more", {level(""), same("x"), same("y"), same("z")}, "x/y_z");
        row("two empty levels are one break", {same("x"), level(""), level(""), same("y"), same("z")}, "x/y_z");
        row("a break and a flag are one break", {same("x"), level(""), level("y"), same("z")}, "x/y_z");
        row("empty values leave no separators", {same(""), same("a"), same(""), same(""), same("b"), same("")}, "a_b");
        row("nothing at all", {same(""), level("")}, "");
        row("a long separator is whole", {same("a"), same("b"), level("c"), same("d")}, "a - b/c - d", " - ");
        row("a slash as separator makes no level", {same("a"), same("b")}, "ab", "/");
        row("slashes and colons", {same("A/C: Live"), level(" a/b:c ")}, "AC Live/abc");
        row("a slash alone", {same("/")}, "");
        row("one leading dot goes", {same(".hidden"), level("..draft"), same(".5")}, "hidden/.draft_.5");
        row("line ends around, not within", {same("Acme\r\n"), level("\n\t one\ntwo \t")}, "Acme/one\ntwo");
        row("emoji", {same("🎬👩‍🎤"), level("Café"), same("é")}, "🎬👩‍🎤/Café_é");
        row("right to left", {same("مشروع"), same("٠٤١"), level("‏פרויקט")},
            "مشروع_٠٤١/‏פרויקט");
        row("no limit of length", {same(long300), same(long300)}, long300 + "_" + long300);
        row("numbers for texts", {same(41LL), same(2.5), level(7, "1"), same("x"), level("y", 1.0)}, "41_2.5/7_x/y");
        row("no flag in these", {same("a"), level("b", ""), level("c", "0"), level("d", QVariantList{1})}, "a_b_c_d");
        row("values of a wrong type are empty",
            {same("a"), level(QVariantList{"x"}), same(QVariantMap{{"val", "x"}}), same(QByteArray("x")), same("b")},
            "a/b");
        row("without title, value or anything",
            {QVariantMap{{"val", "a"}}, QVariantMap{{"title", "t"}}, QVariantMap(), QVariantMap{{"val", "b"}}}, "a_b");
        row("what is no record is left out", {same("a"), "rubbish", 5, QVariant(), QVariantList{same("x")}, same("b")},
            "a_b");
    }
    void composes()
    {
        QFETCH(QVariantList, records);
        QFETCH(QString, path);
        QFETCH(QString, separator);
        const QStringList components = naming::pathComponents(parametersFromVariant(records), separator);
        QCOMPARE(naming::pathName(components), path);
        QCOMPARE(naming::projectName(components), path.section('/', -1));
        // A null path means "leave the preview as it is": a name that was cleaned away must still be shown as none.
        QVERIFY(!naming::pathName(components).isNull());
        QVERIFY(!naming::projectName(components).isNull());
    }

    void readsTheSettingsAtEachCall()
    {
        auto &store = settings::standard();
        store.setValue(settings::filenameTemplate, QVariantList{same("a"), same("b"), level("c"), same("d")});
        store.setValue(settings::separatorChar, "-");
        QCOMPARE(pathNameFromParameters(), "a-b/c-d");
        store.setValue(settings::separatorChar, 5LL);
        QCOMPARE(projectNameFromParameters(), "c5d");
        store.setValue(settings::filenameTemplate, "rubbish");
        QCOMPARE(pathComponentsFromParameters(), QStringList());
    }

    void requiredParameters_data()
    {
        QTest::addColumn<QVariantList>("values"); // of parameters of which the second and the last are required
        QTest::addColumn<int>("blank");
        QTest::newRow("filled") << QVariantList{"", "a", "", "b"} << -1;
        QTest::newRow("the first one counts") << QVariantList{"", "", "", ""} << 1;
        QTest::newRow("the last one") << QVariantList{"", "a", "", ""} << 3;
        QTest::newRow("no value") << QVariantList{"", QVariant(), "", ""} << 1;
        QTest::newRow("a number is a value") << QVariantList{"", 0, "", "b"} << -1;
        QTest::newRow("so is a blank") << QVariantList{"", " ", "", "b"} << -1;
        QTest::newRow("what is no text is not looked at") << QVariantList{"", QVariantList{"a"}, "", "b"} << -1;
    }
    void requiredParameters()
    {
        QFETCH(QVariantList, values);
        QFETCH(int, blank);
        FilenameParameters parameters;
        for (const QVariant &value : values)
            parameters.append(FilenameParameter({{"val", value}, {"disallowEmpty", parameters.size() % 2 == 1}}));
        QCOMPARE(naming::firstBlankRequired(parameters).value_or(-1), blank);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestNaming)
#include "test_naming.moc"

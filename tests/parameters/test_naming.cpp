// How values compose the folder levels of a project. Every path here was worked out by hand.
#include "harness/TemporaryHome.h"
#include "parameters/ProjectNaming.h"
#include "platform/desktop/Desktop.h"

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

QString path(const QVariantList &records, const QString &separator = "_")
{
    return naming::pathName(naming::pathComponents(parametersFromVariant(records), separator));
}

} // namespace

class TestNaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void composes()
    {
        QCOMPARE(path({same("Acme"), level("2011-05-03"), same("Promo"), same("")}), "Acme/2011-05-03_Promo");
        QCOMPARE(path({level("Acme"), same("041")}), "Acme_041");              // the first flag closes nothing
        QCOMPARE(path({same("x"), level(""), same("y")}), "x/y");              // an empty level splits off the next
        QCOMPARE(path({level(""), same("x"), same("y"), same("z")}), "x/y_z"); // before any text it waits for one more
        QCOMPARE(path({same("x"), level(""), level("y"), same("z")}), "x/y_z");
        QCOMPARE(path({same(""), same("a"), same(""), same(""), same("b"), same("")}), "a_b");
        QCOMPARE(path({same(""), level("")}), "");
        QVERIFY(!path({same("/")}).isNull()); // null would leave the preview as it is
        QCOMPARE(path({same("a"), same("b"), level("c"), same("d")}, " - "), "a - b/c - d");
        QCOMPARE(path({same("a"), same("b")}, "/"), "ab"); // a separator makes no level
        QCOMPARE(path({same("A/C: Live"), level(" a/b:c ")}), "AC Live/abc");
        QCOMPARE(path({same(".hidden"), level("..draft"), same(".5")}), "hidden/.draft_.5");
        QCOMPARE(path({same("Acme\r\n"), level("\n\t one\ntwo \t")}), "Acme/one\ntwo");
        QCOMPARE(path({same("🎬👩‍🎤"), level("Café"), same("é")}), "🎬👩‍🎤/Café_é");
        // Values and flags of other types.
        QCOMPARE(path({same(41LL), same(2.5), level(7, "1"), same("x"), level("y", 1.0)}), "41_2.5/7_x/y");
        QCOMPARE(path({same("a"), level("b", ""), level("c", "0"), level("d", QVariantList{1})}), "a_b_c_d");
        QCOMPARE(path({same("a"), level(QVariantList{"x"}), same(QByteArray("x")), same("b")}), "a/b");
        QCOMPARE(path({same("a"), "rubbish", 5, QVariant(), QVariantMap(), QVariantList{same("x")}, same("b")}), "a_b");
    }

    void requiredParameters()
    {
        const auto firstBlank = [](const QVariantList &values) { // the second and the last are required
            FilenameParameters parameters;
            for (const QVariant &value : values)
                parameters.append(FilenameParameter({{"val", value}, {"disallowEmpty", parameters.size() % 2 == 1}}));
            return naming::firstBlankRequired(parameters).value_or(-1);
        };
        QCOMPARE(firstBlank({"", "a", "", " "}), -1);
        QCOMPARE(firstBlank({"", "", "", ""}), 1);
        QCOMPARE(firstBlank({"", "a", "", ""}), 3);
        QCOMPARE(firstBlank({"", QVariant(), "", ""}), 1);
        QCOMPARE(firstBlank({"", 0, "", QVariantList{"a"}}), -1);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestNaming)
#include "test_naming.moc"

// What values must be and become, and what a template makes of the common parameters.
#include "parameters/ParameterScope.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"

#include <QTest>

namespace {

FilenameParameter parameter(const QVariantMap &record)
{
    return FilenameParameter(record);
}

FilenameParameters list(const QList<QVariantMap> &records)
{
    FilenameParameters parameters;
    for (const QVariantMap &record : records)
        parameters.append(FilenameParameter(record));
    return parameters;
}

QStringList values(const FilenameParameters &parameters)
{
    QStringList found;
    for (const FilenameParameter &one : parameters)
        found << one.title() + '=' + one.value();
    return found;
}

const forms::Moment moment{"%Y-%m-%d", 1'795'262'400};

} // namespace

class TestValueForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void problems_data()
    {
        QTest::addColumn<QVariantMap>("record");
        QTest::addColumn<QString>("good");
        QTest::addColumn<QString>("bad");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, const QVariantMap &record, const char *good, const char *bad,
                            const char *sentence) {
            QTest::newRow(name) << record << QString::fromUtf8(good) << QString::fromUtf8(bad) << QString(sentence);
        };
        row("number", {{"form", "number"}}, "-007", "7.5", "This must be a whole number.");
        row("date", {{"form", "date"}}, "2024-02-29", "2025-02-29", "This must be a date");
        row("length", {{"maxLength", 3LL}}, "🎬äb", "abcd", "This may have 3 characters, and has 4.");
        row("pattern", {{"pattern", "[A-Z]{3}|x"}, {"patternMessage", "Three letters"}}, "ABC", "ABCD",
            "Three letters");
        row("without a sentence", {{"pattern", "\\d+"}}, "12", "a12", "This does not fit the pattern \\d+.");
        row("no pattern", {{"pattern", "["}}, "", "a", "The parameter’s pattern is wrong");
        row("several", {{"type", 5LL}, {"several", true}, {"defaultVal", "A,B"}}, "B, A", "A, C", "“C” is not among");
    }
    void problems()
    {
        QFETCH(QVariantMap, record);
        QFETCH(QString, good);
        QFETCH(QString, bad);
        QFETCH(QString, sentence);
        FilenameParameter one = parameter(record);
        for (const QString &value : {QString(), good}) {
            one.setValue(value);
            QVERIFY2(forms::problemOf(one).isNull(), qPrintable(forms::problemOf(one)));
        }
        one.setValue(bad);
        QVERIFY2(forms::problemOf(one).startsWith(sentence), qPrintable(forms::problemOf(one)));
        QCOMPARE(naming::problems({one}, "_")[0], naming::Problem::Form);
    }

    void whatIsTyped()
    {
        QCOMPARE(rules::withTypedValue(parameter({{"letterCase", "upper"}}), "straße", false).value(), "STRASSE");
        QCOMPARE(rules::withTypedValue(parameter({{"letterCase", "title"}}), "my film", true).value(), "MyFilm");
        const FilenameParameter folder = rules::withTypedValue(parameter({{"form", "folder"}}), "/a/my drive", true);
        QCOMPARE(folder.value(), "/a/my drive");
        QCOMPARE(naming::pathComponents({folder, parameter({{"val", "x"}, {"outsideName", true}})}, "_"),
                 QStringList{"my drive"});
    }

    /// Follows what it is computed from until somebody types another value, and again when that is taken away.
    void computed()
    {
        FilenameParameters before =
            list({{{"title", "Client"}, {"val", "Big Fish"}},
                  {{"title", "Code"}, {"computed", "{Client|initials}-{Number:000}"}, {"letterCase", "lower"}},
                  {{"title", "Name"}, {"computed", "{Code} {Number}"}},
                  {{"title", "Number"}, {"type", 2LL}, {"val", "7"}}});
        FilenameParameters now = forms::withComputedValues(before, before, moment);
        QCOMPARE(values(now), QStringList({"Client=Big Fish", "Code=bf-007", "Name=bf-007 7", "Number=7"}));
        QVERIFY(forms::isComputed(now, 1, moment));
        const auto typed = [&](int row, const QString &value) {
            before = now;
            now[row].setValue(value);
            now = forms::withComputedValues(now, before, moment, row);
        };
        typed(0, "Old Cat");
        QCOMPARE(now[2].value(), "oc-007 7");
        typed(1, "own");
        QCOMPARE(now[2].value(), "own 7");
        typed(3, "8");
        QCOMPARE(values(now), QStringList({"Client=Old Cat", "Code=own", "Name=own 8", "Number=8"}));
        typed(1, "");
        QCOMPARE(values(now), QStringList({"Client=Old Cat", "Code=oc-008", "Name=oc-008 8", "Number=8"}));
    }

    void computedInACircle()
    {
        const FilenameParameters circle = list({{{"title", "A"}, {"computed", "{B}x"}},
                                                {{"title", "B"}, {"computed", "{A}x"}},
                                                {{"title", "C"}, {"computed", "{A}"}},
                                                {{"title", "D"}, {"computed", "{gone}"}}});
        const FilenameParameters now = forms::withComputedValues(circle, circle, moment);
        QCOMPARE(values(now), QStringList({"A=", "B=", "C=", "D="}));
        QVERIFY(forms::problemOfComputed(now, 0, moment).startsWith("It is computed from itself"));
        QVERIFY(forms::problemOfComputed(now, 3, moment).startsWith("There is no parameter “gone”"));
        QVERIFY(forms::problemOfComputed(now, 2, moment).isNull());
    }

    void ofOneTemplate()
    {
        const FilenameParameters common = list({{{"title", "Client"}, {"val", "Acme"}},
                                                {{"title", "Kind"}, {"val", "Film"}},
                                                {{"title", "Job"}, {"type", 2LL}, {"val", "1"}},
                                                {{"title", "Editor"}, {"val", "me"}, {"locked", 1LL}}});
        const ParameterScope scope{
            "T",
            list({{{"title", "Job"}, {"type", 2LL}, {"val", "100"}}, {{"title", "Own"}, {"val", "a"}}}),
            {{"Kind", "Series"}},
            {"Editor"}};
        const QVariantMap kept{{"Own", QVariantMap{{"val", "b"}, {"history", QVariantList{"b", "a"}}}}};
        FilenameParameters now = effectiveParameters(common, scope, kept);
        QCOMPARE(values(now), QStringList({"Client=Acme", "Kind=Series", "Job=100", "Own=b"}));
        QVERIFY(now[1].isLocked() && now[1].isFixedByTemplate() && !now[0].isLocked());
        QCOMPARE(now[3].history(), QStringList({"b", "a"}));
        now[0].setValue("Bolt");
        now[2].setValue("101");
        const KeptParameters after = keptParameters(now, common, scope);
        QCOMPARE(values(after.common), QStringList({"Client=Bolt", "Kind=Film", "Job=1", "Editor=me"}));
        QCOMPARE(after.common[1].record(), common[1].record());
        QCOMPARE(after.ownValues["Job"].toMap()["val"].toString(), "101");
        QCOMPARE(effectiveParameters(after.common, scope, after.ownValues), now);
    }
};

QTEST_APPLESS_MAIN(TestValueForms)
#include "test_value_forms.moc"

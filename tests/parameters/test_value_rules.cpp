// How values change: typed, counted up, refreshed, reverted, loaded.
#include "parameters/ValueRules.h"

#include <QTest>
#include <ctime>

namespace {

/// The newest in front.
QStringList numbered(int newest, int oldest)
{
    QStringList list;
    for (int i = newest; i >= oldest; --i)
        list.append(QString::number(i));
    return list;
}

QStringList valuesOf(const FilenameParameters &parameters)
{
    QStringList values;
    for (const FilenameParameter &parameter : parameters)
        values.append(parameter.value());
    return values;
}

/// One of each kind, the text kinds with and without what matters to the rules.
FilenameParameters oneOfEach(const QString &value)
{
    const QVariantMap common{{"val", value}, {"defaultVal", "first,second"}, {"history", QVariantList{"h"}}};
    FilenameParameters parameters;
    for (const int kind : {0, 1, 2, 3, 4, 5}) {
        parameters.append(FilenameParameter(common));
        parameters.last().setEntry("type", kind);
    }
    parameters.append(parameters.first());
    parameters.last().setEntry("saveHistory", true);
    parameters.append(FilenameParameter({{"val", value}, {"type", 99}}));
    return parameters;
}

} // namespace

class TestValueRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strictNaming_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("kept");
        QTest::newRow("marks and signs go") << "Café Promo!"
                                            << "CafPromo" << false;
        QTest::newRow("blanks, emoji, wide digits") << "A B\tC\n🎬１d"
                                                    << "ABCd" << false;
        QTest::newRow("the ends of the ranges") << "-_/09:@AZ[`az{"
                                                << "-_09AZaz" << false;
        QTest::newRow("as typed when nothing is left") << "!мир!"
                                                       << "!мир!" << true;
        QTest::newRow("nothing typed") << ""
                                       << "" << true;
    }
    void strictNaming()
    {
        QFETCH(QString, typed);
        QFETCH(bool, kept);
        bool keptTyped = !kept;
        QTEST(rules::strictlyNamed(typed, &keptTyped), "stored");
        QCOMPARE(keptTyped, kept);
    }

    void remembers_data()
    {
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("after");
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("saves");
        const auto row = [](const char *name, const QVariant &before, const QString &typed, const QStringList &after,
                            int kind = 0, bool saves = true) {
            QTest::newRow(name) << before << typed << after << kind << saves;
        };
        row("in front", QStringList{"a", "b"}, "c", {"c", "a", "b"});
        row("the first value", QVariant(), "c", {"c"});
        row("not twice", QStringList{"a", "b", "c"}, "c", {"c", "a", "b"});
        row("another case is another value", QStringList{"A"}, "a", {"a", "A"});
        row("what strict naming left", QStringList{"a"}, "c d!", {"cd", "a"});
        row("not an empty value", QStringList{"a"}, "", {"a"});
        row("the 50th", numbered(49, 1), "50", numbered(50, 1));
        row("the 51st drops the oldest", numbered(50, 1), "51", numbered(51, 2));
        row("a full list drops none for one of its own", numbered(50, 1), "1", QStringList{"1"} + numbered(50, 2));
        row("not where it is off", QStringList{"a"}, "b", {"a"}, 0, false);
        row("never for choices", QStringList{"a"}, "b", {"a"}, 5);
        row("a damaged history", "rubbish", "c", {"c"});
        row("damaged entries", QVariantList{"a", 5, QVariantMap()}, "c", {"c", "a"});
    }
    void remembers()
    {
        QFETCH(QVariant, before);
        QFETCH(QString, typed);
        QFETCH(int, kind);
        QFETCH(bool, saves);
        const FilenameParameter parameter(
            {{"type", kind}, {"saveHistory", saves}, {"history", before}, {"own", "kept"}});
        const FilenameParameter changed = rules::withTypedValue(parameter, typed, true);
        QTEST(changed.history(), "after");
        QCOMPARE(changed.value(), rules::strictlyNamed(typed));
        QCOMPARE(rules::withTypedValue(parameter, "a !", false).value(), "a !");
        QCOMPARE(changed.entry("own").toString(), "kept");
    }

    void counts_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const QString steps = "→1|9→10|007→008|0099→0100|999→1000|Job-041→Job-042|Take9→Take10|"
                              "Reel 12→Reel 13|Shot 10.2→Shot 10.3|v1.99→v1.100|-5→-6|A1B2→A002|"
                              "x 7a09→x 0008|Cut→Cut|Take_7b→Take_7b|Reel 3 →Reel 3 |Reel_3_→Reel_3_|"
                              "12\n→12\n|🎬7→🎬8|7🎬→7🎬|é09→é10|9²→9²|٠٤١→٠٤١|x٤1→x٤2|"
                              "2147483646→2147483647|2147483647→-2147483648|"
                              "99999999999999999999→000000000-2147483648";
        for (const QString &step : steps.split('|')) {
            const QStringList ends = step.split(u'→');
            QTest::newRow(qPrintable(step)) << ends[0] << ends[1];
        }
    }
    void counts()
    {
        QFETCH(QString, before);
        QTEST(rules::incrementNumber(before), "after");
    }

    void dates_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("date");
        const QString steps = "→2011-05-04|%y%m%d→110504|%e→4|%e. %B %Y→4. May 2011|%d%b→04May|"
                              "%A→Wednesday|%j→124|%H.%M%p→01.30AM|%z→+0530|%G-W%V→2011-W18|"
                              "%%e %%→%e %|Draft→Draft|📅 %d→📅 04|%→%";
        for (const QString &step : steps.split('|')) {
            const QStringList ends = step.split(u'→');
            QTest::newRow(qPrintable(step)) << ends[0] << ends[1];
        }
    }
    void dates()
    {
        // 2011-05-03 20:00 UTC is the next day already where the clock is five and a half hours ahead.
        constexpr std::time_t evening = 1304380800 + 20 * 3600;
        qputenv("TZ", "XST-5:30");
        tzset();
        QFETCH(QString, format);
        QFETCH(QString, date);
        QCOMPARE(rules::dateValue(format, evening), date);
        QCOMPARE(valuesOf(rules::withDynamicValues(oneOfEach("now"), format, "vera", evening)),
                 QStringList({"now", "now", "now", date, "vera", "now", "now", "now"}));
    }

    void wholeLists()
    {
        const FilenameParameters list = oneOfEach("v1");
        const QString d = "first,second";
        QCOMPARE(valuesOf(rules::withCountersAdvanced(list)),
                 QStringList({"v1", "v1", "v2", "v1", "v1", "v1", "v1", "v1"}));
        QCOMPARE(valuesOf(rules::asLoaded(list)), QStringList({d, d, "v1", d, d, "v1", "v1", "v1"}));
        const FilenameParameters cleared = rules::withHistoryCleared(list);
        QCOMPARE(valuesOf(cleared), QStringList({d, d, "v1", d, d, "v1", d, "v1"}));
        for (const FilenameParameter &parameter : cleared)
            QVERIFY(!parameter.record().contains("history"));
        QCOMPARE(rules::asLoaded(list).last().record(), list.last().record());
    }

    void reverts_data()
    {
        QTest::addColumn<QVariantMap>("record");
        QTest::addColumn<QString>("value");
        QTest::newRow("text") << QVariantMap{{"defaultVal", "a,b"}} << "a,b";
        QTest::newRow("number as default") << QVariantMap{{"defaultVal", 1LL}} << "1";
        QTest::newRow("choices") << QVariantMap{{"defaultVal", "Red,Green"}, {"type", 5}} << "Red";
        QTest::newRow("first choice empty") << QVariantMap{{"defaultVal", ",Red"}, {"type", 5}} << "";
        QTest::newRow("no choices") << QVariantMap{{"defaultVal", ""}, {"type", 5}} << "";
        QTest::newRow("no default") << QVariantMap{{"val", "x"}} << "";
    }
    void reverts()
    {
        QFETCH(QVariantMap, record);
        QTEST(rules::revertedValue(FilenameParameter(record)), "value");
    }
};

QTEST_GUILESS_MAIN(TestValueRules)
#include "test_value_rules.moc"

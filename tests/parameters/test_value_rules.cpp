// How values change: typed, counted up, refreshed, reverted, loaded.
#include "parameters/ValueRules.h"

#include <QTest>
#include <ctime>

class TestValueRules : public QObject
{
    Q_OBJECT

    /// "from→to|from→to", a row for each.
    static void addSteps(const QString &steps)
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        for (const QString &step : steps.split('|'))
            QTest::newRow(step.toUtf8()) << step.section(u'→', 0, 0) << step.section(u'→', 1);
    }

private Q_SLOTS:
    void strictNaming()
    {
        bool kept = true;
        QCOMPARE(rules::strictlyNamed("Café A\tC\n🎬１!", &kept), "CafAC");
        QVERIFY(!kept);
        QCOMPARE(rules::strictlyNamed("-_/09:@AZ[`az{", &kept), "-_09AZaz"); // the ends of the ranges
        QCOMPARE(rules::strictlyNamed("!мир!", &kept), "!мир!");
        QVERIFY2(kept, "As typed when nothing is left");
    }

    void remembers()
    {
        const auto history = [](const QVariant &before, const QString &typed, int kind = 0, bool saves = true) {
            const FilenameParameter parameter({{"type", kind}, {"saveHistory", saves}, {"history", before}});
            return rules::withTypedValue(parameter, typed, true).history();
        };
        QCOMPARE(history(QStringList{"a", "b", "c"}, "c"), QStringList({"c", "a", "b"}));
        QCOMPARE(history(QStringList{"A"}, "a"), QStringList({"a", "A"})); // another case is another value
        QCOMPARE(history(QStringList{"a"}, "c d!"), QStringList({"cd", "a"}));
        QCOMPARE(history(QStringList{"a"}, ""), QStringList{"a"});
        QCOMPARE(history(QStringList{"a"}, "b", 0, false), QStringList{"a"});
        QCOMPARE(history(QStringList{"a"}, "b", 5), QStringList{"a"}); // never for choices
        QCOMPARE(history("rubbish", "c"), QStringList{"c"});
        QCOMPARE(history(QVariantList{"a", 5, QVariantMap()}, "c"), QStringList({"c", "a"}));
        QStringList full;
        for (int i = 1; i <= 50; ++i)
            full.append(QString::number(i));
        QCOMPARE(history(full, "new"), QStringList{"new"} + full.mid(0, 49));
        QCOMPARE(history(full, "50"), QStringList{"50"} + full.mid(0, 49));
    }

    void counts_data()
    {
        const QString steps = "→1|9→10|0099→0100|999→1000|Job-041→Job-042|Reel 12→Reel 13|v1.99→v1.100|-5→-6|A1B2→A002|"
                              "x 7a09→x 0008|Cut→Cut|Take_7b→Take_7b|Reel 3 →Reel 3 |12\n→12\n|🎬7→🎬8|é09→é10|9²→9²|"
                              "٠٤١→٠٤١|x٤1→x٤2|2147483647→-2147483648|99999999999999999999→000000000-2147483648";
        addSteps(steps);
    }
    void counts()
    {
        QFETCH(QString, from);
        QTEST(rules::incrementNumber(from), "to");
    }

    void dates_data()
    {
        const QString steps = "→2011-05-04|%y%m%d→110504|%e. %B %Y→4. May 2011|%H.%M%p→01.30AM|%G-W%V→2011-W18|"
                              "%%e %%→%e %|Draft→Draft|📅 %d→📅 04|%→%";
        addSteps(steps);
    }
    void dates()
    {
        // 2011-05-03 20:00 UTC is the next day already where the clock is five and a half hours ahead.
        constexpr std::time_t evening = 1304380800 + 20 * 3600;
        qputenv("TZ", "XST-5:30");
        tzset();
        QFETCH(QString, from);
        QTEST(rules::dateValue(from, evening), "to");
    }

    void reverts()
    {
        const auto reverted = [](const QVariantMap &record) {
            return rules::revertedValue(FilenameParameter(record));
        };
        QCOMPARE(reverted({{"defaultVal", "a,b"}}), "a,b");
        QCOMPARE(reverted({{"defaultVal", 1LL}}), "1");
        QCOMPARE(reverted({{"defaultVal", "Red,Green"}, {"type", 5}}), "Red");
        QCOMPARE(reverted({{"defaultVal", ",Red"}, {"type", 5}}), "");
        QCOMPARE(reverted({{"val", "x"}}), "");
    }
};

QTEST_GUILESS_MAIN(TestValueRules)
#include "test_value_rules.moc"

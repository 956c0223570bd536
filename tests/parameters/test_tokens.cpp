// Values in names and texts: what a token stands for, and what is said where it stands for nothing.
#include "parameters/Tokens.h"

#include <QTest>

#include <clocale>

namespace {

constexpr std::time_t now = 1'795'262'400; // 2026-11-21 12:00 UTC

FilenameParameter parameter(const char *title, FilenameParameter::Kind kind, const QString &value)
{
    return FilenameParameter({{recordkey::title, QString(title)},
                              {recordkey::kind, static_cast<qlonglong>(kind)},
                              {recordkey::value, value}});
}

tokens::Values someValues()
{
    using Kind = FilenameParameter::Kind;
    tokens::Values values;
    values.add("Project", {"Promo"});
    values.add("Level:1", {"Acme"});
    tokens::addTo(values,
                  {parameter("Client", Kind::Text, "Österreich's Färber & Söhne"),
                   parameter("Number", Kind::Counter, "Job-041"), parameter("Date", Kind::Date, "21-11-2026"),
                   parameter("Typed", Kind::Date, "05-03-2025"), parameter("Shot", Kind::Text, "2024-02-29"),
                   parameter("Project", Kind::Text, "hidden by the project's name"),
                   parameter("Ratio 4:3", Kind::Text, "wide"), parameter("Empty", Kind::Text, ""),
                   parameter("Emoji", Kind::Text, "🎬 film 👩‍🎤")},
                  "%d-%m-%Y", now);
    return values;
}

} // namespace

class TestTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void filled_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // or the begin of what is said, behind a "!"
        const auto row = [](const char *text, const char *expected) {
            QTest::newRow(text) << QString(text) << QString(expected);
        };
        row("plain", "plain");
        row("", "");
        row("{Project} {Level:1}", "Promo Acme");
        row("{ client |upper}", "ÖSTERREICH'S FÄRBER & SÖHNE");
        row("{CLIENT|initials}-{Number:0000}", "ÖFS-0041");
        row("{Client|ascii|lower}", "osterreich's farber & sohne");
        row("{Client|slug}", "osterreich-s-farber-sohne");
        row("{Client|lower|title}", "Österreich's Färber & Söhne");
        row("{Number:0}", "41");
        row("{Date:%Y}/{Date:%B|upper}", "2026/NOVEMBER");
        row("{Typed:%Y-%m-%d}", "2025-03-05");
        row("{Shot:%e %b}", "29 Feb");
        row("{Ratio 4:3}", "wide");
        row("{Empty}", "");
        row("{Emoji|initials}{Emoji}", "F🎬 film 👩‍🎤");
        row("{{Client}} {{{Number}}}", "{Client} {Job-041}");
        row("a } b", "a } b");
        row("{Clinet}", "!There is no parameter “Clinet”.");
        row("{}", "!There is no parameter “”.");
        row("{Client", "!A “{” without");
        row("{Client|loud}", "!“loud” changes no value.");
        row("{Client:000}", "!“Client” is no number");
        row("{Empty:000}", "!“Empty” has no value yet.");
        row("{Client:%Y}", "!“Client” is no date");
        row("{Date:%Q}", "!“%Q” is no form of a date");
        row("{Client:x}", "!“x” is neither");
        row("{Number:}", "!“” is neither");
    }
    void filled()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const tokens::Filled result = tokens::filled(text, someValues());
        if (expected.startsWith('!'))
            QVERIFY2(result.problem.startsWith(expected.mid(1)), qPrintable(result.problem + result.text));
        else
            QCOMPARE(result.ok() ? result.text : result.problem, expected);
    }

    void roundsComeFirst()
    {
        const tokens::Values outer = someValues();
        tokens::Values inner(&outer);
        inner.add("n", {"7"});
        inner.add("Client", {"inner"});
        QCOMPARE(tokens::filled("{n:00} {Client} {Level:1}", inner).text, "07 inner Acme");
    }

    /// A width of a hundred million places is no format, and takes no memory.
    void hugeFormats()
    {
        const tokens::Values values = someValues();
        QVERIFY(!tokens::filled("{Number:" + QString(300, u'0') + "}", values).ok());
        QVERIFY(!tokens::filled("{Date:%99999999Y}", values).ok());
    }
};

QTEST_APPLESS_MAIN(TestTokens)
#include "test_tokens.moc"

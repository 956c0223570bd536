// The program's own formatter and its dates, which depend neither on the C library's formatter nor on the locale.
#include "platform/Desktop.h"
#include "platform/FormatString.h"
#include "platform/LocalTime.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <clocale>

using namespace platform;

namespace {
constexpr std::time_t fifthOfMarch = 1'299'332'770; // 2011-03-05 13:46:10 UTC, a Saturday
}

class TestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "XXX-5:30"); // east of Greenwich, by more than whole hours
        tzset();
    }

    void formats_data()
    {
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("expected");
        const QString null;
        QTest::newRow("texts") << formatString("%@ and %s", QString("a"), "b") << "a and b";
        QTest::newRow("missing arguments") << formatString("%@ %d %0.2f", "a") << "a (null) (null)";
        QTest::newRow("null text") << formatString("<%@>", null) << "<(null)>";
        QTest::newRow("empty text") << formatString("<%@>", QString("")) << "<>";
        QTest::newRow("percent in an argument") << formatString("%@ %@", "%@ %d", "b") << "%@ %d b";
        QTest::newRow("surplus argument") << formatString("%@", "a", "b") << "a";
        QTest::newRow("integers") << formatString("%d %i %ld %lld %u", -1, 2, -3L, 1LL << 40, 5u)
                                  << "-1 2 -3 1099511627776 5";
        QTest::newRow("rounded") << formatString("%0.2f %0.0f %f", 23.445, 0.6, 1.5) << "23.45 1 1.500000";
        QTest::newRow("integer as real") << formatString("%0.2f", 3) << "3.00";
        QTest::newRow("percent signs") << formatString("100%% %%@ %@", "a") << "100% %@ a";
        QTest::newRow("percent at the end") << formatString("50%") << "50%";
        QTest::newRow("unknown directive") << formatString("%q %@ %", "a") << "%q a %";
        QTest::newRow("unfinished directive") << formatString("%@ %0.", "a") << "a %0.";
        QTest::newRow("beyond the first plane") << formatString("%@", QString("\U0001F600%")) << "\U0001F600%";
    }
    void formats()
    {
        QFETCH(QString, result);
        QTEST(result, "expected");
    }

    void dates_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("expected");
        QTest::newRow("usual") << "%Y%m%d"
                               << "20110305";
        QTest::newRow("day without padding") << "<%e>"
                                             << "<5>";
        QTest::newRow("padded day") << "%d"
                                    << "05";
        QTest::newRow("percent, then e") << "%%e %e %%%e"
                                         << "%e 5 %5";
        QTest::newRow("names") << "%a %A %b %B %p"
                               << "Sat Saturday Mar March PM";
        QTest::newRow("zone") << "%H:%M %z"
                              << "19:16 +0530";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("nothing comes of it") << "%t%n"
                                             << "\t\n";
        QTest::newRow("percent at the end") << "100%"
                                            << "100%";
        QTest::newRow("text that is not ASCII") << "\u00E4%Y\U0001F600"
                                                << "\u00E42011\U0001F600";
        QTest::newRow("long") << QString("%A").repeated(3000) << QString("Saturday").repeated(3000);
    }
    void dates()
    {
        QFETCH(QString, format);
        QTEST(formatDate(format, fifthOfMarch), "expected");
    }

    /// Also those that are none, and widths that no memory can hold: each comes back, most with something.
    void knowsEveryDirective()
    {
        for (const QString &flags :
             QStringList{"", "-", "_", "0", "^", "#", "E", "O", "10", "999999999", "99999999999999999999"}) {
            for (char16_t letter = 0x20; letter < 0x7F; ++letter)
                static_cast<void>(formatDate(u'%' + flags + QChar(letter), fifthOfMarch));
        }
        for (const char letter : QByteArray("aAbBcCdDeFgGhHIjklmMnpPrRsStTuUVwWxXyYzZ%+"))
            QVERIFY2(!formatDate(QLatin1String("%") + QLatin1Char(letter), fifthOfMarch).isEmpty(), &letter);
    }

    void describesTheMoment()
    {
        QCOMPARE(dateDescription(fifthOfMarch), "2011-03-05 19:16:10 +0530");
        QVERIFY(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d [+-]\\d{4}$")
                    .match(currentDateDescription())
                    .hasMatch());
    }

    void staysEnglishInGermany()
    {
        const TemporaryHome home;
        if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) {
            QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", home.file("locale/de_DE.UTF-8")});
            qputenv("LOCPATH", home.file("locale").toUtf8());
        }
        QVERIFY2(std::setlocale(LC_ALL, "de_DE.UTF-8"), "Needs the package locales");
        QCOMPARE(formatDate("%B %A %c", fifthOfMarch), "March Saturday Sat Mar  5 19:16:10 2011");
        QCOMPARE(dateDescription(fifthOfMarch), "2011-03-05 19:16:10 +0530");
        QCOMPARE(formatString("%0.2f", 1234.5), "1234.50");
        std::setlocale(LC_ALL, "C.UTF-8");
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestText)
#include "test_text.moc"

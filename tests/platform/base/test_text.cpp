// The program's own formatter and its dates, which depend neither on the C library's formatter nor on the locale.
#include "harness/TemporaryHome.h"
#include "platform/base/FormatString.h"
#include "platform/base/LocalTime.h"
#include "platform/desktop/Desktop.h"

#include <QCoreApplication>
#include <QProcess>
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

    void formats()
    {
        const QString null;
        QCOMPARE(formatString("%@ and %s, 100%% %d %lld", QString("\U0001F600%"), "b", -1, 1LL << 40),
                 "\U0001F600% and b, 100% -1 1099511627776");
        QCOMPARE(formatString("%0.2f %0.0f %0.2f", 23.445, 0.6, 3), "23.45 1 3.00");
        QCOMPARE(formatString("%@ %@", "%@ %d", "b"), "%@ %d b");
        QCOMPARE(formatString("<%@> %@ %d", null), "<(null)> (null) (null)");
        QCOMPARE(formatString("%q %@ %", "a", "surplus"), "%q a %");
        QCOMPARE(formatString("%@ %0.", "a"), "a %0.");
    }

    void dates()
    {
        QCOMPARE(formatDate("%Y%m%d %H:%M %z", fifthOfMarch), "20110305 19:16 +0530");
        QCOMPARE(formatDate("%%e %e %%%e", fifthOfMarch), "%e 5 %5");
        QCOMPARE(formatDate("\u00E4%Y\U0001F600 100%", fifthOfMarch), "\u00E42011\U0001F600 100%");
        QCOMPARE(formatDate("", fifthOfMarch), "");
        QCOMPARE(formatDate(QString("%A").repeated(3000), fifthOfMarch), QString("Saturday").repeated(3000));
        // Directives that are none, and widths that no memory can hold: each comes back.
        for (const char *flags : {"", "-", "^", "E", "10", "999999999", "99999999999999999999"}) {
            for (char16_t letter = 0x20; letter < 0x7F; ++letter)
                static_cast<void>(formatDate(QLatin1Char('%') + QLatin1String(flags) + QChar(letter), fifthOfMarch));
        }
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

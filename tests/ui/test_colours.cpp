// What is written in a colour of our own can be read in every palette.
#include "harness/TemporaryHome.h"
#include "platform/base/System.h"
#include "ui/Colours.h"

#include <QApplication>
#include <QTest>

namespace {

QPalette paletteOf(const char *window, const char *base, const char *text, const char *highlight)
{
    QPalette palette{QColor(window)};
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

} // namespace

class TestColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrast()
    {
        QCOMPARE(contrastOf(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrastOf(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrastOf(QColor("#777777"), QColor("#777777")), 1.0);
        QVERIFY(contrastOf(QColor("#767676"), Qt::white) >= 4.5); // the lightest grey that can be read on white
        QVERIFY(contrastOf(QColor("#777777"), Qt::white) < 4.5);
    }

    void canBeRead_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << paletteOf("#efefef", "#ffffff", "#000000", "#308cc6");
        QTest::newRow("dark") << paletteOf("#2a2e32", "#1b1e20", "#fcfcfc", "#3daee9");
        QTest::newRow("grey on grey") << paletteOf("#d6d2d0", "#e8e4e2", "#3a3634", "#9b8a7a");
        QTest::newRow("high contrast, black") << paletteOf("#000000", "#000000", "#ffffff", "#1aebff");
        QTest::newRow("high contrast, white") << paletteOf("#ffffff", "#ffffff", "#000000", "#37006e");
        QTest::newRow("yellow on black") << paletteOf("#000000", "#000000", "#ffff00", "#008000");
        QTest::newRow("a pale accent") << paletteOf("#fafafa", "#ffffff", "#2e3436", "#fdf6a0");
        QTest::newRow("an accent as dark as the ground") << paletteOf("#20242c", "#14161a", "#e6e6e6", "#1c2333");
    }

    void canBeRead()
    {
        QFETCH(QPalette, palette);
        const QColor base = palette.color(QPalette::Base);
        const QColor window = palette.color(QPalette::Window);
        const QColor text = palette.color(QPalette::Text);
        QVERIFY(contrastOf(accentText(palette), base) >= leastContrast);
        QVERIFY(contrastOf(secondaryText(base, text), base) >= leastContrast);
        QVERIFY(contrastOf(secondaryText(window, text), window) >= leastContrast);
        const QColor placeholder = placeholderText(palette);
        QVERIFY(contrastOf(placeholder, base) >= leastContrast && contrastOf(placeholder, window) >= leastContrast);
        QVERIFY(placeholder != text); // it steps back
    }

    /// Where even the text cannot be read, nothing of ours is fainter than it.
    void hopelessPalette()
    {
        const QPalette palette = paletteOf("#808080", "#808080", "#8a8a8a", "#858585");
        QCOMPARE(accentText(palette), QColor("#8a8a8a"));
        QCOMPARE(secondaryText("#808080", "#8a8a8a"), QColor("#8a8a8a"));
    }
};

TESSARO_TEST_MAIN(QApplication, TestColours)
#include "test_colours.moc"

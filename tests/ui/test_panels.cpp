// The path preview, the save panel and the drawings, as they come out.
#include "platform/Desktop.h"
#include "support/OffscreenMessages.h"
#include "support/TemporaryHome.h"
#include "ui/Icons.h"
#include "ui/PathControl.h"
#include "ui/VTSavePanel.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Text
{
    double x;
    QString text;
};

/// The texts that the control draws, from left to right.
QList<Text> drawnTexts(PathControl &control)
{
    QBuffer buffer;
    QSvgGenerator picture;
    picture.setOutputDevice(&buffer);
    control.render(&picture);
    QList<Text> texts;
    buffer.open(QIODevice::ReadOnly);
    for (QXmlStreamReader xml(&buffer); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.name() == QLatin1String("text")) {
            const double x = xml.attributes().value("x").toDouble();
            texts.append({x, xml.readElementText()});
        }
    }
    return texts;
}

} // namespace

class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { keepBackOffscreenMessages(); }

    void pathFits_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("width");
        const QString long80(80, 'm');
        QTest::newRow("none") << "/" << 200;
        QTest::newRow("as wide as it likes") << "/Acme/041_Promo" << 1000;
        QTest::newRow("the long one gives way") << "/Acme/" + long80 + "/Promo" << 320;
        QTest::newRow("several long ones") << "/" + long80 + "/" + long80 + "x/" + long80 << 300;
        QTest::newRow("more levels than there is room") << "/First/b/c/d/e/f/g/h/i/Last" << 300;
        QTest::newRow("the narrowest") << "/Client/Year/Project" << 120;
    }
    void pathFits()
    {
        QFETCH(QString, path);
        QFETCH(int, width);
        PathControl control;
        control.setPath(path);
        control.resize(width, control.sizeHint().height());
        const QStringList whole = path.split('/', Qt::SkipEmptyParts);
        const QList<Text> drawn = drawnTexts(control);
        double right = 0;
        qsizetype place = -1;
        for (const Text &text : drawn) {
            QVERIFY2(text.x >= right, "One text over another");
            right = text.x + control.fontMetrics().horizontalAdvance(text.text);
            // What is left of a name is found in order: its beginning, an ellipsis, its end.
            const QStringList ends = text.text.split(u'…');
            for (++place; place < whole.size(); ++place) {
                if (whole[place].startsWith(ends.first()) && whole[place].endsWith(ends.last()))
                    break;
            }
            QVERIFY2(place < whole.size(), qPrintable(text.text));
        }
        QVERIFY2(right <= width, qPrintable(QString("%1 > %2").arg(right).arg(width)));
        QVERIFY2(whole.isEmpty() || place == whole.size() - 1, "The project itself is not shown");
        if (control.sizeHint().width() <= width)
            QCOMPARE(drawn.size(), whole.size());
    }

    void namesAreNoMarkup()
    {
        PathControl control;
        control.setPath("/<b>Acme</b>/<i>041</i>");
        QVERIFY2(!Qt::mightBeRichText(control.toolTip()) || control.toolTip().contains("&lt;b&gt;"), "Shown as markup");
    }

    void panelEndsAtOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("chosen"); // below the folder shown; null when the panel stays
        QTest::newRow("new") << "New project"
                             << "New project";
        QTest::newRow("an existing folder") << "Folder"
                                            << "Folder";
        QTest::newRow("an existing file") << "File.txt"
                                          << "File.txt";
        QTest::newRow("signs") << "$HOME ~ 100% 🎬"
                               << "$HOME ~ 100% 🎬";
        QTest::newRow("a path to go to") << "Folder/" << QString();
        QTest::newRow("a path to a new item") << "Folder/New"
                                              << "Folder/New";
        QTest::newRow("the folder above is no name") << ".." << QString();
    }
    void panelEndsAtOnce()
    {
        QFETCH(QString, typed);
        QFETCH(QString, chosen);
        const TemporaryHome home;
        writeFile(home.file("Here/Folder/Inside/x"));
        writeFile(home.file("Here/File.txt"));
        QWidget window;
        window.show();
        VTSavePanel panel(&window);
        panel.setDirectory(home.path() + "/Here");
        panel.setSuggestedName("Suggested");
        panel.open();
        auto *edit = panel.findChild<QLineEdit *>("fileNameEdit");
        QCOMPARE(edit->text(), "Suggested");
        edit->setText(typed);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(!qobject_cast<QMessageBox *>(QApplication::activeModalWidget()));
        QCOMPARE(panel.result() == QDialog::Accepted, !chosen.isNull());
        QCOMPARE(panel.isVisible(), chosen.isNull());
        if (!chosen.isNull())
            QCOMPARE(panel.chosenPath(), home.path() + "/Here/" + chosen);
    }

    void drawings_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &file : QDir(":/images").entryList({"*.svg"}))
            QTest::newRow(qPrintable(file)) << file.chopped(4);
    }
    void drawings()
    {
        QFETCH(QString, name);
        for (const int side : {16, 24}) {
            const QImage image = icons::named(name.toLatin1()).pixmap(side, side).toImage();
            QCOMPARE(image.size(), QSize(side, side));
            int painted = 0;
            for (int i = 0; i < side * side; ++i)
                painted += qAlpha(image.pixel(i % side, i / side)) > 60 ? 1 : 0;
            QVERIFY2(painted >= side / 4, "Next to nothing is drawn");
        }
        QFile file(":/images/" + name + ".svg");
        QVERIFY(file.open(QIODevice::ReadOnly));
        // Any other colour would stay as it is in a dark window.
        static const QRegularExpression colour("(?:fill|stroke|color|stop-color)\\s*[=:]\\s*.?([#\\w]+)");
        for (auto found = colour.globalMatch(QString::fromUtf8(file.readAll())); name != "tessaro" && found.hasNext();)
            QVERIFY(QStringList({"none", "#000000", "#808080"}).contains(found.next().captured(1)));
    }

    void drawingsFollowThePalette()
    {
        const QPalette usual = QApplication::palette();
        for (const QColor &text : {QColor(Qt::black), QColor(Qt::white)}) {
            QPalette palette = usual;
            palette.setColor(QPalette::WindowText, text);
            QApplication::setPalette(palette);
            const QImage image = icons::named("folder").pixmap(24, 24).toImage();
            QCOMPARE(image.pixelColor(2, 12).rgb(), text.rgb()); // the left edge of the folder
        }
        QApplication::setPalette(usual);
    }
};

TESSARO_TEST_MAIN(QApplication, TestPanels)
#include "test_panels.moc"

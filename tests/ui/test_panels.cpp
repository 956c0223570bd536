// The parts of the windows, as they come out.
#include "harness/OffscreenMessages.h"
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "ui/Icons.h"
#include "ui/PathControl.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTableView.h"

#include <QApplication>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTest>

namespace {

QRegion drawnBy(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return QRegion(QBitmap::fromImage(image.createAlphaMask()));
}

} // namespace

class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { keepBackOffscreenMessages(); }

    void pathIsNoMarkup()
    {
        PathControl control;
        control.setPath("/<b>Acme</b>/<i>041</i>");
        QVERIFY2(!Qt::mightBeRichText(control.toolTip()) || control.toolTip().contains("&lt;b&gt;"), "Shown as markup");
    }

    /// Each time by 1.6 points from where it is, and never out of sight.
    void pathIsRaised_data()
    {
        QTest::addColumn<int>("times");
        QTest::addColumn<int>("by");
        QTest::newRow("five times") << 5 << 8;
        QTest::newRow("as far as there is room") << 100 << 42;
    }
    void pathIsRaised()
    {
        QFETCH(int, times);
        PathControl control;
        control.setPath("/Acme");
        control.resize(control.sizeHint().width(), control.sizeHint().height() + 72); // 42 above what is drawn
        const QRegion before = drawnBy(control);
        for (int i = 0; i < times; ++i)
            control.raiseOrigin();
        QTEST(before.boundingRect().top() - drawnBy(control).boundingRect().top(), "by");
        QCOMPARE(drawnBy(control).boundingRect().height(), before.boundingRect().height());
    }

    void panelEndsAtOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("ends");
        QTest::newRow("a name") << "New ~ 100% 🎬" << true;
        QTest::newRow("a folder's") << "Folder" << true;
        QTest::newRow("a file's") << "File.txt" << true;
        QTest::newRow("a way in") << "Folder/" << false; // no name
        QTest::newRow("a way out") << ".." << false;
    }
    void panelEndsAtOnce()
    {
        QFETCH(QString, typed);
        QFETCH(bool, ends);
        const TemporaryHome home;
        writeFile(home.file("Here/Folder/Inside/x"));
        writeFile(home.file("Here/File.txt"));
        VTSavePanel panel(nullptr);
        panel.setDirectory(home.path() + "/Here");
        panel.setSuggestedName("Suggested");
        panel.open();
        auto *edit = panel.findChild<QLineEdit *>("fileNameEdit");
        QCOMPARE(edit->text(), "Suggested");
        edit->setText(typed);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(panel.result() == QDialog::Accepted, ends);
        QCOMPARE(panel.isVisible(), !ends);
        if (ends)
            QCOMPARE(panel.chosenPath(), home.path() + "/Here/" + typed);
    }

    void contextMenuSelects()
    {
        QStandardItemModel model(3, 2);
        VTTableView view;
        view.setModel(&model);
        view.resize(300, 300);
        view.show();
        const auto rightClick = [&view](const QPoint &point) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, point, view.viewport()->mapToGlobal(point));
            QApplication::sendEvent(view.viewport(), &event);
        };
        view.selectRow(0);
        rightClick(view.visualRect(model.index(2, 1)).center());
        QCOMPARE(view.selectionModel()->selectedRows(), QModelIndexList{model.index(2, 0)});
        rightClick({5, view.viewport()->height() - 5});
        QCOMPARE(view.firstSelectedRow(), std::nullopt);
    }

    void drawingsFollowThePalette()
    {
        for (const QColor &text : {QColor(Qt::white), QColor(Qt::black)}) {
            QPalette palette = QApplication::palette();
            palette.setColor(QPalette::WindowText, text);
            QApplication::setPalette(palette);
            const QImage image = icons::named("folder").pixmap(24, 24).toImage();
            QCOMPARE(image.pixelColor(2, 12).rgb(), text.rgb()); // the left edge of the folder
        }
    }
};

TESSARO_TEST_MAIN(QApplication, TestPanels)
#include "test_panels.moc"

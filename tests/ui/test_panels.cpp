// The parts of the windows, as they come out.
#include "harness/OffscreenMessages.h"
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "ui/Icons.h"
#include "ui/PathControl.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTableView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTest>

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

    void panelEndsAtOnce()
    {
        const TemporaryHome home;
        writeFile(home.file("Here/Folder/Inside/x"));
        writeFile(home.file("Here/File.txt"));
        for (const QString typed : {"New ~ 100% 🎬", "Folder", "File.txt", "Folder/", ".."}) {
            const bool ends = typed != "Folder/" && typed != ".."; // the others are ways to go, and no names
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

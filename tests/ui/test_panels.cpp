// The parts of the windows, as they come out.
#include "harness/OffscreenMessages.h"
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "ui/Icons.h"
#include "ui/ImportPanel.h"
#include "ui/PathControl.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTableView.h"

#include <QApplication>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
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

    /// What the destination panel gives is a folder: the one that is selected, or typed, or looked at.
    void panelGivesAFolder_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("looked at") << ""
                                   << "Here";
        QTest::newRow("typed") << "Folder"
                               << "Here/Folder";
        QTest::newRow("with a slash") << "Folder/"
                                      << "Here/Folder";
        QTest::newRow("above") << ".."
                               << "";
    }
    void panelGivesAFolder()
    {
        QFETCH(QString, typed);
        QFETCH(QString, chosen);
        const TemporaryHome home;
        writeFile(home.file("Here/Folder/Inside/x"));
        writeFile(home.file("Here/File.txt"));
        VTSavePanel panel(nullptr);
        panel.setDirectory(home.path() + "/Here");
        panel.open();
        auto *edit = panel.findChild<QLineEdit *>("fileNameEdit");
        edit->setText(typed);
        const auto *button = panel.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Open);
        QVERIFY(button && button->text().remove('&') == "Create Here");
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(panel.result(), int(QDialog::Accepted));
        QCOMPARE(QDir::cleanPath(panel.chosenFolder()), QDir::cleanPath(home.path() + '/' + chosen));
    }

    /// A bundle is one item, also for a double click; a plain folder is gone into; without anything to take it stays.
    void bundlesAreChosen_data()
    {
        QTest::addColumn<QStringList>("selected");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("doubleClicked");
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<QString>("shown");
        const QStringList none;
        QTest::newRow("nothing") << none << "" << false << none << "Here";
        QTest::newRow("a plain folder") << QStringList{"Folder"} << "" << false << none << "Here/Folder";
        QTest::newRow("a typed folder") << none << "Folder" << false << none << "Here/Folder";
        QTest::newRow("what is not there") << none << "Nowhere" << false << none << "Here";
        QTest::newRow("a typed bundle") << none << "B.TZT" << false << QStringList{"B.TZT"} << "Here";
        QTest::newRow("several, and a folder")
            << QStringList{"A.tzt", "B.TZT", "Folder"} << "" << false << QStringList{"A.tzt", "B.TZT"} << "Here";
        QTest::newRow("an archive") << QStringList{"C.tzt.zip"} << "" << true << QStringList{"C.tzt.zip"} << "Here";
        QTest::newRow("a double click") << QStringList{"A.tzt"} << "" << true << QStringList{"A.tzt"} << "Here";
    }
    void bundlesAreChosen()
    {
        QFETCH(QStringList, selected);
        QFETCH(QString, typed);
        QFETCH(bool, doubleClicked);
        QFETCH(QStringList, chosen);
        QFETCH(QString, shown);
        const TemporaryHome home;
        for (const char *file :
             {"Here/A.tzt/Files/x", "Here/B.TZT/Files/x", "Here/Folder/x", "Here/file.txt", "Here/C.tzt.zip"})
            writeFile(home.file(file));
        ImportPanel panel(nullptr, ImportPanel::Takes::Bundles, "tzt");
        panel.setDirectory(home.path() + "/Here");
        panel.open();
        auto *view = panel.findChild<QListView *>("listView");
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 4); // no other files
        for (int row = 0; row < 4; ++row) {
            const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
            if (!selected.contains(index.data().toString()))
                continue;
            view->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
            if (doubleClicked)
                QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
        }
        auto *edit = panel.findChild<QLineEdit *>("fileNameEdit");
        if (!typed.isEmpty()) {
            edit->setFocus();
            edit->setText(typed);
        }
        QVERIFY(!panel.findChild<QWidget *>("newFolderButton")->isVisible());
        if (panel.isVisible())
            panel.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Open)->click();
        QStringList names;
        for (const QString &path : panel.chosen())
            names.append(path.mid((home.path() + "/Here/").size()));
        names.sort();
        QCOMPARE(names, chosen);
        QCOMPARE(panel.isVisible(), chosen.isEmpty());
        QCOMPARE(panel.directory().absolutePath(), home.path() + '/' + shown);
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

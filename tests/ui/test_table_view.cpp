#include "platform/Desktop.h"
#include "support/TemporaryHome.h"
#include "ui/VTTableView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QStandardItemModel>
#include <QTest>

/// Receives what the watch keys send.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QStringList calls;
    Q_INVOKABLE void removeRow() { calls.append("remove"); }
    Q_INVOKABLE void renameRow() { calls.append("rename"); }
};

class TestTableView : public QObject
{
    Q_OBJECT

private:
    struct Fixture
    {
        QStandardItemModel model{3, 2};
        VTTableView view;
        Receiver receiver;

        Fixture()
        {
            view.setModel(&model);
            view.setWatchDelegate(&receiver);
            view.setEditTriggers(QAbstractItemView::NoEditTriggers); // typing into it starts no edit by itself
            view.resize(300, 300);
            view.show();
            view.setCurrentIndex(model.index(0, 0));
        }
        void rightClick(const QPoint &point, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
        {
            QContextMenuEvent event(reason, point, view.viewport()->mapToGlobal(point));
            QApplication::sendEvent(reason == QContextMenuEvent::Mouse ? view.viewport() : &view, &event);
        }
    };

private Q_SLOTS:
    void watchKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, int key, const QStringList &calls, Qt::KeyboardModifiers modifiers = {}) {
            QTest::newRow(name) << key << modifiers << calls;
        };
        row("backspace", Qt::Key_Backspace, {"remove"});
        row("forward delete", Qt::Key_Delete, {"remove"});
        row("the first registered wins", Qt::Key_R, {"rename"});
        row("control is not looked at", Qt::Key_R, {"rename"}, Qt::ControlModifier);
        row("shift makes another character", Qt::Key_R, {}, Qt::ShiftModifier);
        row("a missing method is passed over", Qt::Key_X, {"remove"});
        row("not watched", Qt::Key_Q, {});
    }
    void watchKeys()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Fixture f;
        f.view.addWatchKeys({127, 63272}, "removeRow");
        f.view.addWatchKeys({'r'}, "renameRow");
        f.view.addWatchKeys({'r'}, "removeRow");
        f.view.addWatchKeys({'x'}, "noSuchMethod");
        f.view.addWatchKeys({'x'}, "removeRow");
        QTest::keyClick(&f.view, Qt::Key(key), modifiers);
        QTEST(f.receiver.calls, "calls");
        f.receiver.calls.clear();
        f.view.edit(f.model.index(1, 0)); // now the keys are the editor's
        QTest::keyClick(f.view.indexWidget(f.model.index(1, 0)), Qt::Key(key), modifiers);
        QTest::keyClick(&f.view, Qt::Key(key), modifiers);
        QCOMPARE(f.receiver.calls, QStringList());
    }

    void handlerComesFirst_data()
    {
        QTest::addColumn<bool>("handles");
        QTest::addColumn<int>("row"); // where the current row is after Down, which only the inherited handling moves
        QTest::newRow("yes") << true << 0;
        QTest::newRow("no") << false << 1;
    }
    void handlerComesFirst()
    {
        QFETCH(bool, handles);
        QFETCH(int, row);
        Fixture f;
        QStringList heard;
        const auto note = [&](const char *what) {
            return [&heard, what, handles](VTTableView &, QKeyEvent &) {
                return heard.append(what), handles;
            };
        };
        f.view.setKeyDownHandler(note("down"));
        f.view.setKeyUpHandler(note("up"));
        f.view.addWatchKeys({127}, "removeRow");
        QTest::keyClick(&f.view, Qt::Key_Backspace);
        QCOMPARE(f.receiver.calls, QStringList("remove")); // a watched key is called whatever the handler says
        QTest::keyClick(&f.view, Qt::Key_Down);
        QCOMPARE(f.view.currentIndex().row(), row);
        QCOMPARE(heard, QStringList({"down", "up", "down", "up"}));
        f.view.edit(f.view.currentIndex());
        QTest::keyClick(&f.view, Qt::Key_Backspace);
        QCOMPARE(heard.size(), 4);
    }

    void contextMenuSelects()
    {
        Fixture f;
        f.view.selectRow(0);
        f.rightClick(f.view.visualRect(f.model.index(2, 1)).center());
        QCOMPARE(f.view.firstSelectedRow(), std::optional(2));
        QCOMPARE(f.view.selectionModel()->selectedRows().size(), 1);
        f.rightClick({5, f.view.viewport()->height() - 5});
        QCOMPARE(f.view.firstSelectedRow(), std::nullopt);
        // Asked for by key it is about the row that is selected, wherever the desktop puts the point.
        f.view.selectRow(1);
        f.rightClick({5, f.view.height() - 5}, QContextMenuEvent::Keyboard);
        QCOMPARE(f.view.firstSelectedRow(), std::optional(1));
    }
};

TESSARO_TEST_MAIN(QApplication, TestTableView)
#include "test_table_view.moc"

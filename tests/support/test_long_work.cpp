// When long work is shown, what of it, and who can stop it.
#include "harness/TemporaryHome.h"
#include "platform/base/MainThread.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "support/FileFallback.h"
#include "support/FileOperations.h"
#include "support/LongWork.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <thread>

using platform::CopyMonitor;

namespace {

class Shown : public WorkPresenter
{
public:
    Shown() { LongWork::setPresenter(this); }
    ~Shown() override { LongWork::setPresenter(nullptr); }
    QStringList what;
    WorkState last;
    bool isUp = false;

private:
    void show(const WorkState &state) override
    {
        if (what.isEmpty() || what.constLast() != state.what)
            what << state.what;
        last = state;
        isUp = true;
    }
    void hide() override { isUp = false; }
};

} // namespace

class TestLongWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatIsLong()
    {
        Shown shown;
        CopyMonitor monitor;
        for (int i = 0; i < 10; ++i) {
            const LongWork work("short", monitor);
            QTest::qWait(20);
        }
        QVERIFY(shown.what.isEmpty());
        {
            const LongWork work("long", monitor, [&](const std::atomic<bool> &) { monitor.itemsTotal = 8; });
            CopyMonitor inner;
            const LongWork part("part of it", inner);
            QCOMPARE(&part.monitor(), &monitor);
            monitor.items = 2;
            monitor.enter("folder");
            QTRY_COMPARE(shown.last.itemsTotal, quint64(8));
            QVERIFY(shown.isUp && shown.last.folder == "folder" && shown.last.fraction() == 0.25);
        }
        QVERIFY(!shown.isUp);
        QCOMPARE(shown.what, QStringList{"long"});
    }

    /// Of two the later one; when that is over, the first again.
    void severalAtOnce()
    {
        Shown shown;
        CopyMonitor first;
        CopyMonitor second;
        const LongWork work("first", first);
        std::atomic<bool> over = false;
        std::thread other([&] {
            const LongWork later("second", second);
            while (!second.cancelled)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            over = true;
        });
        QTRY_COMPARE(shown.last.what, QString("second"));
        LongWork::cancelShown();
        QTRY_VERIFY(over);
        other.join();
        QTRY_COMPARE(shown.last.what, QString("first"));
        QVERIFY(!first.cancelled);
    }

    void amounts_data()
    {
        QTest::addColumn<WorkState>("state");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<double>("fraction");
        QTest::newRow("nothing yet") << WorkState{"x", {}, 0} << "" << -1.0;
        QTest::newRow("items") << WorkState{"x", "", 1200, 100000} << "1,200 of 100,000 items" << 0.012;
        QTest::newRow("both") << WorkState{"x", "", 1, 2, 500'000'000, 2'000'000'000}
                              << "1 of 2 items, 500.0 MB of 2.0 GB" << 0.375;
        QTest::newRow("more than was thought") << WorkState{"x", "", 12, 10} << "12 of 12 items" << 1.0;
        QTest::newRow("no total") << WorkState{"x", "", 7, 0, 1000} << "7 items, 1.0 kB" << -1.0;
    }
    void amounts()
    {
        QFETCH(WorkState, state);
        QTEST(state.amount(), "amount");
        QTEST(state.fraction(), "fraction");
    }

    /// A tool that runs on the main thread's behalf leaves the event loop alive, and can be ended.
    void aToolCanBeStopped()
    {
        CopyMonitor monitor;
        int beats = 0;
        QTimer heart;
        connect(&heart, &QTimer::timeout, &heart, [&] {
            if (++beats == 20)
                monitor.cancelled = true;
        });
        heart.start(10);
        QElapsedTimer clock;
        clock.start();
        const auto failure = platform::Outcome::failure(platform::Cause::Other, "x");
        const auto done = fallBackToTool(
            ShouldAuth::Yes, failure, {"/bin/sleep", {"60"}}, [] { return false; }, monitor);
        QVERIFY(done.is(platform::Cause::Cancelled) && beats >= 20);
        QVERIFY(clock.elapsed() < 30'000);
    }

    /// What was copied of the item is gone again, and no tool goes on with it.
    void aCancelledCopyLeavesNothing()
    {
        const TemporaryHome home;
        writeFile(home.file("from/a"), "x");
        CopyMonitor monitor;
        monitor.cancelled = true;
        const LongWork work("outer", monitor);
        const auto copied = fileoperations::copyFile(home.file("from"), home.path() + "/to");
        QVERIFY(copied.is(platform::Cause::Cancelled));
        QCOMPARE(platform::kindOf(home.path() + "/to"), platform::FileKind::Missing);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestLongWork)
#include "test_long_work.moc"

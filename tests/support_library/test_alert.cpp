// Alerts: the code reaches whoever asked, on whatever thread, and the sheet goes away.
#include "platform/Desktop.h"
#include "support/AlertPresenter.h"
#include "support/TemporaryHome.h"
#include "support/VTAlert.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <thread>

using namespace std::chrono_literals;
using Block = VTAlert::Block;

namespace {

/// Answers a while after the sheet went up, as a user does, or at once, or never.
class RecordingPresenter : public AlertPresenter
{
public:
    void present(const Sheet &sheet, std::function<void(int)> answer) override
    {
        onMainThread = onMainThread && QThread::currentThread() == QCoreApplication::instance()->thread();
        sheets.append(sheet);
        up.append(sheet.alert);
        waiting = answer;
        if (delay == 0ms)
            answer(code);
        else if (delay > 0ms)
            QTimer::singleShot(delay, [this, answer] { answer(code); });
    }
    void orderOut(const VTAlert *alert) override { up.removeAll(alert); }

    QList<Sheet> sheets;
    QList<const VTAlert *> up;
    std::function<void(int)> waiting;
    std::chrono::milliseconds delay{20};
    int code = 1;
    bool onMainThread = true;
};

} // namespace

class Delegate : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void ended(VTAlert *, qlonglong code, void *) { codes.append(code); }
    Q_INVOKABLE void otherForm(int) {}
    QList<qlonglong> codes;
};

class TestAlert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_presenter.emplace();
        VTAlert::setPresenter(&*m_presenter);
    }
    void cleanup()
    {
        QCOMPARE(m_presenter->up.size(), 0);
        QVERIFY(m_presenter->onMainThread);
        VTAlert::setPresenter(nullptr);
    }

    void returnsTheCode_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("delay");
        QTest::addColumn<bool>("onWorker");
        for (const int code : {1, 0, -1}) {
            QTest::addRow("%d, main thread", code) << code << 30 << false;
            QTest::addRow("%d, main thread, at once", code) << code << 0 << false;
            QTest::addRow("%d, worker", code) << code << 30 << true;
        }
    }
    void returnsTheCode()
    {
        QFETCH(int, delay);
        QFETCH(bool, onWorker);
        QFETCH(int, code);
        m_presenter->code = code;
        m_presenter->delay = std::chrono::milliseconds(delay);
        std::atomic<int> answer = 99;
        const auto ask = [&] {
            answer = VTAlert::alertSheetWithMessageText("Message", "Yes", "No", {}, "Because", nullptr, Block::No);
        };
        QElapsedTimer timer;
        timer.start();
        if (onWorker) {
            std::thread worker(ask);
            QTRY_COMPARE_WITH_TIMEOUT(answer.load(), code, 2000);
            worker.join();
        } else {
            ask();
        }
        QVERIFY(timer.elapsed() < 1500);
        QCOMPARE(answer.load(), code);
        const auto &sheet = m_presenter->sheets.constFirst();
        QCOMPARE(sheet.messageText + sheet.informativeText, "MessageBecause");
        QCOMPARE(sheet.defaultButton + sheet.alternateButton, "YesNo");
        QVERIFY(sheet.otherButton.isNull());
    }

    void leavesOutWhatIsNotGiven()
    {
        VTAlert::alertSheetWithMessageText({}, "100% %@", nullptr);
        const auto &sheet = m_presenter->sheets.constFirst();
        QVERIFY(sheet.messageText.isEmpty() && sheet.defaultButton.isNull() && sheet.alternateButton.isNull());
        QCOMPARE(sheet.informativeText, "100% %@");
    }

    void manyWorkersAsk()
    {
        m_presenter->delay = 1ms;
        std::atomic<int> answered = 0;
        std::vector<std::thread> workers;
        for (int i = 0; i < 8; ++i) {
            workers.emplace_back([&] {
                for (int round = 0; round < 10; ++round)
                    answered += VTAlert::alertSheetWithMessageText("m", {}, {}, {}, {}, nullptr, Block::Yes);
            });
        }
        QTRY_COMPARE_WITH_TIMEOUT(answered.load(), 80, 20'000);
        for (std::thread &worker : workers)
            worker.join();
    }

    void answersItselfInTime()
    {
        m_presenter->delay = -1ms;
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(VTAlert::timedAlertSheetWithMessageText("m", {}, {}, {}, {}, nullptr, 1s), 1);
        QVERIFY(timer.elapsed() >= 1000 && timer.elapsed() < 3000);
        m_presenter->waiting(0); // a click that comes too late meets nobody
        QCOMPARE(m_presenter->up.size(), 0);
        m_presenter->delay = 20ms;
        m_presenter->code = 0;
        timer.start();
        QCOMPARE(VTAlert::timedAlertSheetWithMessageText("m", {}, {}, {}, {}, nullptr, 60s), 0);
        QVERIFY2(timer.elapsed() < 3000, "The timer outlived the answer");
    }

    void doesNotWaitWhenToldSo()
    {
        m_presenter->delay = -1ms;
        auto *alert = new VTAlert;
        const QPointer<VTAlert> watched(alert);
        QCOMPARE(VTAlert::alertSheet({"m", {}}, nullptr, nullptr, {}, Block::No, alert), -1);
        QCOMPARE(m_presenter->up.size(), 1);
        QVERIFY(watched && !watched->alertEnded());
        m_presenter->waiting(0);
        QVERIFY(watched && watched->returnCode() == 0);
        m_presenter->up.clear(); // a button takes the sheet away by itself
        QTRY_VERIFY(!watched);
    }

    void tellsItsDelegate()
    {
        Delegate delegate;
        m_presenter->code = 0;
        QCOMPARE(VTAlert::alertSheet({"m", {}}, nullptr, &delegate, "ended", Block::Yes, nullptr), 0);
        QCOMPARE(delegate.codes, QList<qlonglong>{0});
        m_presenter->delay = -1ms;
        QCOMPARE(VTAlert::alertSheet({"m", {}}, nullptr, &delegate, "ended", Block::No, nullptr), -1);
        m_presenter->waiting(1);
        QCOMPARE(delegate.codes, QList<qlonglong>({0, 1}));
        m_presenter->up.clear();
        // With nobody left to tell, the alert ends all the same.
        auto *alert = new VTAlert;
        const QPointer<VTAlert> watched(alert);
        {
            Delegate gone;
            QCOMPARE(VTAlert::alertSheet({"m", {}}, nullptr, &gone, "ended", Block::No, alert), -1);
        }
        m_presenter->waiting(1);
        m_presenter->up.clear();
        QTRY_VERIFY(!watched);
    }

    void refusesADelegateThatCannotAnswer()
    {
        Delegate delegate;
        for (const char *selector : {"missing", "otherForm", "deleteLater"})
            QCOMPARE(VTAlert::alertSheet({"m", {}}, nullptr, &delegate, selector, Block::Yes, nullptr), -1);
        QCOMPARE(m_presenter->sheets.size(), 0);
        // The public entry passes none of the three on: it waits, and the delegate hears nothing.
        m_presenter->code = 0;
        QCOMPARE(VTAlert::alertSheetWithMessageText("m", {}, {}, {}, {}, nullptr, &delegate, "missing", Block::No), 0);
        QCOMPARE(delegate.codes.size(), 0);
    }

private:
    std::optional<RecordingPresenter> m_presenter;
};

TESSARO_TEST_MAIN(QCoreApplication, TestAlert)
#include "test_alert.moc"

// Alerts: the code reaches whoever asked, on whatever thread, and the sheet goes away.
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "support/AlertPresenter.h"
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

    void returnsTheCode()
    {
        for (const auto &[code, delay, onWorker] :
             {std::tuple{-1, 0ms, false}, {0, 30ms, false}, {1, 30ms, false}, {0, 30ms, true}, {1, 0ms, true}}) {
            m_presenter->code = code;
            m_presenter->delay = delay;
            std::atomic<int> answer = 99;
            const auto ask = [&answer] {
                answer = VTAlert::alertSheetWithMessageText("100% %@", "Yes", "No", {}, "Because", nullptr, Block::No);
            };
            if (onWorker) {
                std::thread worker(ask);
                const auto join = qScopeGuard([&worker] { worker.join(); });
                QTRY_COMPARE_WITH_TIMEOUT(answer.load(), code, 2000);
            } else {
                ask();
            }
            QCOMPARE(answer.load(), code);
        }
        const auto &sheet = m_presenter->sheets.constFirst();
        QCOMPARE(QStringList({sheet.messageText, sheet.informativeText, sheet.defaultButton, sheet.alternateButton}),
                 QStringList({"100% %@", "Because", "Yes", "No"}));
        QVERIFY(sheet.otherButton.isNull());
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

    void tellsItsDelegate()
    {
        Delegate delegate;
        m_presenter->code = 0;
        // With buttons by name, the delegate is not told and the caller waits all the same.
        QCOMPARE(VTAlert::alertSheetWithMessageText("m", {}, {}, {}, {}, nullptr, &delegate, "ended", Block::No), 0);
        QCOMPARE(delegate.codes, QList<qlonglong>());
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

private:
    std::optional<RecordingPresenter> m_presenter;
};

TESSARO_TEST_MAIN(QCoreApplication, TestAlert)
#include "test_alert.moc"

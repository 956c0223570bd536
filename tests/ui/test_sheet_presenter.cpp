// Questions on a real window: who answers what, and that nobody who waits is left waiting.
#include "harness/OffscreenMessages.h"
#include "harness/TemporaryHome.h"
#include "platform/desktop/Desktop.h"
#include "support/VTAlert.h"
#include "ui/SheetPresenter.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <thread>

using namespace std::chrono_literals;

Q_DECLARE_METATYPE(std::optional<int>)

namespace {

QMessageBox *sheetThatIsUp()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
            return box;
    }
    return nullptr;
}

/// Waits for the next sheet, from within whatever loop turns, and acts on it once.
void whenSheetIsUp(std::function<void(QMessageBox &)> act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        if (QMessageBox *box = sheetThatIsUp()) {
            timer->stop();
            timer->deleteLater();
            act(*box);
        }
    });
    timer->start(5ms);
}

void click(QMessageBox &box, const QString &title)
{
    for (QAbstractButton *button : box.buttons()) {
        if (button->text().remove('&') == title)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    QFAIL(qPrintable("No button " + title));
}

struct Window : QWidget
{
    QPushButton button{"Press"};
    int clicks = 0;

    Window()
    {
        (new QVBoxLayout(this))->addWidget(&button);
        QObject::connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
        show();
        activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(this));
    }
    void tryToUse(bool &closed)
    {
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
        closed = close();
    }
};

int ask(QWidget *window, const QString &alternate = "Cancel", const QString &other = {},
        std::optional<int> safeAnswer = {})
{
    return VTAlert::show({"Overwrite?", "", "Overwrite", alternate, other, safeAnswer}, window);
}

} // namespace

class TestSheetPresenter : public QObject
{
    Q_OBJECT

    SheetPresenter m_presenter;

private Q_SLOTS:
    void initTestCase()
    {
        VTAlert::setPresenter(&m_presenter);
        keepBackOffscreenMessages();
    }

    void answers_data()
    {
        QTest::addColumn<QString>("alternate");
        QTest::addColumn<QString>("other");
        QTest::addColumn<std::optional<int>>("safe");
        QTest::addColumn<QString>("press"); // a button's title or a key
        QTest::addColumn<int>("code");
        const auto row = [](const char *name, const QString &alternate, const QString &other, std::optional<int> safe,
                            const char *press, int code) {
            QTest::newRow(name) << alternate << other << safe << QString(press) << code;
        };
        row("other", "Cancel", "Save", {}, "Save", -1);
        row("Return on a message", {}, {}, {}, "Return", 1);
        row("Return on a question that loses nothing", "Don't Move", {}, {}, "Return", 1);
        row("Escape on a question that loses nothing", "Don't Move", {}, {}, "Escape", 0);
        // Whatever the buttons are called: the safe one has the focus.
        row("Return does the safe thing", "Abbrechen", {}, 0, "Return", 0);
        row("Escape never overwrites", "Ignore", {}, 0, "Escape", 0);
        row("Return overwrites nothing at once", "Overwrite All", "Ignore", -1, "Return", -1);
        row("nor does Escape", "Overwrite All", "Ignore", -1, "Escape", -1);
        row("the first answer may be the safe one", "Manual", {}, 1, "Escape", 1);
    }
    void answers()
    {
        QFETCH(QString, alternate);
        QFETCH(QString, other);
        QFETCH(std::optional<int>, safe);
        QFETCH(QString, press);
        Window window;
        whenSheetIsUp([&](QMessageBox &box) {
            QSet<QKeySequence> keys; // each button has one of its own
            for (const QAbstractButton *button : box.buttons())
                keys.insert(QKeySequence::mnemonic(button->text()));
            QCOMPARE(keys.size(), box.buttons().size());
            if (press == "Escape" || press == "Return")
                return QTest::keyClick(&box, press == "Return" ? Qt::Key_Return : Qt::Key_Escape);
            click(box, press);
        });
        QTEST(ask(&window, alternate, other, safe), "code");
        QVERIFY(!sheetThatIsUp());
    }

    /// Work in the background keeps the windows shut, yet its questions can be answered; then they are shut again.
    void questionFromWorkInTheBackground()
    {
        Window window;
        bool closed = false;
        whenSheetIsUp([](QMessageBox &box) { click(box, "Overwrite"); });
        const int code = platform::resultInBackground([&] {
            const int answer = ask(&window);
            platform::MainThread::perform([&] { window.tryToUse(closed); }, platform::Waiting::Yes);
            return answer;
        });
        QCOMPARE(code, 1);
        QVERIFY(window.clicks == 0 && !closed);
        window.tryToUse(closed);
        QVERIFY(window.clicks == 2 && closed);
    }

    /// A sheet that nobody waits for must not leave the windows open to input for good.
    void unawaitedSheetLeavesNothingBehind()
    {
        Window window;
        bool closed = false;
        QCOMPARE(VTAlert::alertSheet({"Done", "", "OK"}, &window, nullptr, {}, VTAlert::Block::No, nullptr), -1);
        QVERIFY(sheetThatIsUp());
        click(*sheetThatIsUp(), "OK");
        QCoreApplication::processEvents();
        QTimer::singleShot(10ms, &window, [&] { window.tryToUse(closed); });
        platform::performInBackground([] { std::this_thread::sleep_for(100ms); });
        QVERIFY(window.clicks == 0 && !closed);
    }

    void destroyedWindow()
    {
        for (const bool fromWorker : {false, true}) {
            auto window = std::make_unique<Window>();
            whenSheetIsUp([&](QMessageBox &) { window.reset(); });
            const auto question = [&] {
                return ask(window.get());
            };
            QCOMPARE(fromWorker ? platform::resultInBackground(question) : question(), VTAlert::otherReturn);
        }
    }

    /// Told to quit, the program still finishes the work, and serves what the work needs of the main thread.
    void quittingLosesNoResult()
    {
        std::atomic<bool> served = false;
        int result = 0;
        QTimer::singleShot(0, qApp, [&] {
            result = platform::resultInBackground([&] {
                platform::MainThread::perform([] { QCoreApplication::exit(); }, platform::Waiting::Yes);
                std::this_thread::sleep_for(50ms);
                platform::MainThread::perform([&] { served = true; }, platform::Waiting::No);
                for (int i = 0; i < 100 && !served; ++i)
                    std::this_thread::sleep_for(10ms);
                return served ? 42 : 1;
            });
        });
        QApplication::exec();
        QCOMPARE(result, 42);
    }
};

TESSARO_TEST_MAIN(QApplication, TestSheetPresenter)
#include "test_sheet_presenter.moc"

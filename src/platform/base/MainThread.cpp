#include "platform/base/MainThread.h"

#include "platform/plain/StartedThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

namespace platform {

/// Calls on their way to the main thread, in a list of our own: what a thread hands over is safe by our lock, and can
/// be checked to be, whatever the toolkit does to wake the loop.
class CallsToMake : public QObject
{
    Q_OBJECT

public:
    static CallsToMake &instance()
    {
        static auto *calls = [] {
            auto *made = new CallsToMake; // never destroyed: threads may outlive the application
            made->moveToThread(QCoreApplication::instance()->thread());
            return made;
        }();
        return *calls;
    }
    void add(std::function<void()> call)
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_calls.push_back(std::move(call));
        }
        // By name, so that the event is the toolkit's own from its making to its end.
        QMetaObject::invokeMethod(this, "makeNext", Qt::QueuedConnection);
    }

private:
    /// One call for one event, so that they come in their turn among all others.
    Q_INVOKABLE void makeNext()
    {
        std::function<void()> call;
        {
            const std::scoped_lock lock(m_mutex);
            call = std::move(m_calls.front());
            m_calls.pop_front();
        }
        call();
    }
    std::mutex m_mutex;
    std::deque<std::function<void()>> m_calls;
};

namespace {

/// Opened once. Who waits for it goes on at once then, or within a second after the application has gone: nobody will
/// open it any more.
class Gate
{
public:
    void open()
    {
        const std::scoped_lock lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    void wait()
    {
        std::unique_lock lock(m_mutex);
        while (!m_open && QCoreApplication::instance())
            m_changed.wait_for(lock, std::chrono::seconds(1));
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
};

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::InputMethod:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

class InputFilter : public QObject
{
public:
    static InputFilter &instance()
    {
        static auto *filter = new InputFilter(QCoreApplication::instance());
        return *filter;
    }

    int closed = 0;
    int allowed = 0;
    InputClosed::Exception exception;

private:
    using QObject::QObject;
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (closed == 0 || allowed > 0 || !isInput(event->type()) || (exception && exception(receiver, event)))
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

bool MainThread::isCurrent()
{
    const auto *application = QCoreApplication::instance();
    return !application || QThread::currentThread() == application->thread();
}

void MainThread::perform(std::function<void()> call, Waiting waiting)
{
    if (isCurrent())
        return call();
    if (waiting == Waiting::No)
        return CallsToMake::instance().add(std::move(call));
    const auto done = std::make_shared<Gate>();
    CallsToMake::instance().add([done, call = std::move(call)] {
        call();
        done->open();
    });
    done->wait();
}

void MainThread::turnLoop(std::chrono::milliseconds atMost)
{
    QEventLoop loop;
    QTimer wakeUp;
    wakeUp.setSingleShot(true);
    wakeUp.start(atMost);
    loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void performInBackground(const std::function<void()> &work)
{
    if (!MainThread::isCurrent() || !QCoreApplication::instance())
        return work();
    const InputClosed closed;
    const auto loop = std::make_shared<QEventLoop>();
    std::atomic<bool> finished = false;
    std::thread worker = startedThread([&, quit = std::weak_ptr(loop)] {
        work();
        finished = true; // before the loop is told to quit: who wakes up must find it so
        CallsToMake::instance().add([quit] {
            if (const auto waiting = quit.lock())
                waiting->quit();
        });
    });
    if (!worker.joinable()) // none is to be had: the window stands still rather than the work
        return work();
    loop->exec();
    // The loop ends early when the application was told to quit: the work is finished all the same, never abandoned.
    while (!finished)
        MainThread::turnLoop(std::chrono::milliseconds(10));
    worker.join();
}

void performBeside(std::function<void()> work, std::function<void()> done)
{
    const auto both = [work = std::move(work), done = std::move(done)] {
        work();
        if (QCoreApplication::instance())
            CallsToMake::instance().add(done);
    };
    std::thread worker = startedThread(both);
    if (worker.joinable())
        worker.detach();
    else
        CallsToMake::instance().add(both);
}

bool performWithin(std::chrono::milliseconds patience, std::function<void()> work, std::function<void()> late)
{
    if (!MainThread::isCurrent() || !QCoreApplication::instance()) {
        work();
        return true;
    }
    enum class State { Waited, Ended, GivenUp };
    const auto state = std::make_shared<State>(State::Waited); // of the main thread alone
    const auto loop = std::make_shared<QEventLoop>();
    performBeside(std::move(work), [state, quit = std::weak_ptr(loop), late = std::move(late)] {
        if (*state == State::GivenUp)
            return late();
        *state = State::Ended;
        if (const auto waiting = quit.lock())
            waiting->quit();
    });
    const InputClosed closed;
    QTimer end;
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, loop.get(), &QEventLoop::quit);
    end.start(patience);
    loop->exec();
    while (*state == State::Waited && end.isActive()) // the application was told to quit
        MainThread::turnLoop(std::chrono::milliseconds(10));
    if (*state == State::Waited)
        *state = State::GivenUp;
    return *state == State::Ended;
}

void InputClosed::setException(Exception exception)
{
    InputFilter::instance().exception = std::move(exception);
}

InputClosed::InputClosed()
{
    auto &filter = InputFilter::instance();
    if (filter.closed++ == 0)
        QCoreApplication::instance()->installEventFilter(&filter);
}

InputClosed::~InputClosed()
{
    auto &filter = InputFilter::instance();
    if (--filter.closed == 0)
        QCoreApplication::instance()->removeEventFilter(&filter);
}

InputAllowed::InputAllowed()
{
    ++InputFilter::instance().allowed;
}

InputAllowed::~InputAllowed()
{
    --InputFilter::instance().allowed;
}

} // namespace platform

#include "MainThread.moc"

// Tools: what they print and how they end, time-outs, asynchronous runs; none hangs, none leaves anything behind.
#include "harness/TemporaryHome.h"
#include "platform/base/MainThread.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>

using Encoding = VTTask::Encoding;

namespace {

const QString shell = QStringLiteral("/bin/sh");

QStringList script(const char *text)
{
    return {"-c", text};
}

QByteArray log()
{
    VTLog::finishWriting();
    return readFile(VTLog::sharedController().currentLogPath());
}

/// Runs elsewhere while the main thread turns its loop, as the window's does. Seconds that it took.
double secondsOnWorker(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    const std::unique_ptr<QThread> worker(QThread::create(work));
    worker->start();
    while (!worker->isFinished())
        QTest::qWait(5);
    return static_cast<double>(timer.elapsed()) / 1000;
}

/// What a delegate heard, on whatever thread.
struct Recorder
{
    std::mutex mutex;
    QByteArrayList chunks;
    QVariantList objects;
    bool onMainThread = false;

    VTTask::Delegate delegate()
    {
        return [this](const QByteArray &chunk, VTTask &, const QVariant &object) {
            const std::scoped_lock lock(mutex);
            chunks.append(chunk);
            objects.append(object);
            onMainThread = onMainThread || QThread::currentThread() == QCoreApplication::instance()->thread();
        };
    }
    qsizetype ends()
    {
        const std::scoped_lock lock(mutex);
        return chunks.count(QByteArray());
    }
    QByteArray all()
    {
        const std::scoped_lock lock(mutex);
        return chunks.join();
    }
};

qsizetype threads()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace

class TestTask : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { VTLog::createNewLog(); }

    /// Stopped before it runs, let go of while its delegate waits for the window, and its end thrown away by others.
    void endsWhateverHappens()
    {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 20; ++i) {
            VTTask task;
            task.asyncDataFromTask("/bin/sleep", {"30"}, {});
            task.terminateAsyncTask();
        }
        {
            VTTask task;
            task.asyncDataFromTask("/bin/sh", {"-c", "echo x"}, [](const QByteArray &, VTTask &, const QVariant &) {
                platform::MainThread::perform([] {}, platform::Waiting::Yes);
            });
            QTest::qSleep(100);
        }
        QVERIFY(timer.elapsed() < 20'000);
        std::signal(SIGCHLD, SIG_IGN);
        const int status = VTTask::terminationCodeFromTask("/bin/false", {});
        std::signal(SIGCHLD, SIG_DFL);
        QVERIFY(status != 0);
    }

    void tellsWhatATool_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<int>("status");
        QTest::newRow("complains") << "printf out; printf err >&2" << QByteArray("err") << 0;
        QTest::newRow("says nothing") << "exit 7" << QByteArray("") << 7;
        QTest::newRow("prints much") << "head -c 10485760 /dev/zero; exit 1" << QByteArray(10 << 20, '\0') << 1;
        QTest::newRow("complains for long")
            << "exec >&-; head -c 1000000 /dev/zero >&2" << QByteArray(1'000'000, '\0') << 0;
        QTest::newRow("reads its input") << "cat; printf end" << QByteArray("end") << 0;
        QTest::newRow("is killed") << "printf out; kill -9 $$" << QByteArray("out") << SIGKILL;
        QTest::newRow("leaves a child on its outputs") << "printf out; sleep 20 &" << QByteArray("out") << 0;
        QTest::newRow("closes its outputs early")
            << "printf out; exec >&- 2>&-; sleep 0.3; exit 3" << QByteArray("out") << 3;
        QTest::newRow("needs the usual signals") << "trap '' INT; kill -PIPE $$; exit 1" << QByteArray("") << SIGPIPE;
    }
    void tellsWhatATool()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, data);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(VTTask::dataFromTask(shell, {"-c", text}) == data);
        QTEST(VTTask::terminationCodeFromTask(shell, {"-c", text}), "status");
        QVERIFY(VTTask::runTask(shell, {"-c", text}));
        QVERIFY(timer.elapsed() < 5000);
    }

    void passesTextAsItIs()
    {
        const QStringList arguments{"%s|", "a b", "$HOME", "", "*", "\u00E4;'\"", "-n"};
        QCOMPARE(VTTask::stringFromTask("/usr/bin/printf", arguments, Encoding::Utf8),
                 arguments.mid(1).join(u'|') + u'|');
        QVERIFY(VTTask::stringFromTask("/usr/bin/printf", {"\\303\\244"}, Encoding::Ascii).isNull());
        QVERIFY(VTTask::stringFromTask("/usr/bin/printf", {"a\\377"}, Encoding::Utf8).isNull());
        QVERIFY(!VTTask::stringFromTask("/bin/true", {}, Encoding::Utf8).isNull());
    }

    void refuses()
    {
        const QString folder = m_home.file("100%@ Tools");
        writeFile(folder + "/plain", "#!/bin/sh\n");
        writeFile(folder + "/garbage", "\x7F garbage");
        chmod((folder + "/garbage").toUtf8().constData(), 0755);
        for (const QString &tool : {folder + "/missing", folder + "/plain", folder, folder + "/garbage"}) {
            VTLog::createNewLog();
            QVERIFY(!VTTask::runTask(tool, {}));
            QCOMPARE(VTTask::terminationCodeFromTask(tool, {}), -1);
            QVERIFY(!VTTask::dataFromTask(tool, {}));
            QVERIFY(VTTask::stringFromTask(tool, {}, 1.0).isNull());
            VTTask::runTaskAndReturn(tool, {});
            QCOMPARE(log().count(" - Error: " + tool.toUtf8() + " is not executable\n"), 5);
        }
    }

    void cutsShort_data()
    {
        QTest::addColumn<double>("timeout");
        QTest::addColumn<int>("whole");
        QTest::newRow("whole seconds only") << 1.9 << 1;
        QTest::newRow("less than one") << 0.5 << 0;
        QTest::newRow("less than none") << -1.0 << 0;
    }
    void cutsShort()
    {
        QFETCH(double, timeout);
        QFETCH(int, whole);
        VTLog::createNewLog();
        int status = 0;
        const double seconds =
            secondsOnWorker([&] { status = VTTask::terminationCodeFromTask("/bin/sleep", {"20"}, timeout); });
        QCOMPARE(status, SIGTERM);
        QVERIFY2(seconds >= whole && seconds < whole + 0.8, qPrintable(QString::number(seconds)));
        QCOMPARE(log().count(" - Task /bin/sleep timed out. Terminating...\n"), 1);
    }

    void keepsWhatWasReadInTime()
    {
        std::optional<QByteArray> data;
        secondsOnWorker([&] { data = VTTask::dataFromTask(shell, script("printf early; exec sleep 20"), 1.0); });
        QCOMPARE(data.value_or("none"), "early");
        // A tool that is done in time is not waited for any longer, and its status stays its own.
        int status = 0;
        QVERIFY(secondsOnWorker([&] { status = VTTask::terminationCodeFromTask(shell, script("exit 4"), 30.0); }) < 1);
        QCOMPARE(status, 4);
    }

    /// The standard output to its end first: a tool that fills the other meanwhile stands still until its time is up.
    void readsTheStandardOutputFirst()
    {
        std::optional<QByteArray> data;
        secondsOnWorker(
            [&] { data = VTTask::dataFromTask(shell, script("exec 3>&1 >&2 head -c 4000000 /dev/zero"), 1.0); });
        QVERIFY(data && !data->isEmpty() && data->size() < 4'000'000);
    }

    void cutsNothingShortOnTheMainThread()
    {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(VTTask::terminationCodeFromTask("/bin/sleep", {"1.5"}, 1.0), 0);
        QVERIFY(timer.elapsed() >= 1500);
        QTest::qWait(50); // the time-out is handled now, with nothing left to stop
    }

    void deliversChunks()
    {
        Recorder recorder;
        VTTask task;
        task.asyncDataFromTask(shell, script("printf one; sleep 0.3; printf two; printf no >&2"), recorder.delegate(),
                               42);
        QTRY_COMPARE(recorder.ends(), 1);
        QTest::qWait(50);
        QCOMPARE(recorder.chunks, QByteArrayList({"one", "two", ""}));
        QCOMPARE(recorder.objects, QVariantList({42, 42, 42}));
        QVERIFY(!recorder.onMainThread);
    }

    void canBeUsedAgain()
    {
        Recorder first;
        Recorder second;
        Recorder third;
        VTTask task;
        task.asyncDataFromTask(shell, script("printf one; exec sleep 20"), first.delegate());
        QTRY_COMPARE(first.all(), "one");
        task.asyncDataFromTask(shell, script("head -c 3000000 /dev/zero"), second.delegate());
        QTRY_COMPARE(second.ends(), 1);
        QCOMPARE(second.all().size(), 3'000'000);
        QCOMPARE(first.ends(), 0);
        // From within its last chunk, too.
        task.asyncDataFromTask(
            shell, script("printf x"), [&](const QByteArray &chunk, VTTask &running, const QVariant &) {
                if (chunk.isEmpty())
                    running.asyncDataFromTask(shell, script("sleep 0.2; printf y"), third.delegate());
            });
        QTRY_COMPARE(third.ends(), 1);
        QCOMPARE(third.all(), "y");
    }

    void stopsFromWithin()
    {
        std::atomic<int> calls = 0;
        VTTask task;
        QElapsedTimer timer;
        timer.start();
        task.asyncDataFromTask(shell, script("while :; do printf x; sleep 0.01; done"),
                               [&](const QByteArray &, VTTask &running, const QVariant &) {
                                   if (++calls == 3)
                                       running.terminateAsyncTask();
                               });
        QTRY_COMPARE(calls.load(), 3);
        QTest::qWait(100);
        QCOMPARE(calls.load(), 3);
        QVERIFY(timer.elapsed() < 4000);
        QTRY_COMPARE(waitpid(-1, nullptr, WNOHANG), -1);
    }

    void mayGoAtTheLastChunk()
    {
        const qsizetype before = threads();
        std::atomic<bool> over = false;
        auto task = std::make_unique<VTTask>();
        task->asyncDataFromTask(shell, script("printf x"), [&](const QByteArray &chunk, VTTask &, const QVariant &) {
            if (chunk.isEmpty()) {
                task.reset();
                over = true;
            }
        });
        QTRY_VERIFY(over.load());
        QTRY_VERIFY(threads() <= before); // the reading thread got to its end without touching what is gone
    }

    void leavesNothingBehind()
    {
        const auto descriptors = [] {
            return QDir("/proc/self/fd").entryList(QDir::System | QDir::Files).size();
        };
        QTest::qWait(100);
        const auto before = descriptors();
        const qsizetype threadsBefore = threads();
        for (int i = 0; i < 50; ++i) {
            Recorder recorder;
            QVERIFY(VTTask::dataFromTask(shell, script("echo x; echo y >&2")));
            QVERIFY(VTTask::runTask("/bin/true", {}));
            VTTask::runTaskAndReturn(shell, script("sleep 0.1"));
            VTTask task;
            task.asyncDataFromTask(shell, script("echo x"), recorder.delegate());
            if (i % 2 == 0)
                QTRY_COMPARE(recorder.ends(), 1);
        }
        QTRY_VERIFY(descriptors() <= before);
        QTRY_VERIFY(threads() <= threadsBefore);
        QTRY_COMPARE(waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);
    }

private:
    const TemporaryHome m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestTask)
#include "test_task.moc"

// The power goes at any moment of a verb that writes, or soon after: what a drive holds then is the old state, the new
// one, or something that the next start tells of.
//
// The drive is an image of ext4 in a file whose blocks can be shared, so that a copy of it, made in an instant while
// the verb runs, holds what had been handed to the drive, and nothing of what was still in memory. A second program
// keeps the file system writing its journal, without which nearly every cut would find the old state.
//
// TESSARO_EVERY_FAULT=1 cuts each verb a hundred times.
#include "commands/VerbState.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTextStream>
#include <atomic>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

using verbs::State;

namespace {

bool runTool(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, arguments);
    process.waitForFinished();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

/// At one moment, whatever is written meanwhile.
bool shareBlocks(const QString &from, const QString &to)
{
    const int source = open(from.toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    const int destination = open(to.toUtf8().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const bool shared = ioctl(destination, FICLONE, source) == 0;
    close(source);
    close(destination);
    return shared;
}

/// Has the journal written all the time, as a busy computer does.
class JournalDriver
{
public:
    explicit JournalDriver(const QString &file)
        : m_thread([this, name = file.toUtf8()] {
            const int written = open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
            for (char byte = 0; !m_ends; ++byte) {
                if (pwrite(written, &byte, 1, 0) == 1)
                    fsync(written);
            }
            close(written);
        })
    {
    }
    ~JournalDriver()
    {
        m_ends = true;
        m_thread.join();
    }
    JournalDriver(const JournalDriver &) = delete;
    JournalDriver &operator=(const JournalDriver &) = delete;

private:
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};

} // namespace

class TestPowerCut : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_pool = m_folder.filePath("pool");   ///< where blocks can be shared
    QString m_drive = m_folder.filePath("drive"); ///< what is cut off
    QString m_home = m_drive + "/home";
    QString m_prepared = m_pool + "/prepared.img";
    QString m_image = m_pool + "/drive.img";
    QString m_cut = m_pool + "/cut.img";

    static bool mount(const QString &image, const QString &place)
    {
        return runTool("mount", {"-o", "loop", image, place});
    }
    bool unmount() const { return runTool("umount", {m_drive}); }
    std::unique_ptr<QProcess> start(const QStringList &words) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home);
        environment.insert("LSAN_OPTIONS", "detect_leaks=0");
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_DATA_HOME"})
            environment.remove(variable);
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory("/");
        process->start(QCoreApplication::applicationDirPath() + "/Tessaro", words);
        return process;
    }
    /// As after the computer has been started again: another run of the system.
    QByteArray saidAfterRestart(const QStringList &words) const
    {
        const QString identifier = m_folder.filePath("boot_id");
        writeFile(identifier, "another");
        const QString program = QCoreApplication::applicationDirPath() + "/Tessaro";
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home);
        environment.insert("LSAN_OPTIONS", "detect_leaks=0");
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("unshare", QStringList{"-m", "sh", "-c",
                                             "mount --bind \"$0\" /proc/sys/kernel/random/boot_id && exec \"$@\"",
                                             identifier, program} +
                                     words);
        process.waitForFinished();
        return process.readAll();
    }
    int run(const QStringList &words) const
    {
        const auto process = start(words);
        process->waitForFinished();
        return process->exitCode();
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &folder : {m_pool, m_drive})
            QVERIFY(platform::makeFolders(folder).ok());
        const QString pool = m_folder.filePath("pool.img");
        QVERIFY(runTool("truncate", {"-s", "2G", pool}) && runTool("mkfs.xfs", {"-q", pool}));
        if (!mount(pool, m_pool))
            QSKIP("No drive that shares blocks can be mounted here");
        QVERIFY(runTool("truncate", {"-s", "96M", m_image}) && runTool("mkfs.ext4", {"-q", m_image}));
        QVERIFY(mount(m_image, m_drive) && platform::makeFolders(m_home).ok());
        QCOMPARE(run({"template", "restore", "--yes"}), 0);
        verbs::prepare(m_home);
        QCOMPARE(run({"settings", "set", "autoOpenFolder", "0"}), 0);
        QVERIFY(unmount() && shareBlocks(m_image, m_prepared));
    }
    void cleanupTestCase()
    {
        runTool("umount", {m_drive});
        runTool("umount", {m_pool});
    }

    void cut_data() { verbs::rows(m_home); }
    void cut()
    {
        QFETCH(QStringList, words);
        const int rounds = qEnvironmentVariableIsSet("TESSARO_EVERY_FAULT") ? 100 : 6;
        State before, after;
        qint64 needed = 0;
        int old = 0, done = 0, told = 0;
        QStringList wrong;
        for (int i = -1; i < rounds; ++i) {
            QVERIFY(shareBlocks(m_prepared, m_image) && mount(m_image, m_drive));
            if (i < 0)
                before = verbs::stateOf(m_home);
            QElapsedTimer timer;
            timer.start();
            {
                const JournalDriver driver(m_drive + "/journal");
                const auto process = start(words);
                if (i < 0) {
                    process->waitForFinished();
                    needed = timer.nsecsElapsed() / 1000;
                    QCOMPARE(process->exitCode(), 0);
                    after = verbs::stateOf(m_home);
                } else {
                    process->waitForStarted();
                    // Every third time the verb has ended before the power goes.
                    const auto longest = static_cast<quint32>(needed * 3 / 2);
                    std::this_thread::sleep_for(
                        std::chrono::microseconds(QRandomGenerator::global()->bounded(longest)));
                    QVERIFY(shareBlocks(m_image, m_cut));
                    process->kill();
                    process->waitForFinished();
                }
            }
            QVERIFY(unmount());
            if (i < 0)
                continue;
            QVERIFY(mount(m_cut, m_drive));
            const QByteArray answer = saidAfterRestart(words.first() == "create" ? QStringList{"clean-up", "--yes"}
                                                                                 : QStringList{"templates"});
            const State found = verbs::stateOf(m_home);
            old += found == before;
            done += found == after;
            QString problem;
            if (!verbs::isOldOrNew(found, before, after))
                problem = "half a library";
            else if (found.settings != before.settings && found.settings != after.settings)
                problem = "other settings";
            else if (found.projects != before.projects && found.projects != after.projects)
                problem = "half a project";
            if (problem == "half a project" && answer.contains("Projects/")) {
                ++told;
                problem.clear();
            }
            if (!problem.isEmpty()) {
                QString all = problem + ' ' + QString::fromUtf8(answer) + QStringList(found.projects.keys()).join(' ');
                for (const auto &[now, then] :
                     {std::pair(&found.library, &after.library), {&found.projects, &after.projects}}) {
                    for (auto item = now->begin(); item != now->end(); ++item) {
                        if (then->value(item.key()) != item.value())
                            all += QStringLiteral("\n  %1: %2 bytes").arg(item.key()).arg(item.value().size());
                    }
                }
                wrong << all;
            }
            QVERIFY(unmount());
        }
        if (rounds > 6)
            QTextStream(stdout) << QTest::currentDataTag() << ": " << old << " old, " << done << " new, " << told
                                << " told, " << wrong.size() << " wrong\n";
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestPowerCut)
#include "test_power_cut.moc"

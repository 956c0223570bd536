// The privileged helper, as far as that can be seen without rights: what it takes for a message, what it takes for a
// request, and what it needs to start at all.
#include "harness/RefusedCalls.h"
#include "harness/TemporaryHome.h"
#include "helper/Plan.h"
#include "helper/Protocol.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QTest>
#include <QTextStream>
#include <cerrno>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

using namespace helper;
using Result = Decoder::Result;

namespace {

std::vector<std::string> words(const QStringList &texts)
{
    std::vector<std::string> native;
    for (const QString &text : texts)
        native.push_back(text.toStdString());
    return native;
}

} // namespace

class TestHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home.emplace(); }

    void messagesComeBack()
    {
        const Message sent{MessageType::Run, 0xFFFFFFFF, -2, {"/bin/cp", "", std::string(100'000, '\xC3')}};
        const auto bytes = encode(sent);
        QVERIFY(bytes);
        Decoder decoder;
        Message got;
        for (int round = 0; round < 2; ++round) { // the second begins where the first ended
            for (std::size_t i = 0; i < bytes->size(); ++i) {
                QVERIFY(decoder.next(got) == Result::Incomplete);
                decoder.add(bytes->data() + i, 1);
            }
            QVERIFY(decoder.next(got) == Result::Complete);
            QVERIFY(got == sent);
        }
        QVERIFY(!encode({MessageType::Run, 1, 0, {std::string("a\0b", 3)}}));
        QVERIFY(!encode({MessageType::Run, 1, 0, {std::string(maximumSize, 'x')}}));
        QVERIFY(!encode({MessageType::Run, 1, 0, std::vector<std::string>(maximumTexts + 1)}));
    }

    /// Whatever arrives: never a crash, never a message beyond the bounds, never more memory than one message.
    void survivesAnything()
    {
        std::mt19937 random(20261121);
        const std::string good = *encode({MessageType::Run, 7, 0, {"/bin/mv", "-f", "/a", "/b"}});
        int complete = 0;
        int broken = 0;
        for (int i = 0; i < 60'000; ++i) {
            std::string bytes = i % 3 == 0 ? std::string(random() % 64, '\0') : good;
            if (i % 3 == 0)
                std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
            for (auto flips = 1 + random() % 4; i % 3 != 0 && flips > 0; --flips)
                bytes[random() % bytes.size()] = static_cast<char>(random());
            if (i % 5 == 0)
                bytes.resize(random() % (bytes.size() + 1));
            Decoder decoder;
            for (std::size_t at = 0; at < bytes.size();) {
                const std::size_t piece = std::min<std::size_t>(1 + random() % 20, bytes.size() - at);
                decoder.add(bytes.data() + at, piece);
                at += piece;
                Message message;
                const Result result = decoder.next(message);
                complete += result == Result::Complete;
                broken += result == Result::Broken;
                if (result == Result::Complete)
                    QVERIFY(message.texts.size() <= maximumTexts && encode(message));
            }
        }
        QVERIFY2(complete > 1000 && broken > 1000, "The fuzzing hit only one side");
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("error");
        const auto row = [](const char *name, const QString &tool, const QStringList &arguments, int error) {
            QTest::newRow(name) << tool << arguments << error;
        };
        row("a shell", "/bin/sh", {"-c", "true"}, EACCES);
        row("a relative tool", "rm", {"-Rdf", "%/x"}, EACCES);
        row("another option", "/bin/rm", {"-Rf", "%/x"}, EACCES);
        row("one path too many", "/bin/rm", {"-Rdf", "%/x", "%/y"}, EACCES);
        row("an option in place of a path", "/bin/rm", {"-Rdf", "--no-preserve-root"}, EINVAL);
        row("a relative path", "/bin/mkdir", {"-p", "x"}, EINVAL);
        row("the root", "/bin/rm", {"-Rdf", "/"}, EPERM);
        row("the root, by dots", "/bin/rm", {"-Rdf", "/usr/.."}, EINVAL);
        row("a system folder", "/bin/rm", {"-Rdf", "/usr"}, EPERM);
        row("with a slash behind", "/bin/rm", {"-Rdf", "/usr///"}, EPERM);
        row("by dots", "/bin/rm", {"-Rdf", "/etc/../etc"}, EPERM);
        row("by dots that end there", "/bin/rm", {"-Rdf", "/etc/ssl/.."}, EINVAL);
        row("one of its own folders", "/bin/mv", {"-f", "/usr/bin", "%/x"}, EPERM);
        row("as a destination", "/bin/cp", {"-f", "-p", "-R", "%/x", "/etc"}, EPERM);
        row("by a link to it", "/bin/rm", {"-Rdf", "%/link"}, EPERM);
        row("by a link on the way", "/bin/rm", {"-Rdf", "%/link/share"}, ENOTDIR);
        row("by a link and dots", "/bin/rm", {"-Rdf", "%/link/../usr"}, ENOTDIR);
        row("the root of a mounted drive", "/bin/rm", {"-Rdf", "/dev/shm"}, EBUSY);
        row("the home", "/bin/rm", {"-Rdf", "%"}, EPERM);
        row("a folder of the home", "/bin/mv", {"-f", "%/Documents", "%/x"}, EPERM);
        row("a folder of its library", "/bin/rm", {"-Rdf", "%/Library/Preferences"}, EPERM);
        row("onto a link", "/bin/mv", {"-f", "%/Documents/x", "%/link"}, EPERM);
        row("onto a link to a file", "/bin/cp", {"-f", "-p", "-R", "%/Documents/x", "%/crontab"}, ELOOP);
        row("dating a link", "/usr/bin/touch", {"-c", "%/crontab"}, ELOOP);
        row("a file of the system", "/bin/cp", {"-f", "-p", "-R", "%/Documents/x", "/etc/ld.so.preload"}, EPERM);
        row("deep in its folders", "/bin/cp", {"-f", "-p", "-R", "%/Documents/x", "/etc/profile.d/x.sh"}, EPERM);
        row("root's home", "/bin/mkdir", {"-p", "/root/x"}, EPERM);
        row("what runs as root", "/bin/mv", {"-f", "%/Documents/x", "/var/spool/cron/x"}, EPERM);
        row("a folder of the home in its language", "/bin/rm", {"-Rdf", "%/Dokumente"}, EPERM);
        row("into what is missing", "/bin/cp", {"-f", "-p", "-R", "%/Documents/x", "%/no/such/x"}, ENOENT);
        row("dots after what is missing", "/bin/mkdir", {"-p", "%/missing/../x"}, EINVAL);
    }
    void refuses()
    {
        QFETCH(QString, tool);
        QFETCH(QStringList, arguments);
        makeHome();
        arguments.replaceInStrings("%", m_home->path());
        Plan plan;
        QTEST(prepare(tool.toStdString(), words(arguments), m_home->path().toStdString(), plan), "error");
    }

    void pinsWhatItTakes()
    {
        makeHome();
        writeFile(m_home->file("deep/down/x"), "x");
        Plan plan;
        const QString path = m_home->path() + "/deep//./down/../down/x";
        QCOMPARE(prepare("/bin/mv", words({"-f", path, m_home->path() + "/b"}), m_home->path().toStdString(), plan), 0);
        // Exchanged for a link after the check: the folder that was checked is the one that is used.
        QVERIFY(rename(m_home->file("deep/down").toUtf8(), m_home->file("aside").toUtf8()) == 0);
        QVERIFY(symlink("/etc", m_home->file("deep/down").toUtf8()) == 0);
        platform::CopyMonitor monitor;
        TreeWork work(getuid(), monitor);
        QCOMPARE(work.move(plan.items[0], plan.items[1]), 0);
        QCOMPARE(readFile(m_home->file("b")), "x");
        // A folder that stands there is held itself, and gets the item under its own name.
        QVERIFY(platform::makeFolders(m_home->file("there")).ok());
        QCOMPARE(prepare("/bin/mv", words({"-f", m_home->path() + "/b", m_home->path() + "/there"}),
                         m_home->path().toStdString(), plan),
                 0);
        QCOMPARE(work.move(plan.items[0], plan.items[1]), 0);
        QCOMPARE(readFile(m_home->file("there/b")), "x");
        QCOMPARE(prepare("/bin/mkdir", words({"-p", m_home->path() + "/new/a/b"}), m_home->path().toStdString(), plan),
                 0);
        QCOMPARE(work.makeFolders(plan.items[0]), 0);
        QVERIFY(platform::leadsToFolder(m_home->file("new/a/b")));
        // Reading a standard folder harms nobody.
        QCOMPARE(prepare("/bin/cp", words({"-f", "-p", "-R", m_home->path() + "/Documents", m_home->path() + "/x"}),
                         m_home->path().toStdString(), plan),
                 0);
    }

    Item item(const QString &folder, const QByteArray &name)
    {
        return {platform::UniqueDescriptor(open(m_home->file(folder + "/x").chopped(2).toUtf8().constData(),
                                                O_PATH | O_DIRECTORY | O_CLOEXEC)),
                name.toStdString(), m_home->file(folder).toStdString()};
    }

    void copiesWholeOrNotAtAll()
    {
        writeFile(m_home->file("from/tree/deep/a"), "a");
        writeFile(m_home->file("from/tree/b"), "b");
        QCOMPARE(symlink("/etc/passwd", m_home->file("from/tree/link").toUtf8()), 0);
        QCOMPARE(chmod(m_home->file("from/tree/b").toUtf8(), 04755), 0);
        writeFile(m_home->file("to/file"), "old");
        writeFile(m_home->file("to/tree/theirs"), "theirs");
        platform::CopyMonitor monitor;
        TreeWork work(getuid(), monitor);
        QCOMPARE(work.copy(item("from", "tree"), item("to", "copy")), 0);
        QCOMPARE(readFile(m_home->file("to/copy/deep/a")), "a");
        QCOMPARE(platform::linkTarget(m_home->file("to/copy/link")), "/etc/passwd");
        struct stat info;
        QCOMPARE(stat(m_home->file("to/copy/b").toUtf8(), &info), 0);
        QCOMPARE(info.st_mode & 07777, 0755u); // what is another's from now on has none of its old rights
        QCOMPARE(work.copy(item("from/tree", "b"), item("to", "file")), 0);
        QCOMPARE(readFile(m_home->file("to/file")), "b");
        QCOMPARE(work.copy(item("from", "tree"), item("to", "tree")), EEXIST);
        QCOMPARE(readFile(m_home->file("to/tree/theirs")), "theirs");
        QCOMPARE(work.copy(item("from", "none"), item("to", "none")), ENOENT);
        monitor.cancelled = true;
        QCOMPARE(work.copy(item("from", "tree"), item("to", "stopped")), ECANCELED);
        monitor.cancelled = false;
        QCOMPARE(platform::listFolder(m_home->file("to"))->size(), 3); // nothing of what failed, visible or hidden
        QCOMPARE(work.remove(item("to", "copy")), 0);
        QCOMPARE(work.remove(item("to", "copy")), 0);
        QCOMPARE(platform::listFolder(m_home->file("to"))->size(), 2);
    }

    void countsWhatADriveDoesNotKeep()
    {
        writeFile(m_home->file("from/tree/deep/labelled"), "a");
        writeFile(m_home->file("from/tree/plain"), "b");
        writeFile(m_home->file("to/x"), "");
        if (setxattr(m_home->file("from/tree/deep/labelled").toUtf8(), "user.label", "6", 1, 0) != 0)
            QSKIP("No labels on this drive");
        platform::CopyMonitor monitor;
        TreeWork whole(getuid(), monitor);
        QCOMPARE(whole.copy(item("from", "tree"), item("to", "kept")), 0);
        QCOMPARE(whole.losses(), 0u);
        TreeWork work(getuid(), monitor);
        int error = -1;
        bool refuses = false;
        std::thread([&] {
            refuses = refuseCalls({SYS_fsetxattr});
            error = work.copy(item("from", "tree"), item("to", "copy"));
        }).join();
        QVERIFY(refuses);
        QCOMPARE(error, 0);
        QCOMPARE(work.losses(), 1u);
        QCOMPARE(QString::fromStdString(work.firstLoss()), m_home->file("from/tree/deep/labelled"));
        QCOMPARE(readFile(m_home->file("to/copy/deep/labelled")), "a");
    }

    /// Somebody exchanges whatever appears for a link to a folder of the system, as fast as he can: nothing ever
    /// arrives there. TESSARO_RACE_SECONDS says for how long it is tried.
    void linksThatAreSwappedInAreNotFollowed()
    {
        for (int i = 0; i < 30; ++i)
            writeFile(m_home->file(QStringLiteral("from/tree/%1/evil").arg(i)), "evil");
        writeFile(m_home->file("victim/theirs"), "theirs");
        const QString to = m_home->file("to/x").chopped(2);
        std::atomic<bool> over = false;
        std::atomic<int> swapped = 0;
        std::thread attacker([&] {
            const QByteArray victim = m_home->file("victim").toUtf8();
            const QByteArray aside = m_home->file("aside/x").chopped(1).toUtf8();
            for (int i = 0; !over; ++i) {
                for (const auto &entry : platform::listFolder(to).valueOr({})) {
                    const QByteArray path = (to + '/' + entry.name).toUtf8();
                    if (rename(path, aside + QByteArray::number(i)) == 0 && symlink(victim, path) == 0)
                        ++swapped;
                }
            }
        });
        const int seconds = qEnvironmentVariableIntValue("TESSARO_RACE_SECONDS");
        const QDeadlineTimer end(std::chrono::seconds(seconds > 0 ? seconds : 1));
        platform::CopyMonitor monitor;
        int done = 0;
        for (int i = 0; !end.hasExpired(); ++i) {
            TreeWork work(getuid(), monitor);
            done += work.copy(item("from", "tree"), item("to", QByteArray::number(i))) == 0;
            static_cast<void>(work.touch(item("to", QByteArray::number(i))));
            static_cast<void>(work.remove(item("to", QByteArray::number(i))));
        }
        over = true;
        attacker.join();
        QVERIFY2(swapped > 0, "Nothing was swapped");
        QCOMPARE(platform::listFolder(m_home->file("victim"))->size(), 1);
        QCOMPARE(readFile(m_home->file("victim/theirs")), "theirs");
        if (seconds > 0)
            QTextStream(stdout) << swapped << " swapped, " << done << " copies made\n";
    }

    void startsOnlyAsItShould()
    {
        QProcess run;
        run.start(TESSARO_HELPER, QStringList{});
        QVERIFY(run.waitForFinished());
        QCOMPARE(run.exitCode(), 2);
        QVERIFY(run.readAllStandardOutput().isEmpty());
    }

private:
    void makeHome()
    {
        writeFile(m_home->file(".config/user-dirs.dirs"), "# a comment\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
        static_cast<void>(m_home->file("Dokumente/x"));
        for (const char *folder : {"Documents/x", "Library/Preferences/x"})
            static_cast<void>(m_home->file(folder)); // makes the folders above it
        static_cast<void>(symlink("/usr", m_home->file("link").toUtf8()));
        static_cast<void>(symlink("/etc/hosts", m_home->file("crontab").toUtf8()));
    }

    std::optional<TemporaryHome> m_home;
};
TESSARO_TEST_MAIN(QCoreApplication, TestHelper)
#include "test_helper.moc"

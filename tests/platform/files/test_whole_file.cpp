// Whole files: old or new, never half; read whole or not at all; and the lock that orders those who change them.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"

#include <QCoreApplication>
#include <QTest>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using platform::Cause;
using platform::fromNative;
using platform::listFolder;

namespace {

/// While it lives no file of this process grows beyond the size: as full a disk as one can have without root.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before{};
};

} // namespace

class TestWholeFile : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    QString in(const QByteArray &name) const { return platform::joined(m_home.path(), "in/" + fromNative(name)); }

private Q_SLOTS:
    void init()
    {
        QVERIFY(platform::removeTree(m_home.path() + "/in").ok());
        writeFile(in("kept"), "old");
        QCOMPARE(chmod(in("kept").toUtf8().constData(), 0640), 0);
    }

    void replaces()
    {
        QVERIFY(platform::replaceFile(in("kept"), "new").ok());
        QCOMPARE(readFile(in("kept")), "new");
        struct stat info;
        QCOMPARE(stat(in("kept").toUtf8().constData(), &info), 0);
        QCOMPARE(info.st_mode & 0777, 0640u);
        QVERIFY(platform::replaceFile(in("bad\xff name"), "bytes").ok());
        QCOMPARE(*platform::readFile(in("bad\xff name")), "bytes");
        // A link stays one, and what it leads to is what changes.
        QCOMPARE(symlink("kept", in("link").toUtf8().constData()), 0);
        QVERIFY(platform::replaceFile(in("link"), "through").ok());
        QCOMPARE(platform::kindOf(in("link")), platform::FileKind::Link);
        QCOMPARE(readFile(in("kept")), "through");
    }

    void leavesTheOldOneWhenItCannot()
    {
        const auto names = [&] {
            return listFolder(m_home.path() + "/in")->size();
        };
        const auto before = names();
        {
            const FullDisk full(4096);
            QVERIFY(!platform::replaceFile(in("kept"), QByteArray(10000, 'x')).ok());
        }
        QCOMPARE(readFile(in("kept")), "old");
        QCOMPARE(names(), before); // nothing half-written is left beside it
        QVERIFY(platform::replaceFile(m_home.path() + "/missing/x", "x").is(Cause::Missing));
        QVERIFY(!platform::replaceFile(m_home.path() + "/in", "x").ok());
        QCOMPARE(names(), before);
    }

    void readsAllOrNothing()
    {
        QVERIFY(platform::readFile(in("none")).outcome().is(Cause::Missing));
        QVERIFY(platform::readFile(m_home.path() + "/in").outcome().is(Cause::IsAFolder));
        QVERIFY(platform::readFile("/dev/zero").outcome().is(Cause::Invalid)); // has no end
        QVERIFY(platform::readPropertyListFile(in("kept")).outcome().is(Cause::Damaged));
        QVERIFY(platform::writePropertyListFile(in("list"), QVariantMap{{"a", 1LL}}).ok());
        QCOMPARE(platform::readPropertyListFile(in("list"))->toMap()["a"], QVariant(1LL));
        if (geteuid() == 0)
            QSKIP("The super-user reads every file");
        QCOMPARE(chmod(in("kept").toUtf8().constData(), 0), 0);
        QVERIFY(platform::readFile(in("kept")).outcome().needsRights());
    }

    void oneAtATime()
    {
        using namespace std::chrono_literals;
        using platform::FileLock;
        auto held = std::make_unique<platform::Result<FileLock>>(FileLock::acquire(in("lock"), 0ms));
        QVERIFY(held->ok());
        QVERIFY(FileLock::acquire(in("lock"), 20ms).outcome().is(Cause::Busy));
        std::thread other([&] { // another thread waits as another program would
            const auto mine = FileLock::acquire(in("lock"), 10s);
            writeFile(in("order"), readFile(in("order")) + (mine ? "b" : "?"));
        });
        writeFile(in("order"), "a");
        held.reset();
        other.join();
        QCOMPARE(readFile(in("order")), "ab");
        QVERIFY(FileLock::acquire(m_home.path() + "/missing/lock", 0ms).outcome().is(Cause::Missing));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestWholeFile)
#include "test_whole_file.moc"

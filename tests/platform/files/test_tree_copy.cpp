// Copies of whole trees: everything kept, nothing followed, nothing overwritten, nothing half done left behind.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/TreeCopy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QMap>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace platform;

namespace {

constexpr const char *finderInfo = "user.com.apple.FinderInfo";
const QByteArray finderInfoValue = QByteArray("TEXTttxt\x40\x0C", 10) + QByteArray(21, '\x5A') + '\0';
constexpr rlim_t fileLimit = 100'000;

QByteArray native(const QString &path)
{
    return toNative(path);
}

/// All that a copy keeps of one item, as text that a failing comparison can print.
QByteArray describe(const QString &path)
{
    const QByteArray name = native(path);
    struct stat info
    {
    };
    if (lstat(name.constData(), &info) != 0)
        return "missing";
    const auto time = [](const timespec &t) {
        return ' ' + QByteArray::number(qlonglong{t.tv_sec}) + '.' + QByteArray::number(qlonglong{t.tv_nsec});
    };
    char value[64];
    const ssize_t size = lgetxattr(name.constData(), finderInfo, value, sizeof value);
    return QByteArray::number(info.st_mode, 8) + ' ' + QByteArray::number(info.st_uid) + time(info.st_mtim) +
           time(info.st_atim) + ' ' + (size < 0 ? "-" : QByteArray(value, size).toHex()) + ' ' +
           (S_ISREG(info.st_mode) ? QCryptographicHash::hash(readFile(path), QCryptographicHash::Md5).toHex()
                                  : native(linkTarget(path)));
}

using Snapshot = QMap<QByteArray, QByteArray>;

void collect(const QString &path, const QByteArray &below, Snapshot &items)
{
    items.insert(below, describe(path));
    if (kindOf(path) != FileKind::Folder)
        return;
    for (const FolderEntry &entry : listFolder(path).valueOr({}))
        collect(joined(path, entry.name), below + '/' + native(entry.name), items);
}

Snapshot snapshot(const QString &path)
{
    Snapshot items;
    collect(path, {}, items);
    return items;
}

QByteArrayList namesIn(const QString &folder)
{
    QByteArrayList names;
    for (const FolderEntry &entry : listFolder(folder).valueOr({}))
        names.append(native(entry.name));
    return names;
}

/// Contents before folders, so that no date is changed again. Last read after last changed: reading leaves it alone.
void setDates(const QString &path)
{
    static long nanoseconds = 123'456'789;
    if (kindOf(path) == FileKind::Folder) {
        for (const FolderEntry &entry : listFolder(path).valueOr({}))
            setDates(joined(path, entry.name));
    }
    const timespec times[2] = {{time(nullptr) + 3600, ++nanoseconds}, {981'173'106, ++nanoseconds}};
    utimensat(AT_FDCWD, native(path).constData(), times, AT_SYMLINK_NOFOLLOW);
}

void setLabel(const QString &path)
{
    QCOMPARE(lsetxattr(native(path).constData(), finderInfo, finderInfoValue.constData(), 32, 0), 0);
}

void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(native(path).constData(), mode), 0);
}

struct
{
    QByteArray name;
    off_t length = 0;
} shrinking; ///< the file that is cut off as soon as its copy begins, after its size was taken

} // namespace

/// In the C library's place: here another program gets in between.
extern "C" ssize_t copy_file_range(int source, off64_t *sourceOffset, int destination, off64_t *destinationOffset,
                                   size_t length, unsigned flags)
{
    if (!shrinking.name.isEmpty() && truncate(shrinking.name.constData(), shrinking.length) != 0)
        return -1;
    return syscall(SYS_copy_file_range, source, sourceOffset, destination, destinationOffset, length, flags);
}

class TestTreeCopy : public QObject
{
    Q_OBJECT

    /// One of everything that a template may hold.
    void makeTree(const QString &top)
    {
        writeFile(top + "/file", "contents");
        writeFile(top + "/tool", QByteArray(300'000, 'x'));
        writeFile(top + "/Icon\r", "");
        writeFile(top + "/line\nbreak \U0001F600", "x");
        writeFile(joined(top, fromNative("bad\xFF\xC0/\xED\xA0\x80")), "x");
        writeFile(top + "/folder/deeper/x", "x");
        writeFile(top + "/readonly/x", "x");
        QVERIFY(makeFolders(top + "/empty").ok());
        setLabel(top + "/file");
        setLabel(top + "/folder");
        setMode(top + "/file", 0444); // its label must come before the mode
        setMode(top + "/tool", 0755);
        setMode(top + "/folder/deeper/x", 0444);
        setMode(top + "/folder/deeper", 01777);
        setMode(top + "/folder", 02750);
        setMode(top + "/readonly", 0555);
        for (const auto &[name, target] :
             {std::pair{"dangling", "missing"}, {"up", ".."}, {"root", "/"}, {"self", "self"}})
            QCOMPARE(symlink(target, native(top + u'/' + name).constData()), 0);
        QCOMPARE(mkfifo(native(top + "/fifo").constData(), 0620), 0);
        QCOMPARE(mknod(native(top + "/socket").constData(), S_IFSOCK | 0600, 0), 0);
        writeFile(top + "/sparse", "start");
        const int sparse = open(native(top + "/sparse").constData(), O_WRONLY | O_CLOEXEC);
        QCOMPARE(pwrite(sparse, "middle", 6, 8 << 20), 6);
        QCOMPARE(ftruncate(sparse, 16 << 20), 0);
        close(sparse);
        for (const char *name : {"/tool", "/up", "/fifo", "/folder"}) // an owner that only the super-user can keep
            QCOMPARE(geteuid() == 0 ? lchown(native(top + name).constData(), 1, 1) : 0, 0);
        if (geteuid() == 0)
            setMode(top + "/tool", 04755);
        setDates(top);
    }

private Q_SLOTS:
    void init() { m_home.emplace(); }
    void cleanup() { QProcess::execute("chmod", {"-R", "u+rwX", m_home->path()}); }

    void keepsEverything()
    {
        makeTree(m_home->file("source"));
        const auto before = snapshot(m_home->file("source"));
        for (const char *folder : {"/tmp", "/dev/shm"}) {
            QTemporaryDir destination(folder + QStringLiteral("/copy-XXXXXX"));
            const QString copy = destination.filePath("copy");
            Losses losses;
            const Outcome copied = copyItem(m_home->file("source"), copy, &losses);
            const auto after = snapshot(copy);
            struct stat sparse
            {
            };
            lstat(native(copy + "/sparse").constData(), &sparse);
            setMode(copy + "/readonly", 0755);
            QVERIFY(removeTree(copy).ok());
            QVERIFY2(copied.ok(), qPrintable(copied.description()));
            QCOMPARE(losses.labels.count + losses.modes.count + losses.owners.count + losses.dates.count, 0u);
            QCOMPARE(after, before);
            QCOMPARE(snapshot(m_home->file("source")), before);
            QVERIFY2(sparse.st_size == 16 << 20 && sparse.st_blocks * 512 < 1 << 20, "The holes were filled");
        }
    }

    void copiesAThousandLevels()
    {
        const QString below = QStringLiteral("/1234567890").repeated(1000);
        QVERIFY(makeFolders(m_home->file("deep") + below).ok());
        QVERIFY(setFlagsWord(m_home->file("deep") + below, 4, 0xFFFF));
        QVERIFY(copyItem(m_home->file("deep"), m_home->file("copy")).ok());
        QCOMPARE(flagsWordOf(m_home->file("copy") + below), 4);
        QVERIFY(removeTree(m_home->file("deep")).ok() && removeTree(m_home->file("copy")).ok());
    }

    void refuses()
    {
        writeFile(m_home->file("source/sub/x"), "x");
        writeFile(m_home->file("file"), "theirs");
        QVERIFY(makeFolders(m_home->file("empty")).ok());
        QCOMPARE(symlink("source/sub", native(m_home->file("link")).constData()), 0);
        QCOMPARE(symlink("missing", native(m_home->file("dangling")).constData()), 0);
        setDates(m_home->path());
        const auto before = snapshot(m_home->path());
        for (const char *taken : {"file", "empty", "dangling", "source"}) {
            for (const char *source : {"source", "source/sub/x"})
                QCOMPARE(copyItem(m_home->file(source), m_home->file(taken)).cause(), Cause::Exists);
        }
        for (const char *below : {"source/new", "source/sub/new", "link/new"})
            QCOMPARE(copyItem(m_home->file("source"), m_home->file(below)).cause(), Cause::IntoItself);
        QCOMPARE(copyItem(m_home->file("source"), m_home->path() + "/missing/new").cause(), Cause::Missing);
        QCOMPARE(snapshot(m_home->path()), before);
    }

    /// A limit on the size of files stands in for a full disk, which only the super-user can make.
    void stopsAtTheFirstFailure()
    {
        for (const char *file : {"A/deep/x", "B", "C/z/x", "D/x", "E"})
            writeFile(m_home->file(QStringLiteral("source/") + file), "x");
        writeFile(m_home->file("source/C/z/big"), QByteArray(2 * fileLimit, 'x'));
        // Some are complete, and read-only, before the failure comes: they must go all the same.
        for (int i = 0; i < 40; ++i) {
            writeFile(m_home->file(QStringLiteral("source/C/a%1/x").arg(i)), "x");
            setMode(m_home->file(QStringLiteral("source/C/a%1").arg(i)), 0555);
        }
        setDates(m_home->file("source"));
        const auto before = snapshot(m_home->file("source"));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{fileLimit, limit.rlim_max};
        const std::vector<NamePair> names{{"A", "A"}, {"B", "B"}, {"C", "C"}, {"D", "D"}, {"E", "E"}};
        for (const bool taken : {false, true}) {
            const QString copy = m_home->file(taken ? "taken" : "copy");
            QVERIFY(makeFolders(copy).ok());
            if (taken)
                writeFile(copy + "/C", "theirs");
            setrlimit(RLIMIT_FSIZE, &small);
            const CopyReport report = copyEntries(m_home->file("source"), copy, names);
            setrlimit(RLIMIT_FSIZE, &limit);
            QCOMPARE(report.outcome.cause(), taken ? Cause::Exists : Cause::NotSupported);
            QCOMPARE(report.outcome.item(), m_home->file(taken ? "source/C" : "source/C/z/big"));
            QCOMPARE(report.copied, 2u);
            QCOMPARE(snapshot(m_home->file("source")), before);
            QCOMPARE(describe(copy + "/A/deep/x"), before["/A/deep/x"]);
            QCOMPARE(describe(copy + "/A"), before["/A"]);
            QCOMPARE(namesIn(copy), taken ? QByteArrayList({"A", "B", "C"}) : QByteArrayList({"A", "B"}));
            QCOMPARE(readFile(copy + "/C"), taken ? "theirs" : "");
        }
    }

    void noticesAFileThatShrinks_data()
    {
        QTest::addColumn<QList<qint64>>("stretches"); // of 300,000 bytes of data
        QTest::addColumn<qint64>("left");
        QTest::newRow("whole") << QList<qint64>{0} << qint64{100'000};
        QTest::newRow("behind a hole") << QList<qint64>{8 << 20} << qint64{(8 << 20) + 100'000};
        QTest::newRow("between two stretches") << QList<qint64>{0, 16 << 20} << qint64{400'000};
    }
    void noticesAFileThatShrinks()
    {
        QFETCH(QList<qint64>, stretches);
        QFETCH(qint64, left);
        const QString source = m_home->file("source");
        writeFile(source);
        const int file = open(native(source).constData(), O_WRONLY | O_CLOEXEC);
        for (const qint64 start : stretches)
            QCOMPARE(pwrite(file, QByteArray(300'000, 'x').constData(), 300'000, start), 300'000);
        close(file);
        shrinking = {native(source), left};
        const Outcome copied = copyItem(source, m_home->file("copy"));
        shrinking = {};
        QCOMPARE(copied.cause(), Cause::Unreachable);
        QCOMPARE(namesIn(m_home->path()), QByteArrayList{"source"});
    }

    void leavesNothingOnAFullDisk()
    {
        if (geteuid() != 0)
            QSKIP("Only the super-user can mount; the limit on the size of files covers the way out.");
        QVERIFY2(unshare(CLONE_NEWNS) == 0, "Needs the right to mount");
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
        const QString full = m_home->file("full");
        QVERIFY(makeNewFolder(full).ok());
        QCOMPARE(mount("none", native(full).constData(), "tmpfs", 0, "size=1m"), 0);
        writeFile(m_home->file("source/A/small"), "x");
        for (int i = 0; i < 20; ++i)
            writeFile(m_home->file(QStringLiteral("source/B/%1").arg(i)), QByteArray(100'000, 'x'));
        const CopyReport report = copyEntries(m_home->file("source"), full, {{"A", "A"}, {"B", "B"}});
        const QByteArrayList left = namesIn(full);
        const auto free = freeBytesAt(full);
        umount2(native(full).constData(), MNT_DETACH);
        QCOMPARE(report.outcome.cause(), Cause::NoSpace);
        // Two work on it: the disk may be full before the second has written its one byte.
        QVERIFY2(report.outcome.item().startsWith(m_home->file("source/")), qPrintable(report.outcome.description()));
        QVERIFY2(report.copied < 2, qPrintable(report.outcome.description()));
        QCOMPARE(left, report.copied == 1 ? QByteArrayList{"A"} : QByteArrayList());
        QVERIFY(free > 1'000'000u);
    }

    void movesAcrossFileSystems()
    {
        QTemporaryDir elsewhere("/dev/shm/move-XXXXXX");
        makeTree(m_home->file("source"));
        setMode(m_home->file("source/readonly"), 0755); // a folder that is read-only its owner may not empty
        const auto before = snapshot(m_home->file("source"));
        QVERIFY(moveItem(m_home->file("source"), elsewhere.filePath("moved")).ok());
        QCOMPARE(snapshot(elsewhere.filePath("moved")), before);
        QCOMPARE(kindOf(m_home->file("source")), FileKind::Missing);
        QVERIFY(removeTree(elsewhere.filePath("moved")).ok());
    }

private:
    std::optional<TemporaryHome> m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestTreeCopy)
#include "test_tree_copy.moc"

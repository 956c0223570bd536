// What a place hands on to the folders that are made in it, and drives that refuse what a copy wants to keep.
#include "harness/RefusedCalls.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "platform/files/TreeCopy.h"
#include "platform/plain/CopyMonitor.h"
#include "platform/plain/FileCopy.h"

#include <QCoreApplication>
#include <QTest>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

using namespace platform;

namespace {

mode_t modeOf(const QString &path)
{
    struct stat info;
    return lstat(toNative(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(toNative(path).constData(), mode), 0);
}

/// A default access list: owner all, one other user all, group as given, others nothing; the mask as given.
QByteArray defaultList(int group, int mask)
{
    QByteArray list("\x02\0\0\0", 4);
    const auto add = [&](int tag, int rights, quint32 id) {
        list.append(char(tag)).append('\0').append(char(rights)).append('\0');
        for (int shift = 0; shift < 32; shift += 8)
            list.append(char(id >> shift));
    };
    add(0x01, 7, ~0u);
    add(0x02, 7, 12345);
    add(0x04, group, ~0u);
    add(0x10, mask, ~0u);
    add(0x20, 0, ~0u);
    return list;
}

const std::atomic<bool> never = false;

} // namespace

class TestFileCopy : public QObject
{
    Q_OBJECT

    std::optional<TemporaryHome> m_home;

    /// Every folder and file of source/, made afresh in place/.
    void make()
    {
        Tree tree = readTree(
            m_home->file("source"), [](TreeFolder &) {}, never);
        const TreeCopyReport report = copyTree(m_home->file("source"), m_home->file("place"), tree, nullptr);
        QVERIFY(report.ended.ok() && report.failures.empty());
    }

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        QVERIFY(makeFolders(m_home->file("place")).ok());
    }

    void modes_data()
    {
        QTest::addColumn<PlaceRights>("rights");
        QTest::addColumn<uint>("copied");
        QTest::addColumn<uint>("expected");
        const PlaceRights none;
        const PlaceRights team{true, 0070, 0007, true, false};
        const PlaceRights closedTeam{true, 0070, 0007, false, false};
        const PlaceRights readers{false, 0050, 0000, true, true};
        QTest::newRow("an ordinary place") << none << 0755u << 0755u;
        QTest::newRow("a team may write where it may read") << team << 0755u << 02775u;
        QTest::newRow("what is private stays so") << team << 0700u << 02700u;
        QTest::newRow("what nobody may change stays so") << team << 0555u << 02555u;
        QTest::newRow("a user who shuts the group out") << closedTeam << 0755u << 02755u;
        QTest::newRow("sticky stays") << team << 01777u << 03777u;
        QTest::newRow("never more than the list allows") << readers << 0777u << 0750u;
    }
    void modes()
    {
        QFETCH(PlaceRights, rights);
        QFETCH(uint, copied);
        QTEST(uint(rights.modeOf(copied)), "expected");
    }

    void aTeamsFolder()
    {
        writeFile(m_home->file("source/a/b/x"));
        setMode(m_home->file("source/a"), 0755);
        setMode(m_home->file("source/a/b"), 0700);
        setMode(m_home->file("place"), 02775);
        make();
        QCOMPARE(modeOf(m_home->file("place/a")), mode_t{02775});
        QCOMPARE(modeOf(m_home->file("place/a/b")), mode_t{02700});
        // A copy that is to be the same as its source is that, wherever it is put.
        QVERIFY(copyItem(m_home->file("source/a"), m_home->file("place/exact")).ok());
        QCOMPARE(modeOf(m_home->file("place/exact")), mode_t{0755});
    }

    void anAccessList()
    {
        writeFile(m_home->file("source/a/b/x"));
        const QByteArray place = toNative(m_home->file("place"));
        for (const auto &[mask, mode] : {std::pair(7, mode_t{0770}), std::pair(5, mode_t{0750})}) {
            const QByteArray list = defaultList(7, mask);
            if (setxattr(place.constData(), "system.posix_acl_default", list.constData(), size_t(list.size()), 0) != 0)
                QSKIP("No access lists on this file system.");
            make();
            const QByteArray made = toNative(m_home->file("place/a/b"));
            char inherited[1024];
            QCOMPARE(getxattr(made.constData(), "system.posix_acl_default", inherited, sizeof inherited), list.size());
            QVERIFY(getxattr(made.constData(), "system.posix_acl_access", inherited, sizeof inherited) > 0);
            QCOMPARE(modeOf(m_home->file("place/a/b")), mode);
            QVERIFY(rename((place + "/a").constData(), (place + QByteArray::number(mask)).constData()) == 0);
        }
    }

    void drivesThatRefuse()
    {
        writeFile(m_home->file("source/a/x"), "contents");
        setMode(m_home->file("source/a/x"), 0777);
        QCOMPARE(symlink("x", toNative(m_home->file("source/a/link")).constData()), 0);
        if (geteuid() == 0)
            QCOMPARE(chown(toNative(m_home->file("source/a/x")).constData(), 1, 1), 0);
        Outcome copied;
        Losses losses;
        TreeCopyReport made;
        bool refuses = false;
        std::thread([&] {
            refuses = refuseCalls({SYS_fchmod, SYS_fchmodat, SYS_fchown, SYS_fchownat, SYS_utimensat});
            copied = copyItem(m_home->file("source/a"), m_home->file("place/exact"), &losses);
            Tree tree = readTree(
                m_home->file("source"), [](TreeFolder &) {}, never);
            made = copyTree(m_home->file("source"), m_home->file("place"), tree, nullptr);
        }).join();
        QVERIFY(refuses);
        QVERIFY2(copied.ok(), qPrintable(copied.description()));
        QVERIFY(made.ended.ok() && made.failures.empty());
        for (const char *file : {"place/exact/x", "place/a/x"})
            QCOMPARE(readFile(m_home->file(file)), QByteArray("contents"));
        QVERIFY(losses.labels.count == 0 && made.losses.labels.count == 0);
        const auto named = [&](const Loss &loss) {
            QStringList items = loss.items;
            items.sort();
            return items;
        };
        const QStringList all{m_home->file("source/a"), m_home->file("source/a/link"), m_home->file("source/a/x")};
        QCOMPARE(named(losses.dates), all);
        QCOMPARE(losses.dates.count, 3u);
        QCOMPARE(named(losses.modes), QStringList({all[0], all[2]}));
        QCOMPARE(named(made.losses.modes), QStringList({all[0], all[2]}));
        QVERIFY(made.losses.dates.items.isEmpty());
        QCOMPARE(losses.owners.items.isEmpty(), geteuid() != 0);
    }

    /// One that fails is left out and named, with nothing of it left; what lies beside it is made.
    void theRestGoesOn()
    {
        writeFile(m_home->file("source/a/x"), "x");
        writeFile(m_home->file("source/b/big"), QByteArray(200'000, 'x'));
        writeFile(m_home->file("source/b/small"), "x");
        writeFile(m_home->file("source/c/x"), "x");
        writeFile(m_home->file("place/c"), "theirs");
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{100'000, limit.rlim_max};
        Tree tree = readTree(
            m_home->file("source"), [](TreeFolder &) {}, never);
        CopyMonitor monitor;
        setrlimit(RLIMIT_FSIZE, &small);
        TreeCopyReport report = copyTree(m_home->file("source"), m_home->file("place"), tree, &monitor);
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(report.ended.ok());
        QCOMPARE(report.failures.size(), 2u);
        std::sort(report.failures.begin(), report.failures.end(),
                  [](const auto &a, const auto &b) { return a.outcome.item() < b.outcome.item(); });
        QCOMPARE(report.failures[0].outcome.item(), m_home->file("source/b/big"));
        QCOMPARE(report.failures[1].outcome.item(), m_home->file("source/c"));
        QVERIFY(report.failures[1].outcome.is(Cause::Exists));
        QCOMPARE(kindOf(m_home->file("place/b/big")), FileKind::Missing);
        QCOMPARE(readFile(m_home->file("place/b/small")), QByteArray("x"));
        QCOMPARE(readFile(m_home->file("place/c")), QByteArray("theirs"));
        std::size_t noted = 0;
        for (const TreeFolder &folder : tree.folders)
            noted += static_cast<std::size_t>(
                std::count_if(folder.made.begin(), folder.made.end(), [](const MadeItem &made) { return made.inode; }));
        QCOMPARE(noted, 4u); // a, a/x, b, b/small
        monitor.cancelled = true;
        QVERIFY(makeFolders(m_home->file("second")).ok());
        QVERIFY(copyTree(m_home->file("source"), m_home->file("second"), tree, &monitor).ended.is(Cause::Cancelled));
    }
};

int main(int argc, char **argv)
{
    prepareLocale();
    umask(0002); // as in a team; asked once by the program
    const TemporaryHome home;
    QCoreApplication application(argc, argv);
    TestFileCopy test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_file_copy.moc"

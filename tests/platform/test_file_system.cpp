// The file system by path: listing order, moving without overwriting, removing and dating without following links.
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

constexpr time_t longAgo = 1'000'000'000;

time_t dateOf(const QString &path)
{
    struct stat info
    {
    };
    lstat(toNative(path).constData(), &info);
    return info.st_mtime;
}

void setDate(const QString &path)
{
    const timespec times[2] = {{longAgo, 0}, {longAgo, 0}};
    utimensat(AT_FDCWD, toNative(path).constData(), times, AT_SYMLINK_NOFOLLOW);
}

} // namespace

class TestFileSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home.emplace(); }

    void listsInOneOrder()
    {
        // Case-insensitive first; names that differ in case only, and bytes that are no text, by their bytes.
        const QByteArrayList expected{".x",
                                      "a",
                                      "B",
                                      "b",
                                      "b.x",
                                      "C",
                                      "_",
                                      "Z2",
                                      "z3",
                                      "\xC3\x84"
                                      "a",
                                      "\xC3\xA4"
                                      "b",
                                      "\xF0\x9F\x98\x80",
                                      "\x80",
                                      "\xFF"};
        for (qsizetype i = expected.size(); i-- > 0;)
            writeFile(m_home->file(fromNative("list/" + expected[i])));
        QByteArrayList found;
        for (const FolderEntry &entry : listFolder(m_home->file("list")).value_or(QList<FolderEntry>()))
            found.append(toNative(entry.name));
        // "_" lies between upper and lower case: its place shows which way names are folded.
        QByteArrayList folded = expected;
        folded.move(folded.indexOf("_"), 1);
        QCOMPARE(found, folded);
        QVERIFY(!listFolder(m_home->file("missing")));
    }

    void tellsWhatStandsThere()
    {
        const QString file = m_home->file("file");
        writeFile(file);
        symlink("missing", toNative(m_home->file("dangling")).constData());
        symlink(".", toNative(m_home->file("loop")).constData());
        mkfifo(toNative(m_home->file("fifo")).constData(), 0600);
        QCOMPARE(kindOf(m_home->file("dangling")), FileKind::Link);
        QVERIFY(!targetExists(m_home->file("dangling")));
        QVERIFY(leadsToFolder(m_home->file("loop")));
        QCOMPARE(kindOf(m_home->file("fifo")), FileKind::Other);
        QCOMPARE(kindOf(file + "/below"), FileKind::Missing);
        QVERIFY(makeFolders(m_home->file("loop")).ok());
        QCOMPARE(makeFolders(file + "/below").errorNumber(), ENOTDIR);
        QCOMPARE(makeNewFolder(m_home->file("dangling")).errorNumber(), EEXIST);
    }

    void neverMovesOntoAnything_data()
    {
        QTest::addColumn<QString>("destination");
        for (const char *name : {"file", "folder", "empty", "dangling"})
            QTest::newRow(name) << name;
    }
    void neverMovesOntoAnything()
    {
        QFETCH(QString, destination);
        writeFile(m_home->file("file"), "theirs");
        writeFile(m_home->file("folder/x"), "theirs");
        QVERIFY(makeFolders(m_home->file("empty")).ok());
        symlink("missing", toNative(m_home->file("dangling")).constData());
        // A file, a folder, and a file from another file system, whose way goes through a copy.
        QTemporaryDir elsewhere("/dev/shm/test-XXXXXX");
        writeFile(m_home->file("source/x"), "mine");
        writeFile(elsewhere.filePath("x"), "mine");
        const auto before = identityOf(m_home->file(destination));
        for (const QString &source : {m_home->file("source/x"), m_home->file("source"), elsewhere.filePath("x")}) {
            const FileOutcome moved = moveItem(source, m_home->file(destination));
            QCOMPARE(moved.errorNumber(), EEXIST);
            QVERIFY(targetExists(source));
        }
        QVERIFY(before == identityOf(m_home->file(destination)));
        QCOMPARE(readFile(m_home->file("folder/x")) + readFile(m_home->file("file")), "theirstheirs");
    }

    void removesNothingBehindALink()
    {
        writeFile(m_home->file("kept/x"), "x");
        QVERIFY(makeFolders(m_home->file("tree/sub")).ok());
        symlink("../../kept", toNative(m_home->file("tree/sub/link")).constData());
        symlink("kept", toNative(m_home->file("link")).constData());
        QVERIFY(removeTree(m_home->file("tree")).ok());
        QVERIFY(removeTree(m_home->file("link")).ok());
        QVERIFY(removeTree(m_home->file("link")).ok());
        for (const char *name : {"tree", "link"})
            QCOMPARE(kindOf(m_home->file(name)), FileKind::Missing);
        QCOMPARE(readFile(m_home->file("kept/x")), "x");
    }

    void datesEverythingBelow()
    {
        const QStringList items{"t/a", "t/a/f", "t/a/link", "t/b", "t/b/\xE4", "t/dangling"};
        writeFile(m_home->file("t/a/f"));
        writeFile(m_home->file("t/b/\xE4"));
        writeFile(m_home->file("outside/x"));
        symlink("../../outside", toNative(m_home->file("t/a/link")).constData());
        symlink("missing", toNative(m_home->file("t/dangling")).constData());
        for (const QString &item : items + QStringList{"outside/x", "outside", "t"})
            setDate(m_home->file(item));
        QStringList entered;
        const auto failed = touchBelow(m_home->file("t"), [&](const QString &folder) {
            entered.append(folder.mid(m_home->path().size() + 1));
            // Announced before its items are dated: a copy that is stopped here leaves them as they were.
            QCOMPARE(dateOf(joined(folder, "f")) > longAgo, false);
        });
        QVERIFY(failed.isEmpty());
        QCOMPARE(entered.first(), "t");
        entered.sort();
        QCOMPARE(entered, QStringList({"t", "t/a", "t/b"}));
        for (const QString &item : items)
            QVERIFY2(dateOf(m_home->file(item)) > longAgo, qPrintable(item));
        for (const char *item : {"outside/x", "outside", "t"})
            QCOMPARE(dateOf(m_home->file(item)), longAgo);
    }

    void tellsWhatItMayNotDate()
    {
        const QString locked = m_home->file("t/locked");
        writeFile(locked + "/x");
        writeFile(m_home->file("t/z"));
        setDate(m_home->file("t/z"));
        // The super-user may enter any folder; what it may not date is what was made immutable.
        setImmutable(locked, true);
        if (geteuid() != 0)
            chmod(toNative(locked).constData(), 0);
        const auto failed = touchBelow(m_home->file("t"), [](const QString &) {});
        setImmutable(locked, false);
        chmod(toNative(locked).constData(), 0755);
        QCOMPARE(failed.size(), 1);
        QVERIFY(failed.first().needsRights());
        QCOMPARE(failed.first().item(), locked);
        QVERIFY(dateOf(m_home->file("t/z")) > longAgo);
        QCOMPARE(touchBelow(m_home->file("missing"), [](const QString &) {}).size(), 1);
    }

private:
    std::optional<TemporaryHome> m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestFileSystem)
#include "test_file_system.moc"

// The file system by path: listing order, moving without overwriting, removing and dating without following links.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QCoreApplication>
#include <QTemporaryDir>
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
        const QByteArrayList expected{".x",   "_",   "a",  "B",         "b",         "b.x",
                                      "C",    "Z2",  "z3", "\303\204a", "\303\244b", "\360\237\230\200",
                                      "\200", "\377"};
        for (qsizetype i = expected.size(); i-- > 0;)
            writeFile(m_home->file(fromNative("list/" + expected[i])));
        QByteArrayList found;
        for (const FolderEntry &entry : listFolder(m_home->file("list")).valueOr({}))
            found.append(toNative(entry.name));
        QCOMPARE(found, expected);
        QVERIFY(!listFolder(m_home->file("missing")));
    }

    void neverMovesOntoAnything()
    {
        writeFile(m_home->file("file"), "theirs");
        writeFile(m_home->file("folder/x"), "theirs");
        QVERIFY(makeFolders(m_home->file("empty")).ok());
        symlink("missing", toNative(m_home->file("dangling")).constData());
        // A file, a folder, and a file from another file system, whose way goes through a copy.
        QTemporaryDir elsewhere("/dev/shm/test-XXXXXX");
        writeFile(m_home->file("source/x"), "mine");
        writeFile(elsewhere.filePath("x"), "mine");
        for (const char *name : {"file", "folder", "empty", "dangling"}) {
            const QString destination = m_home->file(name);
            const auto before = identityOf(destination);
            for (const QString &source : {m_home->file("source/x"), m_home->file("source"), elsewhere.filePath("x")}) {
                QCOMPARE(moveItem(source, destination).cause(), Cause::Exists);
                QVERIFY(targetExists(source));
            }
            QVERIFY2(before == identityOf(destination), name);
        }
        QCOMPARE(readFile(m_home->file("folder/x")) + readFile(m_home->file("file")), "theirstheirs");
    }

    /// Deeper than descriptors and the stack reach.
    void removesThirtyThousandLevels()
    {
        const QTemporaryDir memory("/dev/shm/deep-XXXXXX"); // a disk would be busy with it for a minute
        const QString top = memory.filePath("deep");
        QVERIFY(makeFolders(top).ok());
        platform::UniqueDescriptor at(open(top.toUtf8().constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        for (int i = 0; i < 30'000; ++i) {
            QCOMPARE(mkdirat(at.get(), "a", 0777), 0);
            at.reset(openat(at.get(), "a", O_PATH | O_DIRECTORY | O_CLOEXEC));
            if (i % 1000 == 0)
                close(openat(at.get(), "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
        }
        at.reset();
        QVERIFY(removeTree(top).ok());
        QCOMPARE(kindOf(top), FileKind::Missing);
    }

    void removesNothingBehindALink()
    {
        writeFile(m_home->file("kept/x"), "x");
        QVERIFY(makeFolders(m_home->file("tree/sub")).ok());
        symlink("../../kept", toNative(m_home->file("tree/sub/link")).constData());
        symlink("kept", toNative(m_home->file("link")).constData());
        for (const char *name : {"tree", "link", "link"}) {
            QVERIFY(removeTree(m_home->file(name)).ok());
            QCOMPARE(kindOf(m_home->file(name)), FileKind::Missing);
        }
        QCOMPARE(readFile(m_home->file("kept/x")), "x");
    }

    void datesEverythingBelow()
    {
        const QStringList items{"t/a", "t/a/f", "t/a/link", "t/\xE4", "t/dangling"};
        writeFile(m_home->file("t/a/f"));
        writeFile(m_home->file("t/\xE4"));
        writeFile(m_home->file("outside/x"));
        symlink("../../outside", toNative(m_home->file("t/a/link")).constData());
        symlink("missing", toNative(m_home->file("t/dangling")).constData());
        for (const QString &item : items + QStringList{"outside/x", "outside", "t"})
            setDate(m_home->file(item));
        const auto failed = touchBelow(m_home->file("t"), [&](const QString &folder) {
            // Announced before its items are dated: a copy that is stopped here leaves them as they were.
            QVERIFY(dateOf(joined(folder, "f")) <= longAgo);
        });
        QVERIFY(failed.isEmpty());
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
        QCOMPARE(failed.first().item(), locked);
        QVERIFY(dateOf(m_home->file("t/z")) > longAgo);
    }

private:
    std::optional<TemporaryHome> m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestFileSystem)
#include "test_file_system.moc"

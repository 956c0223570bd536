// The gateway to the file system: results, log lines and fallbacks; nothing is overwritten, half copied or lost.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "platform/files/Trash.h"
#include "support/FileFallback.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;
using platform::FileKind;
using platform::kindOf;
using Manager = VTFileManager;

namespace {

QStringList namesIn(const QString &folder)
{
    QStringList names;
    for (const auto &entry : platform::listFolder(folder).valueOr({}))
        names.append(entry.name);
    return names;
}

/// Closed to changes: for the super-user only what is immutable is.
void setClosed(const QString &folder, bool closed)
{
    platform::setImmutable(folder, closed);
    chmod(folder.toUtf8().constData(), closed ? 0555 : 0755);
}

void makeLink(const QString &path, const char *target)
{
    QCOMPARE(symlink(target, path.toUtf8().constData()), 0);
}

} // namespace

class TestFileManager : public QObject
{
    Q_OBJECT

    [[nodiscard]] QString top() const { return m_home.path() + "/work"; }
    [[nodiscard]] QString file(const QString &name) const { return m_home.file("work/" + name); }
    /// The messages logged since the last look.
    QStringList logged()
    {
        VTLog::finishWriting();
        const QByteArray whole = readFile(m_log);
        const QStringList lines = QString::fromUtf8(whole.mid(m_seen)).split(u'\n', Qt::SkipEmptyParts);
        m_seen = whole.size();
        QStringList messages;
        for (const QString &line : lines)
            messages.append(line.section(" - ", 1));
        return messages;
    }

private Q_SLOTS:
    void initTestCase()
    {
        VTLog::createNewLog();
        m_log = VTLog::sharedController().currentLogPath();
    }
    void cleanupTestCase()
    {
        if (platform::isSuperUser())
            QVERIFY(platform::removeTree(m_log).ok()); // it lies in the machine's own library
    }
    void init()
    {
        QVERIFY(platform::removeTree(top()).ok() && platform::makeFolders(top()).ok());
        QVERIFY(platform::removeTree(platform::homeTrashFiles()).ok());
        logged();
    }

    void doesItInEveryForm()
    {
        const auto doAll = [this](auto form) {
            const auto [newOne, copy, moved] = std::tuple{file("new"), file("copy"), file("moved")};
            QVERIFY(Manager::createDirectory(newOne + "/a/b", form) && Manager::createDirectory(newOne + "/a/b", form));
            writeFile(newOne + "/file", "x");
            makeLink(newOne + "/dangling", "missing");
            QVERIFY(Manager::copyFile(newOne, copy, form));
            QCOMPARE(namesIn(copy), QStringList({"a", "dangling", "file"}));
            QVERIFY(Manager::copyFile(newOne + "/dangling", moved, form));
            QVERIFY(Manager::moveFile(moved, file("Moved"), form)); // a change of case only
            QVERIFY(Manager::trashFile(file("Moved"), form) && Manager::trashFile(copy, form));
            QVERIFY(Manager::trashFile(copy, form) && Manager::removeFile(copy, form));
            QVERIFY(Manager::removeFile(newOne + "/dangling", form) && Manager::removeFile(newOne, form));
            QCOMPARE(namesIn(top()), QStringList());
            QCOMPARE(logged(), QStringList());
        };
        QElapsedTimer timer;
        timer.start();
        doAll(ShouldAuth::Yes);
        doAll(ShouldAuth::No);
        doAll(0s);
        doAll(5s);
        QVERIFY(timer.elapsed() < 4000); // nothing waits for what can be seen already
    }

    void waitsNoLongerThanToldTo()
    {
        int turns = 0;
        QTimer ticks;
        connect(&ticks, &QTimer::timeout, this, [&] { ++turns; });
        ticks.start(10ms);
        const auto measure = [] {
            QElapsedTimer timer;
            timer.start();
            waitWhile([] { return true; }, 0s);
            QVERIFY(timer.elapsed() < 100);
            waitWhile([] { return true; }, 1s);
            QVERIFY(timer.elapsed() >= 1000 && timer.restart() < 1700);
            waitWhile([&timer] { return timer.elapsed() < 700; }, 5s);
            QVERIFY(timer.elapsed() >= 700 && timer.elapsed() < 1400);
        };
        measure();
        QVERIFY2(turns > 40, "The window stood still");
        const std::unique_ptr<QThread> worker(QThread::create(measure));
        worker->start();
        QTRY_VERIFY(worker->isFinished());
    }

    void refusesWithOneLogLine()
    {
        writeFile(file("closed/x"), "x");
        writeFile(file("source/x"), "mine");
        writeFile(file("file"), "theirs");
        QVERIFY(platform::makeFolders(file("folder")).ok());
        setClosed(file("closed"), true);
        const auto reopen = qScopeGuard([this] { setClosed(file("closed"), false); });
        for (const ShouldAuth auth : {ShouldAuth::No, ShouldAuth::Yes}) {
            QVERIFY(!Manager::createDirectory(file("closed") + "/new", auth));
            QVERIFY(!Manager::removeFile(file("closed/x"), auth));
            QVERIFY(!Manager::moveFile(file("closed/x"), file("taken"), auth));
            QVERIFY(!Manager::copyFile(file("file"), file("file"), auth));
            QCOMPARE(readFile(file("file")), "theirs"); // the clean-up leaves what stood there before
            QCOMPARE(logged().size(), 4);
            // A folder never goes onto or into what stands there already, nor into itself.
            for (const QString &taken : {file("folder"), file("file"), file("source") + "/new"}) {
                QVERIFY(!Manager::copyFile(file("source"), taken, auth));
                QVERIFY(!Manager::moveFile(file("source"), taken, auth));
                QCOMPARE(logged().size(), 2);
            }
        }
        QVERIFY(!Manager::trashFile(file("closed/x"), ShouldAuth::No));
        QVERIFY(!Manager::copyFile({}, file("new")) && !Manager::copyFile("/a", {}));
        QCOMPARE(readFile(file("closed/x")) + readFile(file("source/x")) + readFile(file("file")), "xminetheirs");
        QCOMPARE(namesIn(file("folder")) + namesIn(file("source")), QStringList{"x"});
    }

    void movesAFileIntoAFolderThatStandsThere()
    {
        QVERIFY(platform::makeFolders(file("folder")).ok());
        for (const char *contents : {"first", "second"}) { // but never onto a namesake
            writeFile(file("x"), contents);
            QCOMPARE(Manager::moveFile(file("x"), file("folder")), qstrcmp(contents, "first") == 0);
        }
        QCOMPARE(readFile(file("folder/x")) + readFile(file("x")), "firstsecond");
    }

    void changesTheCaseWithoutLosingAnything()
    {
        writeFile(file("Project/x"), "mine");
        QVERIFY(Manager::moveFile(file("Project"), file("project"), 0s));
        QCOMPARE(namesIn(top()), QStringList{"project"});
        writeFile(file("PROJECT"), "theirs");
        writeFile(file("a"), "lower");
        writeFile(file("A"), "upper");
        QVERIFY(!Manager::moveFile(file("project"), file("PROJECT")));
        QVERIFY(!Manager::moveFile(file("A"), file("a")));
        QCOMPARE(namesIn(top()), QStringList({"A", "a", "PROJECT", "project"}));
        QCOMPARE(readFile(file("a")) + readFile(file("A")) + readFile(file("PROJECT")), "loweruppertheirs");
    }

    void copiesContentsUpToTheFirstFailure()
    {
        for (const char *name : {"source/A/x", "source/b", "source/C/x", "source/d", "target/c/x"})
            writeFile(file(name), "mine");
        writeFile(file("target/C"), "theirs");
        QVERIFY(!Manager::copyContentsOfDirectory(file("source"), file("target"), 1s));
        QCOMPARE(namesIn(file("target")), QStringList({"A", "b", "C", "c"}));
        QCOMPARE(readFile(file("target/C")), "theirs");
        QVERIFY(Manager::removeFile(file("target/C")));
        QVERIFY(!Manager::copyContentsOfDirectory(file("source"), file("missing/target"), 0s));
    }

    /// To another drive, and something of the source can never be removed: nothing is moved.
    void movesAllOrNothing()
    {
        if (!platform::isSuperUser())
            QSKIP("Only the super-user can protect a file from removal.");
        QTemporaryDir elsewhere("/dev/shm/move-XXXXXX");
        for (const char *name : {"source/a", "source/locked/b", "source/locked/c"})
            writeFile(file(name), "x");
        platform::setImmutable(file("source/locked"), true);
        QVERIFY(!Manager::moveFile(file("source"), elsewhere.filePath("moved")));
        platform::setImmutable(file("source/locked"), false);
        QCOMPARE(namesIn(file("source")), QStringList({"a", "locked"}));
        QCOMPARE(namesIn(file("source/locked")), QStringList({"b", "c"}));
        QCOMPARE(namesIn(elsewhere.path()), QStringList());
        QVERIFY(Manager::moveFile(file("source"), elsewhere.filePath("moved")));
        QCOMPARE(namesIn(elsewhere.filePath("moved")), QStringList({"a", "locked"}));
        QCOMPARE(namesIn(top()), QStringList());
    }

    void namesWhatIsTakenInTheTrash()
    {
        for (const auto &[name, form] : {std::pair{"x.mov", "/x_\\d{14}\\.mov$"}, {"x", "/x_\\d{14}\\.$"}}) {
            writeFile(platform::homeTrashFiles() + u'/' + name);
            const QString target = VTAuthorization::sharedController().trashTarget(file(name));
            QVERIFY2(QRegularExpression(form).match(target).hasMatch(), qPrintable(target));
        }
    }

    /// Asked to delete in place of trashing, it deletes at the target, where nothing stands.
    void deletesTheTargetInsteadOfTrashing()
    {
        if (!platform::isSuperUser())
            QSKIP("Only the super-user deletes in place of trashing.");
        writeFile(file("x"), "x");
        auto &authorization = VTAuthorization::sharedController();
        const QString target = authorization.trashTarget(file("x"));
        QVERIFY(platform::makeFolders(platform::homeTrashFiles()).ok());
        makeLink(target, "missing"); // counts as nothing, and shows when the tool is through
        QVERIFY(authorization.authTrashFile(file("x"), VTAuthorization::DeleteOnRootAccount::Yes));
        QTRY_VERIFY(kindOf(target) == FileKind::Missing);
        QCOMPARE(readFile(file("x")), "x");
    }

    void trashesWhatMatches()
    {
        for (const char *name : {"a.mov", "sub/b.Mov", "sub/c.mov/x", "sub/c.mov/d.MOV", "P.tzt/e.mov", "mov",
                                 "f.mov.txt", "outside/g.mov"})
            writeFile(file(QStringLiteral("t/") + name), name);
        QVERIFY(Manager::moveFile(file("t/outside"), file("outside")));
        makeLink(file("t/link"), "../outside");
        const QString t = file("t");
        QCOMPARE(Manager::trashFilesOfType("MOV", t),
                 QStringList({t + "/a.mov", t + "/P.tzt/e.mov", t + "/sub/b.Mov", t + "/sub/c.mov/d.MOV"}));
        QCOMPARE(Manager::trashFilesNamed("X", t), QStringList());
        QCOMPARE(Manager::trashFilesNamed("x", t), QStringList{t + "/sub/c.mov/x"});
        QCOMPARE(namesIn(t) + namesIn(t + "/sub") + namesIn(file("outside")),
                 QStringList({"f.mov.txt", "link", "mov", "P.tzt", "sub", "c.mov", "g.mov"}));
        QVERIFY(Manager::trashDirectoryContents(t) && Manager::trashDirectoryContents(file("missing")));
        QCOMPARE(namesIn(t), QStringList());
        QCOMPARE(namesIn(platform::homeTrashFiles()).size(), 10);
    }

    void knowsEmptyFolders()
    {
        const QString folder = file("folder");
        for (const char *ignored : {"/.DS_Store", "/Icon\r", "/sub/sub/Icon\r"})
            writeFile(folder + ignored);
        for (const char *item : {"/x", "/.x", "/Icon", "/sub/sub/x", "/link"}) {
            if (item == QByteArray("/link"))
                makeLink(folder + item, "sub");
            else
                writeFile(folder + item);
            QVERIFY2(!Manager::isFolderEmpty(folder) && !Manager::removeFolderIfEmpty(folder), item);
            QVERIFY(Manager::removeFile(folder + item));
        }
        QVERIFY(Manager::isFolderEmpty(folder) && Manager::removeFolderIfEmpty(folder));
        QCOMPARE(namesIn(top()), QStringList());
    }

    void namesItems()
    {
        for (const char *name : {"Untitled", "Untitled 2", "x.tar.gz", ".hidden", "a.b/c"})
            writeFile(file(name));
        makeLink(file("dangling"), "missing");
        for (const auto &[name, expected] : {std::pair{"free", "free"},
                                             {"Untitled", "Untitled 3"},
                                             {".hidden", ".hidden 2"},
                                             {"x.tar.gz", "x.tar 2.gz"},
                                             {"a.b/c", "a.b/c 2"},
                                             {"dangling", "dangling 2"}})
            QCOMPARE(Manager::uniqueFilename(file(name)), file(expected));
        for (const auto &[typed, cleaned] :
             {std::pair{"..", "."}, {"..x", ".x"}, {" a/b:c \n", "abc"}, {". x", "x"}, {"/:", ""}, {"/ a", " a"}})
            QCOMPARE(Manager::validateFilename(typed), cleaned);
    }

    void addsUpSizes()
    {
        writeFile(file("t/a"), QByteArray(1000, 'x'));
        writeFile(file("t/sub/.b"), QByteArray(20, 'x'));
        writeFile(file("outside/c"), QByteArray(3, 'x'));
        makeLink(file("t/sub/up"), "..");
        makeLink(file("t/self"), "self");
        makeLink(file("t/out"), "../outside");
        QCOMPARE(Manager::fileSize(file("t")), 1023u);
        QCOMPARE(Manager::fileSize(file("missing")), 0u);
        for (const auto &[bytes, text] :
             {std::pair{1023.0, "1023 B"}, {1024.0, "1.00 KB"}, {2199023255552.0, "2048.00 GB"}})
            QCOMPARE(Manager::formatFileSize(bytes), text);
    }

private:
    const TemporaryHome m_home; ///< one for all: GIO asks for its folders once
    QString m_log;
    qsizetype m_seen = 0;
};

TESSARO_TEST_MAIN(QCoreApplication, TestFileManager)
#include "test_file_manager.moc"

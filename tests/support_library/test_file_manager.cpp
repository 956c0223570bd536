// The gateway to the file system: results, log lines and fallbacks; nothing is overwritten, half copied or lost.
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"
#include "platform/Trash.h"
#include "platform/Users.h"
#include "support/FileFallback.h"
#include "support/TemporaryHome.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
using platform::FileKind;
using platform::kindOf;
using Manager = VTFileManager;

namespace {

constexpr time_t longAgo = 1'000'000'000;
const QString refused = QStringLiteral("(Permission denied|Operation not permitted)");

QStringList namesIn(const QString &folder)
{
    QStringList names;
    for (const auto &entry : platform::listFolder(folder).value_or(QList<platform::FolderEntry>()))
        names.append(entry.name);
    return names;
}

/// Closed to changes: for the super-user only what is immutable is.
void setClosed(const QString &folder, bool closed)
{
    platform::setImmutable(folder, closed);
    chmod(folder.toUtf8().constData(), closed ? 0555 : 0755);
}

void setDate(const QString &path)
{
    const timespec times[2] = {{longAgo, 0}, {longAgo, 0}};
    utimensat(AT_FDCWD, path.toUtf8().constData(), times, AT_SYMLINK_NOFOLLOW);
}

time_t dateOf(const QString &path)
{
    struct stat info
    {
    };
    lstat(path.toUtf8().constData(), &info);
    return info.st_mtime;
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
    bool loggedOnly(const QString &form)
    {
        const QStringList messages = logged();
        const bool matches = messages.size() == 1 && QRegularExpression("^" + form + "$").match(messages[0]).hasMatch();
        if (!matches)
            qInfo() << "Logged:" << messages;
        return matches;
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

    void doesItInEveryForm_data()
    {
        QTest::addColumn<int>("form");
        for (int form = 0; form < 4; ++form)
            QTest::addRow("%d", form) << form;
    }
    void doesItInEveryForm()
    {
        QFETCH(int, form);
        const auto in = [form](auto operation, auto... paths) {
            return form == 0   ? operation(paths..., ShouldAuth::Yes)
                   : form == 1 ? operation(paths..., ShouldAuth::No)
                   : form == 2 ? operation(paths..., 0s)
                               : operation(paths..., 5s);
        };
        const auto create = [](auto... a) {
            return Manager::createDirectory(a...);
        };
        const auto copy = [](auto... a) {
            return Manager::copyFile(a...);
        };
        const auto move = [](auto... a) {
            return Manager::moveFile(a...);
        };
        const auto remove = [](auto... a) {
            return Manager::removeFile(a...);
        };
        const auto trash = [](auto... a) {
            return Manager::trashFile(a...);
        };
        QElapsedTimer timer;
        timer.start();
        QVERIFY(in(create, top() + "/new/a/b") && in(create, top() + "/new/a/b"));
        writeFile(top() + "/new/file", "x");
        makeLink(top() + "/new/dangling", "missing");
        QVERIFY(in(copy, top() + "/new", top() + "/copy"));
        QCOMPARE(namesIn(top() + "/copy"), QStringList({"a", "dangling", "file"}));
        QVERIFY(in(copy, top() + "/new/dangling", top() + "/dangling"));
        QVERIFY(in(move, top() + "/dangling", top() + "/moved") && in(move, top() + "/copy", top() + "/Copy 2"));
        QVERIFY(in(move, top() + "/Copy 2", top() + "/copy 2")); // a change of case only
        QVERIFY(in(trash, top() + "/moved") && in(trash, top() + "/copy 2"));
        QVERIFY(in(trash, top() + "/moved") && in(remove, top() + "/moved"));
        QVERIFY(in(remove, top() + "/new/dangling") && in(remove, top() + "/new"));
        QCOMPARE(namesIn(top()), QStringList());
        QCOMPARE(logged(), QStringList());
        QVERIFY(timer.elapsed() < 4000); // nothing waits for what can be seen already
    }

    void waitsNoLongerThanToldTo()
    {
        const auto elapsed = [](const std::function<bool()> &condition, std::chrono::seconds timeout) {
            QElapsedTimer timer;
            timer.start();
            waitWhile(condition, timeout);
            return timer.elapsed();
        };
        for (const bool onMain : {true, false}) {
            int turns = 0;
            std::array<qint64, 3> times{};
            const auto measure = [&] {
                times[0] = elapsed([] { return true; }, 0s);
                times[1] = elapsed([] { return true; }, 1s);
                std::thread late([this] {
                    std::this_thread::sleep_for(700ms);
                    writeFile(top() + "/late");
                });
                times[2] = elapsed([this] { return !Manager::fileExistsAtPath(file("late")); }, 5s);
                late.join();
                QVERIFY(Manager::removeFile(file("late")));
            };
            QTimer ticks;
            connect(&ticks, &QTimer::timeout, this, [&] { ++turns; });
            ticks.start(10ms);
            const std::unique_ptr<QThread> worker(QThread::create(measure));
            if (onMain)
                measure();
            else
                worker->start();
            QTRY_VERIFY(onMain || worker->isFinished());
            QVERIFY(times[0] < 100);
            QVERIFY(times[1] >= 1000 && times[1] < 1600);
            QVERIFY(times[2] >= 690 && times[2] < 1400);
            QVERIFY2(turns > 40, "The window stood still");
        }
    }

    void refusesWithOneLogLine()
    {
        writeFile(file("closed/x"), "x");
        writeFile(file("source/x"), "mine");
        writeFile(file("file"), "theirs");
        QVERIFY(platform::makeFolders(file("folder")).ok());
        setClosed(file("closed"), true);
        const auto reopen = qScopeGuard([this] { setClosed(file("closed"), false); });
        const QString work = QRegularExpression::escape(top());
        for (const ShouldAuth auth : {ShouldAuth::No, ShouldAuth::Yes}) {
            QVERIFY(!Manager::createDirectory(file("file") + "/below", auth));
            QVERIFY(
                loggedOnly("Error creating folder: " + work + "/file/below: Not a directory\\. Authorizing\\.\\.\\."));
            QVERIFY(!Manager::createDirectory(file("closed") + "/new", auth));
            QVERIFY(
                loggedOnly("Error creating folder: " + work + "/closed/new: " + refused + "\\. Authorizing\\.\\.\\."));
            QVERIFY(!Manager::removeFile(file("closed/x"), auth));
            QVERIFY(loggedOnly("Error removing file: " + work + "/closed/x: " + refused + "\\. Authorizing\\.\\.\\."));
            QVERIFY(!Manager::moveFile(file("closed/x"), file("taken"), auth));
            QVERIFY(loggedOnly("Error moving file: " + work + "/closed/x: " + refused + "\\. Authorizing\\.\\.\\."));
            QVERIFY(!Manager::copyFile(file("missing"), file("new"), auth));
            QVERIFY(loggedOnly("Error copying file: " + work +
                               "/missing: No such file or directory\\. Authorizing\\.\\.\\."));
            // A folder never goes onto or into what stands there already, nor into itself.
            for (const QString &taken : {file("folder"), file("file")}) {
                QVERIFY(!Manager::copyFile(file("source"), taken, auth));
                QVERIFY(loggedOnly("Error copying file: .*: File exists\\. Authorizing\\.\\.\\."));
                QVERIFY(!Manager::moveFile(file("source"), taken, auth));
                QVERIFY(loggedOnly("Error moving file: " + QRegularExpression::escape(taken) +
                                   ": File exists\\. Authorizing\\.\\.\\."));
            }
            QVERIFY(!Manager::copyFile(file("source"), file("source") + "/new", auth));
            QVERIFY(loggedOnly("Error copying file: " + work + "/source: Invalid argument\\. Authorizing\\.\\.\\."));
            QVERIFY(!Manager::moveFile(file("source"), file("source") + "/new", auth));
            QVERIFY(loggedOnly("Error moving file: " + work + "/source: Invalid argument\\. Authorizing\\.\\.\\."));
        }
        QVERIFY(!Manager::trashFile(file("closed/x"), ShouldAuth::No));
        QCOMPARE(logged(), QStringList());
        QVERIFY(!Manager::copyFile({}, file("new")));
        QVERIFY(loggedOnly("Error copying file: source path is nil"));
        QVERIFY(!Manager::copyFile("/a", {}));
        QVERIFY(loggedOnly("Error copying file /a: destination path is nil"));
        QCOMPARE(readFile(file("closed/x")) + readFile(file("source/x")) + readFile(file("file")), "xminetheirs");
        QCOMPARE(namesIn(file("folder")) + namesIn(file("source")), QStringList{"x"});
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
        QVERIFY(loggedOnly("Error moving file: .*/PROJECT: File exists\\. Authorizing\\.\\.\\."));
        QVERIFY(!Manager::moveFile(file("A"), file("a")));
        QCOMPARE(namesIn(top()), QStringList({"A", "a", "PROJECT", "project"}));
        QCOMPARE(readFile(file("a")) + readFile(file("A")) + readFile(file("PROJECT")), "loweruppertheirs");
        QVERIFY(!Manager::moveFile(file("Missing"), file("missing")));
    }

    void copiesContentsUpToTheFirstFailure()
    {
        for (const char *name : {"A/x", "b", "C/x", "d", "E/x"})
            writeFile(file(QStringLiteral("source/") + name), "mine");
        QVERIFY(platform::makeFolders(file("empty")).ok());
        QVERIFY(platform::makeFolders(file("target/c")).ok());
        writeFile(file("target/C"), "theirs");
        QVERIFY(!Manager::copyContentsOfDirectory(file("source"), file("target"), 1s));
        QVERIFY(loggedOnly("Error copying file: .*/C: File exists\\. Authorizing\\.\\.\\."));
        QCOMPARE(namesIn(file("target")), QStringList({"A", "b", "C", "c"}));
        QCOMPARE(readFile(file("target/C")), "theirs");
        QVERIFY(Manager::copyContentsOfDirectory(file("empty"), file("target"), 1s));
        QVERIFY(Manager::copyContentsOfDirectory(file("missing"), file("target"), 1s));
        QVERIFY(Manager::copyContentsOfDirectory(file("source"), file("empty"), 1s));
        QCOMPARE(namesIn(file("empty")), QStringList({"A", "b", "C", "d", "E"}));
        QVERIFY(!Manager::copyContentsOfDirectory(file("source"), file("empty") + "/missing", 0s));
        QVERIFY(loggedOnly("Error copying file: .*/empty/missing: No such file or directory\\. Authorizing\\.\\.\\."));
    }

    /// The copy is whole, the source could not be removed: what is left of it must not go into the copy.
    void leavesAHalfMovedFolderWhereItIs()
    {
        if (!platform::isSuperUser())
            return; // only the super-user has the tool run again with rights
        QTemporaryDir elsewhere("/dev/shm/move-XXXXXX");
        writeFile(file("source/locked"), "x");
        platform::setImmutable(file("source/locked"), true);
        static_cast<void>(Manager::moveFile(file("source"), elsewhere.filePath("moved")));
        platform::setImmutable(file("source/locked"), false);
        QCOMPARE(namesIn(elsewhere.filePath("moved")), QStringList{"locked"});
    }

    void mirrorsAFolder()
    {
        writeFile(file("a/b/file"));
        QVERIFY(platform::makeFolders(file("a/P.tzt")).ok());
        const QString target = top() + "/target";
        QCOMPARE(Manager::createDirectoryStructure(file("a/b"), target), target + file("a/b"));
        QCOMPARE(Manager::createDirectoryStructure(file("a/b/file"), target), target + file("a/b"));
        QCOMPARE(Manager::createDirectoryStructure(file("a/P.tzt"), target), target + file("a"));
        QCOMPARE(namesIn(target + file("a")), QStringList{"b"});
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
        writeFile(file("u/a/x"));
        writeFile(file("u/b"));
        setClosed(file("u/a"), true);
        QVERIFY(!Manager::trashDirectoryContents(file("u/a"), ShouldAuth::No));
        setClosed(file("u/a"), false);
    }

    void knowsEmptyFolders_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<bool>("isEmpty");
        QTest::newRow("nothing") << QStringList{} << true;
        QTest::newRow("the file browser's own") << QStringList{".DS_Store", "Icon\r"} << true;
        QTest::newRow("below") << QStringList{".DS_Store", "sub/sub/Icon\r", "other/"} << true;
        QTest::newRow("an empty file") << QStringList{"x"} << false;
        QTest::newRow("a file below") << QStringList{"a/", "sub/sub/x"} << false;
        QTest::newRow("a hidden file") << QStringList{".x"} << false;
        QTest::newRow("much like it") << QStringList{"Icon"} << false;
        QTest::newRow("a link to an empty folder") << QStringList{"link"} << false;
    }
    void knowsEmptyFolders()
    {
        QFETCH(QStringList, items);
        QFETCH(bool, isEmpty);
        const QString folder = file("folder");
        QVERIFY(platform::makeFolders(folder + "/").ok() && platform::makeFolders(file("nothing")).ok());
        for (const QString &item : items) {
            if (item == "link")
                makeLink(folder + "/link", "../nothing");
            else if (item.endsWith('/'))
                QVERIFY(platform::makeFolders(folder + '/' + item.chopped(1)).ok());
            else
                writeFile(folder + '/' + item);
        }
        QCOMPARE(Manager::isFolderEmpty(folder), isEmpty);
        QCOMPARE(Manager::removeFolderIfEmpty(folder), isEmpty);
        QCOMPARE(kindOf(folder) == FileKind::Missing, isEmpty);
    }

    void findsFreeNames()
    {
        for (const char *name : {"Untitled", "Untitled 2", "x.tar.gz", ".hidden", "P.tzt", "a.b/c"})
            writeFile(file(name));
        makeLink(file("dangling"), "missing");
        for (const auto &[name, expected] : {std::pair{"free", "free"},
                                             {"Untitled", "Untitled 3"},
                                             {".hidden", ".hidden 2"},
                                             {"x.tar.gz", "x.tar 2.gz"},
                                             {"P.tzt", "P 2.tzt"},
                                             {"a.b/c", "a.b/c 2"},
                                             {"dangling", "dangling 2"}})
            QCOMPARE(Manager::uniqueFilename(file(name)), file(expected));
    }

    void cleansNames()
    {
        for (const auto &[typed, cleaned] : {std::pair{".", ""},
                                             {".hidden", "hidden"},
                                             {"..x", ".x"},
                                             {" a/b:c \n", "abc"},
                                             {"a\\b", "a\\b"},
                                             {"", ""},
                                             {" .x", ".x"},
                                             {". x", "x"},
                                             {"/:", ""},
                                             {"..", "."},
                                             {"a  b", "a  b"},
                                             {"/ a", " a"}})
            QCOMPARE(Manager::validateFilename(typed), cleaned);
    }

    void formatsSizes()
    {
        for (const auto &[bytes, text] : {std::pair{0.0, "0 B"},
                                          {1023.0, "1023 B"},
                                          {1024.0, "1.00 KB"},
                                          {1536.0, "1.50 KB"},
                                          {1048575.0, "1024.00 KB"},
                                          {1048576.0, "1.00 MB"},
                                          {1073741824.0, "1.00 GB"},
                                          {2199023255552.0, "2048.00 GB"}})
            QCOMPARE(Manager::formatFileSize(bytes), text);
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
        QCOMPARE(Manager::fileSize(file("t/a")), 1000u);
        QCOMPARE(Manager::fileSize(file("missing")), 0u);
    }

    void datesTheItemItself()
    {
        writeFile(file("target"));
        makeLink(file("link"), "target");
        makeLink(file("dangling"), "missing");
        for (const char *name : {"target", "link", "dangling"})
            setDate(file(name));
        QVERIFY(Manager::touchFile(file("link")) && Manager::touchFile(file("dangling")));
        QVERIFY(dateOf(file("link")) > longAgo && dateOf(file("dangling")) > longAgo);
        QCOMPARE(dateOf(file("target")), longAgo);
        QVERIFY(Manager::touchFile(file("target")));
        QVERIFY(dateOf(file("target")) > longAgo);
        QVERIFY(!Manager::touchFile(file("missing")) && !Manager::touchFile({}));
        QCOMPARE(kindOf(file("missing")), FileKind::Missing);
    }

private:
    const TemporaryHome m_home; ///< one for all: GIO asks for its folders once
    QString m_log;
    qsizetype m_seen = 0;
};

TESSARO_TEST_MAIN(QCoreApplication, TestFileManager)
#include "test_file_manager.moc"

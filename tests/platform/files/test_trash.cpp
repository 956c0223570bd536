// The Trash: what is trashed can be seen there and put back, and success is only claimed of what arrived.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

class TestTrash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const QString folder = m_home.file("items");
        QVERIFY(removeTree(folder).ok() && makeFolders(folder).ok());
        QVERIFY(QDir::setCurrent(folder));
    }

    void makesItsFolders()
    {
        for (const char *missing : {".local", ".local/share", ".local/share/Trash"}) {
            QVERIFY(removeTree(joined(m_home.path(), missing)).ok());
            writeFile(m_home.file("items/x"), missing);
            QVERIFY(moveToTrash(m_home.file("items/x")).ok());
            QCOMPARE(readFile(homeTrashFiles() + "/x"), missing);
            QCOMPARE(listFolder(m_home.file("items"))->size(), 0);
            struct stat info
            {
            };
            QCOMPARE(stat(toNative(homeTrashFiles()).constData(), &info), 0);
            QCOMPARE(info.st_mode & 077, 0u); // what others threw away is nobody's business
        }
    }

    void takes()
    {
        // A name with everything, one that is no UTF-8, and links, which are taken themselves.
        for (const auto &[text, target] : {std::pair{"a %20\n\360\237\230\200", ""},
                                           {"bad\377.txt", ""},
                                           {"bad\377", "missing"},
                                           {"link", "../kept"}}) {
            const QByteArray name(text);
            const bool isLink = *target != 0;
            writeFile(m_home.file("kept/x"), "kept");
            const QString item = joined(m_home.file("items"), fromNative(name));
            if (isLink)
                QCOMPARE(symlink(target, toNative(item).constData()), 0);
            else
                writeFile(item, "mine");
            QVERIFY(moveToTrash(item).ok());
            QCOMPARE(kindOf(item), FileKind::Missing);
            QCOMPARE(readFile(m_home.file("kept/x")), "kept");
            QCOMPARE(kindOf(joined(homeTrashFiles(), fromNative(name))), isLink ? FileKind::Link : FileKind::File);
            // Without its note, no file browser can put it back.
            const QString note = joined(parentPath(homeTrashFiles()), "info/" + fromNative(name + ".trashinfo"));
            QVERIFY(readFile(note).contains("Path=" + toNative(item).toPercentEncoding("/")));
        }
    }

    void keepsBothOfOneName()
    {
        const qsizetype before = listFolder(homeTrashFiles())->size();
        for (const char *contents : {"first", "second", "third"}) {
            writeFile(m_home.file("items/same.txt"), contents);
            QVERIFY(moveToTrash(m_home.file("items/same.txt")).ok());
        }
        QCOMPARE(listFolder(homeTrashFiles())->size(), before + 3);
        QCOMPARE(readFile(homeTrashFiles() + "/same.txt"), "first");
    }

    /// Every name that the file system takes, beside its note, whose name is longer.
    void longNames_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const int length : {245, 246, 255})
            QTest::addRow("%d bytes", length) << QByteArray(length, 'n');
        QTest::newRow("with an extension") << QByteArray(250, 'n') + ".mov";
        QTest::newRow("of three bytes a character") << QString(85, QChar(0x65E5)).toUtf8();
        QTest::newRow("no UTF-8") << QByteArray(255, '\xE6');
    }
    void longNames()
    {
        QFETCH(QByteArray, name);
        for (int i = 0; i < 3; ++i) { // namesakes, too
            const QString item = joined(m_home.file("items"), fromNative(name));
            writeFile(item, name);
            const auto identity = identityOf(item);
            QVERIFY(moveToTrash(item).ok());
            int found = 0;
            for (const FolderEntry &entry : *listFolder(homeTrashFiles())) {
                if (identityOf(joined(homeTrashFiles(), entry.name)) != identity)
                    continue;
                ++found;
                const QString note = joined(parentPath(homeTrashFiles()), "info/" + entry.name + ".trashinfo");
                QVERIFY(readFile(note).contains("Path=" + toNative(item).toPercentEncoding("/") + '\n'));
            }
            QCOMPARE(found, 1);
        }
    }

    /// Where the note cannot be written the item stays: without it nobody could put it back.
    void needsItsNote()
    {
        if (geteuid() == 0)
            QSKIP("No folder is closed to the super-user");
        const QByteArray info = toNative(joined(parentPath(homeTrashFiles()), "info"));
        writeFile(m_home.file("items/x"), "x");
        QCOMPARE(chmod(info.constData(), 0555), 0);
        const Outcome trashed = moveToTrash(m_home.file("items/x"));
        QCOMPARE(chmod(info.constData(), 0700), 0);
        QVERIFY(trashed.needsRights());
        QCOMPARE(readFile(m_home.file("items/x")), "x");
    }

    void leavesWhatItCannotTake()
    {
        QVERIFY(moveToTrash(m_home.file("items/missing")).is(Cause::Missing));
        if (geteuid() == 0)
            QSKIP("No folder is closed to the super-user.");
        writeFile(m_home.file("items/closed/x"), "x");
        chmod(toNative(m_home.file("items/closed")).constData(), 0555);
        QVERIFY(moveToTrash(m_home.file("items/closed/x")).needsRights());
        chmod(toNative(m_home.file("items/closed")).constData(), 0755);
        QCOMPARE(readFile(m_home.file("items/closed/x")), "x");
    }

    void takesFromOtherMounts()
    {
        QTemporaryDir elsewhere("/dev/shm/trash-XXXXXX");
        writeFile(elsewhere.filePath("x-of-test"), "x");
        const auto identity = identityOf(elsewhere.filePath("x-of-test"));
        QVERIFY(moveToTrash(elsewhere.filePath("x-of-test")).ok());
        const QString trash = "/dev/shm/.Trash-" + QString::number(getuid());
        QVERIFY(identity == identityOf(trash + "/files/x-of-test"));
        QVERIFY(removeTree(trash + "/files/x-of-test").ok());
        QVERIFY(removeTree(trash + "/info/x-of-test.trashinfo").ok());
    }

private:
    const TemporaryHome m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestTrash)
#include "test_trash.moc"

// Another program writes the file: the event loop hears of it.
#include "harness/TemporaryHome.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FileWatch.h"
#include "platform/files/WholeFile.h"

#include <QCoreApplication>
#include <QTest>

class TestFileWatch : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString file(const QString &name) const { return m_folder.filePath(name); }

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("replaced in one step") << "replaced" << true;
        QTest::newRow("written in place") << "written" << true;
        QTest::newRow("removed") << "removed" << true;
        QTest::newRow("moved away") << "moved" << true;
        QTest::newRow("its neighbour") << "neighbour" << false;
        QTest::newRow("read") << "read" << false;
    }
    void tells()
    {
        QFETCH(QString, event);
        QFETCH(bool, isTold);
        writeFile(file("s.plist"), "old");
        int told = 0;
        const platform::FileWatch watch(file("s.plist"), [&] { ++told; });
        if (event == "replaced")
            QVERIFY(platform::replaceFile(file("s.plist"), "new").ok());
        else if (event == "written")
            writeFile(file("s.plist"), "new");
        else if (event == "removed")
            QVERIFY(platform::removeTree(file("s.plist")).ok());
        else if (event == "moved")
            QVERIFY(platform::moveItem(file("s.plist"), file("gone")).ok());
        else if (event == "neighbour")
            writeFile(file("s.plist.lock"), "x");
        else
            QCOMPARE(readFile(file("s.plist")), QByteArray("old"));
        if (isTold)
            QTRY_COMPARE(told, 1); // several events, one call
        QTest::qWait(20);
        QCOMPARE(told, isTold ? 1 : 0);
    }

    void aFolderThatIsNotThereIsNoFailure()
    {
        const platform::FileWatch watch(file("none/s.plist"), [] { QFAIL("Nothing was there"); });
        writeFile(file("none/s.plist"));
        QTest::qWait(20);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestFileWatch)
#include "test_file_watch.moc"

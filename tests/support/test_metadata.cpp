// What travels beside the contents: labels, locks; and the file manager's patterns, archives and background copies.
#include "harness/HeldFile.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <sys/stat.h>
#include <sys/xattr.h>

using platform::joined;
using platform::kindOf;
using Kind = platform::FileKind;

namespace {

constexpr const char *attribute = "user.com.apple.FinderInfo";

void setAttribute(const QString &path, const QByteArray &value)
{
    QCOMPARE(setxattr(path.toUtf8(), attribute, value.constData(), static_cast<std::size_t>(value.size()), 0), 0);
}

QByteArray attributeOf(const QString &path)
{
    QByteArray value(256, '\0');
    value.truncate(qMax<ssize_t>(0, getxattr(path.toUtf8(), attribute, value.data(), 256)));
    return value;
}

/// Notes what it is told, in both forms.
class Delegate : public QObject
{
    Q_OBJECT

public:
    QList<QVariantMap> running;
    QList<QVariantMap> finished;
    bool cancelsAtOnce = false;

    Q_INVOKABLE void fileOperationProgress(const QVariantMap &record, const platform::CopyOperation::Ref &operation)
    {
        running.append(record);
        if (cancelsAtOnce)
            VTFileManager::cancelFileOperation(operation);
    }
    Q_INVOKABLE void fileOperationProgress(const QVariantMap &) { QFAIL("The other form comes first"); }
    Q_INVOKABLE void fileOperationFinished(const QVariantMap &record) { finished.append(record); }
};

} // namespace

class TestMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static_cast<void>(m_home.file("Library/Logs/x"));
        VTLog::createNewLog();
    }
    void init() { QVERIFY(platform::removeTree(m_work).ok() && platform::makeFolders(m_work).ok()); }

    void labelsChangeNothingElse()
    {
        const QString file = joined(m_work, "x");
        writeFile(file, "x");
        QCOMPARE(VTFileManager::finderColorIndexForPath(file), 0);
        QVERIFY(!VTFileManager::finderColorForPath(file));
        VTFileManager::setFinderColorIndex(4, file);
        QCOMPARE(attributeOf(file), QByteArray(8, '\0') + QByteArray("\0\x04", 2) + QByteArray(22, '\0'));
        QVERIFY(VTFileManager::finderColorForPath(file) == (LabelColor{0.2056, 0.5, 0.85}));

        QByteArray full(32, '\x5A');
        full.replace(8, 2, QByteArray("\x40\x0D", 2)); // another flag, orange's neighbour's odd bit
        setAttribute(file, full);
        QCOMPARE(VTFileManager::finderColorIndexForPath(file), 0x400D);
        QVERIFY(!VTFileManager::finderColorForPath(file)); // a word with any other flag has no colour
        VTFileManager::setFinderColorIndex(3, file);       // only bits 1 to 3 of it count
        full[9] = 0x03;
        QCOMPARE(attributeOf(file), full);

        for (const QByteArray &strange : {QByteArray(31, 'x'), QByteArray(33, 'x'), QByteArray("x")}) {
            setAttribute(file, strange);
            QCOMPARE(VTFileManager::finderColorIndexForPath(file), 0);
            VTFileManager::setFinderColorIndex(6, file);
            QCOMPARE(attributeOf(file), strange);
        }
        for (int index = 0; index < 20; ++index)
            QCOMPARE(VTFileManager::finderColorForIndex(index).has_value(), index >= 2 && index <= 15);
        QVERIFY(VTFileManager::finderColorForIndex(13) == (LabelColor{0.0083, 0.54, 1.0}));
        VTFileManager::setFinderColorIndex(6, joined(m_work, "missing"));
        QCOMPARE(VTFileManager::finderColorIndexForPath(QString()), 0);
    }

    /// Only the super-user may lock; for anyone else it is silently without effect.
    void locksWhatIsBelow()
    {
        for (const char *name : {"d/x", "d/e/y"})
            writeFile(joined(m_work, name), "x");
        const auto locked = [&] {
            QList<bool> all;
            for (const char *name : {"d", "d/x", "d/e", "d/e/y"})
                all.append(VTFileManager::isFileLocked(joined(m_work, name)));
            return all;
        };
        const bool may = geteuid() == 0;
        VTFileManager::lockFolder(joined(m_work, "d"));
        QCOMPARE(locked(), QList<bool>({false, may, false, may}));
        VTFileManager::unlockFolder(joined(m_work, "d"));
        VTFileManager::lockFile(joined(m_work, "d/e"));
        QCOMPARE(locked(), QList<bool>({false, false, may, false}));
        VTFileManager::unlockFile(joined(m_work, "d/e"));
        QCOMPARE(locked(), QList<bool>({false, false, false, false}));
    }

    void patterns_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("found");
        QTest::newRow("in the middle") << "Projects/*/Media"
                                       << "Projects/.hidden/Media Projects/A/Media Projects/B/Media";
        QTest::newRow("part of a name") << "Pro*s/A*"
                                        << "Projects/A";
        QTest::newRow("empty run") << "Projects*"
                                   << "Projects";
        QTest::newRow("one character, also a wide one") << "Names/*?.txt"
                                                        << "Names/a?.txt Names/ab.txt Names/\U0001F600.txt";
        QTest::newRow("exactly two") << "Names/??*.txt"
                                     << "Names/a?.txt Names/ab.txt";
        QTest::newRow("a question mark by itself") << "Names/a?.txt"
                                                   << "Names/a?.txt";
        QTest::newRow("case counts") << "projects/*"
                                     << "";
        QTest::newRow("beyond a file") << "Names/*/x"
                                       << "";
        QTest::newRow("no dangling links") << "Links/*"
                                           << "";
        QTest::newRow("not there, without a star") << "No/such"
                                                   << "No/such";
        QTest::newRow("from the root, all the same") << "/Projects/A*"
                                                     << "Projects/A";
    }
    void patterns()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, found);
        for (const char *name :
             {"Projects/A/Media/x", "Projects/B/Media/x", "Projects/.hidden/Media/x", "Projects/C/x", "Names/a?.txt",
              "Names/ab.txt", "Names/\360\237\230\200.txt", "Names/x.txd", "Links/x"})
            writeFile(joined(m_work, QString::fromUtf8(name)), "x");
        QVERIFY(platform::removeTree(joined(m_work, "Links/x")).ok());
        QCOMPARE(symlink("nowhere", joined(m_work, "Links/x").toUtf8()), 0);
        QStringList paths = found.split(' ', Qt::SkipEmptyParts);
        for (QString &path : paths)
            path = m_work + '/' + path;
        QCOMPARE(VTFileManager::filesMatchingWildcardPath(pattern, m_work), paths);
        QCOMPARE(VTFileManager::decodeWildcardPath(pattern, m_work), paths.value(0, m_work + '/' + pattern));
    }
    void patternsFromTheRoot()
    {
        QCOMPARE(VTFileManager::filesMatchingWildcardPath("no/star"), QStringList("no/star"));
        QVERIFY(VTFileManager::filesMatchingWildcardPath("/us*/bin").contains("/usr/bin"));
    }

    void compressesIntoPlace()
    {
        writeFile(joined(m_work, "Folder/x"), "x");
        writeFile(joined(m_work, "a.zip"), "the old one");
        QVERIFY(VTFileManager::compressFile(joined(m_work, "Folder"), joined(m_work, "a.zip")));
        QCOMPARE(readFile(VTLocalPaths::trashDirectory() + "/a.zip"), "the old one");
        QVERIFY(readFile(joined(m_work, "a.zip")).contains("Folder/x"));
        // One unreadable item makes no archive, and leaves none half made.
        QVERIFY(!VTFileManager::compressFile(joined(m_work, "missing"), joined(m_work, "b.zip")));
        QCOMPARE(QDir(m_work).entryList(QDir::Files | QDir::Hidden), QStringList("a.zip"));
    }

    void copiesAndReports()
    {
        Delegate delegate;
        const HeldFile held(joined(m_work, "from/held"));
        for (int i = 0; i < 9; ++i)
            writeFile(joined(m_work, "from/d/%1").arg(i), QByteArray(1000, 'x'));
        QVERIFY(held.isHeld);
        const QString to = joined(m_work, "new/deep/to");
        QVERIFY(VTFileManager::copyFileWithProgress(joined(m_work, "from"), to, &delegate, 7, "second"));
        QVERIFY(VTFileManager::copyFileWithProgress(joined(m_work, "from/d"), joined(m_work, "other"), nullptr));
        QTRY_VERIFY_WITH_TIMEOUT(!delegate.running.isEmpty(), 3000);
        const QVariantMap record = delegate.running.first();
        QCOMPARE(record.keys(),
                 QStringList({"bytesCompleted", "bytesTotal", "delegate", "destination", "itemsCompleted", "itemsTotal",
                              "object", "object2", "operationtype", "source", "stage", "throughput"}));
        QCOMPARE(record["stage"], 2);
        QCOMPARE(record["destination"], to);
        QCOMPARE(record["object2"], "second");
        QCOMPARE(record["bytesTotal"], 9004);
        QCOMPARE(record["itemsTotal"], 12);
        QVERIFY(record["bytesCompleted"].toInt() <= 9000 && record["itemsCompleted"].toInt() < 12);
        held.letGo();
        QTRY_COMPARE(delegate.finished.size(), 1);
        QCOMPARE(delegate.finished[0]["stage"], 3);
        QCOMPARE(delegate.finished[0].size(), record.size() - 5);
        QVERIFY(delegate.running.size() <= 3); // once a second, not more
        QCOMPARE(readFile(to + "/held"), "held");
        QCOMPARE(VTFileManager::fileSize(to), 9004u);
        QTRY_COMPARE(VTFileManager::fileSize(joined(m_work, "other")), 9000u);
    }

    void cancelledOrFailedLeavesNothing()
    {
        Delegate delegate;
        delegate.cancelsAtOnce = true;
        const HeldFile held(joined(m_work, "from/held"));
        writeFile(joined(m_work, "from/d/x"), "x");
        QVERIFY(VTFileManager::copyFileWithProgress(joined(m_work, "from"), joined(m_work, "to"), &delegate));
        QTRY_COMPARE_WITH_TIMEOUT(delegate.running.size(), 1, 3000);
        held.letGo();
        QTRY_COMPARE(delegate.finished.size(), 1);
        QCOMPARE(kindOf(joined(m_work, "to")), Kind::Missing);

        writeFile(joined(m_work, "taken"), "mine");
        QVERIFY(VTFileManager::copyFileWithProgress(joined(m_work, "from"), joined(m_work, "taken"), &delegate));
        QTRY_COMPARE(delegate.finished.size(), 2); // a failure also ends with stage 3
        QCOMPARE(readFile(joined(m_work, "taken")), "mine");
        VTLog::finishWriting();
        QVERIFY(readFile(VTLog::sharedController().currentLogPath())
                    .contains("Error copying file: " + joined(m_work, "taken").toUtf8() + ": File exists"));
        QVERIFY(!VTFileManager::copyFileWithProgress(joined(m_work, "missing"), joined(m_work, "x"), &delegate));
        QVERIFY(!VTFileManager::copyFileWithProgress(joined(m_work, "from"), joined(m_work, "taken/x/y"), &delegate));
    }

private:
    const TemporaryHome m_home; ///< one for all: the log opens its file once
    const QString m_work = m_home.file("work/x").chopped(2);
};

TESSARO_TEST_MAIN(QCoreApplication, TestMetadata)
#include "test_metadata.moc"

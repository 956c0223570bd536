// Paths: no byte of a name is lost or made up between the kernel, the program and the screen, at any length.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"

#include <QCoreApplication>
#include <QTest>

using namespace platform;

class TestNativePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatIsNoUtf8()
    {
        for (const auto &[bytes, replaced] : {std::pair{"\360\237\230\200", 0},
                                              {"\357\277\275", 1},     // a real replacement character
                                              {"\300\257", 2},         // an overlong slash
                                              {"\355\262\200", 3},     // the surrogate that stands for a byte
                                              {"\364\220\200\200", 4}, // above the last character
                                              {"a\342\202", 2},
                                              {"\342\202b", 2},
                                              {"\360\237\230\200\200\360\237\230\200", 1}})
            QCOMPARE(forDisplay(fromNative(bytes)).count(QChar::ReplacementCharacter), replaced);
    }

    /// Every pair of bytes, and every row of four out of the bytes at which UTF-8 changes its mind.
    void isAnExactInverse()
    {
        QByteArray edges("/\x7F\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF3\xF4\xF5\xFF");
        QByteArrayList rows;
        for (int i = 1; i < 0x10000; ++i)
            rows.append({QByteArray(1, static_cast<char>(i >> 8)) + static_cast<char>(i)});
        for (qsizetype i = 0, n = edges.size(); i < n * n * n * n; ++i)
            rows.append(QByteArray(1, edges[i % n]) + edges[i / n % n] + edges[i / n / n % n] + edges[i / n / n / n]);
        for (const QByteArray &row : std::as_const(rows)) {
            const QString path = fromNative(row);
            if (toNative(path) != row || !forDisplay(path).isValidUtf16())
                QFAIL(row.toHex().constData());
        }
    }

    void splitsAndJoins()
    {
        // Path, last component, parent, extension, path without it.
        for (const QStringList &row : {QStringList{"/", "/", "/", "", "/"},
                                       {"/a", "a", "/", "", "/a"},
                                       {"/a.d/b", "b", "/a.d", "", "/a.d/b"},
                                       {"/a/x.tar.gz", "x.tar.gz", "/a", "gz", "/a/x.tar"},
                                       {"/a/.hidden", ".hidden", "/a", "", "/a/.hidden"},
                                       {"/a/x.", "x.", "/a", "", "/a/x."},
                                       {"/a/b//", "b", "/a", "", "/a/b//"},
                                       {"a", "a", "", "", "a"}}) {
            const QString &path = row[0];
            QCOMPARE(
                QStringList({path, lastComponent(path), parentPath(path), extensionOf(path), withoutExtension(path)}),
                row);
            QCOMPARE(joined("/x/", path), joined("/x", path));
            QCOMPARE(joined(path, ""), path);
        }
    }

    /// Total lengths around every multiple of what the kernel takes in one piece: 4096 bytes.
    void worksAtAnyLength()
    {
        const TemporaryHome home;
        const QString top = home.file("top");
        QString folder = top;
        QVERIFY(makeNewFolder(top).ok());
        for (int level = 0; level < 400; ++level) {
            folder += u'/' + QString(20, u'n');
            QVERIFY2(makeNewFolder(folder).ok(), qPrintable(QString::number(folder.size())));
            const qsizetype distance = 4096 - folder.size() % 4096;
            if (distance < 40 || distance > 230)
                continue;
            for (qsizetype length = distance - 25; length < distance + 10; ++length) {
                const QString item = folder + u'/' + QString(length, u'i');
                QVERIFY(makeNewFolder(item).ok());
                QVERIFY2(setFlagsWord(item, 6, 0xFFFF), qPrintable(QString::number(item.size())));
                QCOMPARE(flagsWordOf(item), 6);
                QVERIFY(moveItem(item, item + u'2').ok());
                QCOMPARE(kindOf(item + u'2'), FileKind::Folder);
            }
            QCOMPARE(listFolder(folder)->size(), 35);
        }
        QVERIFY(folder.size() > 8400);
        QVERIFY(removeTree(top).ok());
        QCOMPARE(kindOf(top), FileKind::Missing);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestNativePath)
#include "test_native_path.moc"

// Paths: no byte of a name is lost or made up between the kernel, the program and the screen, at any length.
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QTest>

using namespace platform;

class TestNativePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatIsNoUtf8_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("replaced");
        QTest::newRow("composed") << QByteArray("\xC3\xBC") << 0;
        QTest::newRow("decomposed") << QByteArray("u\xCC\x88") << 0;
        QTest::newRow("emoji") << QByteArray("\xF0\x9F\x98\x80") << 0;
        QTest::newRow("real replacement character") << QByteArray("\xEF\xBF\xBD") << 0;
        QTest::newRow("overlong slash") << QByteArray("\xC0\xAF") << 2;
        QTest::newRow("overlong, three bytes") << QByteArray("\xE0\x80\xAF") << 3;
        QTest::newRow("overlong, four bytes") << QByteArray("\xF0\x80\x80\xAF") << 4;
        QTest::newRow("high surrogate") << QByteArray("\xED\xA0\x80") << 3;
        QTest::newRow("surrogate that stands for a byte") << QByteArray("\xED\xB2\x80") << 3;
        QTest::newRow("surrogate pair, each by itself") << QByteArray("\xED\xA0\xBD\xED\xB8\x80") << 6;
        QTest::newRow("above the last character") << QByteArray("\xF4\x90\x80\x80") << 4;
        QTest::newRow("cut short at the end") << QByteArray("a\xE2\x82") << 2;
        QTest::newRow("cut short by a letter") << QByteArray("\xE2\x82"
                                                             "b")
                                               << 2;
        QTest::newRow("bad byte between emoji") << QByteArray("\xF0\x9F\x98\x80\x80\xF0\x9F\x98\x80") << 1;
    }
    void showsWhatIsNoUtf8()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, replaced);
        const QString path = fromNative(bytes);
        QCOMPARE(toNative(path), bytes);
        QCOMPARE(forDisplay(path).count(QChar::ReplacementCharacter), replaced + bytes.count("\xEF\xBF\xBD"));
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

    void splitsAndJoins_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("stem");
        QTest::newRow("/") << "/"
                           << "/"
                           << ""
                           << "/";
        QTest::newRow("/a") << "a"
                            << "/"
                            << ""
                            << "/a";
        QTest::newRow("/a/b.txt") << "b.txt"
                                  << "/a"
                                  << "txt"
                                  << "/a/b";
        QTest::newRow("/a.d/b") << "b"
                                << "/a.d"
                                << ""
                                << "/a.d/b";
        QTest::newRow("/a/x.tar.gz") << "x.tar.gz"
                                     << "/a"
                                     << "gz"
                                     << "/a/x.tar";
        QTest::newRow("/a/.hidden") << ".hidden"
                                    << "/a"
                                    << ""
                                    << "/a/.hidden";
        QTest::newRow("/a/x.") << "x."
                               << "/a"
                               << ""
                               << "/a/x.";
        QTest::newRow("/a/b//") << "b"
                                << "/a"
                                << ""
                                << "/a/b//";
        QTest::newRow("a") << "a"
                           << ""
                           << ""
                           << "a";
    }
    void splitsAndJoins()
    {
        const QString path = QTest::currentDataTag();
        QFETCH(QString, last);
        QFETCH(QString, parent);
        QTEST(lastComponent(path), "last");
        QTEST(parentPath(path), "parent");
        QTEST(extensionOf(path), "extension");
        QTEST(withoutExtension(path), "stem");
        QCOMPARE(joined("/x/", path), joined("/x", path));
        QCOMPARE(joined(path, ""), path);
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

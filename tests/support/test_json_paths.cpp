// Paths in JSON: what programs read is text, and each byte of a name can be had back from it.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "support/JsonPaths.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class TestJsonPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteComesBack_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<bool>("isText");
        QTest::newRow("text") << QByteArray("/p/Größe 🎬 100%/\"a\\b\"\n") << true;
        QTest::newRow("one byte") << QByteArray("/p%2F/h\xff h") << false;
        QTest::newRow("a letter cut off") << QByteArray("/p/\xc3/\xb6") << false;
        QTest::newRow("a surrogate") << QByteArray("/p/\xed\xa0\xbd") << false;
        QTest::newRow("the sign of replacement") << QByteArray("/p/\xef\xbf\xbd") << true;
        QTest::newRow("nothing") << QByteArray() << true;
    }
    void everyByteComesBack()
    {
        QFETCH(QByteArray, path);
        QFETCH(bool, isText);
        QJsonObject object;
        insertPath(object, "path", platform::fromNative(path));
        const QByteArray bytes = QJsonDocument(object).toJson();
        QVERIFY(QUtf8StringView(bytes).isValidUtf8());
        const QJsonObject read = QJsonDocument::fromJson(bytes).object();
        QCOMPARE(read.contains("pathEncoded"), !isText);
        QCOMPARE(isText ? read["path"].toString().toUtf8()
                        : QByteArray::fromPercentEncoding(read["pathEncoded"].toString().toLatin1()),
                 path);
        QJsonObject several;
        insertPaths(several, "paths", {"plain", platform::fromNative(path)});
        const QJsonObject readOnes = QJsonDocument::fromJson(QJsonDocument(several).toJson()).object();
        QCOMPARE(readOnes["paths"].toArray().size(), 2);
        QCOMPARE(readOnes["pathsEncoded"].toArray().size(), isText ? 0 : 2);
        QCOMPARE(readOnes[isText ? "paths" : "pathsEncoded"].toArray()[1].toString(),
                 read[isText ? "path" : "pathEncoded"].toString());
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestJsonPaths)
#include "test_json_paths.moc"

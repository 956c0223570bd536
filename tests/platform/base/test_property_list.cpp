// Property lists: what is written comes back, and what would bring the library down never reaches it.
#include "platform/base/PropertyList.h"

#include <QDateTime>
#include <QTest>
#include <QTimeZone>
#include <QtEndian>

using platform::readPropertyList;
using platform::writePropertyList;

namespace {

/// The binary form of the objects, the first one on top; references and offsets of one byte.
QByteArray binary(const QByteArrayList &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += static_cast<char>(bytes.size());
        bytes += object;
    }
    const quint64 numbers[] = {qToBigEndian(quint64(objects.size())), 0, qToBigEndian(quint64(bytes.size()))};
    return bytes + table + QByteArray(6, '\0') + "\x01\x01" +
           QByteArray(reinterpret_cast<const char *>(numbers), sizeof numbers);
}

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBack_data()
    {
        const auto date = [](int year) {
            return QVariant(QDateTime(QDate(year, 5, 17), QTime(11, 12, 13), QTimeZone::utc()));
        };
        QTest::addColumn<QVariant>("value");
        QTest::newRow("text") << QVariant("\u00E4 \U0001F3AC <&> \n");
        QTest::newRow("characters that XML cannot hold") << QVariant(QString("a\u0001b\u001Bc\uFFFE"));
        QTest::newRow("such characters in a key") << QVariant(QVariantMap{{"a\u0002", "x"}});
        QTest::newRow("three kinds of one") << QVariant(QVariantList{1LL, true, "1", 1.0});
        QTest::newRow("negative") << QVariant(-5LL);
        QTest::newRow("bytes") << QVariant(QByteArray("\0\xff x", 4));
        QTest::newRow("today") << date(2026);
        QTest::newRow("before the epoch") << date(1999);
        QTest::newRow("beyond 32 bits") << date(2200);
        QTest::newRow("long before them") << date(1850);
        QTest::newRow("nested") << QVariant(QVariantMap{{"a", QVariantList{QVariantMap{{"b", date(2300)}}, ""}}});
    }
    void comesBack()
    {
        QFETCH(QVariant, value);
        const auto read = readPropertyList(writePropertyList(value));
        QVERIFY(read);
        QCOMPARE(*read, value);
        QCOMPARE(read->typeId(), value.typeId());
    }

    void keepsWhatOthersWrite()
    {
        const auto uid = readPropertyList(binary({QByteArray("\xd1\x01\x02", 3), "Qk", QByteArray("\x80\x07", 2)}));
        QVERIFY(uid);
        QCOMPARE(uid->toMap()["k"].toMap()["CF$UID"], QVariant(7LL));
        const QVariant far(QDateTime(QDate(4001, 1, 1), QTime(0, 0), QTimeZone::utc()));
        const auto read = readPropertyList("<plist version=\"1.0\"><date>4001-01-01T00:00:00Z</date></plist>");
        QVERIFY(read);
        QCOMPARE(*read, far);
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a wide key with U+0000")
            << binary({QByteArray("\xd1\x01\x02", 3), QByteArray("\x62\0a\0\0", 5), "Qv"});
        QTest::newRow("a key with U+0000") << binary({QByteArray("\xd1\x01\x02", 3),
                                                      QByteArray("\x52"
                                                                 "a\0",
                                                                 3),
                                                      "Qv"});
        QTest::newRow("a key that is a number")
            << binary({QByteArray("\xd1\x01\x02", 3), QByteArray("\x10\x05", 2), "Qv"});
        QByteArrayList doubling;
        for (char i = 1; i < 30; ++i)
            doubling << QByteArray("\xa2") + i + i;
        QTest::newRow("each list names the next one twice") << binary(doubling << "Qx");
        QTest::newRow("a list in itself") << binary({QByteArray("\xa1\0", 2)});
        QTest::newRow("two lists in each other") << binary({"\xa1\x01", QByteArray("\xa1\0", 2)});
        QTest::newRow("a reference to nothing") << binary({"\xa1\x09"});
        QTest::newRow("a list longer than the file")
            << binary({QByteArray("\xaf\x13\xff\xff\xff\xff\xff\xff\xff\xff", 10)});
        QTest::newRow("cut off") << binary({"Qx"}).chopped(20);
        QTest::newRow("deep XML") << QByteArray("<array>").repeated(6000) + QByteArray("</array>").repeated(6000);
        QTest::newRow("nothing") << QByteArray();
    }
    void refuses()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!readPropertyList(bytes));
    }

    /// A file that it could not read again would be taken for damaged at the next start.
    void writesNothingItCouldNotRead()
    {
        QVERIFY(writePropertyList(QString(17 * 1024 * 1024, 'x')).isEmpty());
        QVariantList lists;
        for (int i = 0; i < 5001; ++i)
            lists.append(QVariant(QVariantList{i}));
        QVERIFY(writePropertyList(lists).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestPropertyList)
#include "test_property_list.moc"

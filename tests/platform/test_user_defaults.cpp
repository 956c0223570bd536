// The settings: types stay apart, and neither damage, nor missing rights, nor another writer loses a value.
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"
#include "platform/UserDefaults.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTest>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace platform;

class TestUserDefaults : public QObject
{
    Q_OBJECT

    [[nodiscard]] QString user() const { return m_home->path() + "/user/s.plist"; }
    [[nodiscard]] QString machine() const { return m_home->path() + "/machine/s.plist"; }
    UserDefaults::ProblemHandler handler()
    {
        return [this](const QString &text) {
            m_problems.append(text);
        };
    }

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_problems.clear();
    }

    void keepsTypesApart_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("string");
        QTest::addColumn<qlonglong>("integer");
        QTest::addColumn<bool>("boolean");
        QTest::addColumn<bool>("equalsOne");
        QTest::newRow("one") << QVariant(1LL) << "1" << 1LL << true << true;
        QTest::newRow("true") << QVariant(true) << "true" << 1LL << true << true;
        QTest::newRow("text") << QVariant("1") << "1" << 1LL << true << false;
        QTest::newRow("real") << QVariant(1.0) << "1" << 1LL << true << true;
        QTest::newRow("two") << QVariant(2LL) << "2" << 2LL << true << false;
        QTest::newRow("false") << QVariant(false) << "false" << 0LL << false << false;
        QTest::newRow("negative") << QVariant(-5LL) << "-5" << -5LL << true << false;
        QTest::newRow("smallest") << QVariant(LLONG_MIN) << QString::number(LLONG_MIN) << LLONG_MIN << true << false;
        QTest::newRow("yes") << QVariant("YES") << "YES" << 0LL << true << false;
        QTest::newRow("number in text") << QVariant("3 days") << "3 days" << 3LL << true << false;
        QTest::newRow("any text") << QVariant("\U0001F600 <&> \n") << "\U0001F600 <&> \n" << 0LL << false << false;
        QTest::newRow("empty text") << QVariant(QString("")) << "" << 0LL << false << false;
        QTest::newRow("list") << QVariant(QVariantList{1LL, true, "1", QVariantMap{{"a", QVariantList()}}}) << QString()
                              << 0LL << false << false;
        QTest::newRow("bytes") << QVariant(QByteArray("\0\xFF", 2)) << QString() << 0LL << false << false;
        QTest::newRow("date") << QVariant(QDateTime::fromSecsSinceEpoch(1'299'332'770, Qt::UTC)) << QString() << 0LL
                              << false << false;
    }
    void keepsTypesApart()
    {
        QFETCH(QVariant, value);
        QVERIFY(UserDefaults(user(), machine(), handler()).setValue("key", value));
        const UserDefaults other(user(), machine(), handler());
        QCOMPARE(other.value("key").typeId(), value.typeId());
        QCOMPARE(other.value("key"), value);
        QTEST(other.string("key"), "string");
        QTEST(other.integer("key"), "integer");
        QTEST(other.boolean("key"), "boolean");
        QTEST(other.equalsOne("key"), "equalsOne");
        QCOMPARE(m_problems, QStringList());
    }

    void looksInThreePlaces()
    {
        UserDefaults settings(user(), machine(), handler());
        settings.registerDefaults({{"key", "registered"}});
        QCOMPARE(settings.string("key"), "registered");
        QVERIFY(settings.setMachineWideValue("key", "machine"));
        QCOMPARE(settings.string("key"), "machine");
        QVERIFY(settings.setValue("key", "user"));
        QCOMPARE(settings.string("key"), "user");
        QVERIFY(settings.removeValue("key"));
        QCOMPARE(settings.string("key"), "machine");
    }

    void keepsForTheUserWhatTheMachineRefuses()
    {
        writeFile(m_home->file("machine")); // a file where the folder should be: nobody can write there
        UserDefaults settings(user(), machine(), handler());
        QVERIFY(settings.setMachineWideValue("key", 7LL));
        QCOMPARE(settings.integer("key"), 7);
        QCOMPARE(UserDefaults(user(), machine(), handler()).integer("key"), 7);
        QCOMPARE(m_problems.size(), 1);
    }

    void setsDamagedFilesAside_data()
    {
        QTest::addColumn<QByteArray>("contents");
        const QByteArray head = "<?xml version='1.0'?><plist version='1.0'>";
        QTest::newRow("cut short") << head + "<dict><key>a</key><string>b";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no dictionary") << head + "<array/></plist>";
        QTest::newRow("nested lists") << head + QByteArray("<array>").repeated(100'000) +
                                             QByteArray("</array>").repeated(100'000) + "</plist>";
        // 100,000 lists, each the only item of the one before, in three-byte offsets.
        QByteArray binary("bplist00");
        QByteArray table;
        const auto number = [](int n) {
            return QByteArray(1, char(n >> 16)) + char(n >> 8) + char(n);
        };
        for (int i = 0; i < 100'000; ++i) {
            table += number(static_cast<int>(binary.size()));
            binary += '\xA1' + number(qMin(i + 1, 99'999));
        }
        const auto end = number(static_cast<int>(binary.size()));
        binary += table + QByteArray(6, '\0') + "\3\3" + QByteArray(5, '\0') + number(100'000) + QByteArray(8, '\0') +
                  QByteArray(5, '\0') + end;
        QTest::newRow("nested lists, binary") << binary;
        QTest::newRow("binary, cut short") << QByteArray("bplist00\xD1\1\2");
    }
    void setsDamagedFilesAside()
    {
        QFETCH(QByteArray, contents);
        for (const char *aside : {".damaged", ".damaged-2"}) {
            writeFile(user(), contents);
            UserDefaults settings(user(), machine(), handler());
            settings.registerDefaults({{"key", "default"}});
            QCOMPARE(settings.string("key"), "default");
            QVERIFY(readFile(user() + aside) == contents);
            QVERIFY(settings.setValue("key", 1LL));
            QCOMPARE(UserDefaults(user(), machine(), handler()).integer("key"), 1);
        }
        QCOMPARE(m_problems.size(), 2);
    }

    void neverReplacesWhatItCannotRead()
    {
        if (geteuid() == 0)
            return; // the super-user reads everything
        QVERIFY(UserDefaults(user(), machine(), handler()).setValue("theirs", 1LL));
        const QByteArray before = readFile(user());
        chmod(toNative(user()).constData(), 0);
        UserDefaults settings(user(), machine(), handler());
        QVERIFY(!settings.setValue("mine", 1LL));
        QCOMPARE(settings.integer("mine"), 1); // lasts as long as this object
        chmod(toNative(user()).constData(), 0644);
        QCOMPARE(readFile(user()), before);
        QCOMPARE(listFolder(m_home->path() + "/user")->size(), 1);
        QCOMPARE(UserDefaults(user(), machine(), handler()).integer("theirs"), 1);
    }

    void readsTheBinaryForm()
    {
        // {n: 1, b: true, s: "1", neg: -5, r: 1.5, d: <00ff>}
        writeFile(
            user(),
            QByteArray::fromHex(
                "62706c6973743030d60102030405060708090a0b0c51625164516e536e656751725173094200ff100113fffffffffffffffb"
                "233ff80000000000005131081517191b1f2123242729323b0000000000000101000000000000000d00000000000000000000"
                "00000000003d"));
        UserDefaults settings(user(), machine(), handler());
        QCOMPARE(settings.value("n"), QVariant(1LL));
        QCOMPARE(settings.value("b"), QVariant(true));
        QCOMPARE(settings.value("s"), QVariant("1"));
        QCOMPARE(settings.value("neg"), QVariant(-5LL));
        QCOMPARE(settings.value("r"), QVariant(1.5));
        QCOMPARE(settings.value("d"), QVariant(QByteArray("\0\xFF", 2)));
        QVERIFY(settings.setValue("n", 2LL));
        QVERIFY(UserDefaults(user(), machine(), handler()).boolean("b"));
    }

    /// Values of one length, so that only a re-reading tells the files apart.
    void losesNothingOfOtherWriters()
    {
        constexpr int writers = 6;
        constexpr int rounds = 40;
        std::atomic<int> lost = 0;
        std::vector<std::thread> threads;
        std::vector<std::unique_ptr<UserDefaults>> instances;
        std::mutex mutex;
        for (int i = 0; i < writers; ++i)
            instances.push_back(std::make_unique<UserDefaults>(user(), machine(), [&](const QString &text) {
                const std::scoped_lock lock(mutex);
                m_problems.append(text);
            }));
        for (int i = 0; i < writers; ++i) {
            threads.emplace_back([&, i] {
                const QString key = QStringLiteral("key%1").arg(i);
                for (int round = 100; round < 100 + rounds; ++round) {
                    instances[size_t(i)]->setValue(key, qlonglong{round});
                    lost += instances[size_t(i)]->integer(key) != round;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(lost.load(), 0);
        for (int i = 0; i < writers; ++i) // each instance sees what the others have written
            QCOMPARE(instances[size_t(writers - 1 - i)]->integer(QStringLiteral("key%1").arg(i)), 100 + rounds - 1);
        QCOMPARE(m_problems.value(0), QString());
    }

private:
    std::optional<TemporaryHome> m_home;
    QStringList m_problems;
};

TESSARO_TEST_MAIN(QCoreApplication, TestUserDefaults)
#include "test_user_defaults.moc"

// The settings: types stay apart, and neither damage, nor missing rights, nor another writer loses a value.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/UserDefaults.h"

#include <QCoreApplication>
#include <QTest>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace platform;

class TestUserDefaults : public QObject
{
    Q_OBJECT

    [[nodiscard]] QString user() const { return m_home->path() + "/user/s.plist"; }
    [[nodiscard]] QString machine() const { return m_home->path() + "/machine/s.plist"; }
    UserDefaults open()
    {
        return {user(), machine(), [this](const QString &text) {
                    m_problems.append(text);
                }};
    }

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_problems.clear();
    }

    void keepsTypesApart()
    {
        struct Row
        {
            QVariant value;
            QString string;
            qlonglong integer;
            bool boolean;
            bool equalsOne;
        };
        for (const Row &row : {Row{1LL, "1", 1, true, true},
                               {true, "true", 1, true, true},
                               {"1", "1", 1, true, false},
                               {false, "false", 0, false, false},
                               {LLONG_MIN, QString::number(LLONG_MIN), LLONG_MIN, true, false},
                               {"YES", "YES", 0, true, false},
                               {"\U0001F600 <&> \n", "\U0001F600 <&> \n", 0, false, false},
                               {QVariantList{1LL, true, "1", QVariantMap{{"a", ""}}}, {}, 0, false, false},
                               {QByteArray("\0\xFF", 2), {}, 0, false, false}}) {
            QVERIFY(open().setValue("key", row.value).ok());
            const UserDefaults other = open();
            QCOMPARE(other.value("key").typeId(), row.value.typeId());
            QCOMPARE(other.value("key"), row.value);
            QCOMPARE(other.string("key"), row.string);
            QCOMPARE(other.integer("key"), row.integer);
            QCOMPARE(other.boolean("key"), row.boolean);
            QCOMPARE(other.equalsOne("key"), row.equalsOne);
        }
        QCOMPARE(m_problems, QStringList());
    }

    void looksInThreePlaces()
    {
        UserDefaults settings = open();
        settings.registerDefaults({{"key", "registered"}});
        QCOMPARE(settings.string("key"), "registered");
        QVERIFY(settings.setMachineWideValue("key", "machine").ok());
        QVERIFY(settings.setValue("key", "user").ok());
        QCOMPARE(settings.string("key"), "user");
        QVERIFY(settings.removeValue("key").ok());
        QCOMPARE(settings.string("key"), "machine");
    }

    /// What protects something for every user is not masked by a user's own value, and no change of it is a silent one.
    void letsTheMachineDecide()
    {
        const auto opened = [&] {
            auto settings = std::make_unique<UserDefaults>(m_home->file("user/p.plist"),
                                                           m_home->file("machine/p.plist"), [](const QString &) {});
            settings->letMachineDecide({"lock"});
            return settings;
        };
        QVERIFY(opened()->setValue("lock", 0LL).ok());
        QVERIFY(opened()->setMachineWideValue("lock", 1LL).ok());
        QCOMPARE(opened()->integer("lock"), 1);
        QVERIFY(opened()->setValue("lock", 0LL).ok());
        QCOMPARE(opened()->integer("lock"), 1);
        QVERIFY(opened()->isSetForMachine("lock") && !opened()->isSetForMachine("other"));
        if (geteuid() != 0) {
            QCOMPARE(chmod(m_home->file("machine").toUtf8(), 0555), 0);
            const platform::Outcome refused = opened()->setMachineWideValue("lock", 0LL);
            QCOMPARE(chmod(m_home->file("machine").toUtf8(), 0755), 0);
            QVERIFY(refused.needsRights() && refused.sentence().contains("every user"));
            QCOMPARE(opened()->integer("lock"), 1);
        }
        QVERIFY(opened()->setMachineWideValue("lock", {}).ok()); // away with both
        QVERIFY(!opened()->value("lock").isValid());
    }

    void keepsForTheUserWhatTheMachineRefuses()
    {
        writeFile(m_home->file("machine")); // a file where the folder should be: nobody can write there
        UserDefaults settings = open();
        QVERIFY(settings.setMachineWideValue("key", 7LL).ok());
        QCOMPARE(settings.integer("key"), 7);
        QCOMPARE(open().integer("key"), 7);
        QCOMPARE(m_problems.size(), 3); // neither read, by both of them, nor written
    }

    void setsDamagedFilesAside()
    {
        const QByteArray head = "<?xml version='1.0'?><plist version='1.0'>";
        // 100,000 lists, each the only item of the one before, in three-byte offsets.
        QByteArray binary("bplist00");
        QByteArray table;
        const auto number = [](qsizetype n) {
            return QByteArray(1, char(n >> 16)) + char(n >> 8) + char(n);
        };
        for (int i = 0; i < 100'000; ++i) {
            table += number(binary.size());
            binary += '\xA1' + number(qMin(i + 1, 99'999));
        }
        const auto end = number(binary.size());
        binary += table + QByteArray(6, '\0') + "\3\3" + QByteArray(5, '\0') + number(100'000) + QByteArray(8, '\0') +
                  QByteArray(5, '\0') + end;
        int aside = 0;
        for (const QByteArray &contents :
             {head + "<dict><key>a</key><string>b", head + "<array/></plist>", QByteArray("bplist00\xD1\1\2"), binary,
              head + QByteArray("<array>").repeated(100'000) + QByteArray("</array>").repeated(100'000) + "</plist>"}) {
            writeFile(user(), contents);
            UserDefaults settings = open();
            QVERIFY(settings.setValue("key", 1LL).ok());
            QCOMPARE(open().integer("key"), 1);
            const QString suffix = ++aside == 1 ? QString() : QStringLiteral("-%1").arg(aside);
            QVERIFY2(readFile(user() + ".damaged" + suffix) == contents, contents.left(60).constData());
        }
        QCOMPARE(m_problems.size(), aside);
    }

    void neverReplacesWhatItCannotRead()
    {
        if (geteuid() == 0)
            QSKIP("The super-user reads everything.");
        QVERIFY(open().setValue("theirs", 1LL).ok());
        const QByteArray before = readFile(user());
        chmod(toNative(user()).constData(), 0);
        UserDefaults settings = open();
        QVERIFY(settings.setValue("mine", 1LL).needsRights());
        QCOMPARE(settings.integer("mine"), 1); // lasts as long as this object
        chmod(toNative(user()).constData(), 0644);
        QCOMPARE(readFile(user()), before);
        QCOMPARE(listFolder(m_home->path() + "/user")->size(), 2); // the file and its lock
        QCOMPARE(open().integer("theirs"), 1);
    }

    void readsTheBinaryForm()
    {
        writeFile(user(), QByteArray::fromHex("62706c6973743030d60102030405060708090a0b0c51625164516e536e65675172517309"
                                              "4200ff100113fffffffffffffffb233ff80000000000005131081517191b1f2123242729"
                                              "323b0000000000000101000000000000000d0000000000000000000000000000003d"));
        UserDefaults settings = open();
        QVERIFY(settings.setValue("new", 2LL).ok());
        for (const auto &[key, value] :
             QVariantMap{{"n", 1LL}, {"b", true}, {"s", "1"}, {"neg", -5LL}, {"r", 1.5}, {"d", QByteArray("\0\xFF", 2)}}
                 .asKeyValueRange())
            QCOMPARE(open().value(key), value);
    }

    /// A number that every program takes and moves on: none is given out twice.
    void changesWhatIsThereAtThatMoment()
    {
        constexpr int takers = 6;
        constexpr int each = 40;
        std::vector<std::thread> threads;
        std::vector<std::vector<int>> taken(takers);
        for (int i = 0; i < takers; ++i) {
            threads.emplace_back([&, i] {
                UserDefaults settings(user(), machine(), [](const QString &) {});
                for (int n = 0; n < each; ++n) {
                    const Outcome changed = settings.changeValue("n", [&](const QVariant &now) -> Result<QVariant> {
                        taken[i].push_back(now.toInt());
                        return QVariant(now.toLongLong() + 1);
                    });
                    static_cast<void>(changed); // the numbers tell
                }
            });
        }
        std::set<int> all;
        for (int i = 0; i < takers; ++i) {
            threads[i].join();
            all.insert(taken[i].begin(), taken[i].end());
        }
        QCOMPARE(all.size(), std::size_t(takers * each));
        QCOMPARE(*all.rbegin(), takers * each - 1);

        UserDefaults settings = open();
        const QByteArray before = readFile(user());
        const Outcome refused = settings.changeValue(
            "n", [](const QVariant &) -> Result<QVariant> { return Outcome::failure(Cause::Declined, "n"); });
        QVERIFY(refused.is(Cause::Declined) && m_problems.isEmpty());
        QCOMPARE(readFile(user()), before);
    }

    void losesNothingOfOtherWriters()
    {
        constexpr size_t writers = 6;
        constexpr int last = 140;
        std::atomic<int> problems = 0;
        std::vector<std::thread> threads;
        std::vector<std::unique_ptr<UserDefaults>> instances;
        for (size_t i = 0; i < writers; ++i)
            instances.push_back(
                std::make_unique<UserDefaults>(user(), machine(), [&](const QString &) { ++problems; }));
        for (size_t i = 0; i < writers; ++i) {
            threads.emplace_back([&, i] {
                const QString key = QString::number(i);
                for (int round = 100; round <= last; ++round) {
                    problems += !instances[i]->setValue(key, qlonglong{round}).ok();
                    problems += instances[i]->integer(key) != round;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        for (size_t i = 0; i < writers; ++i) // each instance sees what the others have written
            QCOMPARE(instances[writers - 1 - i]->integer(QString::number(i)), last);
        QCOMPARE(problems.load(), 0);
    }

private:
    std::optional<TemporaryHome> m_home;
    QStringList m_problems;
};

TESSARO_TEST_MAIN(QCoreApplication, TestUserDefaults)
#include "test_user_defaults.moc"

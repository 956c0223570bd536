// What a later start, a file browser and other programs ask of the one that runs, over a real session bus.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/SingleInstance.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace platform;

class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyRuns() { QVERIFY(!SingleInstance::handOver({.action = "new-project-here", .value = "/p"})); }

    void isHandedOver_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("files");
        const auto folder = [](const char *name, const QString &path) {
            QTest::newRow(name) << "check-project" << path << QStringList();
        };
        folder("folder", "/p/Acme");
        folder("marks of addresses", "/p/a b#c?d%20e&f;'g\"");
        folder("letters", "/p/Größe 🎬");
        folder("no UTF-8", fromNative("/p/h\xff\xfe h"));
        folder("a line's end", "/p/a\nb");
        folder("the root", "/");
        QTest::newRow("action alone") << "create" << QString() << QStringList();
        QTest::newRow("action with letters") << "é%20" << QString() << QStringList();
        QTest::newRow("files") << "" << QString() << QStringList{"/a b.tzt", fromNative("/\xff.tzt")};
        QTest::newRow("nothing") << "" << QString() << QStringList();
    }
    /// Each runs in a process of its own, as a start does: a call to oneself goes round the bus.
    void isHandedOver()
    {
        QFETCH(QString, action);
        QFETCH(QString, value);
        QFETCH(QStringList, files);
        SingleInstance instance;
        QSignalSpy activated(&instance, &SingleInstance::activated);
        QSignalSpy opened(&instance, &SingleInstance::filesOpened);
        QSignalSpy asked(&instance, &SingleInstance::actionRequested);
        QProcess later;
        QStringList words{"hand-over", action, value.isNull() ? "-" : "=" + QString(toNative(value).toHex())};
        for (const QString &file : files)
            words << QString(toNative(file).toHex());
        later.start(QCoreApplication::applicationFilePath(), words);
        QTRY_COMPARE(later.state(), QProcess::NotRunning);
        QCOMPARE(later.exitCode(), 0);
        QTRY_COMPARE(activated.size() + opened.size() + asked.size(), 1);
        if (!action.isEmpty()) {
            QCOMPARE(asked[0][0].toString(), action);
            QCOMPARE(toNative(asked[0][1].toString()), toNative(value));
            QCOMPARE(asked[0][1].toString().isNull(), value.isNull());
        } else if (!files.isEmpty())
            QCOMPARE(opened[0][0].toStringList(), files);
        else
            QCOMPARE(activated.size(), 1);
    }

    /// What is no address of a folder gives none; what the interface does not know is refused, and nothing happens.
    void strangers_data()
    {
        QTest::addColumn<QVariantList>("parameters");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a path") << QVariantList{"/p"} << QString();
        QTest::newRow("another place") << QVariantList{"https://example.com/p"} << QString();
        QTest::newRow("a number") << QVariantList{7} << QString();
        QTest::newRow("several") << QVariantList{"file:///a%2Fb", "file:///c"} << "/a/b";
        QTest::newRow("this machine by name") << QVariantList{"file://localhost/p"} << "/p";
    }
    void strangers()
    {
        QFETCH(QVariantList, parameters);
        QFETCH(QString, expected);
        SingleInstance instance;
        QSignalSpy asked(&instance, &SingleInstance::actionRequested);
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "stranger");
        QDBusMessage call = QDBusMessage::createMethodCall("com.vantrel.Tessaro", "/com/vantrel/Tessaro",
                                                           "org.freedesktop.Application", "ActivateAction");
        call << "check-project" << parameters << QVariantMap();
        QVERIFY(bus.send(call));
        QTRY_COMPARE(asked.size(), 1);
        QCOMPARE(asked[0][1].toString(), expected);
        QDBusConnection::disconnectFromBus("stranger");
    }
};

/// The other process of a test: hands over what its words say.
static int handOver(const QStringList &words)
{
    SingleInstance::Request request{.action = words[2]};
    if (words[3] != "-")
        request.value = fromNative(QByteArray::fromHex(words[3].mid(1).toLatin1()));
    for (const QString &file : words.mid(4))
        request.files << fromNative(QByteArray::fromHex(file.toLatin1()));
    return SingleInstance::handOver(request) ? 0 : 1;
}

int main(int argc, char **argv)
{
    platform::prepareLocale();
    const TemporaryHome home;
    const QCoreApplication application(argc, argv);
    if (argc > 3 && qstrcmp(argv[1], "hand-over") == 0)
        return handOver(QCoreApplication::arguments());
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_single_instance.moc"

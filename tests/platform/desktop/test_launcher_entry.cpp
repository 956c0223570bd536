// What a dock hears of the program's work.
#include "harness/TemporaryHome.h"
#include "platform/base/System.h"
#include "platform/desktop/LauncherEntry.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTest>

/// As a dock listens.
class Dock : public QObject
{
    Q_OBJECT

public:
    QString application;
    QVariantMap heard;

public Q_SLOTS:
    void update(const QString &address, const QVariantMap &properties)
    {
        application = address;
        heard = properties;
    }
};

class TestLauncherEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAndHides()
    {
        Dock dock;
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "dock");
        QVERIFY(bus.connect({}, {}, "com.canonical.Unity.LauncherEntry", "Update", &dock,
                            SLOT(update(QString, QVariantMap))));
        platform::showInLauncher(0.25);
        QTRY_COMPARE(dock.application, QString("application://com.vantrel.Tessaro.desktop"));
        QCOMPARE(dock.heard["progress"].toDouble(), 0.25);
        QVERIFY(dock.heard["progress-visible"].toBool());
        platform::showInLauncher({});
        QTRY_VERIFY(!dock.heard["progress-visible"].toBool());
        QDBusConnection::disconnectFromBus("dock");
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestLauncherEntry)
#include "test_launcher_entry.moc"

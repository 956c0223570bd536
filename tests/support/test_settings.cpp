// The settings' table: what the window and the command line take and refuse, and when a switch counts as on.
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/base/System.h"

#include <QCoreApplication>
#include <QTest>

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVariant>("stored"); // invalid: refused
        const auto row = [](const char *key, const QString &typed, const QVariant &stored = {}) {
            QTest::addRow("%s <- \"%s\"", key, qPrintable(typed)) << key << typed << stored;
        };
        const QString home = m_home.path();
        row("templateLocation", "/etc/passwd");
        row("templateLocation", "relative");
        row("templateLocation", "");
        row("templateLocation", " ~/Templates/ ", home + "/Templates");
        row("fixedProjectLocationPath", "~", home);
        row("fixedProjectLocationPath", "/", "/");
        row("defaultTemplate", "Nope");
        row("defaultTemplate", "Film", "Film");
        for (const char *format : {"%Q", "%", "%Y%", "%-", "100%%", "", "no date", "%n", "%E", "%5"})
            row("dateFormat", format);
        for (const char *format : {"%Y-%m-%d", "%e. %B", "%%%Y", "%-d", "%10Y", "%EY", "%Y\u00E4"})
            row("dateFormat", QString::fromUtf8(format), QString::fromUtf8(format));
        for (const char *separator : {"a/b", ":", "12345678901"})
            row("separatorChar", separator);
        row("separatorChar", "", "");
        row("separatorChar", " - ", " - ");
        row("autoQuit", "maybe");
        row("autoQuit", "On", 1LL);
        row("strictNaming", "yes", true);
        row("strictNaming", "0", false);
    }
    void rules()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QVariant, stored);
        const settings::Setting *setting = settings::forPeople(key);
        QVERIFY(setting);
        const auto value = settings::checked(*setting, typed, {{"Film"}});
        QCOMPARE(value.ok(), stored.isValid());
        QVERIFY(value.ok() || !value.outcome().sentence().isEmpty()); // says what to do
        QCOMPARE(value.valueOr({}), stored);
        QCOMPARE(value.valueOr({}).typeId(), stored.typeId());
    }

    /// Two kinds of switches: those that any number switches on, and those that only 1 does.
    void switches_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("whenNotZero");
        QTest::addColumn<bool>("whenOne");
        QTest::newRow("0") << QVariant(0LL) << false << false;
        QTest::newRow("1") << QVariant(1LL) << true << true;
        QTest::newRow("2") << QVariant(2LL) << true << false;
        QTest::newRow("true") << QVariant(true) << true << true;
        QTest::newRow("text 1") << QVariant("1") << true << false;
        QTest::newRow("text yes") << QVariant("yes") << false << false;
    }
    void switches()
    {
        QFETCH(QVariant, stored);
        for (const auto *setting : {&settings::autoOpenFolder, &settings::autoQuit}) {
            storeSetting(*setting, stored);
            QTEST(setting->isOn(), "whenNotZero");
        }
        for (const auto *setting :
             {&settings::useFixedProjectLocation, &settings::autoExpandFolders, &settings::requireAdminPassword,
              &settings::requireAdminPasswordForEditing, &settings::requireAdminPasswordForPrefs}) {
            storeSetting(*setting, stored);
            QTEST(setting->isOn(), "whenOne");
        }
    }

    void defaultsApply()
    {
        for (const settings::Setting *setting : settings::all())
            removeSetting(*setting);
        settings::registerDefaults();
        QVERIFY(settings::firstRun.isOn() && settings::autoOpenFolder.isOn() && settings::autoExpandFolders.isOn());
        QVERIFY(!settings::autoQuit.isOn() && !settings::useFixedProjectLocation.isOn() &&
                !settings::strictNaming.isOn());
        QCOMPARE(settings::separatorChar.text() + settings::dateFormat.text(), "_%Y-%m-%d");
        QVERIFY(settings::filenameTemplate.value().toList().size() > 2);
        QVERIFY(!settings::forPeople("firstRun") && !settings::forPeople("webAddresses")); // nothing for people to set
    }

private:
    const TemporaryHome m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestSettings)
#include "test_settings.moc"

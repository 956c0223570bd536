// Shortcut keys: what is stored among other programs' entries, what a key is called in each layout, and who is told.
#include "harness/TemporaryHome.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "preferences/VTShortcutKeyContainerView.h"
#include "preferences/VTShortcutKeyTableDelegate.h"
#include "preferences/VTShortcutKeyTableview.h"
#include "support/VTLog.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QLabel>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using Delegate = VTShortcutKeyTableDelegate;
using shortcuts::Shortcut;

namespace {

const QVariantMap theirs{
    {"bundleid", "com.vantrel.Clipwell"}, {"commandid", "new-project"}, {"keycode", 9LL}, {"modifiers", 256LL}};
const QVariantMap byParameters{{"bundleid", "com.vantrel.Tessaro"},
                               {"commandparams", QVariantList{"a", "b"}},
                               {"keycode", 10LL},
                               {"modifiers", 256LL}};
const QVariantMap gone{
    {"bundleid", "com.vantrel.Tessaro"}, {"commandid", "no longer there"}, {"keycode", 11LL}, {"modifiers", 256LL}};

QVariantMap entry(const QString &command, int keyCode, int modifiers)
{
    return {{"bundleid", "com.vantrel.Tessaro"},
            {"commandid", command},
            {"keycode", qlonglong{keyCode}},
            {"modifiers", qlonglong{modifiers}}};
}

/// The desktop's portal, as far as it goes for global shortcuts. On a connection of its own, as another process has it.
class Portal : public QDBusVirtualObject
{
public:
    QStringList bound;
    int closed = 0;
    uint answer = 0;

    Portal()
    {
        m_bus.registerVirtualObject("/org/freedesktop/portal/desktop", this, QDBusConnection::SubPath);
        m_bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~Portal() override { QDBusConnection::disconnectFromBus("portal"); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() == "Get")
            return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(1U))));
        if (message.member() == "Close")
            return ++closed > 0;
        const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
        const QString request = "/org/freedesktop/portal/desktop/request/" +
                                message.service().mid(1).replace('.', '_') + '/' + options["handle_token"].toString();
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        QVariantMap results;
        if (message.member() == "CreateSession")
            results["session_handle"] = m_session =
                "/org/freedesktop/portal/desktop/session/" + options["session_handle_token"].toString();
        else
            takeShortcuts(message.arguments()[1].value<QDBusArgument>());
        QDBusMessage response = QDBusMessage::createSignal(request, "org.freedesktop.portal.Request", "Response");
        response << (message.member() == "CreateSession" ? 0U : answer) << results;
        return bus.send(response);
    }
    void press(const QString &identifier)
    {
        QDBusMessage pressed = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                          "org.freedesktop.portal.GlobalShortcuts", "Activated");
        pressed << QVariant::fromValue(QDBusObjectPath(m_session)) << identifier << qulonglong{1} << QVariantMap();
        m_bus.send(pressed);
    }

private:
    void takeShortcuts(const QDBusArgument &list)
    {
        bound.clear();
        for (list.beginArray(); !list.atEnd();) {
            QString identifier;
            QVariantMap properties;
            list.beginStructure();
            list >> identifier >> properties;
            list.endStructure();
            bound.append(identifier + '=' + properties["preferred_trigger"].toString());
        }
        list.endArray();
    }

    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
    QString m_session;
};

} // namespace

class TestShortcuts : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void reloaded() { ++m_reloads; }

private:
    int m_reloads = 0;
    const TemporaryHome m_home; ///< one for all: the controller lives as long as the process

    void setLayout(const QStringList &arguments) const { QCOMPARE(QProcess::execute("setxkbmap", arguments), 0); }
    QVariantList watchlist() const { return shortcuts::read()->value("watchlist").toList(); }
    QString nameInTable(int row) const
    {
        auto &table = Delegate::sharedController();
        table.populateKeyData();
        return table.index(row, Delegate::ShortcutColumn).data().toString();
    }

private Q_SLOTS:
    void init()
    {
        static_cast<void>(m_home.file("Library/Preferences/x"));
        QVERIFY(platform::removeTree(shortcuts::filePath()).ok());
        setLayout({"us"});
    }

    void othersLoseNothing()
    {
        QVERIFY(shortcuts::write({{"watchlist", QVariantList{entry("new-project", 1, 768), theirs, byParameters, gone}},
                                  {"another key", QVariantList{1LL, true, "1"}}})
                    .ok());
        auto &table = Delegate::sharedController();
        QDBusConnection::sessionBus().connect({}, {}, "com.vantrel.Notifications", "VTShortcutKeysReload", this,
                                              SLOT(reloaded()));
        QVERIFY(table.setKeyboardShortcut("new-project", {}, {39, 768}));
        QCOMPARE(watchlist(), QVariantList({theirs, byParameters, gone, entry("new-project", 39, 768)}));
        QVERIFY(table.setKeyboardShortcut(QString(), {"a", "b"}, {40, 256}));
        QCOMPARE(watchlist().size(), 4);
        QCOMPARE(watchlist()[3].toMap()["keycode"], QVariant(40LL));
        QCOMPARE(watchlist()[3].toMap()["commandparams"].toStringList(), QStringList({"a", "b"}));
        QCOMPARE(shortcuts::read()->value("another key"), QVariant(QVariantList{1LL, true, "1"}));
        QTRY_COMPARE(m_reloads, 2);
        QCOMPARE(nameInTable(0), QString("Shift+Cmd+S"));
        QCOMPARE(shortcuts::without(*shortcuts::read(), {"com.vantrel.Tessaro", "new-project", {}})
                     .value("watchlist")
                     .toList(),
                 QVariantList({theirs, gone, watchlist()[3]}));
    }

    /// Damaged, of a wrong shape, or not to be written: left as it is.
    void whatCannotBeReadIsNotReplaced()
    {
        auto &table = Delegate::sharedController();
        for (const QByteArray &bad :
             {QByteArray("<plist><dict><key>watch"), platform::writePropertyList(QVariantList{1LL}),
              platform::writePropertyList(QVariantMap{{"watchlist", "text"}})}) {
            writeFile(shortcuts::filePath(), bad);
            QVERIFY(!table.setKeyboardShortcut("new-project", {}, {39, 768}));
            table.clearShortcutKey();
            QCOMPARE(readFile(shortcuts::filePath()), bad);
        }
        if (geteuid() == 0)
            QSKIP("The super-user writes into any folder.");
        QVERIFY(platform::removeTree(shortcuts::filePath()).ok());
        QCOMPARE(chmod(m_home.file("Library/Preferences").toUtf8(), 0500), 0);
        QVERIFY(!table.setKeyboardShortcut("new-project", {}, {39, 768}));
        QCOMPARE(chmod(m_home.file("Library/Preferences").toUtf8(), 0700), 0);
    }

    void keysAreCalledAsTheyAreLabelled()
    {
        const auto name = [](quint16 keyCode) {
            return Delegate::nameForKeyCode(keyCode, shortcuts::option);
        };
        QCOMPARE(name(29), QString("Alt+Y"));
        QCOMPARE(name(24), QString("Alt+Q"));
        setLayout({"de"});
        QCOMPARE(name(29), QString("Alt+Z"));
        QCOMPARE(name(48), QString::fromUtf8("Alt+\u00C4"));
        setLayout({"fr"});
        QCOMPARE(name(24), QString("Alt+A"));
        setLayout({"us", "dvorak"});
        QCOMPARE(name(39), QString("Alt+O"));
        setLayout({"us"});
        QCOMPARE(name(111), QString("Alt+Up Arrow"));
        QCOMPARE(name(65), QString("Alt+Space"));
        QCOMPARE(name(23), QString("Alt+Tab"));
        QCOMPARE(name(9), QString("Alt+Escape"));
        QCOMPARE(name(71), QString("Alt+F5"));
        QCOMPARE(name(87), QString("Alt+1")); // the keypad's
        QCOMPARE(Delegate::nameForKeyCode(39, 0x1B00), QString("Ctrl+Shift+Alt+Cmd+S"));
        QVERIFY(Delegate::nameForKeyCode(50, 0).isNull()); // Shift by itself
    }

    void namesOfKeyTexts_data()
    {
        QTest::addColumn<char16_t>("character");
        QTest::addColumn<QString>("name");
        QTest::newRow("an arrow") << u'\x1E' << "Up Arrow";
        QTest::newRow("an arrow, by its other character") << u'\xF700' << "Up Arrow";
        QTest::newRow("the keypad's Enter") << u'\x03' << "Return";
        QTest::newRow("the Return key") << u'\r' << "Enter";
        QTest::newRow("no key with a name") << u'%' << "%";
    }
    void namesOfKeyTexts()
    {
        QFETCH(char16_t, character);
        QTEST(Delegate::nameOfKeyText(QString(QChar(character))), "name");
    }

    void bareKeysGetModifiers()
    {
        QCOMPARE(Delegate::shortcutOf(39, {}).modifiers, 0x300);
        QCOMPARE(Delegate::shortcutOf(39, Qt::AltModifier).modifiers, 0x800);
        QCOMPARE(Delegate::shortcutOf(39, Qt::ControlModifier | Qt::MetaModifier).modifiers, 0x1100);
    }

    void withoutTheManager()
    {
        if (platform::targetExists(Delegate::managerPath()))
            QSKIP("This computer has a shortcut key manager");
        VTShortcutKeyContainerView container;
        QVERIFY(!container.findChild<VTShortcutKeyTableview *>()->isEnabled());
        const auto *text = container.findChild<QLabel *>("versionAlertText");
        QTRY_VERIFY(!text->isHidden());
        writeFile(shortcuts::filePath(), "<plist><dict><key>watch");
        Delegate::sharedController().populateKeyData();
        QVERIFY(text->text().contains("com.vantrel.shortcutkeys.plist"));
    }

    /// Where the desktop offers global shortcuts it is handed the keys, at once and after each change.
    void byTheDesktop()
    {
        if (platform::targetExists(Delegate::managerPath()))
            QSKIP("This computer has a shortcut key manager");
        QVERIFY(shortcuts::write({{"watchlist", QVariantList{entry("new-project", 39, 0x1100), theirs}}}).ok());
        Portal portal;
        VTShortcutKeyContainerView container;
        auto *table = container.findChild<VTShortcutKeyTableview *>();
        QTRY_VERIFY(table->isEnabled());
        QVERIFY(container.findChild<QLabel *>("versionAlertText")->text().startsWith("Your desktop watches"));
        QTRY_COMPARE(portal.bound, QStringList("new-project=CTRL+LOGO+s"));
        auto &keys = Delegate::sharedController();
        keys.keyChanged(1, 9, Qt::AltModifier);
        QTRY_COMPARE(portal.bound, QStringList({"new-project=CTRL+LOGO+s", "create-project=ALT+Escape"}));
        QCOMPARE(portal.closed, 1);
        QSignalSpy requested(&keys, &Delegate::commandRequested);
        portal.press("create-project");
        QTRY_COMPARE(requested.size(), 1);
        QCOMPARE(requested[0][0].toString(), "create-project");
        table->selectRow(0);
        keys.clearShortcutKey();
        QTRY_COMPARE(portal.bound, QStringList("create-project=ALT+Escape"));
        portal.answer = 1; // the user says no
        keys.keyChanged(0, 39, {});
        const auto *state = container.findChild<QLabel *>("versionAlertText");
        QTRY_VERIFY(state->text().startsWith("Your desktop does not watch"));
        portal.answer = 0;
        portal.bound.clear();
        keys.watchKeys(); // asked again
        QTRY_COMPARE(portal.bound.size(), 2);
        QTRY_VERIFY(state->text().startsWith("Your desktop watches"));
    }

    /// Two commands with the same keys are said at once, in whichever program the other is.
    void sharedKeys()
    {
        auto &keys = Delegate::sharedController();
        QVERIFY(shortcuts::write({{"watchlist", QVariantList{theirs}}}).ok());
        keys.populateKeyData();
        keys.keyChanged(0, 9, Qt::MetaModifier);
        QCOMPARE(keys.index(0, 1).data().toString(), "Cmd+Escape (also for “Clipwell”)");
        keys.keyChanged(0, 39, {});
        keys.keyChanged(1, 39, {});
        const QString first = keys.index(0, 0).data().toString();
        QCOMPARE(keys.index(1, 1).data().toString(), "Shift+Cmd+S (also for “" + first + "”)");
        QVERIFY(keys.index(0, 1).data().toString().contains("also for"));
        keys.keyChanged(1, 40, {});
        QCOMPARE(keys.index(0, 1).data().toString(), "Shift+Cmd+S");
    }

    /// With the manager, in a window: keys are captured, whichever they are, and it is run after each change.
    void capturesEveryKey()
    {
        if (geteuid() != 0)
            QSKIP("Only the super-user can put the manager where it belongs.");
        const QString manager = Delegate::managerPath();
        const bool hadLibrary = platform::targetExists("/Library");
        writeFile(manager, "#!/bin/sh\necho \"$@\" >>\"$HOME/ran\"\n");
        QCOMPARE(chmod(manager.toUtf8(), 0755), 0);
        {
            VTShortcutKeyContainerView container;
            container.show();
            QVERIFY(QTest::qWaitForWindowActive(&container));
            auto *table = container.findChild<VTShortcutKeyTableview *>();
            QVERIFY(table->isEnabled() && container.findChild<QLabel *>("versionAlertText")->isHidden());
            int row = 0;
            for (const Qt::Key key : {Qt::Key_S, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape}) {
                table->selectRow(row);
                table->setFocus();
                QTest::keyClick(table, Qt::Key_Return);
                auto *editor = table->findChild<VTShortcutKeyFieldEditor *>();
                QVERIFY(editor);
                editor->setFocus();
                const quint32 code = key == Qt::Key_S ? 39 : key == Qt::Key_Tab ? 23 : key == Qt::Key_Return ? 36 : 9;
                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, code, 0, 0);
                QCoreApplication::sendEvent(editor, &press);
                QTRY_VERIFY(!table->findChild<VTShortcutKeyFieldEditor *>());
                ++row;
            }
            QCOMPARE(nameInTable(0), QString("Shift+Cmd+S"));
            QCOMPARE(nameInTable(2), QString("Shift+Cmd+Enter"));
            QCOMPARE(nameInTable(3), QString("Shift+Cmd+Escape"));
            table->selectRow(0);
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Backspace, {}, {}, true);
            QCoreApplication::sendEvent(table, &held); // of a key that has just been captured
            QVERIFY(!nameInTable(0).isEmpty());
            table->selectRow(0);
            QTest::keyClick(table, Qt::Key_Delete);
            QVERIFY(nameInTable(0).isEmpty());
            QCOMPARE(watchlist().size(), 3);
            QCOMPARE(readFile(m_home.file("ran")), QByteArray("-setup\n").repeated(5));
        }
        QVERIFY(platform::removeTree(hadLibrary ? manager : QString("/Library")).ok());
    }
};

TESSARO_TEST_MAIN(QApplication, TestShortcuts)
#include "test_shortcuts.moc"

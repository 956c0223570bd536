// The program looks as the desktop says, from the start and when that changes; beside a stand-in for the desktop's
// portal.
#include "harness/TemporaryHome.h"
#include "platform/base/System.h"
#include "ui/Appearance.h"
#include "ui/Colours.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QSignalSpy>
#include <QTest>

using platform::Appearance;
using platform::DesktopAppearance;
using Scheme = Appearance::Scheme;

namespace {

/// On a connection of its own, as another process has it.
class Portal : public QDBusVirtualObject
{
public:
    QVariantMap values;

    Portal()
    {
        m_bus.registerVirtualObject("/org/freedesktop/portal/desktop", this);
        m_bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~Portal() override { QDBusConnection::disconnectFromBus("portal"); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        const QMap<QString, QVariantMap> groups{{"org.freedesktop.appearance", values}, {"org.gnome.x", {{"y", 1}}}};
        return message.member() == "ReadAll" && bus.send(message.createReply(QVariant::fromValue(groups)));
    }
    void set(const QString &key, const QVariant &value, const QString &group = "org.freedesktop.appearance")
    {
        if (group == "org.freedesktop.appearance")
            values[key] = value;
        QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                         "org.freedesktop.portal.Settings", "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
};

bool isDark()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

} // namespace

class TestAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qDBusRegisterMetaType<QMap<QString, QVariantMap>>(); }

    void portalIsHeard()
    {
        DesktopAppearance early; // it comes up before the portal does
        QCOMPARE(early.current(), Appearance());
        QSignalSpy changed(&early, &DesktopAppearance::changed);
        Portal portal;
        portal.values = {{"color-scheme", 1U}, {"contrast", 0U}, {"accent-color", "no number"}};
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(early.current().scheme, Scheme::Dark);
        DesktopAppearance late;
        QTRY_COMPARE(late.current().scheme, Scheme::Dark);
        portal.set("color-scheme", 1U, "org.gnome.x"); // another's
        portal.set("contrast", 1U);
        QTRY_VERIFY(early.current().isHighContrast);
        QCOMPARE(changed.size(), 2);
        portal.set("color-scheme", 77U); // no preference that anybody knows
        QTRY_COMPARE(early.current().scheme, Scheme::Any);
        portal.set("color-scheme", 2U);
        QTRY_COMPARE(early.current().scheme, Scheme::Light);
    }

    /// Whatever the desktop's palette is, the one that is made of it can be read.
    void canBeRead_data()
    {
        QTest::addColumn<QPalette>("desktop");
        QPalette accent(QColor("#efefef"));
        accent.setColor(QPalette::Highlight, QColor("#fdf6a0"));
        accent.setColor(QPalette::HighlightedText, Qt::black);
        QTest::newRow("the style's") << QApplication::palette();
        QTest::newRow("dark") << QPalette(QColor("#2a2e32"), QColor("#1b1e20"));
        QTest::newRow("a pale accent") << accent;
    }

    void canBeRead()
    {
        QFETCH(QPalette, desktop);
        for (const Appearance &wanted :
             {Appearance{Scheme::Dark, false}, {Scheme::Light, false}, {Scheme::Dark, true}, {Scheme::Light, true}}) {
            const QPalette made = paletteFor(wanted, desktop);
            const auto contrast = [&](QPalette::ColorRole one, QPalette::ColorRole other) {
                return contrastOf(made.color(one), made.color(other));
            };
            if (made == desktop)
                continue; // it fits, and is the desktop's own affair
            QCOMPARE(made.color(QPalette::Window).lightness() < 128, wanted.scheme == Scheme::Dark);
            const double least = wanted.isHighContrast ? 7 : leastContrast; // WCAG 2.1, 1.4.6
            QVERIFY(contrast(QPalette::WindowText, QPalette::Window) >= least);
            QVERIFY(contrast(QPalette::Text, QPalette::Base) >= least);
            QVERIFY(contrast(QPalette::Text, QPalette::AlternateBase) >= least);
            QVERIFY(contrast(QPalette::ButtonText, QPalette::Button) >= least);
            QVERIFY(contrast(QPalette::ToolTipText, QPalette::ToolTipBase) >= least);
            QVERIFY(contrast(QPalette::HighlightedText, QPalette::Highlight) >= leastContrast);
            QVERIFY(contrast(QPalette::Link, QPalette::Base) >= leastContrast);
            QVERIFY(contrast(QPalette::Highlight, QPalette::Base) >= 1.5); // a chosen row can be told from others
        }
        QCOMPARE(paletteFor({}, desktop), desktop);
    }

    /// There and back while the program runs; what the desktop's own theme changes comes, too.
    void followsWhileRunning()
    {
        Portal portal;
        portal.values = {{"color-scheme", 0U}};
        DesktopAppearance appearance;
        followAppearance(appearance);
        const QPalette before = QApplication::palette();
        QVERIFY(contrastOf(before.color(QPalette::HighlightedText), before.color(QPalette::Highlight)) >=
                leastContrast);
        QVERIFY(!isDark());
        portal.set("color-scheme", 1U);
        QTRY_VERIFY(isDark());
        QCOMPARE(QApplication::palette().color(QPalette::PlaceholderText), placeholderText(QApplication::palette()));
        portal.set("contrast", 1U);
        QTRY_COMPARE(QApplication::palette().color(QPalette::Text), QColor(Qt::white));
        portal.set("contrast", 0U);
        portal.set("color-scheme", 0U);
        QTRY_VERIFY(!isDark());
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), before.color(QPalette::Highlight));
        QCOMPARE(QApplication::palette().resolveMask() & (1ULL << QPalette::Window), 0ULL); // the desktop's again
    }
};

TESSARO_TEST_MAIN(QApplication, TestAppearance)
#include "test_appearance.moc"

// By the keyboard alone: Tab leads to whatever can be used, and where one is can be seen, in light and in dark.
#include "app/MainWindow.h"
#include "app/ManualWindow.h"
#include "app/OwnParametersSheet.h"
#include "app/TableSheet.h"
#include "app/TessaroAppDelegate.h"
#include "harness/Records.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "preferences/VTPreferenceController.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "templates/editor/TemplatePane.h"
#include "ui/Appearance.h"
#include "ui/Colours.h"
#include "ui/FocusRing.h"
#include "ui/SheetPresenter.h"
#include "ui/VTSavePanel.h"
#include "ui/VTTabbedEditTableView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int rowHeight = 22;

/// What a user can do something with; parts of another control are none.
bool isControl(const QWidget &widget)
{
    const bool isOne = qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QLineEdit *>(&widget) ||
                       qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget) ||
                       qobject_cast<const QAbstractItemView *>(&widget) ||
                       qobject_cast<const QTextBrowser *>(&widget) || qobject_cast<const QPlainTextEdit *>(&widget);
    if (!isOne || !widget.isVisible() || !widget.isEnabled())
        return false;
    const QWidget *parent = widget.parentWidget();
    const bool isPart = qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent) ||
                        qobject_cast<const QLineEdit *>(parent) || qobject_cast<const QAbstractItemView *>(parent) ||
                        qobject_cast<const QMenuBar *>(parent) || widget.inherits("QHeaderView") ||
                        widget.inherits("QTableCornerButton");
    return !isPart;
}

/// A command that has a key, or a letter in a menu, needs no button to be reached.
bool hasOtherWay(const QWidget &widget)
{
    const auto *button = qobject_cast<const QToolButton *>(&widget);
    return button && qobject_cast<const QToolBar *>(button->parentWidget());
}

bool isCellEditor(const QWidget *widget)
{
    const QWidget *parent = widget ? widget->parentWidget() : nullptr;
    return parent && qobject_cast<const VTTabbedEditTableView *>(parent->parentWidget());
}

QString nameOf(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName() + QStringLiteral(" “") +
           widget.accessibleName() + QStringLiteral("”");
}

/// Pixels that the focus has changed so that it can be seen (WCAG 2.2, 2.4.13: 3 to 1).
int visiblePixels(const QImage &with, const QImage &without, const QRect &place)
{
    constexpr double least = 3;
    int count = 0;
    const QRect inside = place & with.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += with.pixel(x, y) != without.pixel(x, y) &&
                     contrastOf(with.pixelColor(x, y), without.pixelColor(x, y)) >= least;
    }
    return count;
}

/// What Tab does not come to, and where it cannot be seen that it has come.
QStringList problemsOfTab(QWidget &window)
{
    constexpr int around = 3; // some styles draw a frame outside
    QMap<const QWidget *, int> seen;
    QStringList problems;
    QImage before = window.grab().toImage();
    const QWidget *last = nullptr;
    for (int presses = 0; presses < 80 && QApplication::focusWidget(); ++presses) {
        // Among values Tab goes around; Return behind the last one leaves them.
        for (int rows = 0; rows < 10 && isCellEditor(QApplication::focusWidget()) && presses > 6; ++rows) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QTest::qWait(0);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::qWait(0);
        const QWidget *focus = QApplication::focusWidget();
        if (!focus || focus->window() != &window) {
            problems.append("Tab leads out of the window");
            break;
        }
        const QWidget *control = focus;
        while (control->parentWidget() && !isControl(*control))
            control = control->parentWidget();
        if (!isControl(*control))
            control = focus;
        const QImage now = window.grab().toImage();
        const QRect place(control->mapTo(&window, QPoint()), control->size());
        if (control != last)
            seen[control] =
                qMax(seen.value(control), visiblePixels(now, before, place.adjusted(-around, -around, around, around)));
        before = now;
        last = control;
    }
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !isControl(*widget) || hasOtherWay(*widget))
            continue;
        const auto *radio = qobject_cast<const QRadioButton *>(widget);
        if (radio && !radio->isChecked()) // the arrows lead to it from the one that is
            continue;
        if (!seen.contains(widget))
            problems.append("not reached: " + nameOf(*widget));
        else if (const int least = qMin(rowHeight, qMin(widget->width(), widget->height())); seen[widget] < least)
            problems.append(QStringLiteral("not seen: ") + nameOf(*widget) +
                            QStringLiteral(": %1 of %2").arg(seen[widget]).arg(least));
    }
    return problems;
}

} // namespace

class TestFocus : public QObject
{
    Q_OBJECT

    SheetPresenter m_sheets;
    FocusRing m_ring;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<TessaroAppDelegate> m_delegate;
    QStringList m_problems;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    void walk(QWidget &shown, const char *what)
    {
        QVERIFY2(QTest::qWaitForWindowActive(&shown), what);
        QTRY_VERIFY2(QApplication::focusWidget() && QApplication::focusWidget()->window() == &shown, what);
        for (const QString &problem : problemsOfTab(shown))
            m_problems.append(QLatin1String(what) + ": " + problem);
    }
    template <typename Dialog> void walkSheet(const char *what, const std::function<void()> &open)
    {
        open();
        QTRY_VERIFY2(window().findChild<Dialog *>(), what);
        auto *sheet = window().findChild<Dialog *>();
        walk(*sheet, what);
        sheet->close();
        QTRY_VERIFY2(!window().findChild<Dialog *>(), what);
    }

private Q_SLOTS:
    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        m_problems.clear();
        storeFirstSettings(m_work->path());
        storeSetting(
            settings::filenameTemplate,
            QVariantList{record({{"title", "Client"}, {"saveHistory", true}, {"history", QVariantList{"Acme"}}}),
                         record({{"title", "Kind"}, {"type", 5}, {"defaultVal", "Film,Clip"}, {"val", "Film"}}),
                         record({{"title", "Title"}, {"folder", true}, {"val", "Promo"}})});
        writeFile(m_work->filePath("Library/One.tzt/Files/Sub/Template.txt"), "one");
        m_delegate = std::make_unique<TessaroAppDelegate>();
        QVERIFY(m_delegate->awakeFromNib());
        m_sheets.setMainWindow([this] { return m_delegate->mainWindow(); });
        window().show();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    void cleanup()
    {
        m_sheets.setMainWindow({});
        m_delegate.reset();
        QApplication::setPalette(QPalette());
    }

    void everywhere_data()
    {
        QTest::addColumn<platform::Appearance>("appearance");
        using Scheme = platform::Appearance::Scheme;
        QTest::newRow("light") << platform::Appearance{Scheme::Light, false};
        QTest::newRow("dark") << platform::Appearance{Scheme::Dark, false};
        QTest::newRow("light, more contrast") << platform::Appearance{Scheme::Light, true};
        QTest::newRow("dark, more contrast") << platform::Appearance{Scheme::Dark, true};
    }

    void everywhere()
    {
        QFETCH(platform::Appearance, appearance);
        QApplication::setPalette(paletteFor(appearance, QApplication::palette()));
        m_delegate->showResult();
        walk(window(), "project pane");
        m_delegate->createNewProject();
        walk(window(), "after a project");
        m_delegate->toolbarTemplateAction();
        auto &pane = window().templatePane();
        QTRY_VERIFY(pane.outlineController().rules().isRead);
        QTest::keyClick(&pane, Qt::Key_I, Qt::ControlModifier);
        walk(window(), "template pane");
        m_delegate->showPreferences();
        auto *preferences = window().findChild<VTPreferenceController *>();
        for (const auto &[name, show] : {std::pair("general", &VTPreferenceController::toolbarGeneral),
                                         {"project", &VTPreferenceController::toolbarProject},
                                         {"parameters", &VTPreferenceController::toolbarParameters},
                                         {"hotkeys", &VTPreferenceController::toolbarHotkeys}}) {
            (preferences->*show)();
            walk(*preferences, name);
        }
        preferences->close();
        walkSheet<TableSheet>("table", [&] { m_delegate->createFromTable(); });
        m_delegate->toolbarTemplateAction();
        walkSheet<OwnParametersSheet>("own parameters", [&] { m_delegate->editTemplateParameters(); });
        walkSheet<VTSavePanel>("place", [&] { m_delegate->choosePlace(); });
        QTimer::singleShot(0, this, [&] { walkSheet<QDialog>("welcome", [] {}); });
        VTAlert::show({"Welcome",
                       "What do you do?",
                       "Create",
                       "Later",
                       {},
                       {},
                       true,
                       "Kind of work",
                       {"Film", "Sound"},
                       std::make_shared<int>()});
        QVERIFY2(m_problems.isEmpty(), qPrintable('\n' + m_problems.join('\n')));
    }

    void manual()
    {
        ManualWindow::open({});
        auto *manual = QApplication::activeWindow();
        QTRY_VERIFY((manual = QApplication::activeWindow()) && manual->inherits("ManualWindow"));
        walk(*manual, "manual");
        manual->close();
        QVERIFY2(m_problems.isEmpty(), qPrintable('\n' + m_problems.join('\n')));
    }
};

TESSARO_TEST_MAIN(QApplication, TestFocus)
#include "test_focus.moc"

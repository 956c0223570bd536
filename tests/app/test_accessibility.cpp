// What a screen reader finds in every pane, panel and sheet, and what it says on the main road.
#include "app/MainWindow.h"
#include "app/ManualWindow.h"
#include "app/TessaroAppDelegate.h"
#include "harness/Records.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/table/VTProjectTableController.h"
#include "preferences/VTPreferenceController.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "templates/editor/TemplatePane.h"
#include "ui/SheetPresenter.h"
#include "ui/VTOutlineView.h"
#include "ui/VTTabbedEditTableView.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMetaEnum>
#include <QTest>
#include <QTimer>

namespace {

bool needsName(QAccessible::Role role)
{
    static const QList<QAccessible::Role> roles{
        QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::EditableText,
        QAccessible::ComboBox,   QAccessible::SpinBox,  QAccessible::Table,       QAccessible::Tree,
        QAccessible::List,       QAccessible::Cell,     QAccessible::TreeItem,    QAccessible::ColumnHeader,
        QAccessible::RowHeader,  QAccessible::MenuItem, QAccessible::ButtonMenu,  QAccessible::ButtonDropDown};
    return roles.contains(role);
}

QString describe(QAccessibleInterface &item)
{
    const QObject *object = item.object();
    return QStringLiteral("%1 %2 “%3”")
        .arg(QMetaEnum::fromType<QAccessible::Role>().valueToKey(item.role()),
             object ? QString::fromLatin1(object->metaObject()->className()) + u' ' + object->objectName() : QString(),
             item.text(QAccessible::Name));
}

/// What a control says of itself beside its name: what it is, whether it can be used, and whose label it has.
QString untrueOf(QAccessibleInterface &item)
{
    const auto *widget = qobject_cast<const QWidget *>(item.object());
    if (!widget || (widget->focusPolicy() & Qt::TabFocus) == 0 || widget->isWindow())
        return {};
    if (item.role() == QAccessible::NoRole || item.role() == QAccessible::Client || item.role() == QAccessible::Pane)
        return QStringLiteral("has no role");
    if (widget->isEnabled() == item.state().disabled)
        return QStringLiteral("says the wrong thing of its use");
    if (widget->isEnabled() && !item.state().focusable)
        return QStringLiteral("says that it takes no keys");
    for (const QLabel *label : widget->window()->findChildren<QLabel *>()) {
        const auto labels = item.relations(QAccessible::Label);
        const bool isTold = std::any_of(labels.begin(), labels.end(),
                                        [&](const auto &relation) { return relation.first->object() == label; });
        if (label->buddy() == widget && !isTold)
            return QStringLiteral("does not know its label");
    }
    return {};
}

/// What is to be seen and could not be named aloud.
void collectNameless(QAccessibleInterface *item, QStringList &nameless)
{
    if (!item || !item->isValid() || item->state().invisible)
        return;
    const QString name = item->text(QAccessible::Name);
    bool isNumber = false;
    name.toInt(&isNumber);
    // The panels of the toolkit say the size of a folder by an empty cell.
    if (item->role() == QAccessible::TreeItem && item->tableCellInterface() &&
        item->tableCellInterface()->columnIndex() > 0)
        return;
    const bool isHeader = item->role() == QAccessible::ColumnHeader || item->role() == QAccessible::RowHeader;
    if (needsName(item->role()) && (name.trimmed().isEmpty() || (isHeader && isNumber)) &&
        item->text(QAccessible::Description).isEmpty())
        nameless.append(describe(*item));
    if (const QString untrue = untrueOf(*item); !untrue.isEmpty())
        nameless.append(describe(*item) + u' ' + untrue);
    for (int i = 0; i < item->childCount(); ++i)
        collectNameless(item->child(i), nameless);
}

QStringList namelessIn(QWidget &window)
{
    QStringList nameless;
    collectNameless(QAccessible::queryAccessibleInterface(&window), nameless);
    return nameless;
}

/// As a reader says what has the focus: its name, what it is, what it holds.
QString spoken()
{
    QObject *focus = QApplication::focusWidget();
    QAccessibleInterface *item = focus ? QAccessible::queryAccessibleInterface(focus) : nullptr;
    if (item && item->focusChild())
        item = item->focusChild();
    if (!item)
        return QStringLiteral("(nothing)");
    QString role = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(item->role()));
    QStringList said{item->text(QAccessible::Name), role};
    for (const auto text : {QAccessible::Value, QAccessible::Description}) {
        if (const QString more = item->text(text); !more.isEmpty() && !said.contains(more))
            said.append(more);
    }
    return said.join(QStringLiteral(" | "));
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

    SheetPresenter m_sheets;
    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<TessaroAppDelegate> m_delegate;

    MainWindow &window() const { return *m_delegate->mainWindow(); }
    template <typename Dialog> void walkPanel(const char *what, const std::function<void()> &open) const
    {
        open();
        QTRY_VERIFY2(window().findChild<Dialog *>(), what);
        auto *dialog = window().findChild<Dialog *>();
        QTRY_VERIFY2(dialog->isVisible(), what);
        QTest::qWait(50); // file panels read their folder
        const QStringList nameless = namelessIn(*dialog);
        dialog->reject();
        QVERIFY2(nameless.isEmpty(), qPrintable(QLatin1String(what) + ": " + nameless.join(", ")));
        QTRY_VERIFY2(!window().findChild<Dialog *>(), what);
    }
    void walkWindow(QWidget &shown, const char *what) const
    {
        QVERIFY2(namelessIn(shown).isEmpty(), qPrintable(QLatin1String(what) + ": " + namelessIn(shown).join(", ")));
    }

private Q_SLOTS:
    void init()
    {
        VTAlert::setPresenter(&m_sheets);
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        storeSetting(
            settings::filenameTemplate,
            QVariantList{record({{"title", "Client"}, {"saveHistory", true}, {"history", QVariantList{"Acme"}}}),
                         record({{"title", "Job"}, {"type", 2}, {"val", "007"}}),
                         record({{"title", "Date"}, {"type", 3}, {"locked", 1}}),
                         record({{"title", "Kind"}, {"type", 5}, {"defaultVal", "Film,Clip"}, {"val", "Film"}}),
                         record({{"title", "Title"}, {"folder", true}, {"disallowEmpty", true}})});
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
    }

    void everythingHasAName()
    {
        auto *table = window().findChild<VTTabbedEditTableView *>();
        walkWindow(window(), "project pane");
        for (const int row : {0, 3, 4}) { // a history, choices, a line
            table->editRow(row);
            walkWindow(window(), "an editor");
        }
        m_delegate->toolbarTemplateAction();
        auto &editor = window().templatePane().outlineController();
        window().findChild<VTOutlineView *>()->expandAll();
        walkWindow(window(), "template pane");
        window().findChild<VTOutlineView *>()->selectAll();
        walkPanel<QDialog>("rename", [&] { editor.editSelectedName(); });
        walkPanel<QDialog>("import files", [&] { editor.showImportFileDialog(); });
        walkPanel<QDialog>("import folders", [&] { editor.showImportFolderStructureDialog(); });
        walkPanel<QDialog>("import template", [&] { m_delegate->importTemplate(); });
        walkPanel<QDialog>("export template", [&] { m_delegate->exportTemplate(); });
        walkPanel<QDialog>("place", [&] { m_delegate->choosePlace(); });
        QTRY_VERIFY(editor.rules().isRead);
        QTest::keyClick(&window().templatePane(), Qt::Key_I, Qt::ControlModifier);
        walkWindow(window(), "rules");
        walkPanel<QDialog>("own parameters", [&] { m_delegate->editTemplateParameters(); });
        walkPanel<QDialog>("table", [&] { m_delegate->createFromTable(); });
        m_delegate->toolbarTemplateAction();
        QVERIFY(ManualWindow::open({}));
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow()->inherits("ManualWindow"));
        walkWindow(*QApplication::activeWindow(), "manual");
        QApplication::activeWindow()->close();
        QTimer::singleShot(0, this, [&] { walkPanel<QMessageBox>("a question", [] {}); });
        editor.removeFiles();

        m_delegate->showPreferences();
        auto *preferences = window().findChild<VTPreferenceController *>();
        for (void (VTPreferenceController::*show)() :
             {&VTPreferenceController::toolbarGeneral, &VTPreferenceController::toolbarProject,
              &VTPreferenceController::toolbarParameters, &VTPreferenceController::toolbarHotkeys}) {
            (preferences->*show)();
            walkWindow(*preferences, "preferences");
        }
        preferences->close();
        storeSetting(settings::filenameTemplate, QVariantList());
        m_delegate->tableController().loadFilenameData();
        m_delegate->toolbarNewProjectAction();
        walkWindow(window(), "no parameters");
    }

    /// By the keyboard alone; what is said stands in the page for those who use a screen reader.
    void theMainRoad()
    {
        QStringList road;
        const auto press = [&](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            QCoreApplication::processEvents();
            road.append(QString::fromUtf8(name) + QStringLiteral(": ") + spoken());
        };
        m_delegate->applicationDidFinishLaunching();
        road.append("Tessaro starts: " + spoken());
        QTest::keyClicks(QApplication::focusWidget(), "Acme");
        press("“Acme”, Tab", Qt::Key_Tab);
        press("Tab", Qt::Key_Tab); // past the locked date
        press("Down", Qt::Key_Down);
        press("Tab", Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), "Promo");
        press("“Promo”, Return", Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        const auto *created = window().findChild<QLabel *>("createdLabel"); // announced wherever the focus is
        QTRY_VERIFY(!created->text().isEmpty());
        road.append("Return: " + created->text());
        press("Tab", Qt::Key_Tab);
        press("Tab", Qt::Key_Tab);
        press("Tab", Qt::Key_Tab);
        press("Tab", Qt::Key_Tab);
        const QString said = road.join('\n').replace(m_work->path(), "/home/ada");
        const QByteArray page = readFile(QStringLiteral(TESSARO_SOURCE_DIR "/docs/keyboard.md"));
        QVERIFY2(page.contains(said.toUtf8()), qPrintable("The page says another thing than:\n" + said));
    }
};

TESSARO_TEST_MAIN(QApplication, TestAccessibility)
#include "test_accessibility.moc"

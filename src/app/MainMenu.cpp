#include "app/MainMenu.h"

#include "app/TessaroAppDelegate.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

namespace {

struct Item
{
    const char *text; ///< null: a separator
    const char *shortcut;
    void (TessaroAppDelegate::*slot)(); ///< null: a menu of the recent projects
    bool waitsForCreation;
};

struct Menu
{
    const char *title;
    QList<Item> items;
};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MainMenu)
};

const QList<Menu> &menus()
{
    using Delegate = TessaroAppDelegate;
    static const QList<Menu> table{
        {QT_TRANSLATE_NOOP("MainMenu", "&Project"),
         {{QT_TRANSLATE_NOOP("MainMenu", "&Create Project"), "Ctrl+Return", &Delegate::createNewProject, true},
          {QT_TRANSLATE_NOOP("MainMenu", "Create From &Table…"), "Ctrl+T", &Delegate::createFromTable, true},
          {QT_TRANSLATE_NOOP("MainMenu", "&Recent Projects"), "", nullptr, true},
          {QT_TRANSLATE_NOOP("MainMenu", "C&heck Project…"), "", &Delegate::chooseProjectToCheck, true},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Preferences…"), "Ctrl+,", &Delegate::showPreferences, true},
          {QT_TRANSLATE_NOOP("MainMenu", "Cl&ear History"), "", &Delegate::clearHistory, true},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Quit"), "Ctrl+Q", &Delegate::quit, true}}},
        {QT_TRANSLATE_NOOP("MainMenu", "&Edit"),
         {{QT_TRANSLATE_NOOP("MainMenu", "&Undo"), "Ctrl+Z", &Delegate::undo, true},
          {QT_TRANSLATE_NOOP("MainMenu", "&Redo"), "Ctrl+Shift+Z", &Delegate::redo, true}}},
        {QT_TRANSLATE_NOOP("MainMenu", "&View"),
         {{QT_TRANSLATE_NOOP("MainMenu", "&New Project"), "Ctrl+1", &Delegate::toolbarNewProjectAction, true},
          {QT_TRANSLATE_NOOP("MainMenu", "&Templates"), "Ctrl+2", &Delegate::toolbarTemplateAction, true},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "Show &Result"), "Ctrl+R", &Delegate::showResult, true},
          {QT_TRANSLATE_NOOP("MainMenu", "Show Template &Library"), "", &Delegate::showTemplateLibrary, true}}},
        {QT_TRANSLATE_NOOP("MainMenu", "&Template"),
         {{QT_TRANSLATE_NOOP("MainMenu", "&New Template"), "Ctrl+N", &Delegate::newTemplate, true},
          {QT_TRANSLATE_NOOP("MainMenu", "&Import Template…"), "Ctrl+Shift+I", &Delegate::importTemplate, true},
          {QT_TRANSLATE_NOOP("MainMenu", "&Export Template…"), "Ctrl+E", &Delegate::exportTemplate, true},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Restore Default Templates…"), "", &Delegate::restoreDefaultTemplates,
           true}}},
        {QT_TRANSLATE_NOOP("MainMenu", "&Help"),
         {{QT_TRANSLATE_NOOP("MainMenu", "Tessaro &Help"), "F1", &Delegate::showManual, false},
          {QT_TRANSLATE_NOOP("MainMenu", "User &Manual (PDF)"), "", &Delegate::helpUserManual, false},
          {QT_TRANSLATE_NOOP("MainMenu", "Tessaro on the &Web"), "", &Delegate::helpAppHome, false},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "View &Log"), "", &Delegate::viewLog, false},
          {QT_TRANSLATE_NOOP("MainMenu", "View &Task Log"), "", &Delegate::viewTaskLog, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Gather Logs"), "", &Delegate::gatherLogs, true},
          {QT_TRANSLATE_NOOP("MainMenu", "Check for &Updates…"), "", &Delegate::checkForUpdates, false},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Report a Bug…"), "", &Delegate::helpReportBug, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Suggest a Feature…"), "", &Delegate::helpSuggestFeature, false},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "More &Products"), "", &Delegate::helpMoreProducts, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&Vantrel on the Web"), "", &Delegate::helpVTHome, false},
          {nullptr, nullptr, nullptr, false},
          {QT_TRANSLATE_NOOP("MainMenu", "&About Tessaro"), "", &Delegate::showAbout, true}}},
    };
    return table;
}

QMenu *recentProjects(QMenu &menu, const QString &title, TessaroAppDelegate &delegate)
{
    QMenu *recent = menu.addMenu(title);
    recent->setToolTipsVisible(true);
    QObject::connect(recent, &QMenu::aboutToShow, &delegate,
                     [recent, &delegate] { delegate.fillRecentProjects(recent); });
    return recent;
}

} // namespace

QList<QAction *> buildMenus(QMenuBar &menuBar, TessaroAppDelegate &delegate)
{
    QList<QAction *> waiting;
    for (const Menu &menu : menus()) {
        QMenu *built = menuBar.addMenu(Text::tr(menu.title));
        for (const Item &item : menu.items) {
            if (!item.text) {
                built->addSeparator();
                continue;
            }
            QAction *action = item.slot ? built->addAction(Text::tr(item.text))
                                        : recentProjects(*built, Text::tr(item.text), delegate)->menuAction();
            action->setObjectName(QString::fromUtf8(item.text).remove(u'&'));
            action->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
            action->setAutoRepeat(false); // a key that is held down does its work once
            if (item.slot)
                QObject::connect(action, &QAction::triggered, &delegate, item.slot);
            if (item.waitsForCreation)
                waiting.append(action);
        }
    }
    return waiting;
}

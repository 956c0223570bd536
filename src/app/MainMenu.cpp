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
    void (TessaroAppDelegate::*slot)();
    bool waitsForCreation;
};

struct Menu
{
    const char *title;
    QList<Item> items;
};

#define TEXT(text) QT_TRANSLATE_NOOP("MainMenu", text)

const QList<Menu> &menus()
{
    using Delegate = TessaroAppDelegate;
    static const QList<Menu> table{
        {TEXT("&Project"),
         {{TEXT("&Create Project"), "Ctrl+Return", &Delegate::createNewProject, true},
          {nullptr, nullptr, nullptr, false},
          {TEXT("&Preferences…"), "Ctrl+,", &Delegate::showPreferences, true},
          {TEXT("Clear &History"), "", &Delegate::clearHistory, true},
          {nullptr, nullptr, nullptr, false},
          {TEXT("&Quit"), "Ctrl+Q", &Delegate::quit, true}}},
        {TEXT("&View"),
         {{TEXT("&New Project"), "Ctrl+1", &Delegate::toolbarNewProjectAction, true},
          {TEXT("&Templates"), "Ctrl+2", &Delegate::toolbarTemplateAction, true},
          {nullptr, nullptr, nullptr, false},
          {TEXT("Show Template &Library"), "", &Delegate::showTemplateLibrary, true}}},
        {TEXT("&Template"),
         {{TEXT("&New Template"), "Ctrl+N", &Delegate::newTemplate, true},
          {TEXT("&Import Template…"), "Ctrl+I", &Delegate::importTemplate, true},
          {nullptr, nullptr, nullptr, false},
          {TEXT("&Restore Default Templates…"), "", &Delegate::restoreDefaultTemplates, true}}},
        {TEXT("&Help"),
         {{TEXT("User &Manual"), "F1", &Delegate::helpUserManual, false},
          {TEXT("Tessaro on the &Web"), "", &Delegate::helpAppHome, false},
          {nullptr, nullptr, nullptr, false},
          {TEXT("View &Log"), "", &Delegate::viewLog, false},
          {TEXT("View &Task Log"), "", &Delegate::viewTaskLog, false},
          {TEXT("&Gather Logs"), "", &Delegate::gatherLogs, true},
          {TEXT("Check for &Updates…"), "", &Delegate::checkForUpdates, false},
          {nullptr, nullptr, nullptr, false},
          {TEXT("&Report a Bug…"), "", &Delegate::helpReportBug, false},
          {TEXT("&Suggest a Feature…"), "", &Delegate::helpSuggestFeature, false},
          {nullptr, nullptr, nullptr, false},
          {TEXT("More &Products"), "", &Delegate::helpMoreProducts, false},
          {TEXT("&Vantrel on the Web"), "", &Delegate::helpVTHome, false},
          {nullptr, nullptr, nullptr, false},
          {TEXT("&About Tessaro"), "", &Delegate::showAbout, true}}},
    };
    return table;
}

} // namespace

QList<QAction *> buildMenus(QMenuBar &menuBar, TessaroAppDelegate &delegate)
{
    QList<QAction *> waiting;
    for (const Menu &menu : menus()) {
        QMenu *built = menuBar.addMenu(QCoreApplication::translate("MainMenu", menu.title));
        for (const Item &item : menu.items) {
            if (!item.text) {
                built->addSeparator();
                continue;
            }
            QAction *action = built->addAction(QCoreApplication::translate("MainMenu", item.text));
            action->setObjectName(QString::fromLatin1(item.text).remove(u'&'));
            action->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
            QObject::connect(action, &QAction::triggered, &delegate, item.slot);
            if (item.waitsForCreation)
                waiting.append(action);
        }
    }
    return waiting;
}

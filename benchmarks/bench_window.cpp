// How long the window takes from a key to the picture, at the median and at the 99th percentile: a value typed among
// two hundred parameters, the filter of a template of 100,000 entries, and the whole window drawn anew.
//
//   bench_window
#include "LargeTree.h"
#include "Timing.h"
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "parameters/FilenameParameter.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"
#include "support/VTLocalPaths.h"
#include "templates/RuleFile.h"
#include "templates/editor/TemplatePane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

namespace {

constexpr int keys = 400;
constexpr int parameters = 200;
constexpr int entries = 100'000;

/// Everything that has been asked for is drawn.
void settle(QWidget &window)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    window.repaint();
    QCoreApplication::processEvents();
}

void print(const char *what, std::vector<double> seconds)
{
    std::sort(seconds.begin(), seconds.end());
    QTextStream(stdout) << "  " << what << ": " << timing::median(seconds) * 1000 << " ms, 99th percentile "
                        << seconds[seconds.size() * 99 / 100] * 1000 << " ms\n";
}

/// Letters, and now and then all of them taken away again.
void type(const char *what, QWidget &window)
{
    std::vector<double> seconds;
    for (int i = 0; i < keys; ++i) {
        const bool clears = i % 20 == 19;
        const int key = clears ? Qt::Key_Backspace : Qt::Key_A + i % 5;
        const QString text = clears ? QString() : QString(QChar(QStringLiteral("clip 1")[i % 20 % 6]));
        QWidget *target = QApplication::focusWidget();
        if (!target)
            qFatal("Nothing has the focus");
        if (auto *line = qobject_cast<QLineEdit *>(target); clears && line)
            line->selectAll();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        seconds.push_back(timing::secondsOf([&] {
            QCoreApplication::sendEvent(target, &press);
            settle(window);
        }));
        QCoreApplication::sendEvent(target, &release);
    }
    print(what, seconds);
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    QApplication application(argc, argv);
    const QTemporaryDir work(QStringLiteral("./bench_window-XXXXXX"));
    const QString home = QDir::current().absoluteFilePath(work.path());
    qputenv("HOME", home.toUtf8());
    settings::registerDefaults();
    QVariantList list;
    for (int i = 0; i < parameters; ++i)
        list.append(QVariantMap{{"title", QStringLiteral("Parameter %1").arg(i)}});
    const bool isStored = settings::firstRun.turn(false).ok() && settings::filenameTemplate.store(list).ok() &&
                          settings::templateLocation.store(home + "/Library/Templates").ok();
    if (!isStored)
        qFatal("The settings cannot be written");
    makeLargeTree(home + "/Library/Templates/Large.tzt/Files", entries);
    TessaroAppDelegate delegate;
    if (!delegate.awakeFromNib())
        return 1;
    MainWindow &window = *delegate.mainWindow();
    window.resize(1000, 800);
    window.show();
    window.activateWindow();
    for (int i = 0; i < 50 && !window.isActiveWindow(); ++i) {
        timespec pause{0, 20'000'000};
        nanosleep(&pause, nullptr);
        QCoreApplication::processEvents();
    }
    delegate.applicationDidFinishLaunching();
    settle(window);
    QTextStream(stdout) << "From a key to the picture, " << keys << " keys\n";
    std::vector<double> redraws;
    for (int i = 0; i < keys / 4; ++i)
        redraws.push_back(timing::secondsOf([&] { window.repaint(); }));
    print("the window drawn anew", redraws);
    type("a value among 200 parameters", window);
    window.setResultShown(true);
    const auto *result = window.findChild<QTreeView *>(QStringLiteral("resultTree"));
    for (int i = 0; i < 500 && result->model()->rowCount() == 0; ++i) {
        timespec pause{0, 20'000'000};
        nanosleep(&pause, nullptr);
        QCoreApplication::processEvents();
    }
    settle(window);
    type("the same with the result of 100,000 items beside it", window);
    // A folder by a condition, one named by the value that is typed: each key makes the tree anew.
    const QString bundle = home + "/Library/Templates/Large.tzt";
    const bool isRuled =
        platform::makeFolders(bundle + "/Files/{Parameter 0}/x").ok() &&
        platform::makeFolders(bundle + "/Files/Extra").ok() &&
        rulefile::change(bundle, [](const QVariantMap &) {
            const QVariantMap test{{"parameter", "Parameter 0"}, {"is", "contains"}, {"value", "p"}};
            const QVariantMap item{{"path", "Extra"}, {"when", QVariantMap{{"all", QVariantList{test}}}}};
            return QVariantMap{{"fillNames", true}, {"items", QVariantList{item}}};
        }).ok();
    if (!isRuled)
        qFatal("The rules cannot be written");
    delegate.toolbarNewProjectAction();
    for (int i = 0; i < 150; ++i) {
        timespec pause{0, 20'000'000};
        nanosleep(&pause, nullptr);
        QCoreApplication::processEvents();
    }
    delegate.tableController().editFirstItem();
    settle(window);
    type("the same with rules", window);
    window.setResultShown(false);
    delegate.toolbarTemplateAction();
    settle(window);
    auto *filter = window.findChild<QLineEdit *>(QStringLiteral("filterLine"));
    if (!filter)
        qFatal("There is no filter");
    filter->show();
    filter->setFocus();
    type("the filter of 100,000 entries", window);
    return 0;
}

// Loading a template of 100,000 entries into the structure editor against `find` over the same tree, in the same run;
// and the longest time for which the window did not react while it loaded.
//
//   bench_tree [ENTRIES]...        default: 1000 100000, in a hundredth as many folders
#include "LargeTree.h"
#include "Timing.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/desktop/Desktop.h"
#include "support/Settings.h"
#include "support/VTLog.h"
#include "templates/editor/TemplatePane.h"
#include "ui/VTOutlineView.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

namespace {

constexpr int rounds = 9;

void measure(TemplatePane &pane, const QString &bundle, int entries)
{
    makeLargeTree(bundle + "/Files", entries);
    std::vector<double> finds;
    std::vector<double> loads;
    std::vector<double> redraws;
    double longest = 0;
    auto last = std::chrono::steady_clock::now();
    const auto look = [&] {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, std::chrono::duration<double>(now - last).count());
        last = now;
    };
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, look);
    for (int round = -1; round < rounds; ++round) {
        const double find = timing::secondsOf("/usr/bin/find", {bundle + "/Files"});
        QCoreApplication::processEvents();
        heart.start(1);
        last = std::chrono::steady_clock::now();
        if (round < 0)
            longest = 0;
        const double load = timing::secondsOf([&] { pane.outlineController().loadDataFromFile(bundle); });
        const double redraw = timing::secondsOf([&] {
            pane.findChild<VTColoredOutlineView *>()->viewport()->repaint();
            QCoreApplication::processEvents();
        });
        look();
        heart.stop();
        pane.outlineController().loadDataFromFile({});
        if (round < 0) {
            longest = 0; // the first round fills the caches
            continue;
        }
        finds.push_back(find);
        loads.push_back(load);
        redraws.push_back(redraw);
    }
    QTextStream(stdout) << entries << " entries: find " << timing::median(finds) * 1000 << " ms\n";
    timing::printRatio("filled tree", loads, "find", finds);
    QTextStream(stdout) << "  drawn in " << timing::median(redraws) * 1000 << " ms; the window stood still for at most "
                        << longest * 1000 << " ms\n";
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    QApplication application(argc, argv);
    const QTemporaryDir work(QStringLiteral("./bench_tree-XXXXXX"));
    const QString home = QDir::current().absoluteFilePath(work.path());
    qputenv("HOME", home.toUtf8());
    VTLog::sharedController().setLoggingDisabled(true);
    settings::registerDefaults();
    QStringList counts = QApplication::arguments().mid(1);
    if (counts.isEmpty())
        counts = {QStringLiteral("1000"), QStringLiteral("100000")};
    for (const bool expanded : {false, true}) {
        if (!settings::autoExpandFolders.turn(expanded).ok())
            qFatal("The settings cannot be written");
        QTextStream(stdout) << (expanded ? "every folder opened\n" : "folders closed\n");
        TemplatePane pane;
        pane.resize(640, 480);
        pane.show();
        for (const QString &count : std::as_const(counts))
            measure(pane, home + QStringLiteral("/%1-%2.tzt").arg(count).arg(expanded), count.toInt());
    }
}

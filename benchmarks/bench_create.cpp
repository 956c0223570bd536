// Creating a project against `cp -a` of the same tree, in the same run.
//
//   bench_create [cold] [in=FOLDER] [turns=N] [FILES[/PER-FOLDER[/KIB]]]...
//                              default: 1000 10000, 100 files of 2 KiB in a folder
//   bench_create 0             one file of 2 GiB
//   bench_create growth FILES  1,000 files and that many, how the time for one changes, and the memory of a plan
//
// With cold, every turn begins with nothing of the template in memory; only the super-user can have that. With a folder
// the projects go there: another drive, or the stand-in for a share, whose calls are counted then (user.counts).
// They take turns, each into a new destination: `cp -a` as a process; a creation in a program that runs already, as in
// the window (claim, copy, renaming, dates); `Tessaro create` as a process, with its start-up; and, where they are
// installed, `rsync -a` and cookiecutter, which also gives names, on the same tree. Nothing is deleted
// before the end, because creating files soon after a large deletion is slow on ext4 and would make every ratio 1.
#include "Timing.h"
#include "creation/CreationPlan.h"
#include "creation/ProjectCreation.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <malloc.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

int rounds = 7;
constexpr int slowRounds = 3; // of what takes a hundred times as long
const QString rsync = QStringLiteral("/usr/bin/rsync");
const QString cookiecutter = QStringLiteral("/usr/bin/cookiecutter");

void makeLargeTemplate(const QString &files)
{
    QFile file(files + QStringLiteral("/Template.mov"));
    const QByteArray piece(1 << 20, 'x');
    if (!platform::makeFolders(files).ok() || !file.open(QIODevice::WriteOnly))
        qFatal("Cannot make the template");
    for (int i = 0; i < 2048; ++i) {
        if (file.write(piece) != piece.size())
            qFatal("Cannot write the template");
    }
}

void makeTemplate(const QString &files, int count, int perFolder, int kibibytes)
{
    const QByteArray contents(kibibytes * 1024, 'x');
    const int folders = std::max(1, count / perFolder);
    for (int i = 0; i < count; ++i) {
        const QString folder = files + QStringLiteral("/Folder %1").arg(i % folders);
        if (i < folders && !platform::makeFolders(folder).ok())
            qFatal("Cannot make the template");
        // One in a hundred gets the project's name, as a few files of a real template do.
        QFile file(folder +
                   (i % 100 == 7 ? QStringLiteral("/Template %1.txt") : QStringLiteral("/File %1.txt")).arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("Cannot write the template");
    }
}

class SilentHost : public CreationHost
{
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
};

double secondsOfCreation(const QString &templateName, const QString &location)
{
    ProjectRequest request;
    request.parameters = {FilenameParameter({{"title", "Name"}, {"val", "Bench"}})};
    request.templateName = templateName;
    request.templateFiles = VTDataController::filesFolder(templateName);
    request.location = location;
    return timing::secondsOf([&] {
        SilentHost host;
        if (!ProjectCreation(host).createProject(request).ok())
            qFatal("The creation failed");
    });
}

/// The tree as cookiecutter wants it: the project's folder named by a variable, every file as it is.
void makeCookiecutter(const QString &files, const QString &folder)
{
    const QString project = folder + QStringLiteral("/{{cookiecutter.name}}");
    QFile settings(folder + QStringLiteral("/cookiecutter.json"));
    if (!platform::makeFolders(folder).ok() || !settings.open(QIODevice::WriteOnly) ||
        settings.write(R"({"name": "Bench"})") < 0)
        qFatal("Cannot make %s", qPrintable(folder));
    static_cast<void>(timing::secondsOf("/bin/cp", {"-a", files, project}));
}

/// Writes back what waits for it, so that nobody pays for what another has written; and forgets what was read.
void prepareTurn(bool isCold)
{
    if (!isCold)
        return;
    sync();
    QFile caches(QStringLiteral("/proc/sys/vm/drop_caches"));
    if (!caches.open(QIODevice::WriteOnly) || caches.write("3") != 1)
        qFatal("Only the super-user can empty the caches");
}

/// What the stand-in for a share has counted since it was last asked, "CALL NUMBER" in each line; empty elsewhere.
QByteArray countedCalls(const QString &folder)
{
    static_cast<void>(getxattr(QFile::encodeName(folder).constData(), "user.counts", nullptr, 0));
    const QString path = qEnvironmentVariable("TESSARO_SHARE_COUNTS");
    if (path.isEmpty())
        return {};
    QFile counts(path);
    return counts.open(QIODevice::ReadOnly) ? counts.readAll() : QByteArray();
}

void printCalls(const QByteArray &counted, int files)
{
    int calls = 0;
    int most = 0;
    for (const QByteArray &line : counted.split('\n')) {
        const int number = line.mid(line.indexOf(' ') + 1).toInt();
        line.startsWith("most") ? most = number : calls += number;
    }
    if (calls > 0)
        QTextStream(stdout) << "  calls a file " << static_cast<double>(calls) / files << ", at most " << most
                            << " at a time\n";
}

void measure(const QString &work, const QString &library, const QString &what, const QString &place, bool isCold)
{
    const int count = what.section(u'/', 0, 0).toInt();
    const int perFolder = what.contains(u'/') ? what.section(u'/', 1, 1).toInt() : 100;
    const int kibibytes = what.count(u'/') > 1 ? what.section(u'/', 2).toInt() : 2;
    const QString name = QStringLiteral("Bench %1 %2 %3").arg(count).arg(perFolder).arg(kibibytes);
    const QString files = library + u'/' + name + QStringLiteral(".tzt/Files");
    if (!QFile::exists(files))
        count == 0 ? makeLargeTemplate(files) : makeTemplate(files, count, perFolder, kibibytes);
    const QString program = platform::parentPath(QCoreApplication::applicationFilePath()) + QStringLiteral("/Tessaro");
    const bool hasRsync = QFile::exists(rsync);
    const bool hasCookiecutter =
        count > 0 && count <= 10000 && QFile::exists(cookiecutter); // more takes minutes a turn
    const QString cookies = work + QStringLiteral("/cookies %1 %2").arg(count).arg(perFolder);
    if (hasCookiecutter)
        makeCookiecutter(files, cookies);
    std::vector<double> copies;
    std::vector<double> rsyncs;
    std::vector<double> cutters;
    std::vector<double> creations;
    std::vector<double> commands;
    QByteArray calls;
    for (int round = -1; round < rounds; ++round) {
        const QString target =
            place + QStringLiteral("/%1-%2-%3-%4").arg(count).arg(perFolder).arg(kibibytes).arg(round);
        if (!platform::makeFolders(target + "/command").ok())
            qFatal("Cannot make %s", qPrintable(target));
        prepareTurn(isCold);
        const double copy = timing::secondsOf("/bin/cp", {"-a", files, target + "/cp"});
        prepareTurn(isCold);
        const double creation = secondsOfCreation(name, target + "/running");
        prepareTurn(isCold);
        static_cast<void>(countedCalls(place));
        const double command = timing::secondsOf(program, {"create", "--in", target + "/command", "--template", name});
        const QByteArray counted = countedCalls(place);
        prepareTurn(isCold);
        const double synced = hasRsync ? timing::secondsOf(rsync, {"-a", files + "/", target + "/rsync"}) : 0;
        prepareTurn(isCold);
        const bool isCut = hasCookiecutter && round < slowRounds;
        const double cut =
            isCut ? timing::secondsOf(cookiecutter, {"--no-input", "-o", target + "/cookies", cookies}) : 0;
        if (round < 0)
            continue; // the first round fills the caches
        copies.push_back(copy);
        creations.push_back(creation);
        commands.push_back(command);
        rsyncs.push_back(synced);
        if (isCut)
            cutters.push_back(cut);
        calls = counted;
    }
    QTextStream(stdout) << count << " files of " << kibibytes << " KiB, " << perFolder << " in a folder"
                        << (isCold ? ", cold" : "") << ": cp -a " << timing::median(copies) * 1000 << " ms\n";
    timing::printRatio("in a running program", creations, "cp -a", copies);
    timing::printRatio("Tessaro create", commands, "cp -a", copies);
    if (hasRsync)
        timing::printRatio("Tessaro create", commands, "rsync -a", rsyncs);
    if (hasCookiecutter) {
        commands.resize(cutters.size());
        timing::printRatio("Tessaro create", commands, "cookiecutter", cutters);
    }
    printCalls(calls, count);
}

/// Bytes that this program has asked for and not given back.
double bytesInUse()
{
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void measureGrowth(const QString &work, const QString &library, int many)
{
    constexpr int few = 1000;
    std::vector<double> ratios;
    for (const int count : {few, many})
        makeTemplate(library + QStringLiteral("/Growth %1.tzt/Files").arg(count), count, 100, 0);
    for (int round = -1; round < 3; ++round) {
        // As many small ones as take some time, so that both are measured alike.
        double ofFew = 0;
        for (int i = 0; i < 20; ++i)
            ofFew += secondsOfCreation(QStringLiteral("Growth %1").arg(few),
                                       work + QStringLiteral("/few-%1-%2").arg(round).arg(i));
        const double ofMany =
            secondsOfCreation(QStringLiteral("Growth %1").arg(many), work + QStringLiteral("/many-%1").arg(round));
        if (round >= 0)
            ratios.push_back((ofMany / many) / (ofFew / 20 / few));
    }
    const double before = bytesInUse();
    const std::atomic<bool> cancelled = false;
    const auto plan =
        planCreation(VTDataController::filesFolder(QStringLiteral("Growth %1").arg(many)), {{"Bench"}}, cancelled);
    const double each = (bytesInUse() - before) / static_cast<double>(plan.tree.itemCount());
    const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
    QTextStream(stdout) << "from " << few << " to " << many << " files: the time for one is " << timing::median(ratios)
                        << " times as long (" << *least << " to " << *most << "); a plan takes " << each
                        << " bytes an item\n";
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    QTemporaryDir work;
    qputenv("HOME", work.path().toUtf8());
    const QCoreApplication application(argc, argv);
    VTLog::createNewLog();
    settings::registerDefaults();
    if (!settings::filenameTemplate.store(QVariantList{QVariantMap{{"title", "T"}, {"val", "Bench"}}}).ok())
        qFatal("The settings cannot be written");
    const QString library = work.filePath("Library/Application Support/Vantrel/Tessaro/Templates");
    QStringList counts = QCoreApplication::arguments().mid(1);
    const bool isCold = counts.removeAll(QStringLiteral("cold")) > 0;
    if (counts.value(0) == u"growth") {
        measureGrowth(work.path(), library, counts.value(1, QStringLiteral("100000")).toInt());
        return 0;
    }
    QString place = work.path();
    for (const QString &option : counts) {
        if (option.startsWith(u"in="))
            place = option.mid(3);
        if (option.startsWith(u"turns="))
            rounds = option.mid(6).toInt();
    }
    counts.removeIf([](const QString &word) { return word.contains(u'='); });
    if (counts.isEmpty())
        counts = QStringList{"1000", "10000"};
    for (const QString &count : counts)
        measure(work.path(), library, count, place, isCold);
    return 0;
}

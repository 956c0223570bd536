// Creating a project against `cp -a` of the same tree, in the same run.
//
//   bench_create [FILES]...            default: 1000 10000, a hundredth as many folders, files of 2 KiB
//
// Three take turns, each into a new destination: `cp -a` as a process; a creation in a program that runs already, as in
// the window (claim, copy, renaming, dates); and `Tessaro create` as a process, with its start-up. Nothing is deleted
// before the end, because creating files soon after a large deletion is slow on ext4 and would make every ratio 1.
#include "Timing.h"
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

namespace {

constexpr int rounds = 7;

void makeTemplate(const QString &files, int count)
{
    const QByteArray contents(2048, 'x');
    const int folders = std::max(1, count / 100);
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

void measure(const QString &work, const QString &library, int count)
{
    const QString name = QStringLiteral("Bench %1").arg(count);
    const QString files = library + u'/' + name + QStringLiteral(".tzt/Files");
    makeTemplate(files, count);
    const QString program = platform::parentPath(QCoreApplication::applicationFilePath()) + QStringLiteral("/Tessaro");
    std::vector<double> copies;
    std::vector<double> creations;
    std::vector<double> commands;
    for (int round = -1; round < rounds; ++round) {
        const QString target = work + QStringLiteral("/%1-%2").arg(count).arg(round);
        if (!platform::makeFolders(target + "/command").ok())
            qFatal("Cannot make %s", qPrintable(target));
        const double copy = timing::secondsOf("/bin/cp", {"-a", files, target + "/cp"});
        const double creation = secondsOfCreation(name, target + "/running");
        const double command = timing::secondsOf(program, {"create", "--in", target + "/command", "--template", name});
        if (round < 0)
            continue; // the first round fills the caches
        copies.push_back(copy);
        creations.push_back(creation);
        commands.push_back(command);
    }
    QTextStream(stdout) << count << " files: cp -a " << timing::median(copies) * 1000 << " ms\n";
    timing::printRatio("in a running program", creations, "cp -a", copies);
    timing::printRatio("Tessaro create", commands, "cp -a", copies);
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
    if (counts.isEmpty())
        counts = QStringList{"1000", "10000"};
    for (const QString &count : counts)
        measure(work.path(), library, count.toInt());
    return 0;
}

// Copying, packing, unpacking and deleting against the system's tools on the same tree, in the same run.
//
//   bench_files [small|large]...       default: both
//
// small: 10,000 files of 2 KiB in 1,000 folders. large: one file of 2 GiB, half of it noise, half of it text; then a
// copy of it that is cancelled. The two take turns, each into a new destination; nothing is deleted before the
// deletions are measured, because creating files soon after a large one is slow on ext4 and would make every ratio 1.
#include "Timing.h"
#include "platform/archive/ZipArchive.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/CopyOperation.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/TreeCopy.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

namespace {

void makeSmall(const QString &folder)
{
    for (int i = 0; i < 10'000; ++i) {
        const QString below = folder + QStringLiteral("/Folder %1").arg(i % 1000);
        if (i < 1000 && !platform::makeFolders(below).ok())
            qFatal("Cannot make the tree");
        QFile file(below + QStringLiteral("/File %1.txt").arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(2048, static_cast<char>('a' + i % 26))) != 2048)
            qFatal("Cannot write the tree");
    }
}

void makeLarge(const QString &folder)
{
    QFile file(folder + QStringLiteral("/Film.mov"));
    if (!platform::makeFolders(folder).ok() || !file.open(QIODevice::WriteOnly))
        qFatal("Cannot make the file");
    QRandomGenerator random(1);
    QByteArray noise(1 << 20, '\0');
    QByteArray text;
    while (text.size() < 1 << 20)
        text += "Scene " + QByteArray::number(random.bounded(1000)) + ", take " +
                QByteArray::number(random.bounded(9)) + '\n';
    text.truncate(1 << 20);
    for (int i = 0; i < 1024; ++i) {
        for (qsizetype at = 0; at < noise.size(); at += 4)
            *reinterpret_cast<quint32 *>(noise.data() + at) = random.generate();
        if (file.write(noise) != noise.size() || file.write(text) != text.size())
            qFatal("Cannot write the file");
    }
}

void mustBeGood(const platform::Outcome &outcome)
{
    if (!outcome.ok())
        qFatal("%s", qPrintable(outcome.description()));
}

void measure(const QString &work, const QString &kind, int rounds)
{
    const QString tree = work + u'/' + kind;
    kind == u"small" ? makeSmall(tree) : makeLarge(tree);
    struct Pair
    {
        std::vector<double> ours;
        std::vector<double> theirs;
    } copy, zip, unzip, remove;
    const auto place = [&](const char *what, int round) {
        return tree + u'-' + what + QString::number(round);
    };
    for (int round = -1; round < rounds; ++round) {
        Pair pair;
        pair.theirs.push_back(timing::secondsOf("/bin/cp", {"-a", tree, place("cp", round)}));
        pair.ours.push_back(timing::secondsOf([&] { mustBeGood(platform::copyItem(tree, place("our", round))); }));
        if (round < 0)
            continue; // the first round fills the caches
        copy.theirs.push_back(pair.theirs[0]);
        copy.ours.push_back(pair.ours[0]);
    }
    for (int round = 0; round < rounds; ++round) {
        zip.theirs.push_back(timing::secondsOf("/usr/bin/zip", {"-q", "-r", place("zip", round) + ".zip", tree}));
        zip.ours.push_back(timing::secondsOf(
            [&] { mustBeGood(platform::compressZip(tree, place("ourzip", round) + ".zip").outcome); }));
    }
    for (int round = 0; round < rounds; ++round) {
        const QString theirs = place("unzip", round);
        const QString ours = place("ourunzip", round);
        mustBeGood(platform::makeFolders(ours));
        unzip.theirs.push_back(timing::secondsOf("/usr/bin/unzip", {"-q", place("zip", 0) + ".zip", "-d", theirs}));
        unzip.ours.push_back(
            timing::secondsOf([&] { mustBeGood(platform::extractZip(place("zip", 0) + ".zip", ours).outcome); }));
    }
    for (int round = 0; round < rounds; ++round) {
        remove.theirs.push_back(timing::secondsOf("/bin/rm", {"-rf", place("cp", round)}));
        remove.ours.push_back(timing::secondsOf([&] { mustBeGood(platform::removeTree(place("our", round))); }));
    }
    QTextStream(stdout) << kind << ":\n";
    timing::printRatio("copy", copy.ours, "cp -a", copy.theirs);
    timing::printRatio("zip", zip.ours, "zip -r", zip.theirs);
    timing::printRatio("unzip", unzip.ours, "unzip", unzip.theirs);
    timing::printRatio("delete", remove.ours, "rm -rf", remove.theirs);
    QTextStream(stdout) << "  archive " << QFile(place("ourzip", 0) + ".zip").size() << " bytes, zip's "
                        << QFile(place("zip", 0) + ".zip").size() << '\n';
}

void cancelCopy(const QString &tree, const QString &destination)
{
    QEventLoop loop;
    std::chrono::steady_clock::time_point cancelled;
    const auto copy = platform::CopyOperation::start(tree, destination,
                                                     {[](const auto &, const auto &) {},
                                                      [&](const auto &...) {
                                                          loop.quit();
                                                      }});
    QTimer::singleShot(200, &loop, [&] {
        cancelled = std::chrono::steady_clock::now();
        copy->cancel();
    });
    loop.exec();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - cancelled;
    QTextStream(stdout) << "  a copy cancelled after 200 ms ended " << took.count() << " ms later and left "
                        << (platform::kindOf(destination) == platform::FileKind::Missing ? "nothing" : "something")
                        << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    const QCoreApplication application(argc, argv);
    const QTemporaryDir work(QStringLiteral("./bench_files-XXXXXX"));
    QStringList kinds = application.arguments().mid(1);
    if (kinds.isEmpty())
        kinds = {QStringLiteral("small"), QStringLiteral("large")};
    for (const QString &kind : kinds)
        measure(QDir::current().absoluteFilePath(work.path()), kind, kind == u"small" ? 7 : 3);
    if (kinds.contains(u"large"))
        cancelCopy(QDir::current().absoluteFilePath(work.path()) + "/large",
                   QDir::current().absoluteFilePath(work.path()) + "/cut");
}

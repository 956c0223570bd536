// From start to first paint, and peak memory, against an empty window of the same toolkit and one with a line of text
// (which brings the fonts along), in the same run.
//
//   bench_start PROGRAM [ROUNDS]
//
// Then the program with a library of a thousand templates against the program with none.
//
// Both sides are processes on the current display that say so and end at once after their first paint, without putting
// anything away; the program does so when TESSARO_QUIT_AFTER_FIRST_PAINT is set.
#include <QApplication>
#include <QLabel>
#include <QTextStream>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

class EmptyWindow : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QTimer::singleShot(0, [] {
            std::fputs("painted\n", stdout);
            std::fflush(stdout);
            std::_Exit(0);
        });
    }
};

int showEmptyWindow(int argc, char **argv, bool withText)
{
    QApplication application(argc, argv);
    EmptyWindow window;
    if (withText)
        new QLabel(QStringLiteral("Some text"), &window);
    window.resize(640, 500);
    window.show();
    return QApplication::exec();
}

struct Cost
{
    double seconds;
    double mebibytes;
};

/// Until it says that it has painted: how long the system takes to put a process away is another matter.
Cost run(const std::vector<std::string> &words)
{
    int said[2];
    if (pipe(said) != 0)
        std::abort();
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(said[1], STDOUT_FILENO);
        close(said[0]);
        close(said[1]);
        std::vector<char *> pointers;
        for (const std::string &word : words)
            pointers.push_back(const_cast<char *>(word.c_str()));
        pointers.push_back(nullptr);
        execv(pointers[0], pointers.data());
        _exit(127);
    }
    close(said[1]);
    char byte;
    const bool painted = read(said[0], &byte, 1) == 1;
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    close(said[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (!painted) {
        QTextStream(stderr) << "It has painted nothing.\n";
        std::exit(1);
    }
    return {elapsed.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A home in which the program has been started before, with so many templates.
std::string homeWith(const std::string &folder, int templates)
{
    const std::string home = folder + '/' + std::to_string(templates);
    const std::string library = home + "/Library/Application Support/Vantrel/Tessaro/Templates";
    std::filesystem::create_directories(library);
    for (int i = 0; i < templates; ++i)
        std::filesystem::create_directories(library + "/Template " + std::to_string(i) + ".tzt/Files/Footage");
    std::filesystem::create_directories(home + "/Library/Preferences");
    std::ofstream(home + "/Library/Preferences/com.vantrel.Tessaro.plist")
        << R"(<plist version="1.0"><dict><key>firstRun</key><false/></dict></plist>)";
    return home;
}

void compareLibraries(const std::string &program, int rounds)
{
    char folder[] = "/tmp/bench_start-XXXXXX";
    if (!mkdtemp(folder))
        std::abort();
    const std::string few = homeWith(folder, 1);
    const std::string many = homeWith(folder, 1000);
    std::vector<double> times;
    std::vector<double> sizes;
    for (int i = -2; i < rounds; ++i) {
        setenv("HOME", few.c_str(), 1);
        const Cost ofFew = run({program});
        setenv("HOME", many.c_str(), 1);
        const Cost ofMany = run({program});
        if (i < 0)
            continue;
        times.push_back(ofMany.seconds / ofFew.seconds);
        sizes.push_back(ofMany.mebibytes / ofFew.mebibytes);
    }
    std::filesystem::remove_all(folder);
    QTextStream(stdout) << "with 1,000 templates against one: time " << median(times) << ", memory " << median(sizes)
                        << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::string(argv[1]) == "--empty")
        return showEmptyWindow(argc, argv, false);
    if (argc > 1 && std::string(argv[1]) == "--text")
        return showEmptyWindow(argc, argv, true);
    if (argc < 2) {
        QTextStream(stderr) << "Usage: bench_start PROGRAM [ROUNDS]\n";
        return 2;
    }
    setenv("TESSARO_QUIT_AFTER_FIRST_PAINT", "1", 1);
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 15;
    std::vector<double> times;
    std::vector<double> timesToText;
    std::vector<double> sizes;
    for (int i = -2; i < rounds; ++i) {
        const Cost empty = run({argv[0], "--empty"});
        const Cost text = run({argv[0], "--text"});
        const Cost ours = run({argv[1]});
        if (i < 0)
            continue;
        times.push_back(ours.seconds / empty.seconds);
        timesToText.push_back(ours.seconds / text.seconds);
        sizes.push_back(ours.mebibytes / empty.mebibytes);
        if (i == 0)
            QTextStream(stdout) << "first round: empty window " << empty.seconds * 1000 << " ms, " << empty.mebibytes
                                << " MiB; program " << ours.seconds * 1000 << " ms, " << ours.mebibytes << " MiB\n";
    }
    QTextStream(stdout) << "start to first paint: ratio " << median(times) << ", to the one with text "
                        << median(timesToText) << ", peak memory: ratio " << median(sizes) << " (medians of " << rounds
                        << ")\n";
    compareLibraries(argv[1], rounds);
    return 0;
}

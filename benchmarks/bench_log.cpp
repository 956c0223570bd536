// The log against spdlog's asynchronous logger, in the same run: ten threads, a million lines together, until the last
// is handed to the system.
//
//   bench_log [LINES]      default: 1000000
//
// Both begin a new file every 500,000 bytes and keep five, and hand each line over by itself, so that a kill loses none
// that was written; spdlog's queue blocks when it is full, because ours never loses a line either.
#include "Timing.h"
#include "platform/base/System.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <spdlog/async.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>
#include <thread>

namespace {

constexpr int rounds = 5;
constexpr int threads = 10;
constexpr std::size_t sizeLimit = 500'000;
constexpr std::size_t generations = 5;

template <typename Append> void inThreads(int lines, Append append)
{
    std::vector<std::thread> writers;
    for (int i = 0; i < threads; ++i) {
        writers.emplace_back([=] {
            for (int k = 0; k < lines / threads; ++k)
                append(i, k);
        });
    }
    for (std::thread &writer : writers)
        writer.join();
}

double secondsOfOurs(int lines)
{
    return timing::secondsOf([&] {
        inThreads(lines,
                  [](int thread, int line) { VTLog::appendLog("Thread %i copies item %i of many", thread, line); });
        VTLog::finishWriting();
    });
}

double secondsOfTheirs(int lines, const std::string &path)
{
    spdlog::init_thread_pool(8192, 1);
    const auto logger =
        spdlog::create_async<spdlog::sinks::rotating_file_sink_mt>("theirs", path, sizeLimit, generations);
    logger->set_pattern("%Y-%m-%d %H:%M:%S %z - %v");
    logger->flush_on(spdlog::level::info);
    const double seconds = timing::secondsOf([&] {
        inThreads(lines, [&](int thread, int line) { logger->info("Thread {} copies item {} of many", thread, line); });
        spdlog::shutdown(); // waits for what is queued
    });
    spdlog::drop_all();
    return seconds;
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    const QTemporaryDir work;
    qputenv("HOME", work.path().toUtf8());
    const QCoreApplication application(argc, argv);
    const int lines = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    VTLog::createNewLog();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = -1; round < rounds; ++round) {
        const double their = secondsOfTheirs(lines, work.filePath("theirs.log").toStdString());
        const double our = secondsOfOurs(lines);
        if (round < 0)
            continue;
        ours.push_back(our);
        theirs.push_back(their);
    }
    QTextStream(stdout) << lines << " lines by " << threads << " threads: spdlog " << timing::median(theirs) * 1000
                        << " ms\n";
    timing::printRatio("log", ours, "spdlog", theirs);
}

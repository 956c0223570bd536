#pragma once

#include "platform/process/ChildProcess.h"

#include <QTextStream>
#include <algorithm>
#include <chrono>
#include <vector>

/** What the programs that measure share: one run's seconds, and ratios within one run. */
namespace timing {

template <typename Work> double secondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double secondsOf(const QString &tool, const QStringList &arguments)
{
    return secondsOf([&] {
        platform::ChildProcess child(tool, arguments);
        const platform::Outcome started =
            child.start(platform::ChildProcess::Output::Discarded, platform::ChildProcess::ErrorOutput::Discarded);
        if (!started.ok() || child.waitUntilExit() != 0)
            qFatal("%s failed", qPrintable(tool));
    });
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

inline void printRatio(const QString &what, const std::vector<double> &ours, const QString &peer,
                       const std::vector<double> &theirs)
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < ours.size(); ++i)
        ratios.push_back(ours[i] / theirs[i]);
    const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
    QTextStream(stdout) << "  " << what << ' ' << median(ours) * 1000 << " ms, ratio to " << peer << ' '
                        << median(ratios) << " (" << *least << " to " << *most << ")\n";
}

} // namespace timing

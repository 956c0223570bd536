#pragma once

#include "platform/plain/CopyMonitor.h"

#include <QString>
#include <functional>
#include <memory>

/** How far long work is, as it is shown. */
struct WorkState
{
    QString what;   ///< "Creating Acme_041"
    QString folder; ///< where it is; may be empty
    quint64 items = 0;
    quint64 itemsTotal = 0; ///< 0: not known
    quint64 bytes = 0;
    quint64 bytesTotal = 0; ///< 0: not known
    bool isStopping = false;

    /** From 0 to 1; less than 0 where it cannot be told. */
    [[nodiscard]] double fraction() const;
    /** "1,204 of 100,000 items, 35.12 MB of 2.00 GB" */
    [[nodiscard]] QString amount() const;
};

/** What shows long work. Called on the main thread only. */
class WorkPresenter
{
public:
    virtual ~WorkPresenter() = default;
    virtual void show(const WorkState &state) = 0;
    virtual void hide() = 0;
};

/**
 * Says that work is under way while it exists: after 400 ms, and from then on ten times a second, the presenter is told
 * how far it is. Made on any thread, by whoever does the work or waits for it. Work inside of work on the same thread
 * is part of it: one bar, one Cancel. Of several at once the latest is shown.
 */
class LongWork
{
public:
    /** Finds out how much there is to do, and writes it into the monitor; on a thread of its own, and only for work
       that is long enough to be shown. Ends early when told that the work is over. */
    using Measure = std::function<void(const std::atomic<bool> &over)>;

    /** The monitor outlives this object. */
    LongWork(const QString &what, platform::CopyMonitor &monitor, Measure measure = {});
    /** Work on this thread that is part of work which another thread shows with the same monitor. */
    explicit LongWork(platform::CopyMonitor &monitor);
    ~LongWork();
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

    /** Of the work that this is part of, or its own. Where it is cancelled, the work ends with Cause::Cancelled. */
    [[nodiscard]] platform::CopyMonitor &monitor() const;

    /** Null: nobody is told. Main thread. The presenter outlives all work, or is taken away before. */
    static void setPresenter(WorkPresenter *presenter);
    /** What is shown is to stop. Main thread. */
    static void cancelShown();

    struct Entry;

private:
    std::shared_ptr<Entry> m_entry;
    bool m_isOuter = false;
};

#include "support/LongWork.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/plain/StartedThread.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <thread>
#include <vector>

using std::chrono::steady_clock;

namespace {

/// Shorter work would only flicker.
constexpr std::chrono::milliseconds untilShown{400};
constexpr std::chrono::milliseconds betweenLooks{100};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LongWork)
};

} // namespace

struct LongWork::Entry
{
    Entry(QString name, platform::CopyMonitor &watched, Measure finder)
        : what(std::move(name))
        , monitor(watched)
        , measure(std::move(finder))
    {
    }
    ~Entry()
    {
        over = true;
        if (measuring.joinable())
            measuring.join();
    }
    Entry(const Entry &) = delete;
    Entry &operator=(const Entry &) = delete;

    const QString what;
    platform::CopyMonitor &monitor;
    Measure measure;
    std::atomic<bool> over = false;
    std::thread measuring;
    const steady_clock::time_point begin = steady_clock::now();
};

namespace {

thread_local std::shared_ptr<LongWork::Entry> current; ///< the outermost of this thread

WorkState stateOf(const LongWork::Entry &entry)
{
    const platform::CopyMonitor &monitor = entry.monitor;
    return {entry.what,       platform::fromNative(monitor.folder()),
            monitor.items,    monitor.itemsTotal,
            monitor.bytes,    monitor.bytesTotal,
            monitor.cancelled};
}

/// All work that is under way, and the clock that looks after it.
class Board
{
public:
    static Board &one()
    {
        static auto *board = new Board; // outlives every thread
        return *board;
    }

    void setPresenter(WorkPresenter *presenter)
    {
        if (m_presenter && m_isShown)
            m_presenter->hide();
        m_isShown = false;
        m_presenter = presenter;
    }

    void enter(const std::shared_ptr<LongWork::Entry> &entry)
    {
        const std::scoped_lock lock(m_mutex);
        m_entries.push_back(entry);
        if (!std::exchange(m_isTicking, true))
            platform::MainThread::perform([this] { startClock(); }, platform::Waiting::No);
    }

    void leave(const std::shared_ptr<LongWork::Entry> &entry)
    {
        {
            const std::scoped_lock lock(m_mutex);
            std::erase(m_entries, entry);
        }
        if (platform::MainThread::isCurrent())
            look(); // the bar goes with the work
    }

    void cancelShown()
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto entry = shownEntry())
            entry->monitor.cancelled = true;
    }

private:
    void startClock()
    {
        if (!m_clock) {
            m_clock = new QTimer(QCoreApplication::instance());
            QObject::connect(m_clock, &QTimer::timeout, m_clock, [this] { look(); });
        }
        m_clock->start(betweenLooks);
    }

    void look()
    {
        std::optional<WorkState> state;
        {
            const std::scoped_lock lock(m_mutex);
            if (const auto entry = shownEntry()) {
                state = stateOf(*entry);
                if (entry->measure)
                    entry->measuring = platform::startedThread(
                        [measure = std::exchange(entry->measure, {}), over = &entry->over] { measure(*over); });
            }
            if (m_entries.empty() && m_clock) {
                m_clock->stop();
                m_isTicking = false;
            }
        }
        if (m_presenter && state)
            m_presenter->show(*state);
        else if (m_presenter && m_isShown)
            m_presenter->hide();
        m_isShown = state.has_value();
    }

    /// The latest that is long enough.
    std::shared_ptr<LongWork::Entry> shownEntry() const
    {
        const auto now = steady_clock::now();
        const auto found = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                        [&](const auto &entry) { return now - entry->begin >= untilShown; });
        return found == m_entries.rend() ? nullptr : *found;
    }

    std::mutex m_mutex;
    std::vector<std::shared_ptr<LongWork::Entry>> m_entries;
    bool m_isTicking = false;
    // The main thread's own:
    QPointer<QTimer> m_clock;
    WorkPresenter *m_presenter = nullptr;
    bool m_isShown = false;
};

QString amountOf(quint64 done, quint64 total, const std::function<QString(quint64)> &text)
{
    return total == 0 ? text(done) : Text::tr("%1 of %2").arg(text(done), text(qMax(done, total)));
}

} // namespace

double WorkState::fraction() const
{
    const auto part = [](quint64 done, quint64 total) {
        return qMin(1.0, static_cast<double>(done) / static_cast<double>(total));
    };
    if (itemsTotal != 0 && bytesTotal != 0) // a small file takes its time, and so do the bytes of a large one
        return (part(items, itemsTotal) + part(bytes, bytesTotal)) / 2;
    return itemsTotal != 0 ? part(items, itemsTotal) : bytesTotal != 0 ? part(bytes, bytesTotal) : -1;
}

QString WorkState::amount() const
{
    const QLocale locale;
    QStringList parts;
    if (items != 0 || itemsTotal > 1)
        parts.append(
            Text::tr("%1 items").arg(amountOf(items, itemsTotal, [&](quint64 n) { return locale.toString(n); })));
    if (bytes != 0)
        parts.append(amountOf(bytes, bytesTotal, [&](quint64 n) {
            return locale.formattedDataSize(static_cast<qint64>(n), 1, QLocale::DataSizeSIFormat);
        }));
    return parts.join(QStringLiteral(", "));
}

LongWork::LongWork(const QString &what, platform::CopyMonitor &monitor, Measure measure)
    : m_entry(current)
    , m_isOuter(!current)
{
    if (!m_isOuter)
        return;
    m_entry = current = std::make_shared<Entry>(what, monitor, std::move(measure));
    if (QCoreApplication::instance())
        Board::one().enter(m_entry);
}

LongWork::LongWork(platform::CopyMonitor &monitor)
    : m_entry(current)
    , m_isOuter(!current)
{
    if (m_isOuter)
        m_entry = current = std::make_shared<Entry>(QString(), monitor, Measure());
}

LongWork::~LongWork()
{
    if (!m_isOuter)
        return;
    current.reset();
    Board::one().leave(m_entry);
}

platform::CopyMonitor &LongWork::monitor() const
{
    return m_entry->monitor;
}

void LongWork::setPresenter(WorkPresenter *presenter)
{
    Board::one().setPresenter(presenter);
}

void LongWork::cancelShown()
{
    Board::one().cancelShown();
}

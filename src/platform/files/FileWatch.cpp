#include "platform/files/FileWatch.h"

#include "platform/base/NativePath.h"

#include <QSocketNotifier>
#include <sys/inotify.h>
#include <unistd.h>

namespace platform {

/// The folder is watched, not the file: a file that is replaced is another one from then on.
FileWatch::FileWatch(const QString &file, std::function<void()> changed)
    : m_events(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , m_name(toNative(lastComponent(file)))
{
    const QByteArray folder = toNative(parentPath(file));
    const uint32_t events = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_ONLYDIR;
    if (!m_events.isOpen() || inotify_add_watch(m_events.get(), folder.constData(), events) < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_events.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this, changed = std::move(changed)] {
        if (readEvents())
            changed();
    });
}

FileWatch::~FileWatch() = default;

/// Whether any of them is about the file. Those that were lost because too many came may have been.
bool FileWatch::readEvents() const
{
    alignas(inotify_event) char buffer[4096];
    bool isMeant = false;
    for (ssize_t got; (got = read(m_events.get(), buffer, sizeof buffer)) > 0;) {
        for (const char *at = buffer; at < buffer + got;) {
            const auto *event = reinterpret_cast<const inotify_event *>(at);
            isMeant = isMeant || (event->mask & IN_Q_OVERFLOW) || (event->len > 0 && m_name == event->name);
            at += sizeof(inotify_event) + event->len;
        }
    }
    return isMeant;
}

} // namespace platform

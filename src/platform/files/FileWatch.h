#pragma once

#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace platform {

/**
 * Tells of a file that was written, replaced, made or removed, by this program or another of this machine. Changes that
 * come together are told once. What another machine does to a share is not seen: who must know looks again when the
 * user comes back. Needs an event loop; calls on the thread that made it.
 */
class FileWatch
{
public:
    FileWatch(const QString &file, std::function<void()> changed);
    ~FileWatch();
    FileWatch(const FileWatch &) = delete;
    FileWatch &operator=(const FileWatch &) = delete;

private:
    [[nodiscard]] bool readEvents() const;

    UniqueDescriptor m_events;
    QByteArray m_name;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace platform

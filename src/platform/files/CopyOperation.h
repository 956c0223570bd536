#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/TreeCopy.h"
#include "platform/plain/CopyMonitor.h"

#include <QMetaType>
#include <functional>
#include <memory>

namespace platform {

/**
 * A copy on its way in the background, by the engine of TreeCopy.h. It keeps itself alive until it has reported its
 * end. Started and cancelled on the main thread, where it also reports; several may run at once. When the application
 * ends before it, it is cancelled and waited for, so that nothing half-written stays behind.
 */
class CopyOperation
{
public:
    struct Progress
    {
        quint64 bytesDone = 0;
        quint64 bytesTotal = 0; ///< as measured when the copy began
        quint64 itemsDone = 0;
        quint64 itemsTotal = 0;
        double bytesPerSecond = 0; ///< from the beginning on
    };
    using Ref = std::shared_ptr<CopyOperation>;
    struct Reports
    {
        std::function<void(const Ref &, const Progress &)> running; ///< at most once a second
        /// Exactly once; Cause::Cancelled when it was cancelled. The text names the first item whose labels the
        /// destination could not take; null if none.
        std::function<void(const Ref &, const Outcome &, const Losses &)> ended;
    };

    /** Copies the item to exactly the destination path; nothing of it is left there unless it succeeds. */
    static Ref start(const QString &source, const QString &destination, Reports reports);
    ~CopyOperation() = default;
    CopyOperation(const CopyOperation &) = delete;
    CopyOperation &operator=(const CopyOperation &) = delete;

    /** Returns at once; the end is reported when all that was written is removed. */
    void cancel() { m_monitor.cancelled = true; }

private:
    CopyOperation() = default;
    CopyMonitor m_monitor;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::CopyOperation::Ref)

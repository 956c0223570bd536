#pragma once

#include <QString>

namespace platform {

/** Tells every program of this session: a signal of that name on the session bus, interface com.vantrel.Notifications.
    Without a session bus nobody hears it. Main thread. */
void postSessionNotification(const QString &name);

} // namespace platform

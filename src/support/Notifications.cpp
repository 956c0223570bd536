#include "support/Notifications.h"

Notifications &Notifications::hub()
{
    static auto *hub = new Notifications; // lives as long as the process, whoever still listens at its end
    return *hub;
}

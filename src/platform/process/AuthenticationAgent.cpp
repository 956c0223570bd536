#include "platform/process/AuthenticationAgent.h"

#include "platform/files/Module.h"

namespace platform {

AuthenticationAgent::AuthenticationAgent(const QString &userName, const Secret &password)
{
    static Module bus("bus");
    using Door = Work *(*)(const QString &, const Secret &);
    if (const auto door = reinterpret_cast<Door>(bus.door("tessaro_make_authentication_agent")))
        m_work.reset(door(userName, password));
}

AuthenticationAgent::~AuthenticationAgent() = default;

int AuthenticationAgent::error() const
{
    return m_work ? m_work->error() : 1;
}

} // namespace platform

#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace platform {

class Secret;

/**
 * Answers polkit's questions for this process with a name and a password that are already there, instead of a dialog.
 * While one is registered it comes before the desktop's own. The password goes to the system's own authentication
 * (polkit's helper and, behind it, PAM) on a stream, and nowhere else.
 */
class AuthenticationAgent
{
public:
    /** The secret must outlive the agent. Blocks until polkit has answered, at most a few seconds. */
    AuthenticationAgent(const QString &userName, const Secret &password);
    ~AuthenticationAgent();
    AuthenticationAgent(const AuthenticationAgent &) = delete;
    AuthenticationAgent &operator=(const AuthenticationAgent &) = delete;

    /** 0 when it is registered; else the number of the D-Bus error: no system bus, no polkit, another agent is there.
     */
    [[nodiscard]] int error() const;

    /** The part that speaks to polkit: in the module "bus". Registered for as long as it lives. */
    class Work
    {
    public:
        virtual ~Work() = default;
        [[nodiscard]] virtual int error() const = 0;
    };

private:
    std::unique_ptr<Work> m_work;
};

} // namespace platform

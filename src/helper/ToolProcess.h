#pragma once

#include "helper/Plan.h"
#include "platform/plain/UniqueDescriptor.h"

#include <string>

namespace helper {

/** A request's work in a process of its own, which can be ended without ending the helper. What it says is kept, up to
   a bound. */
class ToolProcess
{
public:
    /** 0, or the errno that kept it from being started. */
    [[nodiscard]] int start(const Plan &plan, uid_t caller);

    [[nodiscard]] pid_t pid() const { return m_pid; }
    [[nodiscard]] int errorOutput() const { return m_errorOutput.get(); }
    [[nodiscard]] const std::string &errorText() const { return m_errorText; }
    /** Reads what is there, without waiting. */
    void readErrorOutput();
    void signal(int number) const;

private:
    pid_t m_pid = -1;
    platform::UniqueDescriptor m_errorOutput;
    std::string m_errorText;
};

/** As a shell gives it: the exit status, or 128 and the signal's number. */
[[nodiscard]] int exitStatus(int waitStatus);

} // namespace helper

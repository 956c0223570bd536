#pragma once

#include "helper/Descriptor.h"
#include "helper/Plan.h"

#include <string>

namespace helper {

/** A running tool: its standard input and output are /dev/null, its error output is kept, up to a bound. */
class ToolProcess
{
public:
    /** 0, or the errno that kept it from being started. */
    [[nodiscard]] int start(const Plan &plan);

    [[nodiscard]] pid_t pid() const { return m_pid; }
    [[nodiscard]] int errorOutput() const { return m_errorOutput.get(); }
    /** With the folders called as they are outside. */
    [[nodiscard]] std::string errorText() const;
    /** Reads what is there, without waiting. */
    void readErrorOutput();
    void signal(int number) const;

private:
    pid_t m_pid = -1;
    Descriptor m_errorOutput;
    std::string m_errorText;
    std::vector<std::string> m_folderNames;
};

/** As a shell gives it: the exit status, or 128 and the signal's number. */
[[nodiscard]] int exitStatus(int waitStatus);

} // namespace helper

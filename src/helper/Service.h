#pragma once

#include "helper/Protocol.h"
#include "helper/ToolProcess.h"

#include <map>
#include <sys/types.h>

namespace helper {

/**
 * The helper at work: requests in, tools run, answers out, until the other end is gone. Then every tool that still runs
 * is ended. Runs on one thread.
 */
class Service
{
public:
    /** The stream, the signal descriptor that tells of ended children, and whoever was asked, with his home. */
    Service(int input, int output, int childSignals, uid_t caller, std::string home)
        : m_input(input)
        , m_output(output)
        , m_childSignals(childSignals)
        , m_caller(caller)
        , m_home(std::move(home))
    {
    }

    /** Returns when the stream has ended or holds what no application of ours would send. */
    void run();

private:
    [[nodiscard]] bool takeRequests();
    [[nodiscard]] bool performWaiting();
    [[nodiscard]] bool perform(const Message &request);
    [[nodiscard]] bool collectEnded();
    [[nodiscard]] bool send(const Message &message) const;
    void endTools();

    int m_input;
    int m_output;
    int m_childSignals;
    uid_t m_caller;
    std::string m_home;
    Decoder m_decoder;
    std::map<std::uint32_t, ToolProcess> m_tools;
};

} // namespace helper

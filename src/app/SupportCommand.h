#pragma once

#include "app/CommandLine.h"

/** `Tessaro logs ...` and `Tessaro updates check`. */
class SupportCommand
{
public:
    explicit SupportCommand(const CommandRequest &request)
        : m_request(request)
    {
    }

    /** Returns the exit status. */
    [[nodiscard]] int run();

    /** One sentence when the words make no sense; null when they do. Pure. */
    [[nodiscard]] static QString problemOf(const CommandRequest &request);

private:
    [[nodiscard]] int showLog();
    [[nodiscard]] int gather();

    const CommandRequest &m_request;
};

#pragma once

#include <QString>

/** What code that catches exceptions says of them, in one fixed form. No state; any thread. */
class VTException
{
public:
    VTException() = delete;

    /** What the catching code knows of an exception. */
    struct Caught
    {
        QString name;
        QString reason;
    };

    /** Whether it is the time-out of inter-process messaging. */
    [[nodiscard]] static bool didTimeout(const Caught &exception);
    /** Logs and prints "Exception in <method>. <name> - <reason>." and returns it. The reason is formatted a second
       time on its way into the log: this must stay. */
    static QString logException(const Caught &exception, const char *methodName);
};

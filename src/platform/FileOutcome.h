#pragma once

#include <QString>

namespace platform {

/**
 * How an operation on the file system ended: well, or with the system's error number and the item it met it on.
 * A plain value; must be looked at.
 */
class [[nodiscard]] FileOutcome
{
public:
    FileOutcome() = default;
    FileOutcome(int errorNumber, QString item) : m_errorNumber(errorNumber), m_item(std::move(item)) {}
    /** From the calling thread's errno. */
    static FileOutcome fromErrno(const QString &item);

    [[nodiscard]] bool ok() const { return m_errorNumber == 0; }
    [[nodiscard]] int errorNumber() const { return m_errorNumber; }
    [[nodiscard]] QString item() const { return m_item; }

    /** One sentence naming item and cause, for a log line or a message: "/x/y: No space left on device". */
    [[nodiscard]] QString description() const;

    /** Whether administrator rights may mend it: permission is what is missing (EACCES, EPERM). */
    [[nodiscard]] bool needsRights() const;

private:
    int m_errorNumber = 0;
    QString m_item;
};

} // namespace platform

#include "platform/FileOutcome.h"

#include "platform/NativePath.h"

#include <cerrno>
#include <cstring>

namespace platform {

FileOutcome FileOutcome::fromErrno(const QString &item)
{
    return {errno, item};
}

QString FileOutcome::description() const
{
    if (ok())
        return {};
    char buffer[256] = {};
    return forDisplay(m_item) + QStringLiteral(": ") +
           QString::fromLocal8Bit(strerror_r(m_errorNumber, buffer, sizeof buffer));
}

bool FileOutcome::needsRights() const
{
    return m_errorNumber == EACCES || m_errorNumber == EPERM;
}

} // namespace platform

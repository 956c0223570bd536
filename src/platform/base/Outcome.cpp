#include "platform/base/Outcome.h"

#include "platform/base/NativePath.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>

namespace platform {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Outcome)
};

Cause causeOf(int number)
{
    switch (number) {
    case 0:
        return Cause::None;
    case EEXIST:
    case ENOTEMPTY:
        return Cause::Exists;
    case ENOENT:
        return Cause::Missing;
    case EACCES:
    case EPERM:
        return Cause::NeedsRights;
    case ENOSPC:
    case EDQUOT:
        return Cause::NoSpace;
    case EROFS:
        return Cause::ReadOnly;
    case EINVAL: // what a file system answers to a name that it cannot hold
    case ENOTSUP:
    case ENOSYS:
    case EXDEV:
    case EILSEQ:
    case EFBIG:
    case EOVERFLOW:
        return Cause::NotSupported;
    case ENAMETOOLONG:
        return Cause::NameTooLong;
    case ENOTDIR:
    case ELOOP:
        return Cause::NotAFolder;
    case EISDIR:
        return Cause::IsAFolder;
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
        return Cause::Busy;
    case EIO:
    case ESTALE:
    case ENODEV:
    case ENXIO:
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
        return Cause::Unreachable;
    case ETIMEDOUT:
        return Cause::TimedOut;
    case ECANCELED:
        return Cause::Cancelled;
    default:
        return Cause::Other;
    }
}

QString generalSentence(Cause cause)
{
    switch (cause) {
    case Cause::None:
        return {};
    case Cause::IntoItself:
        return Text::tr("A folder cannot be put into itself");
    case Cause::Cancelled:
        return Text::tr("It was stopped");
    case Cause::Declined:
        return Text::tr("It was not wanted");
    case Cause::RightsRefused:
        return Text::tr("Administrator rights are needed and were not given");
    case Cause::TimedOut:
        return Text::tr("It did not happen in time");
    case Cause::Damaged:
        return Text::tr("It is damaged");
    case Cause::Missing:
        return Text::tr("It is not there");
    case Cause::Exists:
        return Text::tr("Something of this name is there already");
    default:
        return Text::tr("It did not work");
    }
}

} // namespace

Outcome Outcome::fromNumber(int number, const QString &item)
{
    Outcome outcome;
    outcome.m_cause = causeOf(number);
    outcome.m_number = number;
    outcome.m_item = item;
    return outcome;
}

Outcome Outcome::fromErrno(const QString &item)
{
    return fromNumber(errno, item);
}

Outcome Outcome::failure(Cause cause, const QString &item, const QString &sentence)
{
    Outcome outcome;
    outcome.m_cause = cause;
    outcome.m_item = item;
    outcome.m_sentence = sentence.isNull() ? generalSentence(cause) : sentence;
    return outcome;
}

QString Outcome::sentence() const
{
    if (ok() || m_number == 0)
        return m_sentence;
    char buffer[256] = {};
    return QString::fromLocal8Bit(strerror_r(m_number, buffer, sizeof buffer));
}

QString Outcome::description() const
{
    if (ok() || m_item.isEmpty())
        return sentence();
    return forDisplay(m_item) + QStringLiteral(": ") + sentence();
}

} // namespace platform

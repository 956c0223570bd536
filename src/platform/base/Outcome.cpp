#include "platform/base/Outcome.h"

#include "platform/base/NativePath.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <cstring>

namespace platform {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Outcome)
};

struct Row
{
    int number;
    Cause cause;
};
constexpr Row causes[] = {
    {0, Cause::None},
    {EEXIST, Cause::Exists},
    {ENOTEMPTY, Cause::Exists},
    {ENOENT, Cause::Missing},
    {EACCES, Cause::NeedsRights},
    {EPERM, Cause::NeedsRights},
    {ENOSPC, Cause::NoSpace},
    {EDQUOT, Cause::NoSpace},
    {EROFS, Cause::ReadOnly},
    {EINVAL, Cause::NotSupported}, // what a file system answers to a name that it cannot hold
    {ENOTSUP, Cause::NotSupported},
    {ENOSYS, Cause::NotSupported},
    {EXDEV, Cause::NotSupported},
    {EILSEQ, Cause::NotSupported},
    {EFBIG, Cause::NotSupported},
    {EOVERFLOW, Cause::NotSupported},
    {ENAMETOOLONG, Cause::NameTooLong},
    {ENOTDIR, Cause::NotAFolder},
    {ELOOP, Cause::NotAFolder},
    {EISDIR, Cause::IsAFolder},
    {EBUSY, Cause::Busy},
    {ETXTBSY, Cause::Busy},
    {EAGAIN, Cause::Busy},
    {EIO, Cause::Unreachable},
    {ESTALE, Cause::Unreachable},
    {ENODEV, Cause::Unreachable},
    {ENXIO, Cause::Unreachable},
    {ENOTCONN, Cause::Unreachable},
    {EHOSTDOWN, Cause::Unreachable},
    {EHOSTUNREACH, Cause::Unreachable},
    {ETIMEDOUT, Cause::TimedOut},
    {ECANCELED, Cause::Cancelled},
};

Cause causeOf(int number)
{
    const auto *const row = std::ranges::find(causes, number, &Row::number);
    return row == std::end(causes) ? Cause::Other : row->cause;
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
    case Cause::NotAFolder:
        return Text::tr("It is no folder");
    case Cause::Busy:
        return Text::tr("Another program uses it just now");
    default:
        return Text::tr("It did not work");
    }
}

} // namespace

const char *codeOf(Cause cause)
{
    switch (cause) {
    case Cause::None:
        return "done";
    case Cause::Exists:
        return "exists";
    case Cause::Missing:
        return "missing";
    case Cause::NeedsRights:
        return "needsRights";
    case Cause::NoSpace:
        return "noSpace";
    case Cause::ReadOnly:
        return "readOnly";
    case Cause::NotSupported:
        return "notSupported";
    case Cause::NameTooLong:
        return "nameTooLong";
    case Cause::IntoItself:
        return "intoItself";
    case Cause::NotAFolder:
        return "notAFolder";
    case Cause::IsAFolder:
        return "isAFolder";
    case Cause::Busy:
        return "busy";
    case Cause::Unreachable:
        return "unreachable";
    case Cause::TimedOut:
        return "timedOut";
    case Cause::Cancelled:
        return "cancelled";
    case Cause::Declined:
        return "declined";
    case Cause::RightsRefused:
        return "rightsRefused";
    case Cause::Damaged:
        return "damaged";
    case Cause::Invalid:
        return "invalid";
    case Cause::Other:
        break;
    }
    return "failed";
}

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

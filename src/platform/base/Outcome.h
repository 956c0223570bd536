#pragma once

#include <QString>
#include <optional>
#include <utility>

namespace platform {

/** What kept an operation from doing its work, as far as a caller may want to act on it. */
enum class Cause {
    None,          ///< it did its work
    Exists,        ///< something stands there already
    Missing,       ///< what it is about, or a folder on the way, is not there
    NeedsRights,   ///< permission is what is missing: administrator rights may mend it
    NoSpace,       ///< the disk or the user's share of it is full
    ReadOnly,      ///< the file system takes no changes
    NotSupported,  ///< the file system, or the system, cannot do or hold this
    NameTooLong,   ///< most file systems take names of 255 bytes
    IntoItself,    ///< a folder cannot be put into itself
    NotAFolder,    ///< a folder was needed
    IsAFolder,     ///< anything but a folder was needed
    Busy,          ///< in use, or locked by another program
    Unreachable,   ///< the device or the server does not answer, or answers with an error
    TimedOut,      ///< it did not happen in the time it was given
    Cancelled,     ///< somebody stopped it
    Declined,      ///< a question was answered with no
    RightsRefused, ///< administrator rights were asked for and not given
    Damaged,       ///< what was read is not what it should be
    Invalid,       ///< what was asked for makes no sense
    Other,         ///< anything else: the sentence says it
};

/** A cause as a word that programs read: "exists", "noSpace", "failed" for Cause::Other. Never changes. */
[[nodiscard]] const char *codeOf(Cause cause);

/**
 * How an operation ended: well, or with its cause, the item it met it on, and a sentence about it. The one way to fail
 * in this program, below the operations whose results are given (a bool, a number). A plain value; must be looked at.
 *
 * Functions that work on descriptors inside one room leave errno as the kernel does; the first one that knows a path
 * makes an Outcome of it.
 */
class [[nodiscard]] Outcome
{
public:
    /** Good. */
    Outcome() = default;
    /** The system's error number (errno.h) on the item. 0 is good. */
    static Outcome fromNumber(int number, const QString &item);
    /** From the calling thread's errno. */
    static Outcome fromErrno(const QString &item);
    /** The program's own: the sentence says why; without one, a general one for the cause. */
    static Outcome failure(Cause cause, const QString &item, const QString &sentence = {});

    [[nodiscard]] bool ok() const { return m_cause == Cause::None; }
    [[nodiscard]] Cause cause() const { return m_cause; }
    [[nodiscard]] bool is(Cause cause) const { return m_cause == cause; }
    /** A path, or what else it is about; may be empty. */
    [[nodiscard]] const QString &item() const { return m_item; }

    /** Why, without the item: "No space left on device", in the system's own words. Null when it ended well. */
    [[nodiscard]] QString sentence() const;
    /** Item and why, for a log line or a message: "/x/y: No space left on device". Null when it ended well. */
    [[nodiscard]] QString description() const;

    /** Whether administrator rights may mend it. */
    [[nodiscard]] bool needsRights() const { return m_cause == Cause::NeedsRights; }

private:
    Cause m_cause = Cause::None;
    int m_number = 0; ///< errno.h; 0 for the program's own
    QString m_item;
    QString m_sentence;
};

/** A value, or how it could not be had. */
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) // NOLINT: converts, so that a function may return either
        : m_value(std::move(value))
    {
    }
    /** Must not be good: there would be no value to it. */
    Result(Outcome failure) // NOLINT: see above
        : m_outcome(std::move(failure))
    {
        Q_ASSERT(!m_outcome.ok());
    }

    [[nodiscard]] bool ok() const { return m_value.has_value(); }
    explicit operator bool() const { return ok(); }
    /** Good where there is a value. */
    [[nodiscard]] const Outcome &outcome() const { return m_outcome; }

    [[nodiscard]] const T &operator*() const & { return *m_value; }
    /** By value: a loop over what a function has just returned must not outlive it. */
    [[nodiscard]] T operator*() && { return *std::move(m_value); }
    [[nodiscard]] const T *operator->() const { return &*m_value; }
    [[nodiscard]] T valueOr(T other) const { return m_value.value_or(std::move(other)); }

private:
    std::optional<T> m_value;
    Outcome m_outcome;
};

} // namespace platform

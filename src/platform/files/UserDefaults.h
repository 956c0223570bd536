#pragma once

#include "platform/base/Outcome.h"

#include <QVariantMap>
#include <functional>
#include <mutex>

namespace platform {

/**
 * The settings: looked up in the user's domain, then the machine-wide domain, then what a studio shares, then the
 * registered defaults. Keys that hold for every user of the machine are looked up in the machine-wide domain first, and
 * what the machine-wide domain or the studio has locked comes from there alone.
 *
 * The two domains are property-list files. A reading sees what another running program has written since. A writing
 * re-reads the file under a lock, changes the one key and replaces the file in one step, so that two programs lose
 * nothing of each other's; a value that is already there is not written again. A file that does not parse is set aside
 * under a ".damaged" name. Thread-safe.
 */
class UserDefaults
{
public:
    /** Called with one sentence for the log whenever a file is set aside or cannot be written. May come on any thread.
     */
    using ProblemHandler = std::function<void(const QString &)>;

    UserDefaults(QString userFile, QString machineFile, ProblemHandler onProblem);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;

    void registerDefaults(const QVariantMap &defaults);
    /** Keys whose machine-wide value, where there is one, counts for everybody. */
    void letMachineDecide(const QStringList &keys);
    /** A file of the same form that many computers share; it is only read. Null: none. */
    void setShared(const QString &file);
    /** The key in the two files that are not the user's under which they list keys that they decide. */
    static constexpr const char *lockedKeys = "lockedSettings";
    /** Whether the machine-wide domain or the studio decides the key: it lists it, and holds a value of it. */
    [[nodiscard]] bool isLocked(const QString &key) const;
    /** What the user's own domain holds, whoever decides; an invalid variant when it is not there. */
    [[nodiscard]] QVariant usersValue(const QString &key) const;
    /** Whether the machine-wide domain holds the key. */
    [[nodiscard]] bool isSetForMachine(const QString &key) const;

    /** Why the domains cannot be read just now; what they held when they last could is what their values are. */
    [[nodiscard]] Outcome problem() const;

    /** An invalid variant when the key is in no domain. */
    [[nodiscard]] QVariant value(const QString &key) const;
    /** Strings as they are, numbers as decimal text; null for anything else. */
    [[nodiscard]] QString string(const QString &key) const;
    /** Numbers and booleans, and strings that begin with a number; else 0. */
    [[nodiscard]] qlonglong integer(const QString &key) const;
    [[nodiscard]] bool boolean(const QString &key) const;
    /** The number 1 or true. Neither the string "1" nor any other number. */
    [[nodiscard]] bool equalsOne(const QString &key) const;

    /** When the file could not be written, the value lasts as long as this process. */
    Outcome setValue(const QString &key, const QVariant &value);
    /** What a value becomes, from what it is at that moment; a failure leaves it as it is. */
    using Change = std::function<Result<QVariant>(const QVariant &current)>;
    /**
     * Changes a value that depends on what it was: the function is called once, under the lock, so that of two programs
     * that do so at once each builds on the other's. It may read settings, not write them. Its failure comes back.
     */
    Outcome changeValue(const QString &key, const Change &change);
    /** The same for several values that change together: both or none. */
    using ManyChange = std::function<Result<QVariantList>(const QVariantList &current)>;
    Outcome changeValues(const QStringList &keys, const ManyChange &change);
    /** What the machine-wide domain or the registered defaults hold shows again. */
    Outcome removeValue(const QString &key);
    /** Into the machine-wide domain, and away from the user's; into the user's when this process may not write that
       one, unless a value stands there, which would count all the same: its failure then. An invalid value removes it.
     */
    Outcome setMachineWideValue(const QString &key, const QVariant &value);

private:
    struct Domain
    {
        QString file;
        QVariantMap values;
        QByteArray stamp; ///< of the file that the values were read from
        Outcome problem;  ///< why it could not be read: it may hold anything, so it must not be replaced
    };
    void refresh(Domain &domain) const;
    [[nodiscard]] const Domain *decider(const QString &key) const;
    [[nodiscard]] static bool holds(const Domain &domain, const QString &key, const QVariant &value);
    Outcome store(Domain &domain, const QStringList &keys, const ManyChange &change);
    Outcome store(Domain &domain, const QString &key, const QVariant &value);
    [[nodiscard]] QVariant lookUp(const QString &key) const;

    mutable std::recursive_mutex m_mutex;
    mutable Domain m_user;
    mutable Domain m_machine;
    mutable Domain m_shared{}; ///< without a file: none
    QVariantMap m_registered;
    QStringList m_machineDecides;
    ProblemHandler m_onProblem;
};

} // namespace platform

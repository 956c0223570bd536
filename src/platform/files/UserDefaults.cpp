#include "platform/files/UserDefaults.h"

#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"

#include <QCoreApplication>
#include <cerrno>
#include <chrono>
#include <optional>
#include <sys/stat.h>

namespace platform {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(UserDefaults)
};

constexpr std::chrono::seconds lockPatience{10};

/// Changes whenever the file was replaced or rewritten; empty when there is none. One that cannot be looked at is not
/// missing: reading it tells why.
QByteArray stampOf(const QString &file)
{
    struct stat info;
    if (stat(toNative(file).constData(), &info) != 0)
        return errno == ENOENT ? QByteArray() : QByteArray("unknown");
    return QByteArray::number(static_cast<qulonglong>(info.st_ino)) + '.' +
           QByteArray::number(qlonglong{info.st_size}) + '.' + QByteArray::number(qlonglong{info.st_mtim.tv_sec}) +
           '.' + QByteArray::number(qlonglong{info.st_mtim.tv_nsec});
}

QString lockFileOf(const QString &file)
{
    return joined(parentPath(file), u'.' + lastComponent(file) + QStringLiteral(".lock"));
}

QString setAside(const QString &file)
{
    QString aside = file + QStringLiteral(".damaged");
    for (int n = 2; kindOf(aside) != FileKind::Missing; ++n)
        aside = file + QStringLiteral(".damaged-%1").arg(n);
    return moveItem(file, aside).ok() ? aside : QString();
}

} // namespace

UserDefaults::UserDefaults(QString userFile, QString machineFile, ProblemHandler onProblem)
    : m_user{std::move(userFile), {}, {}, {}}
    , m_machine{std::move(machineFile), {}, {}, {}}
    , m_onProblem(std::move(onProblem))
{
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    const std::scoped_lock lock(m_mutex);
    m_registered.insert(defaults);
}

/// Only where nothing stands there is no file, and only what was read whole and is no dictionary is damaged. Everything
/// else (a server that does not answer, rights that are missing) says nothing about what the file holds: the values
/// stay as they were last seen, and it is not replaced.
void UserDefaults::refresh(Domain &domain) const
{
    if (domain.file.isEmpty())
        return;
    const QByteArray stamp = stampOf(domain.file);
    if (stamp == domain.stamp && domain.problem.ok())
        return;
    domain.stamp = stamp;
    const Result<QVariant> read = readPropertyListFile(domain.file);
    const bool isDamaged = read ? read->typeId() != QMetaType::QVariantMap : read.outcome().is(Cause::Damaged);
    const Outcome before = std::exchange(domain.problem, Outcome());
    if (isDamaged) {
        domain.values.clear();
        const QString aside = setAside(domain.file);
        m_onProblem(aside.isNull() ? QStringLiteral("Settings %1 are damaged; using the defaults").arg(domain.file)
                                   : QStringLiteral("Settings %1 are damaged; set aside as %2, using the defaults")
                                         .arg(domain.file, aside));
    } else if (read) {
        domain.values = read->toMap();
    } else if (read.outcome().is(Cause::Missing)) {
        domain.values.clear();
    } else {
        domain.stamp.clear(); // looked at again each time: rights come back without the file changing
        domain.problem = read.outcome();
        if (before.ok())
            m_onProblem(QStringLiteral("Unable to read settings %1").arg(read.outcome().description()));
    }
}

void UserDefaults::letMachineDecide(const QStringList &keys)
{
    const std::scoped_lock lock(m_mutex);
    m_machineDecides = keys;
}

void UserDefaults::setShared(const QString &file)
{
    const std::scoped_lock lock(m_mutex);
    m_shared = {file, {}, {}, {}};
}

/// The one that has locked the key; null without one.
const UserDefaults::Domain *UserDefaults::decider(const QString &key) const
{
    for (Domain *domain : {&m_machine, &m_shared}) {
        refresh(*domain);
        const QVariantList locked = domain->values.value(QLatin1String(lockedKeys)).toList();
        if (domain->values.contains(key) && locked.contains(key))
            return domain;
    }
    return nullptr;
}

bool UserDefaults::isLocked(const QString &key) const
{
    const std::scoped_lock lock(m_mutex);
    return decider(key);
}

QVariant UserDefaults::usersValue(const QString &key) const
{
    const std::scoped_lock lock(m_mutex);
    refresh(m_user);
    return m_user.values.value(key);
}

bool UserDefaults::isSetForMachine(const QString &key) const
{
    const std::scoped_lock lock(m_mutex);
    refresh(m_machine);
    return m_machine.values.contains(key);
}

Outcome UserDefaults::problem() const
{
    const std::scoped_lock lock(m_mutex);
    refresh(m_user);
    refresh(m_machine);
    return m_user.problem.ok() ? m_machine.problem : m_user.problem;
}

QVariant UserDefaults::lookUp(const QString &key) const
{
    if (const Domain *decides = decider(key))
        return decides->values.value(key);
    const bool machineFirst = m_machineDecides.contains(key);
    for (Domain *domain : {machineFirst ? &m_machine : &m_user, machineFirst ? &m_user : &m_machine, &m_shared}) {
        refresh(*domain);
        if (const auto found = domain->values.constFind(key); found != domain->values.cend())
            return *found;
    }
    return m_registered.value(key);
}

QVariant UserDefaults::value(const QString &key) const
{
    const std::scoped_lock lock(m_mutex);
    return lookUp(key);
}

QString UserDefaults::string(const QString &key) const
{
    const QVariant found = value(key);
    switch (found.typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Int:
    case QMetaType::Double:
        return found.toString();
    default:
        return {};
    }
}

qlonglong UserDefaults::integer(const QString &key) const
{
    const QVariant found = value(key);
    if (found.typeId() == QMetaType::QString) // like a number typed into a form: what it begins with counts
        return std::strtoll(found.toString().toUtf8().constData(), nullptr, 10);
    return found.canConvert<qlonglong>() ? found.toLongLong() : 0;
}

bool UserDefaults::boolean(const QString &key) const
{
    const QVariant found = value(key);
    if (found.typeId() == QMetaType::QString) {
        const QString text = found.toString().toLower();
        return text == u"yes" || text == u"true" || integer(key) != 0;
    }
    return integer(key) != 0;
}

bool UserDefaults::equalsOne(const QString &key) const
{
    const QVariant found = value(key);
    return found.typeId() != QMetaType::QString && found.canConvert<double>() && found.toDouble() == 1.0;
}

bool UserDefaults::holds(const Domain &domain, const QString &key, const QVariant &value)
{
    const QVariant stored = domain.values.value(key);
    return domain.problem.ok() && stored == value && stored.typeId() == value.typeId();
}

/// Of the machine's file the caller tells, who knows what it does instead; of a refused change, too.
Outcome UserDefaults::store(Domain &domain, const QStringList &keys, const ManyChange &change)
{
    const Outcome folderMade = makeFolders(parentPath(domain.file));
    Outcome lockFailure;
    std::optional<FileLock> held;
    if (folderMade.ok()) {
        Result<FileLock> lock = FileLock::acquire(lockFileOf(domain.file), lockPatience);
        lockFailure = lock.outcome();
        if (lock)
            held.emplace(*std::move(lock));
    }
    if (lockFailure.is(Cause::Busy))
        m_onProblem(QStringLiteral("Settings %1 are locked by another program; writing all the same").arg(domain.file));
    domain.stamp = "?"; // re-read whatever the stamp says: two writes may fall into one tick of the file system's clock
    refresh(domain);
    QVariantList current;
    for (const QString &key : keys)
        current.append(lookUp(key));
    const Result<QVariantList> wanted = change(current);
    if (!wanted)
        return wanted.outcome();
    bool holdsAll = true;
    for (qsizetype i = 0; i < keys.size(); ++i)
        holdsAll = holdsAll && holds(domain, keys[i], wanted->value(i));
    if (holdsAll)
        return {};
    const QByteArray before = writePropertyList(domain.values);
    for (qsizetype i = 0; i < keys.size(); ++i) {
        if (wanted->value(i).isValid())
            domain.values.insert(keys[i], wanted->value(i));
        else
            domain.values.remove(keys[i]);
    }
    // Numbers of another type are the same in the file; writing costs some milliseconds until the disk has it.
    if (domain.problem.ok() && !before.isEmpty() && writePropertyList(domain.values) == before)
        return {};
    const Outcome written = !folderMade.ok()       ? folderMade
                            : !domain.problem.ok() ? domain.problem
                                                   : writePropertyListFile(domain.file, domain.values);
    domain.stamp = stampOf(domain.file);
    if (!written.ok() && &domain == &m_user)
        m_onProblem(QStringLiteral("Unable to write settings %1").arg(written.description()));
    return written;
}

Outcome UserDefaults::store(Domain &domain, const QString &key, const QVariant &value)
{
    return store(domain, QStringList{key}, [&](const QVariantList &) { return QVariantList{value}; });
}

Outcome UserDefaults::setValue(const QString &key, const QVariant &value)
{
    const std::scoped_lock lock(m_mutex);
    refresh(m_user);
    if (holds(m_user, key, value))
        return {};
    return store(m_user, key, value);
}

Outcome UserDefaults::changeValue(const QString &key, const Change &change)
{
    return changeValues({key}, [&](const QVariantList &current) -> Result<QVariantList> {
        const Result<QVariant> value = change(current.constFirst());
        return value ? Result<QVariantList>(QVariantList{*value}) : value.outcome();
    });
}

Outcome UserDefaults::changeValues(const QStringList &keys, const ManyChange &change)
{
    const std::scoped_lock lock(m_mutex);
    return store(m_user, keys, change);
}

Outcome UserDefaults::removeValue(const QString &key)
{
    return setValue(key, {});
}

Outcome UserDefaults::setMachineWideValue(const QString &key, const QVariant &value)
{
    const std::scoped_lock lock(m_mutex);
    refresh(m_machine);
    const QVariantMap before = m_machine.values;
    const Outcome stored = holds(m_machine, key, value) ? Outcome() : store(m_machine, key, value);
    if (stored.ok()) // a value of the user's own would come back with the machine's gone
        return m_machineDecides.contains(key) ? removeValue(key) : stored;
    m_machine.values = before;
    if (before.contains(key))
        return Outcome::failure(stored.cause(), stored.item(),
                                Text::tr("It is set for every user of this computer, and only an administrator can "
                                         "change it, with sudo Tessaro settings."));
    m_onProblem(QStringLiteral("Unable to write machine-wide settings; keeping %1 for this user").arg(key));
    return setValue(key, value);
}

} // namespace platform

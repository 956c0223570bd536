#include "platform/UserDefaults.h"

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"

#include <QFile>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSaveFile>
#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace platform {
namespace {

constexpr std::chrono::seconds lockPatience{10};

/// Changes whenever the file was replaced or rewritten; empty when there is none.
QByteArray stampOf(const QString &file)
{
    struct stat info;
    if (stat(toNative(file).constData(), &info) != 0)
        return {};
    return QByteArray::number(static_cast<qulonglong>(info.st_ino)) + '.' + QByteArray::number(qlonglong{info.st_size}) +
           '.' + QByteArray::number(qlonglong{info.st_mtim.tv_sec}) + '.' +
           QByteArray::number(qlonglong{info.st_mtim.tv_nsec});
}

/// What the super-user writes into a user's folder belongs to that user, or the user could never change it again.
void giveToOwnerOfFolder(const QString &file)
{
    struct stat folder;
    if (geteuid() != 0 || stat(toNative(parentPath(file)).constData(), &folder) != 0)
        return;
    static_cast<void>(lchown(toNative(file).constData(), folder.st_uid, folder.st_gid) == 0);
}

QString setAside(const QString &file)
{
    QString aside = file + QStringLiteral(".damaged");
    for (int n = 2; kindOf(aside) != FileKind::Missing; ++n)
        aside = file + QStringLiteral(".damaged-%1").arg(n);
    return moveItem(file, aside).ok() ? aside : QString();
}

/// In short steps of uneven length: the lock's own waiting doubles its pauses, and who waits longest looks least often.
bool lockPatiently(QLockFile &lock)
{
    const auto start = std::chrono::steady_clock::now();
    while (!lock.tryLock(0)) {
        const bool isHeld = lock.error() == QLockFile::LockFailedError;
        if (!isHeld || std::chrono::steady_clock::now() - start > lockPatience)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2 + QRandomGenerator::global()->bounded(8)));
    }
    return true;
}

bool replaceFile(const QString &file, const QVariantMap &values)
{
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(writePropertyList(values)) < 0 || !out.commit())
        return false;
    giveToOwnerOfFolder(file);
    return true;
}

} // namespace

UserDefaults::UserDefaults(QString userFile, QString machineFile, ProblemHandler onProblem)
    : m_user{std::move(userFile), {}, {}, false}, m_machine{std::move(machineFile), {}, {}, false}
    , m_onProblem(std::move(onProblem))
{}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    const std::scoped_lock lock(m_mutex);
    m_registered.insert(defaults);
}

void UserDefaults::refresh(Domain &domain) const
{
    const QByteArray stamp = stampOf(domain.file);
    if (stamp == domain.stamp && !domain.unreadable)
        return;
    domain.stamp = stamp;
    QFile file(domain.file);
    const bool wasUnreadable = domain.unreadable;
    domain.unreadable = !stamp.isEmpty() && !file.open(QIODevice::ReadOnly);
    if (stamp.isEmpty() || domain.unreadable) {
        if (domain.unreadable)
            domain.stamp.clear(); // looked at again each time: rights come back without the file changing
        if (domain.unreadable && wasUnreadable)
            return;
        if (domain.unreadable)
            m_onProblem(QStringLiteral("Unable to read settings %1").arg(domain.file));
        domain.values.clear();
        return;
    }
    const std::optional<QVariant> read = readPropertyList(file.readAll());
    if (read && read->typeId() == QMetaType::QVariantMap) {
        domain.values = read->toMap();
        return;
    }
    file.close();
    domain.values.clear();
    const QString aside = setAside(domain.file);
    m_onProblem(aside.isNull()
                    ? QStringLiteral("Settings %1 are damaged; using the defaults").arg(domain.file)
                    : QStringLiteral("Settings %1 are damaged; set aside as %2, using the defaults").arg(domain.file, aside));
}

QVariant UserDefaults::lookUp(const QString &key) const
{
    for (Domain *domain : {&m_user, &m_machine}) {
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
    case QMetaType::Double: return found.toString();
    default: return {};
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

bool UserDefaults::store(Domain &domain, const QString &key, const QVariant &value)
{
    refresh(domain);
    if (domain.values.value(key) == value && domain.values.value(key).typeId() == value.typeId())
        return true;
    const bool folderMade = makeFolders(parentPath(domain.file)).ok();
    QLockFile lock(domain.file + QStringLiteral(".lock"));
    const bool locked = folderMade && lockPatiently(lock);
    if (folderMade && !locked && lock.error() == QLockFile::LockFailedError)
        m_onProblem(QStringLiteral("Settings %1 are locked by another program; writing all the same").arg(domain.file));
    domain.stamp = "?"; // re-read whatever the stamp says: two writes may fall into one tick of the file system's clock
    refresh(domain);
    if (value.isValid())
        domain.values.insert(key, value);
    else
        domain.values.remove(key);
    const bool written = folderMade && !domain.unreadable && replaceFile(domain.file, domain.values);
    domain.stamp = stampOf(domain.file);
    return written;
}

bool UserDefaults::setValue(const QString &key, const QVariant &value)
{
    const std::scoped_lock lock(m_mutex);
    const bool written = store(m_user, key, value);
    if (!written)
        m_onProblem(QStringLiteral("Unable to write settings %1").arg(m_user.file));
    return written;
}

bool UserDefaults::removeValue(const QString &key)
{
    return setValue(key, {});
}

bool UserDefaults::setMachineWideValue(const QString &key, const QVariant &value)
{
    const std::scoped_lock lock(m_mutex);
    const Domain before = m_machine;
    if (store(m_machine, key, value))
        return true;
    m_machine = before;
    m_onProblem(QStringLiteral("Unable to write machine-wide settings; keeping %1 for this user").arg(key));
    return setValue(key, value);
}

} // namespace platform

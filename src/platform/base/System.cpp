#include "platform/base/System.h"

#include "platform/base/NativePath.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QSysInfo>
#include <climits>
#include <clocale>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace platform {

QString executablePath()
{
    static const QString path = [] {
        char target[PATH_MAX];
        const ssize_t length = readlink("/proc/self/exe", target, sizeof target);
        return length < 0 ? QString() : fromNative(QByteArrayView(target, length));
    }();
    return path;
}

Outcome becomeProgram(const QString &path, char **words)
{
    execv(toNative(path).constData(), words);
    return Outcome::fromErrno(path);
}

QString operatingSystemName()
{
    return QSysInfo::prettyProductName();
}

QString runOfSystem()
{
    char identifier[64];
    const UniqueDescriptor file(open("/proc/sys/kernel/random/boot_id", O_RDONLY | O_CLOEXEC));
    const ssize_t length = file.isOpen() ? read(file.get(), identifier, sizeof identifier) : 0;
    return length <= 0 ? QString() : QString::fromLatin1(identifier, length).trimmed();
}

int processorCount()
{
    return static_cast<int>(sysconf(_SC_NPROCESSORS_ONLN));
}

double memoryInGibibytes()
{
    return static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024 / 1024 /
           1024;
}

void closeToOtherProcesses()
{
#ifndef __SANITIZE_ADDRESS__
    prctl(PR_SET_DUMPABLE, 0);
#endif
}

void heedChildren()
{
    std::signal(SIGCHLD, SIG_DFL);
}

void prepareLocale()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0)
        return;
    // The language of messages stays as it was; only what names are made of changes.
    qunsetenv("LC_ALL");
    qputenv("LC_CTYPE", "C.UTF-8");
    std::setlocale(LC_ALL, "");
}

} // namespace platform

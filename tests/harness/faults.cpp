// Makes one call of the file system fail: preloaded into a program, it counts the calls that concern anything below a
// folder and answers the one of the given number with an error instead of passing it on.
//
//   FAULT_BELOW   the folder
//   FAULT_AT      the number of the call, from 1; 0 counts only
//   FAULT_ERRNO   the error; 0: a read or a write does half of what it was asked for, and other calls succeed
//   FAULT_NOW     the present, in seconds since 1970, for whoever asks for the time of day
//   FAULT_REPORT  a file that receives the number of calls, the name of the one that failed and its path, then in a
//   line of
//                 their own the descriptors that are open below the folder and the threads that there are at the end
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

namespace {

std::atomic<long> calls{0};
std::atomic<const char *> failed{nullptr};
char failedPath[4096];

long number(const char *variable)
{
    const char *value = getenv(variable);
    return value ? strtol(value, nullptr, 10) : 0;
}

struct Settings
{
    const char *below = getenv("FAULT_BELOW");
    std::size_t length = below ? strlen(below) : 0;
    long at = number("FAULT_AT");
    int error = static_cast<int>(number("FAULT_ERRNO"));
};
const Settings &settings()
{
    static const Settings one;
    return one;
}

bool isBelow(const char *path)
{
    const Settings &s = settings();
    return s.below && strncmp(path, s.below, s.length) == 0;
}

bool isShort()
{
    return settings().error == 0;
}

/// Whether the call is the one to fail.
bool fails(const char *call, const char *path)
{
    if (!isBelow(path) || ++calls != settings().at)
        return false;
    snprintf(failedPath, sizeof failedPath, "%s", path);
    failed = call;
    errno = settings().error;
    return !isShort();
}

bool fdFails(const char *call, int fd)
{
    char link[64];
    char path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const int before = errno;
    const long length = syscall(SYS_readlink, link, path, sizeof path - 1);
    errno = before;
    if (length <= 0)
        return false;
    path[length] = '\0';
    return fails(call, path);
}

bool atFails(const char *call, int folder, const char *name)
{
    if (!name || name[0] == '\0')
        return fdFails(call, folder);
    return name[0] == '/' ? fails(call, name) : folder != AT_FDCWD && fdFails(call, folder);
}

/// How many bytes the call is to be passed on with.
std::size_t lengthOf(std::size_t asked, long before)
{
    const bool isOne = isShort() && before != settings().at && calls == settings().at;
    return isOne && asked > 1 ? asked / 2 : asked;
}

long countIn(const char *folder, bool onlyBelow)
{
    long count = 0;
    DIR *const listed = opendir(folder);
    if (!listed)
        return -1;
    while (const dirent *entry = readdir(listed)) {
        char path[4096];
        const long length =
            syscall(SYS_readlinkat, dirfd(listed), entry->d_name, path, static_cast<long>(sizeof path - 1));
        path[length > 0 ? length : 0] = '\0';
        count += entry->d_name[0] != '.' && (!onlyBelow || isBelow(path));
    }
    closedir(listed);
    return count;
}

template <typename Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// It is closed all the same, as the system does it.
bool closeFails(int fd)
{
    const bool fails = fdFails("close", fd);
    const int error = errno;
    if (fails)
        syscall(SYS_close, fd);
    errno = error;
    return fails;
}

__attribute__((destructor)) void report()
{
    const char *path = getenv("FAULT_REPORT");
    if (!path)
        return;
    const long file = syscall(SYS_open, path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    char line[5000];
    const int length = snprintf(line, sizeof line, "%ld %s %s\n%ld %ld\n", calls.load(), failed ? failed.load() : "-",
                                failedPath, countIn("/proc/self/fd", true), countIn("/proc/self/task", false));
    syscall(SYS_write, file, line, length);
    syscall(SYS_close, file);
}

} // namespace

#pragma GCC visibility push(default)

// Each passes on what it was given; what follows are its parameters, the words for the call and the test for it.
#define FAULT(result, name, parameters, words, test)                                                                   \
    extern "C" result name parameters                                                                                  \
    {                                                                                                                  \
        static const auto real = next<result(*) parameters>(#name);                                                    \
        if (test)                                                                                                      \
            return -1;                                                                                                 \
        return real words;                                                                                             \
    }

// The same for calls that may do a part of what they were asked for.
#define FAULT_LENGTH(result, name, parameters, words, test)                                                            \
    extern "C" result name parameters                                                                                  \
    {                                                                                                                  \
        static const auto real = next<result(*) parameters>(#name);                                                    \
        const long before = calls;                                                                                     \
        if (test)                                                                                                      \
            return -1;                                                                                                 \
        return real words;                                                                                             \
    }

FAULT(int, mkdirat, (int d, const char *n, mode_t m), (d, n, m), atFails("mkdirat", d, n))
FAULT(int, unlinkat, (int d, const char *n, int f), (d, n, f), atFails("unlinkat", d, n))
FAULT(int, renameat, (int d, const char *n, int e, const char *o), (d, n, e, o), atFails("renameat", d, n))
FAULT(int, renameat2, (int d, const char *n, int e, const char *o, unsigned f), (d, n, e, o, f),
      atFails("renameat2", d, n))
FAULT(int, symlinkat, (const char *t, int d, const char *n), (t, d, n), atFails("symlinkat", d, n))
FAULT(ssize_t, readlinkat, (int d, const char *n, char *b, size_t s), (d, n, b, s), atFails("readlinkat", d, n))
FAULT(int, fstatat, (int d, const char *n, struct stat *s, int f), (d, n, s, f), atFails("fstatat", d, n))
FAULT(int, fstatat64, (int d, const char *n, struct stat64 *s, int f), (d, n, s, f), atFails("fstatat", d, n))
FAULT(int, statx, (int d, const char *n, int f, unsigned m, struct statx *s), (d, n, f, m, s), atFails("statx", d, n))
FAULT(int, fstat, (int d, struct stat *s), (d, s), fdFails("fstat", d))
FAULT(int, fstat64, (int d, struct stat64 *s), (d, s), fdFails("fstat", d))
FAULT(int, faccessat, (int d, const char *n, int m, int f), (d, n, m, f), atFails("faccessat", d, n))
FAULT_LENGTH(ssize_t, read, (int d, void *b, size_t s), (d, b, lengthOf(s, before)), fdFails("read", d))
FAULT_LENGTH(ssize_t, write, (int d, const void *b, size_t s), (d, b, lengthOf(s, before)), fdFails("write", d))
FAULT_LENGTH(ssize_t, copy_file_range, (int d, off64_t *o, int e, off64_t *p, size_t s, unsigned f),
             (d, o, e, p, lengthOf(s, before), f), fdFails("copy_file_range", e))
FAULT(int, sync_file_range, (int d, off64_t o, off64_t l, unsigned f), (d, o, l, f), fdFails("sync_file_range", d))
FAULT(int, fchmodat, (int d, const char *n, mode_t m, int f), (d, n, m, f), atFails("fchmodat", d, n))
FAULT(int, fchown, (int d, uid_t u, gid_t g), (d, u, g), fdFails("fchown", d))
FAULT(int, ftruncate64, (int d, off64_t l), (d, l), fdFails("ftruncate", d))
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow" // the constructor of the structure of that name
FAULT(int, flock, (int d, int o), (d, o), fdFails("flock", d))
#pragma GCC diagnostic pop
FAULT(int, syncfs, (int d), (d), fdFails("syncfs", d))
FAULT(int, close, (int d), (d), closeFails(d))
FAULT(int, fsync, (int d), (d), fdFails("fsync", d))
FAULT(int, fchmod, (int d, mode_t m), (d, m), fdFails("fchmod", d))
FAULT(int, futimens, (int d, const struct timespec *t), (d, t), fdFails("futimens", d))
FAULT(int, utimensat, (int d, const char *n, const struct timespec *t, int f), (d, n, t, f), atFails("utimensat", d, n))
FAULT(ssize_t, flistxattr, (int d, char *b, size_t s), (d, b, s), fdFails("flistxattr", d))

extern "C" time_t time(time_t *answer)
{
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    if (answer)
        *answer = now.tv_sec;
    return now.tv_sec;
}

extern "C" int clock_gettime(clockid_t clock, struct timespec *now)
{
    const long result = syscall(SYS_clock_gettime, clock, now);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE) && getenv("FAULT_NOW"))
        now->tv_sec = number("FAULT_NOW");
    return static_cast<int>(result);
}

extern "C" int gettimeofday(struct timeval *now, void *)
{
    struct timespec exact;
    clock_gettime(CLOCK_REALTIME, &exact);
    now->tv_sec = exact.tv_sec;
    now->tv_usec = exact.tv_nsec / 1000;
    return 0;
}

#define FAULT_READDIR(name, entry)                                                                                     \
    extern "C" struct entry *name(DIR *folder)                                                                         \
    {                                                                                                                  \
        static const auto real = next<struct entry *(*)(DIR *)>(#name);                                                \
        return fdFails(#name, dirfd(folder)) ? nullptr : real(folder);                                                 \
    }

FAULT_READDIR(readdir, dirent)
FAULT_READDIR(readdir64, dirent64)

#pragma GCC visibility pop

namespace {

int opened(int folder, const char *path, int flags, mode_t mode)
{
    if (atFails("open", folder, path))
        return -1;
    static const auto real = next<int (*)(int, const char *, int, ...)>("openat64");
    return real(folder, path, flags, mode);
}

mode_t modeOf(int flags, va_list rest)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

} // namespace

#define FAULT_OPEN(name, parameters, folder)                                                                           \
    extern "C" int name parameters                                                                                     \
    {                                                                                                                  \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = modeOf(flags, rest);                                                                       \
        va_end(rest);                                                                                                  \
        return opened(folder, path, flags, mode);                                                                      \
    }

#pragma GCC visibility push(default)

FAULT_OPEN(open, (const char *path, int flags, ...), AT_FDCWD)
FAULT_OPEN(open64, (const char *path, int flags, ...), AT_FDCWD)
FAULT_OPEN(openat, (int folder, const char *path, int flags, ...), folder)
FAULT_OPEN(openat64, (int folder, const char *path, int flags, ...), folder)

#pragma GCC visibility pop

#include "platform/process/CrashReport.h"

#include "platform/base/NativePath.h"
#include "platform/base/System.h"

#include <QByteArray>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <cxxabi.h>
#include <exception>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <typeinfo>
#include <unistd.h>

namespace platform {
namespace {

constexpr std::array fatalSignals{SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
constexpr std::size_t stackSize = std::size_t{128} * 1024;
constexpr unsigned patience = 10; // seconds
constexpr int mostFrames = 96;

/// Prepared while all is well; the handler only reads it.
struct Prepared
{
    std::array<char, 2048> pathStart{}; ///< folder and name, up to the date
    std::array<char, 256> pathEnd{};    ///< host and extension
    std::array<char, 1024> header{};
    std::array<char, 512> exception{}; ///< written by the terminate handler, on the crashing thread
    long zoneOffset = 0;               ///< seconds east of UTC
};
Prepared prepared;

void put(int file, const char *text, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = write(file, text, count);
        if (written <= 0)
            return;
        text += written;
        count -= static_cast<std::size_t>(written);
    }
}

void put(int file, const char *text)
{
    put(file, text, std::strlen(text));
}

void putNumber(int file, std::uint64_t number, unsigned base, int digits)
{
    std::array<char, 24> text;
    std::size_t at = text.size();
    do {
        text[--at] = "0123456789abcdef"[number % base];
        number /= base;
        --digits;
    } while (number > 0 || digits > 0);
    put(file, &text[at], text.size() - at);
}

/// The date without the C library, whose conversions take locks. The civil calendar from days since 1970.
struct Civil
{
    int year, month, day, hour, minute, second;
};
Civil civilNow()
{
    const std::int64_t now = static_cast<std::int64_t>(time(nullptr)) + prepared.zoneOffset;
    const std::int64_t days = now / 86400 + 719468;
    const std::int64_t era = days / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shifted = (5 * dayOfYear + 2) / 153;
    const auto month = static_cast<int>(shifted < 10 ? shifted + 3 : shifted - 9);
    const auto seconds = static_cast<int>(now % 86400);
    return {static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0)),
            month,
            static_cast<int>(dayOfYear - (153 * shifted + 2) / 5 + 1),
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60};
}

void append(char *&at, const char *end, const char *text)
{
    while (*text != '\0' && at < end)
        *at++ = *text++;
    *at = '\0';
}

void appendNumber(char *&at, const char *end, int number, int digits)
{
    std::array<char, 12> text{};
    for (int i = digits - 1; i >= 0; --i, number /= 10)
        text[static_cast<std::size_t>(i)] = static_cast<char>('0' + number % 10);
    append(at, end, text.data());
}

/// Only now, so that a program that never crashes leaves no empty folder behind.
void makeFolders()
{
    for (char *slash = std::strchr(prepared.pathStart.data() + 1, '/'); slash; slash = std::strchr(slash + 1, '/')) {
        *slash = '\0';
        mkdir(prepared.pathStart.data(), 0700);
        *slash = '/';
    }
}

int openReport(const Civil &now)
{
    makeFolders();
    static std::array<char, 4096> path;
    char *at = path.data();
    const char *end = path.data() + path.size() - 1;
    append(at, end, prepared.pathStart.data());
    appendNumber(at, end, now.year, 4);
    for (const auto &[separator, number] :
         {std::pair{"-", now.month}, std::pair{"-", now.day}, std::pair{"-", now.hour}, std::pair{"", now.minute},
          std::pair{"", now.second}}) {
        append(at, end, separator);
        appendNumber(at, end, number, 2);
    }
    append(at, end, prepared.pathEnd.data());
    return open(path.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
}

const char *nameOf(int number)
{
    switch (number) {
    case SIGSEGV:
        return "SIGSEGV (invalid memory reference)";
    case SIGABRT:
        return "SIGABRT (aborted)";
    case SIGBUS:
        return "SIGBUS (bus error)";
    case SIGFPE:
        return "SIGFPE (arithmetic error)";
    case SIGILL:
        return "SIGILL (illegal instruction)";
    default:
        return "unknown signal";
    }
}

void putFile(int report, const char *path)
{
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    std::array<char, 1024> piece;
    for (ssize_t got = 1; file >= 0 && got > 0;) {
        got = read(file, piece.data(), piece.size());
        if (got > 0)
            put(report, piece.data(), static_cast<std::size_t>(got));
    }
    if (file >= 0)
        close(file);
}

/// One entry as the kernel gives it: readdir() allocates memory.
struct KernelEntry
{
    std::uint64_t inode;
    std::int64_t offset;
    unsigned short length;
    unsigned char type;
    char name[1];
};

void putThreads(int report)
{
    const int tasks = open("/proc/self/task", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    alignas(KernelEntry) std::array<char, 4096> entries;
    for (long got = 1; tasks >= 0 && got > 0;) {
        got = syscall(SYS_getdents64, tasks, entries.data(), entries.size());
        for (long at = 0; at < got;) {
            const auto *entry = reinterpret_cast<const KernelEntry *>(entries.data() + at);
            at += entry->length;
            if (entry->name[0] == '.')
                continue;
            static std::array<char, 128> path;
            char *end = path.data();
            const char *limit = path.data() + path.size() - 1;
            append(end, limit, "/proc/self/task/");
            append(end, limit, entry->name);
            append(end, limit, "/comm");
            put(report, "  ");
            put(report, entry->name);
            put(report, "  ");
            putFile(report, path.data());
        }
    }
    if (tasks >= 0)
        close(tasks);
}

void putBacktrace(int report)
{
    static std::array<void *, mostFrames> frames;
    const int count = backtrace(frames.data(), mostFrames); // its library was loaded beforehand
    for (int i = 0; i < count; ++i) {
        putNumber(report, static_cast<std::uint64_t>(i), 10, 3);
        put(report, "  0x");
        putNumber(report, reinterpret_cast<std::uintptr_t>(frames[static_cast<std::size_t>(i)]), 16, 16);
        put(report, "\n");
    }
}

void writeReport(int number, const siginfo_t &info)
{
    const Civil now = civilNow();
    const int report = openReport(now);
    if (report < 0)
        return;
    put(report, prepared.header.data());
    put(report, "Date: ");
    putNumber(report, static_cast<std::uint64_t>(now.year), 10, 4);
    for (const auto &[separator, part] : {std::pair{"-", now.month}, std::pair{"-", now.day}, std::pair{" ", now.hour},
                                          std::pair{":", now.minute}, std::pair{":", now.second}}) {
        put(report, separator);
        putNumber(report, static_cast<std::uint64_t>(part), 10, 2);
    }
    put(report, "\nProcess: ");
    putNumber(report, static_cast<std::uint64_t>(getpid()), 10, 1);
    put(report, "\nSignal: ");
    put(report, nameOf(number));
    put(report, "\nAddress: 0x");
    // The sender's numbers stand where the address would, when a person or a program sent the signal.
    putNumber(report, info.si_code > 0 ? reinterpret_cast<std::uintptr_t>(info.si_addr) : 0, 16, 16);
    put(report, info.si_code > 0 ? "\n" : " (sent)\n");
    if (prepared.exception[0] != '\0') {
        put(report, "Exception: ");
        put(report, prepared.exception.data());
        put(report, "\n");
    }
    put(report, "Crashed thread: ");
    putNumber(report, static_cast<std::uint64_t>(syscall(SYS_gettid)), 10, 1);
    put(report, "\n\nThreads:\n");
    putThreads(report);
    put(report, "\nBacktrace:\n");
    putBacktrace(report);
    put(report, "\nLoaded files:\n");
    putFile(report, "/proc/self/maps");
    close(report);
}

void onSignal(int number, siginfo_t *info, void *)
{
    for (const int fatal : fatalSignals) // a crash in here ends the process
        std::signal(fatal, SIG_DFL);
    std::signal(SIGALRM, SIG_DFL);
    alarm(patience);
    writeReport(number, *info);
    alarm(0);
    raise(number); // comes when this returns, by default now
}

[[noreturn]] void onTerminate()
{
    char *at = prepared.exception.data();
    const char *end = prepared.exception.data() + prepared.exception.size() - 1;
    if (const std::type_info *type = abi::__cxa_current_exception_type())
        append(at, end, type->name());
    try {
        if (const std::exception_ptr current = std::current_exception())
            std::rethrow_exception(current);
    } catch (const std::exception &exception) {
        append(at, end, ": ");
        append(at, end, exception.what());
    } catch (...) {
    }
    std::abort();
}

template <std::size_t Size> void store(std::array<char, Size> &to, const QByteArray &text)
{
    std::memcpy(to.data(), text.constData(), qMin<std::size_t>(static_cast<std::size_t>(text.size()), Size - 1));
}

} // namespace

void writeCrashReports(const QString &folder, const QString &name, const QString &version)
{
    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    QByteArray plainHost(host.data());
    plainHost.replace('/', '-');
    store(prepared.pathStart, toNative(joined(folder, name)) + '_');
    store(prepared.pathEnd, '_' + plainHost + ".crash");
    store(prepared.header, "Application: " + name.toUtf8() + "\nVersion: " + version.toUtf8() +
                               "\nSystem: " + operatingSystemName().toUtf8() + '\n');
    const std::time_t now = time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    prepared.zoneOffset = local.tm_gmtoff;

    void *frame = nullptr;
    backtrace(&frame, 1); // loads what it needs now
    static auto *stack = new char[stackSize];
    stack_t own{};
    own.ss_sp = stack;
    own.ss_size = stackSize;
    sigaltstack(&own, nullptr);
    struct sigaction action
    {
    };
    action.sa_sigaction = onSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const int fatal : fatalSignals)
        sigaction(fatal, &action, nullptr);
    std::set_terminate(onTerminate);
}

} // namespace platform

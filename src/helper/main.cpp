// The privileged helper: started through pkexec by an application of the user's, runs a closed list of tools as root
// for as long as the application holds the other end of its standard input. It believes nothing that it inherits.
#include "helper/Service.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <sys/stat.h>

namespace {

/// Neither 126 nor 127, with which pkexec itself tells of a refusal.
constexpr int notStarted = 2;

std::optional<uid_t> callerFromEnvironment()
{
    const char *text = std::getenv("PKEXEC_UID");
    if (!text || *text < '0' || *text > '9')
        return std::nullopt;
    char *end = nullptr;
    errno = 0;
    const unsigned long number = std::strtoul(text, &end, 10);
    return errno == 0 && *end == '\0' && number < UINT_MAX ? std::optional<uid_t>(number) : std::nullopt;
}

bool resetEnvironment()
{
    return clearenv() == 0 && setenv("PATH", "/usr/sbin:/usr/bin:/sbin:/bin", 1) == 0 &&
           setenv("HOME", "/root", 1) == 0 && setenv("LC_ALL", "C.UTF-8", 1) == 0;
}

/// A limit that the caller lowered would cut a copy short.
void resetLimits()
{
    constexpr rlimit endless{RLIM_INFINITY, RLIM_INFINITY};
    constexpr rlimit none{0, 0};
    for (const auto resource : {RLIMIT_FSIZE, RLIMIT_CPU, RLIMIT_DATA, RLIMIT_AS, RLIMIT_NPROC})
        setrlimit(resource, &endless);
    setrlimit(RLIMIT_CORE, &none);
    constexpr rlimit stack{rlim_t{8} << 20, RLIM_INFINITY};
    setrlimit(RLIMIT_STACK, &stack);
    constexpr rlimit files{1024, 4096};
    setrlimit(RLIMIT_NOFILE, &files);
}

/// Every signal as it is by default, but children's ends, which are read from a descriptor, and a broken stream.
int resetSignals()
{
    sigset_t none;
    sigemptyset(&none);
    for (int number = 1; number < NSIG; ++number)
        std::signal(number, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    sigset_t children;
    sigemptyset(&children);
    sigaddset(&children, SIGCHLD);
    sigprocmask(SIG_BLOCK, &children, nullptr);
    return signalfd(-1, &children, SFD_NONBLOCK | SFD_CLOEXEC);
}

} // namespace

int main(int argumentCount, char **)
{
    const std::optional<uid_t> caller = callerFromEnvironment();
    if (argumentCount != 1 || geteuid() != 0 || !caller) {
        std::fputs("This program belongs to Tessaro, which starts it through pkexec.\n", stderr);
        return notStarted;
    }
    if (!resetEnvironment() || setuid(0) != 0 || chdir("/") != 0)
        return notStarted;
    umask(022);
    resetLimits();
    close_range(3, ~0U, 0);
    prctl(PR_SET_DUMPABLE, 0);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    setsid(); // the end of the stream ends it, and no key pressed in the caller's terminal
    const int childSignals = resetSignals();
    if (childSignals < 0)
        return notStarted;
    helper::Service(STDIN_FILENO, STDOUT_FILENO, childSignals, *caller, helper::homeOf(*caller)).run();
    _exit(0);
}

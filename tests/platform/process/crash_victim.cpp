// A program that crashes in the way it is told to, for the test of the reports.
#include "platform/base/NativePath.h"
#include "platform/process/CrashReport.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>
#include <unistd.h>

namespace {

volatile int *nowhere = nullptr;
volatile int zero = 0;

[[gnu::noinline, gnu::no_sanitize("undefined", "address")]] void crashHere(const char *how)
{
    if (std::strcmp(how, "SIGSEGV") == 0)
        *nowhere = 1;
    else if (std::strcmp(how, "exception") == 0)
        throw std::runtime_error("the reason");
    else if (std::strcmp(how, "SIGABRT") == 0)
        std::abort();
    else
        raise(std::strcmp(how, "SIGBUS") == 0 ? SIGBUS : std::strcmp(how, "SIGFPE") == 0 ? SIGFPE : SIGILL);
}

[[gnu::noinline]] int overflow(int depth)
{
    volatile char page[4096];
    page[depth % 4096] = static_cast<char>(depth);
    return depth < 0 ? 0 : overflow(depth + 1) + page[zero];
}

} // namespace

int main(int, char **arguments)
{
    platform::writeCrashReports(platform::fromNative(arguments[1]), "Victim", "7.5");
    const char *how = arguments[2];
    std::thread other([] {
        prctl(PR_SET_NAME, "busy worker");
        for (;;)
            pause();
    });
    usleep(50'000);
    if (std::strcmp(how, "waits") == 0) {
        std::puts("ready");
        std::fflush(stdout);
        pause();
    }
    if (std::strcmp(how, "overflow") == 0)
        return overflow(0);
    if (std::strcmp(how, "thread") == 0)
        std::thread([] { crashHere("SIGSEGV"); }).join();
    crashHere(how);
    return 0;
}

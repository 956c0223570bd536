#include "platform/base/Interruption.h"

#include <csignal>

namespace platform {
namespace {

constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<std::atomic<bool> *> flagToSet = nullptr;
static_assert(std::atomic<bool>::is_always_lock_free); // what a signal's handler may touch

void setFlag(int)
{
    if (std::atomic<bool> *flag = flagToSet)
        *flag = true;
}

void handleWith(void (*handler)(int))
{
    for (const int number : signals) {
        struct sigaction action
        {
        };
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        struct sigaction before;
        // One that the caller has switched off (nohup) stays so.
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

} // namespace

Interruption::Interruption(std::atomic<bool> &flag)
{
    flagToSet = &flag;
    handleWith(setFlag);
}

Interruption::~Interruption()
{
    handleWith(SIG_DFL);
    flagToSet = nullptr;
}

} // namespace platform

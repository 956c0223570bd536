#include "platform/plain/UniqueDescriptor.h"

#include <mutex>
#include <sys/resource.h>
#include <unistd.h>

namespace platform {

void UniqueDescriptor::reset(int descriptor)
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = descriptor;
}

int UniqueDescriptor::closeChecked()
{
    return ::close(release());
}

void raiseDescriptorLimit()
{
    static std::once_flag once;
    std::call_once(once, [] {
        rlimit limit{};
        if (getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < limit.rlim_max) {
            limit.rlim_cur = limit.rlim_max;
            setrlimit(RLIMIT_NOFILE, &limit);
        }
    });
}

} // namespace platform

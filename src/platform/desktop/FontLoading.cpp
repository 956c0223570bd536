#include "platform/desktop/FontLoading.h"

#include <fontconfig/fontconfig.h>
#include <system_error>

namespace platform {

FontLoading::FontLoading()
{
    try {
        m_thread = std::thread(FcInit);
    } catch (const std::system_error &) {
        return; // no thread is to be had
    }
}

FontLoading::~FontLoading()
{
    finish();
}

void FontLoading::finish()
{
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace platform

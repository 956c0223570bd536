#include "platform/process/Secret.h"

#include <cstring>

namespace platform {

Secret::~Secret()
{
    explicit_bzero(m_bytes.data(), static_cast<std::size_t>(m_bytes.size()));
}

} // namespace platform

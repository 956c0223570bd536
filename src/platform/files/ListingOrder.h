#pragma once

#include <string_view>

/** The order in which a folder's items are listed, copied and named: see listFolder(). Pure; any thread. */
namespace platform {

[[nodiscard]] bool isAscii(std::string_view name);

/** For names of ASCII characters only: their order needs no Unicode, which is half the time for a large folder. */
[[nodiscard]] bool precedesInAscii(std::string_view a, std::string_view b);

} // namespace platform

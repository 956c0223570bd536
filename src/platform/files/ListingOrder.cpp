#include "platform/files/ListingOrder.h"

#include <algorithm>

namespace platform {
namespace {

char foldedAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool isAscii(std::string_view name)
{
    return std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool precedesInAscii(std::string_view a, std::string_view b)
{
    // Not strcasecmp(), which asks the locale.
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                          [](char x, char y) { return foldedAscii(x) == foldedAscii(y); });
    if (inA == a.end() || inB == b.end())
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    return foldedAscii(*inA) < foldedAscii(*inB);
}

} // namespace platform

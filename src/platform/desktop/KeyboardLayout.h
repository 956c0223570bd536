#pragma once

#include <QString>
#include <optional>

namespace platform {

/** Characters that stand for keys without a text of their own: those that the reference desktop uses. */
namespace FunctionKey {
inline constexpr char16_t up = 0xF700;
inline constexpr char16_t down = 0xF701;
inline constexpr char16_t left = 0xF702;
inline constexpr char16_t right = 0xF703;
inline constexpr char16_t forwardDelete = 0xF728;
inline constexpr char16_t home = 0xF729;
inline constexpr char16_t end = 0xF72B;
inline constexpr char16_t pageUp = 0xF72C;
inline constexpr char16_t pageDown = 0xF72D;
} // namespace FunctionKey

struct KeyText
{
    bool hasLayout = false;      ///< false: there is no keyboard layout to ask (no X server)
    std::optional<QString> text; ///< without modifiers; nothing when the key gives none in this layout
    QString symbol = {};         ///< what it is called in the tables of X (keysymdef.h): "a", "F5", "Prior"
};

/** What the key of that hardware code gives in the layout that is in force at the moment of the call. Any thread. */
[[nodiscard]] KeyText textOfKeyCode(quint16 keyCode);

} // namespace platform

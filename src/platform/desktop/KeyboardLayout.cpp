#include "platform/desktop/KeyboardLayout.h"

#include <QHash>
#include <array>
#include <memory>
#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

namespace platform {
namespace {

template <auto Free> struct Freer
{
    template <typename Handle> void operator()(Handle *handle) const { Free(handle); }
};
using Connection = std::unique_ptr<xcb_connection_t, Freer<xcb_disconnect>>;
using Context = std::unique_ptr<xkb_context, Freer<xkb_context_unref>>;
using Keymap = std::unique_ptr<xkb_keymap, Freer<xkb_keymap_unref>>;
using State = std::unique_ptr<xkb_state, Freer<xkb_state_unref>>;

QString textOf(xkb_keysym_t symbol)
{
    static const QHash<xkb_keysym_t, char16_t> withoutText{
        {XKB_KEY_Up, FunctionKey::up},
        {XKB_KEY_Down, FunctionKey::down},
        {XKB_KEY_Left, FunctionKey::left},
        {XKB_KEY_Right, FunctionKey::right},
        {XKB_KEY_Home, FunctionKey::home},
        {XKB_KEY_End, FunctionKey::end},
        {XKB_KEY_Prior, FunctionKey::pageUp},
        {XKB_KEY_Next, FunctionKey::pageDown},
        {XKB_KEY_BackSpace, 0x08},
        {XKB_KEY_Delete, 0x7F},
        {XKB_KEY_ISO_Left_Tab, 0x19},
        {XKB_KEY_Return, 0x0D},
        {XKB_KEY_KP_Enter, 0x03},
    };
    if (const auto found = withoutText.constFind(symbol); found != withoutText.cend())
        return QString(QChar(*found));
    if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F35)
        return QStringLiteral("F%1").arg(symbol - XKB_KEY_F1 + 1);
    std::array<char, 16> bytes{};
    return xkb_keysym_to_utf8(symbol, bytes.data(), bytes.size()) > 0 ? QString::fromUtf8(bytes.data()) : QString();
}

QString nameOf(xkb_keysym_t symbol)
{
    std::array<char, 64> name{};
    return xkb_keysym_get_name(symbol, name.data(), name.size()) > 0 ? QString::fromLatin1(name.data()) : QString();
}

} // namespace

KeyText textOfKeyCode(quint16 keyCode)
{
    // Asked anew each time: a keymap that is kept is wrong after the user switches layouts.
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0 ||
        xkb_x11_setup_xkb_extension(connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr) == 0)
        return {};
    const Context context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const int32_t device = xkb_x11_get_core_keyboard_device_id(connection.get());
    const Keymap keymap(context && device >= 0 ? xkb_x11_keymap_new_from_device(context.get(), connection.get(), device,
                                                                                XKB_KEYMAP_COMPILE_NO_FLAGS)
                                               : nullptr);
    const State state(keymap ? xkb_x11_state_new_from_device(keymap.get(), connection.get(), device) : nullptr);
    if (!state)
        return {};
    const xkb_layout_index_t layout = xkb_state_key_get_layout(state.get(), keyCode);
    for (const xkb_level_index_t level : {0U, 1U}) { // the keypad's digits are on the second
        const xkb_keysym_t *symbols = nullptr;
        const int count = xkb_keymap_key_get_syms_by_level(keymap.get(), keyCode, layout, level, &symbols);
        const QString text = count > 0 ? textOf(symbols[0]) : QString();
        if (!text.isEmpty())
            return {true, text, nameOf(symbols[0])};
    }
    return {true, std::nullopt};
}

} // namespace platform

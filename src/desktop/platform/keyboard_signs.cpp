#include "desktop/platform/keyboard_signs.h"

#ifdef TARVEX_XCB_XKB

#include "desktop/platform/native_keys.h"
#include "platform/utf8.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <utility>

// The header of the protocol names a member "explicit".
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include <xkbcommon/xkbcommon.h>

namespace tarvex {

namespace {

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply> using Owned = std::unique_ptr<Reply, Freed>;
using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

/// Dead keys show the accent that they add, in the order of their numbers.
constexpr xkb_keysym_t firstDeadKey = XKB_KEY_dead_grave;
constexpr const char* accents[] = {"`",      "\u00B4", "^",      "~",      "\u00AF", "\u02D8",
                                   "\u02D9", "\u00A8", "\u02DA", "\u02DD", "\u02C7", "\u00B8"};

std::string signOf(xkb_keysym_t symbol)
{
    if (symbol >= firstDeadKey && symbol < firstDeadKey + std::size(accents)) return accents[symbol - firstDeadKey];
    constexpr std::uint32_t firstPrinted = 0x21;
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    std::string sign;
    if (character >= firstPrinted && character != 0x7F) appendUtf8(sign, static_cast<char32_t>(character));
    return sign;
}

/// Number of the layout in use, of those that are set; the first where the server doesn't say.
unsigned layoutInUse(xcb_connection_t* connection)
{
    const Owned<xcb_xkb_use_extension_reply_t> use(
        xcb_xkb_use_extension_reply(connection, xcb_xkb_use_extension(connection, 1, 0), nullptr));
    if (!use || use->supported == 0) return 0;
    const Owned<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(connection, xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state ? state->group : 0;
}

} // namespace

KeyPrints printsOf(std::span<const std::uint32_t> symbols, unsigned layout)
{
    if (symbols.size() < 2) return {};
    std::size_t first = layout < 2 ? 2 * layout : 0;
    if (first + 1 >= symbols.size() || symbols[first] == XKB_KEY_NoSymbol) first = 0;
    return {signOf(symbols[first]), signOf(symbols[first + 1])};
}

KeyboardSigns readKeyboardSigns()
{
    KeyboardSigns signs;
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return signs;
    const Connection connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) return signs;
    const xcb_setup_t* setup = xcb_get_setup(connection.get());
    const auto keys = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        connection.get(), xcb_get_keyboard_mapping(connection.get(), setup->min_keycode, keys), nullptr));
    if (!mapping) return signs;
    const unsigned layout = layoutInUse(connection.get());
    const unsigned count = mapping->keysyms_per_keycode;
    for (const Key& key : keyTable()) {
        const quint32 code = nativeCodeOf(key.index);
        if (code < setup->min_keycode || code > setup->max_keycode) continue;
        const xcb_keysym_t* symbols =
            xcb_get_keyboard_mapping_keysyms(mapping.get()) + (code - setup->min_keycode) * count;
        const auto at = static_cast<std::size_t>(key.index);
        KeyPrints prints = printsOf({symbols, count}, layout);
        signs.plain[at] = std::move(prints.plain);
        signs.shifted[at] = std::move(prints.shifted);
    }
    return signs;
}

} // namespace tarvex

#else

namespace tarvex {

KeyPrints printsOf(std::span<const std::uint32_t>, unsigned) { return {}; }

KeyboardSigns readKeyboardSigns() { return {}; }

} // namespace tarvex

#endif

#include "desktop/platform/lock_keys.h"

#include <QGuiApplication>

#if defined(TARVEX_XCB_XKB) && QT_CONFIG(xcb)

#include <QAbstractNativeEventFilter>

#include <xcb/xcb.h>

#include <cstdlib>
#include <string_view>
#include <utility>

// The header is one of C and names a member so.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

namespace tarvex {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Reply = std::unique_ptr<T, Free>;

constexpr xcb_xkb_device_spec_t coreKeyboard = XCB_XKB_ID_USE_CORE_KBD;

xcb_connection_t* connection()
{
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_intern_atom_cookie_t askForAtom(xcb_connection_t* display, std::string_view name)
{
    return xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t atom(xcb_connection_t* display, xcb_intern_atom_cookie_t cookie)
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_xkb_use_extension_cookie_t askForExtension(xcb_connection_t* display)
{
    return xcb_xkb_use_extension(display, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
}

bool isSupported(xcb_connection_t* display, xcb_xkb_use_extension_cookie_t cookie)
{
    const Reply<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(display, cookie, nullptr));
    return reply && reply->supported;
}

/// The names of the keyboard's lights.
struct Lights {
    xcb_atom_t capsLock = XCB_ATOM_NONE;
    xcb_atom_t numLock = XCB_ATOM_NONE;
};

/// Nothing where the display lacks the extension. All requests are on their way before a reply is waited for: the start
/// waits for one round trip in place of three.
std::optional<Lights> findLights(xcb_connection_t* display)
{
    const auto extension = askForExtension(display);
    const auto capsLock = askForAtom(display, "Caps Lock");
    const auto numLock = askForAtom(display, "Num Lock");
    const bool supported = isSupported(display, extension);
    const Lights lights{atom(display, capsLock), atom(display, numLock)}; // no reply stays behind
    if (!supported) return std::nullopt;
    return lights;
}

using Cookie = xcb_xkb_get_named_indicator_cookie_t;

Cookie askForIndicator(xcb_connection_t* display, xcb_atom_t name)
{
    return xcb_xkb_get_named_indicator(display, coreKeyboard, XCB_XKB_LED_CLASS_DFLT_XI_CLASS, XCB_XKB_ID_DFLT_XI_ID,
                                       name);
}

bool isOn(xcb_connection_t* display, Cookie cookie)
{
    const Reply<xcb_xkb_get_named_indicator_reply_t> reply(xcb_xkb_get_named_indicator_reply(display, cookie, nullptr));
    return reply && reply->found && reply->on;
}

LockKeyState askForState(xcb_connection_t* display, const Lights& lights)
{
    const Cookie caps = askForIndicator(display, lights.capsLock); // both are on their way before either is waited for
    const Cookie num = askForIndicator(display, lights.numLock);
    const bool capsIsOn = isOn(display, caps);
    return {capsIsOn, isOn(display, num)};
}

} // namespace

std::optional<LockKeyState> lockKeyState()
{
    xcb_connection_t* display = connection();
    if (display == nullptr) return {};
    const auto lights = findLights(display);
    if (!lights) return {};
    return askForState(display, *lights);
}

bool lockCaps(bool on)
{
    xcb_connection_t* display = connection();
    if (display == nullptr || !isSupported(display, askForExtension(display))) return false;
    constexpr std::uint8_t lock = XCB_MOD_MASK_LOCK;
    xcb_xkb_latch_lock_state(display, coreKeyboard, lock, on ? lock : std::uint8_t{0}, 0, 0, 0, 0, 0);
    xcb_flush(display);
    return true;
}

/// Follows the keyboard's lights, which are the same for all programs, with or without the keyboard.
class LockKeys::Watch : public QAbstractNativeEventFilter {
public:
    Watch(xcb_connection_t* display, std::function<void(LockKeyState)> changed)
        : m_display(display), m_changed(std::move(changed))
    {
        const xcb_query_extension_reply_t* extension = xcb_get_extension_data(display, &xcb_xkb_id);
        if (extension == nullptr || !extension->present) return;
        const auto lights = findLights(display);
        if (!lights) return;
        m_event = extension->first_event;
        m_lights = *lights;
        constexpr std::uint16_t wanted = XCB_XKB_EVENT_TYPE_INDICATOR_STATE_NOTIFY;
        xcb_xkb_select_events(display, coreKeyboard, wanted, 0, wanted, 0, 0, nullptr);
        qApp->installNativeEventFilter(this);
        report();
    }
    ~Watch() override { qApp->removeNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* event = static_cast<const xcb_xkb_indicator_state_notify_event_t*>(message);
        constexpr int sentByProgram = 0x80;
        if ((event->response_type & ~sentByProgram) == m_event && event->xkbType == XCB_XKB_INDICATOR_STATE_NOTIFY)
            report();
        return false;
    }

private:
    void report() { m_changed(askForState(m_display, m_lights)); }

    xcb_connection_t* m_display;
    std::function<void(LockKeyState)> m_changed;
    int m_event = -1;
    Lights m_lights;
};

LockKeys::LockKeys(std::function<void(LockKeyState)> changed)
{
    if (xcb_connection_t* display = connection()) m_watch = std::make_unique<Watch>(display, std::move(changed));
}

} // namespace tarvex

#else

namespace tarvex {

class LockKeys::Watch {};

std::optional<LockKeyState> lockKeyState() { return {}; }

bool lockCaps(bool) { return false; }

LockKeys::LockKeys(std::function<void(LockKeyState)>) {}

} // namespace tarvex

#endif

namespace tarvex {

LockKeys::~LockKeys() = default;

} // namespace tarvex

#include "desktop/platform/native_keys.h"

#include "safein/keys/key_table.h"

#include <array>
#include <sstream>

namespace tarvex {

namespace {

/// Keys that follow each other in the numbering of Linux, by name.
struct Run {
    quint32 first;
    const char* names;
};
constexpr Run runs[] = {
    {1, "ESC 1 2 3 4 5 6 7 8 9 0 - = BSP TAB q w e r t y u i o p [ ] ENT LCTL a s d f g h j k l ; ' ` LSFT \\ z x c v "
        "b n m , . / RSFT KP* LALT SPC CAPS F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 NUML SCRLCK KP7 KP8 KP9 KP- KP4 KP5 KP6 KP+ "
        "KP1 KP2 KP3 KP0 KP."},
    {87, "F11 F12"},
    {96, "KPENT RCTL KP/ Prt RALT"},
    {102, "HOME UAROW PGUP LAROW RAROW END DAROW PGDN INS DEL"},
    {119, "Brk"},
};
constexpr quint32 windowSystemOffset = 8; // X11 numbers keys from 8
constexpr std::size_t codes = 256;

std::array<int, codes> makeTable()
{
    std::array<int, codes> table{};
    table.fill(-1);
    for (const Run& run : runs) {
        std::istringstream names(run.names);
        std::size_t code = run.first + windowSystemOffset;
        for (std::string name; names >> name; ++code) table[code] = keyNamed(name)->index;
    }
    return table;
}

const std::array<int, codes>& table()
{
    static const std::array<int, codes> made = makeTable();
    return made;
}

} // namespace

int keyOfNativeCode(quint32 scanCode) { return scanCode < codes ? table()[scanCode] : -1; }

bool isThirdSignHeld(quint32 nativeModifiers)
{
    constexpr quint32 mod5 = 0x80; // where all layouts of X11 have it
    return (nativeModifiers & mod5) != 0;
}

quint32 nativeCodeOf(int index)
{
    for (quint32 code = 0; code < codes; ++code)
        if (index >= 0 && table()[code] == index) return code;
    return 0;
}

} // namespace tarvex

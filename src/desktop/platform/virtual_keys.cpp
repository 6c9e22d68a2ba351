#include "desktop/platform/virtual_keys.h"

#include "desktop/input.h"
#include "platform/input.h"
#include "platform/windows1252.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace tarvex {

namespace {

struct KeyNumber {
    int key; // Qt's
    int number;
};

/// Windows reports Enter of the numeric pad as 13, and Print Screen as 44. Here they have the numbers that the key
/// names know: 108 and 42.
constexpr KeyNumber named[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},   {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},   {Qt::Key_Enter, 108}, {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},  {Qt::Key_Meta, 91},     {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27}, {Qt::Key_Space, 32},    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},    {Qt::Key_Home, 36},     {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},     {Qt::Key_Print, 42},
    {Qt::Key_SysReq, 42},   {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},   {Qt::Key_Super_L, 91},
    {Qt::Key_Super_R, 92},  {Qt::Key_Menu, 93},   {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
};

/// Signs that stand on the same key of UK and US keyboards, with and without Shift.
constexpr KeyNumber signs[] = {
    {Qt::Key_Semicolon, 186},  {Qt::Key_Colon, 186},        {Qt::Key_Equal, 187},      {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},         {Qt::Key_Minus, 189},      {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},     {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},
    {Qt::Key_Apostrophe, 192}, {Qt::Key_BracketLeft, 219},  {Qt::Key_BraceLeft, 219},  {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},        {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221}, {Qt::Key_NumberSign, 222},
    {Qt::Key_QuoteLeft, 223},
};

constexpr KeyNumber keypadSigns[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

/// By the place of the key, as the kernel numbers it: what only the layout of a UK keyboard says.
constexpr KeyNumber places[] = {{12, 189}, {13, 187}, {26, 219}, {27, 221}, {39, 186}, {40, 192},
                                {41, 223}, {43, 222}, {51, 188}, {52, 190}, {53, 191}, {86, 220}};

constexpr int windowSystemOffset = 8; // X11 numbers keys from 8

template <std::size_t size> int numberIn(const KeyNumber (&table)[size], int key)
{
    const auto row = std::ranges::find(table, key, &KeyNumber::key);
    return row == std::end(table) ? 0 : row->number;
}

int keypadNumber(int key)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + key - Qt::Key_0;
    return numberIn(keypadSigns, key);
}

/// The row of digits; a layout may write other characters with it.
int digitAt(int place)
{
    constexpr int one = 2; // as the kernel numbers keys
    constexpr int zero = 11;
    if (place == zero) return '0';
    return place >= one && place < zero ? '1' + place - one : 0;
}

} // namespace

int virtualKeyOf(const QKeyEvent& event)
{
    const int key = event.key();
    if ((event.modifiers() & Qt::KeypadModifier) != 0) {
        if (const int number = keypadNumber(key); number != 0) return number;
    }
    if (const int number = numberIn(named, key); number != 0) return number;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + key - Qt::Key_F1;
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key; // as in ASCII
    const int place = static_cast<int>(event.nativeScanCode()) - windowSystemOffset;
    if (const int digit = digitAt(place); digit != 0) return digit;
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
    if (const int number = numberIn(signs, key); number != 0) return number;
    return numberIn(places, place);
}

int heldWith(const QKeyEvent& event)
{
    const int key = virtualKeyOf(event);
    const int own = key == 16 ? shiftKey::shift : key == 17 ? shiftKey::ctrl : key == 18 ? shiftKey::alt : 0;
    const int held = toLogic(event.modifiers());
    return event.type() == QEvent::KeyPress ? held | own : held & ~own;
}

int characterOf(const QKeyEvent& event)
{
    if (event.text().isEmpty()) return 0;
    const int character = windows1252FromUnicode(event.text().toUcs4().front());
    return character < 0 ? '?' : character;
}

} // namespace tarvex

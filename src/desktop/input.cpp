#include "desktop/input.h"

namespace tarvex {

int toLogic(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? mouseButton::left : 0) |
           (buttons.testFlag(Qt::RightButton) ? mouseButton::right : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? mouseButton::middle : 0);
}

int toLogic(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftKey::shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? shiftKey::ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? shiftKey::alt : 0);
}

} // namespace tarvex

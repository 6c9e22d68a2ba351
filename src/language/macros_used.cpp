#include "language/macros_used.h"

namespace tarvex {

const std::string_view nothingToIdentify =
    "Oh come off it ... what's there to analyse? You think I'm some kind of slave that you can just push around ... "
    "well no .... computers have feelings you know ... you keep turning me on, and then turning me off ... how would "
    "you like it? !!! Next time I'm going to analyse you instead of these damn files ...";

bool canIdentify(const Pane& joystick, const Pane& macros)
{
    return joystick.Text().find('e') != std::string::npos && macros.TextLength() != 0;
}

bool isMacroUsed(Pane& text, std::string_view name)
{
    const auto end = static_cast<std::int64_t>(text.TextLength());
    for (std::int64_t start = 0; text.Find(name, start, end, find::wholeWord) >= 0;) {
        start = text.SelStart() + text.SelLength();
        text.setSelStart(start);
        text.setSelLength(2);
        const std::string next = text.SelText();
        if (next.starts_with(' ') || next == "\r\n") return true;
    }
    return false;
}

} // namespace tarvex

#pragma once

#include "documents/text/pane.h"

#include <string>

namespace tarvex::benchmarks {

/// About `size` characters of a joystick file.
inline std::string joystickText(std::size_t size)
{
    std::string text;
    for (int i = 0; text.size() < size; ++i) {
        const std::string number = std::to_string(i % 48 + 1);
        text += "BTN X" + number + " /I Chaff_" + number + " /O RAW (#F0 #5B) DLY(60)\r\n";
        if (i % 8 == 0) text += "Rem         buttons of row " + number + "\r\n";
    }
    text.resize(text.rfind("\r\n", size) + 2);
    return text;
}

/// Gives a pane such a text with about one colour run for every ten characters.
inline void fillColoured(Pane& pane, std::size_t size)
{
    pane.setText(joystickText(size));
    for (std::int64_t at = 0; at + 10 < static_cast<std::int64_t>(size); at += 20) {
        pane.setSelStart(at);
        pane.setSelLength(10);
        pane.setSelColor(static_cast<Colour>(at % 3 * 100 + 50));
    }
    pane.setSelStart(0);
}

} // namespace tarvex::benchmarks

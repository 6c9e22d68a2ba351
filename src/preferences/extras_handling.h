#pragma once

#include "platform/text.h"
#include "preferences/extras_page.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tarvex {

// What the parts of the page "Extras" share.

/// Without blanks around it.
inline std::string trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    return std::string(text.substr(start, text.find_last_not_of(blanks) + 1 - start));
}

/// Runs what a control of the page does; a failure is reported under `tag`.
template <typename Work> void handle(ExtrasPage& page, std::string_view tag, Work work)
{
    const Steps step(page.editor.shared.errors, tag);
    step(work);
}

inline Machine& machineOf(ExtrasPage& page) { return page.editor.platform.machine; }

inline void say(ExtrasPage& page, const std::string& text)
{
    page.editor.platform.dialogues.show(
        {.title = "Hmmm...let me think...", .text = text, .icon = BoxIcon::Exclamation});
}

} // namespace tarvex

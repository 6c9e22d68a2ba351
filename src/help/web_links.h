#pragma once

#include "documents/pair/editor.h"
#include "platform/help_system.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

constexpr std::size_t webLinkCount = 5;

/// The addresses of the Internet entries when there is no Website.txt. "file:" and the name of a page is a page of the
/// installed handbook.
extern const std::array<std::string_view, webLinkCount> builtInAddresses;

/// The address to open for a line of Website.txt: one of http or https that names a host, or the browser's address of a
/// page of the handbook. Nothing for any other line: it may come from anywhere, and the system would run what it names.
std::optional<std::string> openableAddress(HelpSystem& system, std::string_view line);

/// Opens the address of an entry, from 0 in menu order.
void mnuWebTarvex_Click(Editor& editor, HelpSystem& system, int Index);

} // namespace tarvex

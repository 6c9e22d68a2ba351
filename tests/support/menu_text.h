#pragma once

#include "shell/menus.h"

#include <string>

namespace tarvex {

/// Captions and keys of a menu, one entry a line, those of a menu inside it further in; "-" is a divider.
inline std::string menuText(const std::vector<MenuEntry>& entries, const std::string& indent = "")
{
    std::string text;
    for (const MenuEntry& entry : entries) {
        if (entry.array != nullptr) {
            for (int i = 0; i <= entry.array->UBound(); ++i) text += indent + (*entry.array)[i].Caption.get() + "\n";
        } else if (entry.item == nullptr) {
            text += indent + "-\n";
        } else {
            text += indent + entry.item->Caption.get() + (entry.keys.empty() ? "" : ": " + entry.keys) + "\n";
            text += menuText(entry.entries, indent + " ");
        }
    }
    return text;
}

} // namespace tarvex

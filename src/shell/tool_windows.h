#pragma once

#include "platform/controls.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A window of the program beside the frame.
struct ToolWindow {
    std::string name; ///< the form's name, e.g. "FindAndReplace"
    Form* form;
    /// 1 while the window is loaded; none for a window that keeps no such flag, which then isn't minimised with others.
    const std::int16_t* openFlag = nullptr;
    std::function<void()> unload = {}; ///< takes the window down; none: it is hidden
    std::function<void()> show = {};   ///< none: no command of another unit shows it
};

/// The windows that go with the frame. Each unit that has one adds a row for it; forms and flags outlive this.
class ToolWindows {
public:
    void add(ToolWindow window) { m_windows.push_back(std::move(window)); }

    bool canShow(std::string_view name) const;
    /// Shows a window; nothing happens for a name that can't be shown.
    void show(std::string_view name) const;
    /// Takes a window down; nothing happens for a name that isn't there.
    void unload(std::string_view name) const;
    /// Minimises the windows whose open flag is 1, and keeps in mind which.
    void minimiseAll();
    /// Brings back the windows that minimiseAll minimised, as they were, unless they were closed meanwhile.
    void restoreAll();

private:
    struct Minimised {
        std::size_t index; ///< in m_windows
        WindowState before;
    };
    bool isOpen(const ToolWindow& window) const { return window.openFlag != nullptr && *window.openFlag == 1; }

    std::vector<ToolWindow> m_windows;
    std::vector<Minimised> m_minimised;
};

} // namespace tarvex

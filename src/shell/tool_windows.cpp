#include "shell/tool_windows.h"

#include <algorithm>
#include <utility>

namespace tarvex {

bool ToolWindows::canShow(std::string_view name) const
{
    const auto window = std::ranges::find(m_windows, name, &ToolWindow::name);
    return window != m_windows.end() && window->show;
}

void ToolWindows::show(std::string_view name) const
{
    if (canShow(name)) std::ranges::find(m_windows, name, &ToolWindow::name)->show();
}

void ToolWindows::unload(std::string_view name) const
{
    const auto window = std::ranges::find(m_windows, name, &ToolWindow::name);
    if (window == m_windows.end()) return;
    if (window->unload) {
        window->unload();
    } else {
        window->form->Visible = false;
    }
}

/// A window that the user had minimised already is left for him to bring back.
void ToolWindows::minimiseAll()
{
    for (std::size_t index = 0; index < m_windows.size(); ++index) {
        Form& form = *m_windows[index].form;
        if (!isOpen(m_windows[index]) || form.State == WindowState::Minimised) continue;
        m_minimised.push_back({index, form.State});
        form.State = WindowState::Minimised;
    }
}

void ToolWindows::restoreAll()
{
    for (const Minimised& minimised : std::exchange(m_minimised, {})) {
        if (isOpen(m_windows[minimised.index])) m_windows[minimised.index].form->State = minimised.before;
    }
}

} // namespace tarvex

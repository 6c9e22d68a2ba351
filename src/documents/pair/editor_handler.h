#pragma once

#include "documents/pair/editor.h"

#include <functional>

namespace tarvex {

/// A command of the editor as the handler of its menu item.
template <typename Work> std::function<void()> on(Editor& editor, Work work)
{
    return [&editor, work] { work(editor); };
}

} // namespace tarvex

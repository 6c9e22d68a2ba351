#pragma once

#include <functional>

namespace tarvex {

/// A procedure and what it works on, as the handler of a menu item, a button or an operation.
template <typename Subject, typename Work> std::function<void()> on(Subject& subject, Work work)
{
    return [&subject, work] { work(subject); };
}

/// The same for the items of an array: the procedure is given the item's index, too.
template <typename Subject, typename Work> std::function<void(int)> onItem(Subject& subject, Work work)
{
    return [&subject, work](int index) { work(subject, index); };
}

} // namespace tarvex

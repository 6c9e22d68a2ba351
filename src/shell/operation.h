#pragma once

#include <functional>
#include <utility>

namespace tarvex {

/// An operation that one unit offers and another, which must not know that unit, calls. The unit that does the work
/// assigns it; until then, calling it does nothing.
template <typename... Args> class Operation {
public:
    template <typename Work> Operation& operator=(Work work)
    {
        m_work = std::move(work);
        return *this;
    }
    /// Whether anybody does the work.
    explicit operator bool() const { return m_work != nullptr; }
    void operator()(Args... args) const
    {
        if (m_work) m_work(args...);
    }

private:
    std::function<void(Args...)> m_work;
};

} // namespace tarvex

#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tarvex {

/// Keeps one listener of a signal registered; the listener is gone when this is destroyed.
/// It may outlive the signal.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> listener) : m_listener(std::move(listener)) {}
    void disconnect() { m_listener.reset(); }

private:
    std::shared_ptr<void> m_listener;
};

/// Notifies any number of listeners, in the order in which they were connected. Listeners may connect, disconnect and
/// emit again while they run; one that is connected meanwhile runs from the next emission on. The signal itself
/// must live until its emission returns. Costs one pointer while nobody listens.
template <typename... Args> class Signal {
public:
    using Listener = std::function<void(Args...)>;

    [[nodiscard]] Connection connect(Listener listener)
    {
        auto kept = std::make_shared<Listener>(std::move(listener));
        if (!m_listeners) m_listeners = std::make_unique<List>();
        std::erase_if(*m_listeners, [](const auto& weak) { return weak.expired(); });
        m_listeners->push_back(kept);
        return Connection(std::move(kept));
    }

    void operator()(Args... args) const
    {
        if (!m_listeners) return;
        const List called = *m_listeners;
        for (const auto& weak : called) {
            if (const auto listener = weak.lock()) (*listener)(args...);
        }
    }

private:
    using List = std::vector<std::weak_ptr<Listener>>;
    std::unique_ptr<List> m_listeners;
};

/// A value that reports its changes. Assigning an equal value notifies nobody.
template <typename T> class Property {
public:
    Property() = default;
    Property(T value) : m_value(std::move(value)) {} // NOLINT: reads as the value it holds
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    const T& get() const { return m_value; }
    operator const T&() const { return m_value; } // NOLINT: reads as the value it holds

    Property& operator=(T value)
    {
        if (m_value == value) return *this;
        m_value = std::move(value);
        changed();
        return *this;
    }

    friend bool operator==(const Property& property, const T& value) { return property.m_value == value; }

    Signal<> changed;

private:
    T m_value{};
};

} // namespace tarvex

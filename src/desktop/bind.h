#pragma once

#include "desktop/text.h"
#include "platform/controls.h"

#include <utility>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QObject;
class QProgressBar;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace tarvex {

/// Name of the objects that run the logic's timers.
inline constexpr char tickName[] = "Tick";

/// Keeps widgets equal to control state for as long as it lives. A view has one and lets it go before its widgets.
class Bindings {
public:
    /// Shows the value now and after each change.
    template <typename T, typename Show> void bind(Property<T>& property, Show show)
    {
        show(property.get());
        m_connections.push_back(property.changed.connect([&property, show] { show(property.get()); }));
    }
    /// Runs `react` each time the property changes or the signal is given.
    template <typename T, typename React> void follow(Property<T>& property, React react)
    {
        m_connections.push_back(property.changed.connect(std::move(react)));
    }
    template <typename... Args, typename React> void follow(Signal<Args...>& signal, React react)
    {
        m_connections.push_back(signal.connect(std::move(react)));
    }

    /// Caption, enabling, visibility and tool tip; a click of the user runs Click.
    void button(Button& state, QAbstractButton& widget);
    /// Items, text and tool tip; a choice of the user sets Text and runs Click. In an editable one what the user writes
    /// is Text.
    void comboBox(ComboBox& state, QComboBox& widget);
    /// Text both ways, enabling and tool tip.
    void textBox(TextBox& state, QLineEdit& widget);
    /// Caption and tick; a click of the user sets Value and runs Click.
    void checkBox(CheckBox& state, QCheckBox& widget);
    /// Caption, choice and tool tip; a click of the user runs Click.
    void optionButton(OptionButton& state, QRadioButton& widget);
    /// Captions, and the tab in front both ways; the widget has its pages already.
    void tabs(TabStrip& state, QTabWidget& widget);
    /// Captions, enabling and visibility of the pages, and the page in front; a choice of the user runs Click.
    void pages(SSTab& state, QTabWidget& widget);
    /// What runs the Click of a list: choosing an entry in any way, or only a mouse click or the Return key on it.
    enum class Runs { OnChoice, OnClickOrReturn };
    /// Items, choice, enabling, visibility and tool tip; a choice of the user sets ListIndex.
    void listBox(ListBox& state, QListWidget& widget, Runs runs = Runs::OnChoice);
    void progressBar(ProgressBar& state, QProgressBar& widget);
    /// Runs Tick at its interval while it is enabled. `owner` owns the clockwork and bounds its life.
    void timer(Timer& state, QObject& owner);

private:
    void focus(Focusable& state, QWidget& widget);
    void editableComboBox(ComboBox& state, QComboBox& widget);

    std::vector<Connection> m_connections;
};

} // namespace tarvex

#pragma once

#include "platform/signal.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Windows are state: the logic reads and sets the members below, a view shows them and reports what the user
// does. Property and control names are the ones that the program's texts, settings and tests use. Texts are UTF-8;
// "&" in a caption marks the access key. Positions and sizes are in twips (1/1440 inch) unless stated otherwise.

namespace tarvex {

/// Twips in one pixel of a 96 dpi screen.
constexpr int twipsPerPixel = 15;

/// A colour as the settings keep it: 0x00BBGGRR, so 255 is red.
using Colour = std::int32_t;

/// A rectangle inside a window, in pixels.
struct Placement {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const Placement&) const = default;
};

struct MenuItem {
    explicit MenuItem(std::string name, std::string caption = {}) : Name(std::move(name)), Caption(std::move(caption))
    {
    }

    const std::string Name; ///< the name in the program and in its tests, e.g. "mnuFileOpen"
    Property<std::string> Caption;
    Property<bool> Enabled = true;
    Property<bool> Visible = true;
    Property<bool> Checked = false;
    std::function<void()> handler; ///< set by the owner of the command; none while the command isn't there

    /// Runs the command as a call of the program does, whatever Enabled says. No handler: nothing happens.
    void Click() const
    {
        if (handler) handler();
    }
};

/// Items of one name, distinguished by their index from 0. User lists have a pattern at 0, which stands in for
/// an empty list, and their entries from 1.
class MenuArray {
public:
    /// Starts with one item for each caption.
    MenuArray(std::string name, std::initializer_list<const char*> captions) : Name(std::move(name))
    {
        for (const char* caption : captions) Load(static_cast<int>(m_items.size()))->Caption = caption;
    }

    const std::string Name;   ///< e.g. "mnuJFArray"; the item at 3 has the name "mnuJFArray(3)"
    Signal<> changed;         ///< an item was loaded or unloaded
    bool plain = false;       ///< captions are the user's own texts: "&" stands for itself
    bool hidesBlanks = false; ///< an item without a caption, as a damaged list has it, is not to be seen

    /// What a click of an item runs, with the item's index.
    void setHandler(std::function<void(int)> handler)
    {
        m_handler = std::move(handler);
        for (int index = 0; index <= UBound(); ++index) (*this)[index].handler = [this, index] { m_handler(index); };
    }

    /// Throws std::out_of_range for an index that isn't loaded.
    MenuItem& operator[](int index) { return m_items.at(static_cast<std::size_t>(index)); }
    /// Index of the last item.
    int UBound() const { return static_cast<int>(m_items.size()) - 1; }

    /// Makes the next item; throws std::out_of_range for another index. The new item is visible.
    MenuItem* Load(int index)
    {
        if (index != UBound() + 1) throw std::out_of_range(Name);
        MenuItem& item = m_items.emplace_back(Name + "(" + std::to_string(index) + ")");
        if (m_handler) item.handler = [this, index] { m_handler(index); };
        changed();
        return &item;
    }
    /// Removes the last item; throws std::out_of_range for another index, and for the pattern.
    void Unload(int index)
    {
        if (index != UBound() || index == 0) throw std::out_of_range(Name);
        m_items.pop_back();
        changed();
    }

private:
    std::deque<MenuItem> m_items;
    std::function<void(int)> m_handler;
};

/// What can have the keyboard.
struct Focusable {
    Signal<> focusWanted;
    void SetFocus() const { focusWanted(); }
};

struct Button : Focusable {
    Property<std::string> Caption;
    Property<bool> Enabled = true;
    Property<bool> Visible = true;
    Property<std::string> ToolTipText;
    std::function<void()> handler;
    void Click() const
    {
        if (handler) handler();
    }
};

/// A line of text that the user writes.
struct TextBox : Focusable {
    Property<std::string> Text;
    Signal<> selectAllWanted;
    void SelectAll() const { selectAllWanted(); }
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    Property<bool> Enabled = true;
    Property<std::string> ToolTipText;
};

struct Label {
    Property<std::string> Caption;
};

/// The user's tick is in Value when Click runs.
struct CheckBox {
    Property<std::string> Caption;
    Property<bool> Value = false;
    Property<bool> Enabled = true;
    Property<std::string> ToolTipText;
    std::function<void()> Click;
};

/// One of several of which one is chosen. The user's choice only runs Click, which gives all of them their values.
struct OptionButton {
    Property<std::string> Caption;
    Property<bool> Value = false;
    Property<std::string> ToolTipText;
    std::function<void()> Click;
};

struct ComboBox : Focusable {
    Property<std::vector<std::string>> Items;
    Property<std::string> Text;  ///< the text shown: one of Items, or where the view lets the user write, any
    std::function<void()> Click; ///< the user chose an item
    Property<std::string> ToolTipText;
    Signal<> selectAllWanted;
    void SelectAll() const { selectAllWanted(); }
};

/// A list of which one entry can be chosen. The user's choice is in ListIndex when Click runs.
struct ListBox : Focusable {
    Property<std::vector<std::string>> Items;
    Property<int> ListIndex = -1; ///< from 0; -1: none
    Property<bool> Enabled = true;
    Property<bool> Visible = true;
    Property<std::string> ToolTipText;
    std::function<void()> Click;
};

struct CheckListBox {
    struct Item {
        std::string Text;
        bool Selected = false; ///< the tick
        bool operator==(const Item&) const = default;
    };
    Property<std::vector<Item>> Items;
    Property<int> ListIndex = -1; ///< from 0; -1: none
    Property<bool> Visible = true;
    Property<std::string> ToolTipText;
};

/// A row of tabs, numbered from 1.
class TabStrip {
public:
    struct Tab {
        Property<std::string> Caption;
        Property<int> Image = 0; ///< index in the tab images; 0: no image
    };
    explicit TabStrip(int count) : m_tabs(static_cast<std::size_t>(count)) {}

    Tab& Tabs(int index) { return m_tabs.at(static_cast<std::size_t>(index - 1)); }
    int Count() const { return static_cast<int>(m_tabs.size()); }

    Property<int> SelectedItem = 1;
    std::function<void()> Click; ///< runs after each selection, by the user or by the program

    /// Selects a tab and runs Click, also when it was selected already.
    void Select(int index)
    {
        SelectedItem = index;
        if (Click) Click();
    }

private:
    std::deque<Tab> m_tabs;
};

/// The pages of a dialogue under their tabs, numbered from 0.
class SSTab {
public:
    struct Page {
        Property<std::string> Caption;
        Property<bool> Visible = true;
        Property<bool> Enabled = true; ///< a page that isn't can't be chosen by the user
    };
    SSTab(std::initializer_list<const char*> captions)
    {
        for (const char* caption : captions) m_pages.emplace_back().Caption = caption;
    }

    /// Throws std::out_of_range for a page that there isn't.
    Page& Pages(int index) { return m_pages.at(static_cast<std::size_t>(index)); }
    int Count() const { return static_cast<int>(m_pages.size()); }

    Property<int> Tab = 0;       ///< the page that is shown
    std::function<void()> Click; ///< the user chose a page, which is in Tab

private:
    std::deque<Page> m_pages;
};

/// Panels are numbered from 1.
class StatusBar {
public:
    struct Panel {
        Property<std::string> Text;
        Property<int> Picture = 0; ///< index in the status images; 0: no image
        Property<std::string> ToolTipText;
        Property<bool> Enabled = true; ///< a disabled panel shows its text greyed
    };
    explicit StatusBar(int count) : m_panels(static_cast<std::size_t>(count)) {}

    Panel& Panels(int index) { return m_panels.at(static_cast<std::size_t>(index - 1)); }
    const Panel& Panels(int index) const { return m_panels.at(static_cast<std::size_t>(index - 1)); }
    int Count() const { return static_cast<int>(m_panels.size()); }

private:
    std::deque<Panel> m_panels;
};

struct ProgressBar {
    Property<int> Min = 0;
    Property<int> Max = 100;
    Property<int> Value = 0;
    Property<bool> Visible = false;
};

/// Buttons are numbered from 1; separators count.
class ToolBar {
public:
    struct Slot : Button {
        Placement Place; ///< inside the bar, set by the view; empty while the button is hidden
    };
    explicit ToolBar(int count) : m_buttons(static_cast<std::size_t>(count)) {}

    /// Throws std::out_of_range for a number that the bar doesn't have.
    Slot& Buttons(int index) { return m_buttons.at(static_cast<std::size_t>(index - 1)); }
    int Count() const { return static_cast<int>(m_buttons.size()); }
    /// Asks the view to show the commands of all buttons anew.
    void Refresh() { refreshWanted(); }
    Signal<> refreshWanted;

    Property<bool> Visible = false;
    Property<bool> Wrappable = false; ///< what has no room goes into further rows
    Property<bool> Flat = false;

private:
    std::deque<Slot> m_buttons;
};

/// Interval in milliseconds. The code that runs the timers calls Tick while Enabled.
struct Timer {
    explicit Timer(int interval) : Interval(interval) {}
    Property<int> Interval;
    Property<bool> Enabled = false;
    std::function<void()> Tick;
};

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// A top-level window.
struct Form {
    Property<std::string> Caption;
    Property<bool> Visible = false;
    Property<bool> TopMost = false; ///< stays before all other windows
    std::function<void()> Close;    ///< the user closes it by its frame or by Esc; none: it is hidden
    Property<WindowState> State = WindowState::Normal;
    Property<float> Left = 0.0F;
    Property<float> Top = 0.0F;
    Property<float> Width = 0.0F;
    Property<float> Height = 0.0F;
    Signal<> frontWanted;

    /// Shows the window before the program's others, with the keyboard.
    void Show()
    {
        if (State == WindowState::Minimised) State = WindowState::Normal;
        Visible = true;
        frontWanted();
    }
};

} // namespace tarvex

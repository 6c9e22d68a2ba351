#include "composer/insert_options.h"

#include <algorithm>
#include <charconv>

namespace tarvex {

namespace {

// The size of the window as it was drawn, twips.
constexpr float firstWidth = 980.0F * twipsPerPixel;
constexpr float firstHeight = 720.0F * twipsPerPixel;
constexpr float leastWidth = 900.0F * twipsPerPixel; // about what its pages need
constexpr float partOfScreen = 0.625F;

/// The index of an id like "BTN(12)" of an array; nothing for another array.
std::optional<std::size_t> indexIn(std::string_view id, std::string_view array)
{
    if (!id.starts_with(array) || !id.ends_with(')')) return std::nullopt;
    id.remove_prefix(array.size());
    if (!id.starts_with('(')) return std::nullopt;
    std::size_t index = 0;
    const auto read = std::from_chars(id.data() + 1, id.data() + id.size() - 1, index);
    if (read.ec != std::errc() || read.ptr != id.data() + id.size() - 1) return std::nullopt;
    return index;
}

template <typename Buttons> Button* at(Buttons& buttons, std::optional<std::size_t> index)
{
    return index && *index < buttons.size() ? &buttons[*index] : nullptr;
}

} // namespace

FlagTab::FlagTab(const std::shared_ptr<FormatTable>& formats)
{
    for (std::size_t i = 0; i < count; ++i) {
        OptionFlag[i].Caption = "X" + std::to_string(i + 1);
        RichTexFlag.emplace_back(formats);
    }
}

InsertOptions::InsertOptions(Editor& theEditor)
    : editor(theEditor), form("InsertOptions", &ComposerOpen), flags(theEditor.formats), templates(theEditor.formats)
{
    form.Caption = "Composer - to ease your programming somewhat !!!";
    form.Width = composerWidth(theEditor.platform.desktop.screenWidth());
    form.Height = firstHeight;
}

float composerWidth(float screenWidth) { return std::clamp(screenWidth * partOfScreen, leastWidth, firstWidth); }

std::vector<MenuEntry> InsertOptions::hatMenu()
{
    return {
        {nullptr, {}, {}, &MnuHatPostion}, {&mnuHatDivider, {}, {}, nullptr}, {nullptr, {}, {}, &MnuHatCornerPostion}};
}

std::vector<MenuEntry> InsertOptions::triggerMenu() { return {{nullptr, {}, {}, &mnuTrig}}; }

std::vector<MenuEntry> InsertOptions::portMenu() { return {{nullptr, {}, {}, &mnuPort}}; }

std::vector<MenuEntry> InsertOptions::macroMenu()
{
    return {{&mnuRHListInsert, {}, {}, nullptr},
            {&mnuFindInJoyFile, {}, {}, nullptr},
            {},
            {&mnuRHListEdit, {}, {}, nullptr}};
}

std::vector<MenuEntry> InsertOptions::templateMenu()
{
    const std::vector<MenuEntry> files{{&mnuJoystick, {}, {}, nullptr}, {&mnuMacrofile, {}, {}, nullptr}};
    return {{&mnuInsertInto, {}, files, nullptr}, {}, {&mnuQuickie, {}, {}, nullptr}};
}

Button* controlButton(InsertOptions& window, std::string_view id)
{
    if (id == "TRIG") return &window.TRIG;
    if (Button* button = at(window.BTN, indexIn(id, "BTN"))) return button;
    if (Button* hat = at(window.HAT, indexIn(id, "HAT"))) return hat;
    return at(window.ROTARY, indexIn(id, "ROTARY"));
}

} // namespace tarvex

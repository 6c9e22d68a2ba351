#include "documents/pair/colour_selector_state.h"

namespace tarvex {

namespace {

constexpr ColourChoice choices[] = {
    {"Black", nullptr},
    {"Rem", &Settings::RemStatements},
    {"Misc", &Settings::MiscellaneousColour},
    {"Raw, Dly", &Settings::RAWColour},
    {"Slash", &Settings::SlashColour},
    {"Buttons", &Settings::BTNColour},
};
static_assert(std::size(choices) == ColourSelector::count);

} // namespace

std::span<const ColourChoice, ColourSelector::count> colourChoices() { return choices; }

ColourSelector::ColourSelector()
{
    for (std::size_t index = 0; index < count; ++index) Command1[index].Caption = choices[index].caption;
}

} // namespace tarvex

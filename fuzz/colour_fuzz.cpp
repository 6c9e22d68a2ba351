#include "language/pass_runner.h"

#include <array>
#include <cstdint>
#include <cstdlib>

// Any bytes are coloured by any list of passes: the text stays, the run comes to its end, and a second run over the
// first one's colours changes nothing. The first byte chooses the list, and whether blanks come before the rest, so
// that positions beyond 16 bits are reached too.

namespace {

using namespace tarvex;

Settings scheme()
{
    Settings settings;
    settings.BTNColour = 1;
    settings.SlashColour = 2;
    settings.RAWColour = 3;
    settings.MiscellaneousColour = 4;
    settings.RemStatements = 5;
    return settings;
}

void colour(Pane& pane, std::span<const ColourPass> passes)
{
    static const Settings settings = scheme();
    pane.setSelStart(0);
    pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
    pane.setSelColor(0);
    float position = 0;
    std::size_t holds = 0;
    runPasses({pane, settings, position, Steps(), nullptr,
               [&](const Hold& hold) {
                   if (hold.isFirstOfRun != (holds == 0) || hold.line < 1 || hold.line > pane.lineCount()) std::abort();
                   ++holds;
               }},
              passes);
    if (holds > passes.size()) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const auto lists = {joystickPasses(), macroPasses(), templatePasses(), safeinTransferPasses(),
                        macroTransferPasses()};
    constexpr std::array<std::size_t, 8> blanks{0, 0, 0, 0, 0, 0, 32'700, 65'500};
    const auto passes = lists.begin()[data[0] % lists.size()];
    Pane pane;
    pane.setText(std::string(blanks[data[0] / 32], ' ') +
                 std::string(reinterpret_cast<const char*>(data + 1), size - 1));
    const std::string before = pane.Text();
    colour(pane, passes);
    const RichText first = pane.TextRTF();
    colour(pane, passes);
    if (pane.Text() != before || !(pane.TextRTF() == first)) std::abort();
    return 0;
}

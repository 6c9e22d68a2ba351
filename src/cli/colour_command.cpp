#include "cli/colour_command.h"

#include "cli/colour_output.h"
#include "cli/input.h"
#include "cli/scheme.h"
#include "documents/text/rtf/rtf.h"
#include "language/associated_files.h"
#include "language/base_format.h"
#include "language/pass_runner.h"
#include "platform/windows1252.h"

#include <cstdio>

#include <unistd.h>

namespace tarvex::cli {

namespace {

std::span<const ColourPass> passesFor(const ColourOptions& options)
{
    if (options.as == "template") return templatePasses();
    if (options.as == "macro") return macroPasses();
    if (options.as.empty() && kindOfFile(lowerUtf8(options.file)) == FileKind::Macro) return macroPasses();
    return joystickPasses();
}

std::vector<HeldPass> paint(Pane& pane, const Settings& scheme, std::span<const ColourPass> passes)
{
    std::vector<HeldPass> held;
    writeBaseFormat(pane, scheme, 0);
    float position = 0;
    const auto keep = [&](const Hold& hold) { held.push_back({std::string(hold.word), hold.line}); };
    runPasses({pane, scheme, position, Steps(), nullptr, keep}, passes);
    return held;
}

std::string inForm(const ColourOptions& options, const ColouredText& text)
{
    switch (options.form) {
    case ColourForm::Ansi:
        return ansiText(text);
    case ColourForm::Html:
        return htmlText(text);
    case ColourForm::Rtf:
        return writeRtf(text.pane.TextRTF());
    default:
        return jsonText(text);
    }
}

} // namespace

int colourCommand(const ColourOptions& given)
{
    ColourOptions options = given;
    if (options.form == ColourForm::Default)
        options.form = isatty(STDOUT_FILENO) != 0 ? ColourForm::Ansi : ColourForm::Json;
    const Settings scheme = readScheme(options.ini);
    Pane pane;
    pane.setText(readInput(options.file));
    const std::span<const ColourPass> passes = passesFor(options);
    const std::vector<HeldPass> held = paint(pane, scheme, passes);
    const bool isMacro = passes.data() == macroPasses().data();

    const std::string name = displayName(options.file);
    print(inForm(options, {pane, colourRuns(pane), held, name,
                           isMacro ? scheme.MacroBackgroundColour : scheme.BackgroundColour, scheme.TextFontName}));
    for (const HeldPass& pass : held) {
        std::fprintf(stderr, "tarvexctl: %s:%lld: the search for \"%s\" comes back here and would never end\n",
                     name.c_str(), static_cast<long long>(pass.line), pass.word.c_str());
    }
    return held.empty() ? exitStatus::done : exitStatus::held;
}

} // namespace tarvex::cli

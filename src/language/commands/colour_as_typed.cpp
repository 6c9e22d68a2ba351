#include "language/commands/colour_as_typed.h"

#include "documents/pair/loading.h"
#include "language/base_format.h"
#include "language/pass_runner.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr int pause = 300;    // milliseconds without a key
constexpr int afterLine = 30; // so that no key waits for it

/// What two texts have in common at both ends, within `most`: a command may have written before the edits that wait.
ColourAsTyped::Ends sameEnds(const std::string& a, const std::string& b, ColourAsTyped::Ends most)
{
    const std::size_t shorter = std::min(a.size(), b.size());
    const std::size_t mostHead = std::min(shorter, most.head);
    const auto head = static_cast<std::size_t>(
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(mostHead), b.begin()).first - a.begin());
    const std::size_t mostTail = std::min(shorter - head, most.tail);
    std::size_t tail = 0;
    while (tail < mostTail && a[a.size() - 1 - tail] == b[b.size() - 1 - tail]) ++tail;
    return {head, tail};
}

/// The settings that decide what text looks like.
std::string schemeOf(const Settings& settings)
{
    std::string scheme = settings.TextFontName;
    for (const auto value : {static_cast<int>(settings.TextFontSize), static_cast<int>(settings.TextFontBold),
                             static_cast<int>(settings.BTNColour), static_cast<int>(settings.SlashColour),
                             static_cast<int>(settings.RAWColour), static_cast<int>(settings.MiscellaneousColour),
                             static_cast<int>(settings.RemStatements)})
        scheme += ' ' + std::to_string(value);
    return scheme;
}

RichText levelShown(const Side& side) { return side.Undo.Levels[side.Undo.Position - 1].Text; }

} // namespace

ColourAsTyped::ColourAsTyped(Editor& editor) : m_editor(editor), m_sides{OfSide{editor.joystick}, OfSide{editor.macro}}
{
    for (OfSide& of : m_sides)
        of.edited = of.side.pane.edited.connect([this, &of](const Pane::Edit& edit) { followEdit(of, edit); });
    m_ticked = editor.shared.extras.changed.connect([this](std::string_view) { m_on.reset(); });
    editor.TimerColour.Tick = [this] { colourNow(); };
}

bool ColourAsTyped::isOn()
{
    if (!m_on) m_on = m_editor.shared.extras.on(extraKey::colourAsTyped);
    return *m_on;
}

/// Text that the program writes has its colours already, or gets them from the command that wrote it.
void ColourAsTyped::followEdit(OfSide& of, const Pane::Edit& edit)
{
    if (m_editor.shared.IsLoading == 1) {
        of.before.reset();
        return;
    }
    const auto head = static_cast<std::size_t>(edit.position);
    const std::size_t tail = of.side.pane.TextLength() - head - static_cast<std::size_t>(edit.inserted);
    if (!of.before) {
        if (!isOn()) return;
        of.before = levelShown(of.side); // the edit isn't in it yet
        of.untouched = {head, tail};
    }
    of.untouched = {std::min(of.untouched.head, head), std::min(of.untouched.tail, tail)};
    startTimer(pause);
}

void ColourAsTyped::startTimer(int delay)
{
    m_editor.TimerColour.Enabled = false;
    m_editor.TimerColour.Interval = delay;
    m_editor.TimerColour.Enabled = true;
}

void ColourAsTyped::lineLeft()
{
    if (std::ranges::any_of(m_sides, [](const OfSide& of) { return of.before.has_value(); })) startTimer(afterLine);
}

void ColourAsTyped::colourNow()
{
    m_editor.TimerColour.Enabled = false;
    const Steps step(m_editor.shared.errors, "ED_TimerColour_Timer");
    for (OfSide& of : m_sides) {
        if (of.before) step([&] { colour(of); });
        of.before.reset();
    }
}

void ColourAsTyped::colourAll(const Side& side)
{
    for (OfSide& of : m_sides) {
        if (of.side.tab != side.tab) continue;
        of.before.reset();
        of.known = colouredAnew(side, side.pane.Text());
        of.side.pane.setFormats(0, of.known.formats);
    }
}

/// On a pane of its own, so that neither views nor undo levels see the passes at work.
ColourAsTyped::Coloured ColourAsTyped::colouredAnew(const Side& side, std::string text) const
{
    Pane pane(side.pane.formats());
    pane.setText(text);
    const Settings& settings = m_editor.shared.settings;
    writeBaseFormat(pane, settings, 0);
    float position = 0;
    runPasses({.pane = pane, .settings = settings, .position = position, .step = Steps(), .held = [](const Hold&) {}},
              side.tab == m_editor.joystick.tab ? joystickPasses() : macroPasses());
    std::vector<FormatId> formats(text.size());
    for (std::size_t i = 0; i < formats.size(); ++i) formats[i] = pane.formatIdAt(i);
    return {schemeOf(settings), std::move(text), std::move(formats)};
}

void ColourAsTyped::colour(OfSide& of)
{
    Pane& pane = of.side.pane;
    std::string before = of.before->text();
    if (of.known.text != before || of.known.scheme != schemeOf(m_editor.shared.settings))
        of.known = colouredAnew(of.side, std::move(before));
    const Coloured old = std::exchange(of.known, colouredAnew(of.side, pane.Text()));
    const Coloured& now = of.known;

    const auto [head, tail] = sameEnds(old.text, now.text, of.untouched);
    const std::size_t lastWritten = std::max(head, now.text.size() - tail);
    const auto first = static_cast<std::size_t>(pane.lineStart(pane.GetLineFromChar(static_cast<std::int64_t>(head))));
    const std::int64_t nextLine = pane.GetLineFromChar(static_cast<std::int64_t>(lastWritten)) + 1;
    const std::size_t last =
        nextLine < pane.lineCount() ? static_cast<std::size_t>(pane.lineStart(nextLine)) : now.text.size();

    std::vector<FormatId> wanted(now.text.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const std::size_t was = i < head ? i : i + old.text.size() - now.text.size(); // behind the edit
        const bool written = i >= first && i < last;
        wanted[i] = written || now.formats[i] != old.formats[was] ? now.formats[i] : pane.formatIdAt(i);
    }
    pane.setFormats(0, wanted);
    UndoHistory::Level& level = of.side.Undo.Levels[of.side.Undo.Position - 1];
    level.Text = pane.TextRTF();
}

} // namespace tarvex

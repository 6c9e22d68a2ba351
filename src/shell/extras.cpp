#include "shell/extras.h"

#include "shell/composer_extra.h"
#include "shell/paper_extras.h"
#include "shell/session_extras.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace tarvex {

namespace {

constexpr std::string_view section = "Extras";

constexpr ExtraTick ticks[] = {
    {extraKey::askForFiles, "Ask where m&y files are while I have no folder for them",
     "Asks at once when the preferences close, and then no more until this is ticked again", true},
    {extraKey::printPageNumbers, "Print page numbers at the foot", "Numbers the pages of printed files", false},
    {extraKey::printFileName, "Print the file's name at the foot", "Names the file on each of its printed pages",
     false},
    {extraKey::darkenedPaper, "Print the light letters of a dark background darker",
     "On white paper they would be pale. Colours on a light background are printed as they are", true},
    {extraKey::sheetOnOnePage, "Keep the sheet of each controller on one page",
     "Makes its letters smaller where a second page would keep them legible", false},
    {extraKey::showAssigned, "Show in the Composer what the &joystick file has",
     "Marks the controls that have a statement in the joystick file, and shows it under the mouse", true},
    {extraKey::lineNumbers, "Show line numbers beside the text", "The margin on the left of both files", true},
    {extraKey::currentLine, "Mark the line that I'm in", "Shades the line of the insertion point", true},
    {extraKey::darkFiles, "Show the files dark, too, when the windows are dark",
     "Their colours are made lighter on the screen; the colour scheme and printed pages keep them", true},
    {extraKey::colourAsTyped, "Colour as I type", "What I write gets its colours by itself when I pause", false},
    {extraKey::reloadUnmodified, "Reload a file that another program changed",
     "Only while I haven't changed it myself; Undo brings the old text back", false},
    {extraKey::openLastPair, "Open the last pair when I start",
     "Both files come back as I left them, with the places that I was at", false},
};

const ExtraTick& rowOf(std::string_view key)
{
    const auto* row =
        std::find_if(std::begin(ticks), std::end(ticks), [=](const ExtraTick& t) { return t.key == key; });
    if (row == std::end(ticks)) throw std::out_of_range(std::string(key));
    return *row;
}

} // namespace

std::span<const ExtraTick> extraTicks() { return ticks; }

bool Extras::on(std::string_view key) const { return m_ini.readInt(section, key, rowOf(key).standard ? 1 : 0) == 1; }

void Extras::set(std::string_view key, bool isOn)
{
    if (on(key) == isOn) return;
    m_ini.writeString(section, key, isOn ? "1" : "0");
    changed(key);
}

} // namespace tarvex

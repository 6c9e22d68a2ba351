#include "documents/window/last_pair.h"

#include "documents/files/file_load.h"
#include "documents/pair/document_status.h"
#include "documents/pair/editor_layout.h"
#include "platform/dos_path.h"
#include "shell/extras.h"
#include "shell/session_extras.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view section = "LastPair";
constexpr std::size_t longestPath = 32767;

std::string keyOf(const Side& side, std::string_view what)
{
    return std::string(byKind(side, "Joystick", "Macro")) + std::string(what);
}

bool isWanted(const LastPair& pair) { return pair.editor.shared.extras.on(extraKey::openLastPair); }

void write(ProfileFile& ini, std::string_view key, std::int64_t value)
{
    ini.writeString(section, key, std::to_string(value));
}

void noteSide(LastPair& pair, const Side& side)
{
    ProfileFile& ini = pair.editor.shared.platformIni;
    const bool isFile = side.Journal.File.has_value(); // opened or saved, and not a new document
    ini.writeString(section, keyOf(side, "File"), isFile ? side.FilePath : "");
    write(ini, keyOf(side, "Caret"), side.pane.SelStart());
    write(ini, keyOf(side, "Selection"), side.pane.SelLength());
    write(ini, keyOf(side, "Line"), pair.firstLine ? pair.firstLine(side) : 0);
}

bool openSide(LastPair& pair, Side& side)
{
    Editor& editor = pair.editor;
    const std::string path = editor.shared.platformIni.readString(section, keyOf(side, "File"), "", longestPath);
    if (path.empty()) return false;
    const std::string name = fileNameOf(path);
    if (!editor.platform.files.fileExists(path)) {
        editor.OpeningRemarks.push_back(name + " isn't there any more.");
        return false;
    }
    return loadFile(editor, side, path, name);
}

/// The texts may be others than they were: what lies outside of them is cut.
void bringPlaceBack(LastPair& pair, Side& side)
{
    const ProfileFile& ini = pair.editor.shared.platformIni;
    const auto number = [&](std::string_view what) { return std::max(0, ini.readInt(section, keyOf(side, what), 0)); };
    side.pane.setSelStart(number("Caret"));
    side.pane.setSelLength(number("Selection"));
    side.Caret = side.pane.SelStart();
    side.SelectionLength = static_cast<std::int32_t>(side.pane.SelLength());
    pair.firstLineWanted(side, number("Line"));
}

/// Each is a command that turns it on and off.
void bringViewsBack(Editor& editor)
{
    const ProfileFile& ini = editor.shared.platformIni;
    const auto bring = [&](MenuItem& item, std::string_view key) {
        const bool wanted = ini.readInt(section, key, item.Checked ? 1 : 0) == 1;
        if (item.Checked != wanted) item.Click();
    };
    bring(editor.menus.mnuViewMacros, "MacroFrame");
    bring(editor.menus.mnuViewTileVertically, "Tiled");
    const bool wasMacro = ini.readInt(section, "Tab", editor.joystick.tab) == editor.macro.tab;
    editor.TabStrip1.Select(wasMacro ? editor.macro.tab : editor.joystick.tab);
}

} // namespace

void noteLastPair(LastPair& pair)
{
    const Steps step(pair.editor.shared.errors, "ED_noteLastPair");
    step([&] {
        if (!isWanted(pair)) return;
        Editor& editor = pair.editor;
        ProfileFile& ini = editor.shared.platformIni;
        const ProfileFile::Batch together(ini);
        for (const Side* side : {&editor.joystick, &editor.macro}) noteSide(pair, *side);
        write(ini, "Tiled", editor.menus.mnuViewTileVertically.Checked ? 1 : 0);
        write(ini, "MacroFrame", editor.menus.mnuViewMacros.Checked ? 1 : 0);
        write(ini, "Tab", editor.TabStrip1.SelectedItem);
    });
}

void openLastPair(LastPair& pair)
{
    Editor& editor = pair.editor;
    const Steps step(editor.shared.errors, "ED_openLastPair");
    if (!isWanted(pair)) return;
    bool any = false;
    for (Side* side : {&editor.joystick, &editor.macro}) step([&] { any = openSide(pair, *side) || any; });
    if (!any) return;
    step([&] {
        if (editor.shared.settings.CheckIdentifyOK == 1)
            editor.operations.IdentifyMacrosIfAny();
        else
            editor.operations.ClearMacroTicks();
    });
    step([&] { bringViewsBack(editor); });
    for (Side* side : {&editor.joystick, &editor.macro}) step([&] { bringPlaceBack(pair, *side); });
    step([&] { showLineNumber(editor, editor.selected(), editor.selected().pane.SelStart()); });
}

} // namespace tarvex

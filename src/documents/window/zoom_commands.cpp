#include "documents/window/zoom_commands.h"

#include "documents/text/zoom.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view section = "Extras";
constexpr std::string_view key = "Zoom";

void zoomTo(Editor& editor, int percent, std::string_view tag)
{
    const Steps step(editor.shared.errors, tag);
    step([&] { editor.Zoom = std::clamp(percent, zoom::smallest, zoom::largest); });
}

} // namespace

void mnuViewZoomIn_Click(Editor& editor) { zoomTo(editor, editor.Zoom + zoom::step, "ED_mnuViewZoomIn_Click"); }

void mnuViewZoomOut_Click(Editor& editor) { zoomTo(editor, editor.Zoom - zoom::step, "ED_mnuViewZoomOut_Click"); }

void mnuViewZoomNormal_Click(Editor& editor) { zoomTo(editor, zoom::normal, "ED_mnuViewZoomNormal_Click"); }

void readZoom(Editor& editor)
{
    const int kept = editor.shared.platformIni.readInt(section, key, zoom::normal);
    zoomTo(editor, kept < zoom::smallest || kept > zoom::largest ? zoom::normal : kept, "ED_readZoom");
}

void saveZoom(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_saveZoom");
    step([&] {
        ProfileFile& ini = editor.shared.platformIni;
        if (ini.readInt(section, key, zoom::normal) != editor.Zoom)
            ini.writeString(section, key, std::to_string(editor.Zoom.get()));
    });
}

} // namespace tarvex

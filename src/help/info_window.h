#pragma once

#include "documents/pair/editor.h"
#include "shell/tool_form.h"

#include <string_view>

namespace tarvex {

/// The window that shows the short texts of the folder "info".
struct InfoWindow {
    explicit InfoWindow(Editor& theEditor);
    InfoWindow(const InfoWindow&) = delete;
    InfoWindow& operator=(const InfoWindow&) = delete;

    Editor& editor;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"InfoWindow", &WindowOpen};
    Pane InfoText;
    Button Command1; ///< OK
};

/// File of a page in the folder "info"; empty for a number that no page has.
std::string_view infoPageFile(int index);

void wireInfoWindow(InfoWindow& window);
/// Shows a page. One whose file can't be read leaves the window empty.
void ShowInfoPage(InfoWindow& window, int index);
/// Gives the window the place and size of the last time; its own stay where there are none.
void PositionInfoWindow(InfoWindow& window);
void SaveInfoWindowPosition(InfoWindow& window);
/// The mouse is over the text.
void InfoText_MouseMove(InfoWindow& window);
/// The mouse is over the OK button.
void Command1_MouseMove(InfoWindow& window);

} // namespace tarvex

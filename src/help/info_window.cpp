#include "help/info_window.h"

#include "documents/text/rtf/rtf.h"

#include <algorithm>

namespace tarvex {

namespace {

// The window as it was drawn, twips.
constexpr float firstWidth = 480.0F * twipsPerPixel;
constexpr float firstHeight = 400.0F * twipsPerPixel;
constexpr float leastSize = 100.0F * twipsPerPixel; ///< a remembered size below it is that of a damaged file

struct InfoPage {
    int index;
    std::string_view file;
};

constexpr InfoPage infoPages[] = {
    {0, "Using the layout window effectively.rtf"},
    {1, "To reposition the text boxes.rtf"},
    {2, "To resize the text boxes.rtf"},
    {3, "To change the orientation.rtf"},
    {4, "To move the graphical image.rtf"},
    {10, "Syntax.rtf"},
    {11, "Slash modifiers.rtf"},
    {12, "Error codes.rtf"},
    {20, "Inserting macros.rtf"},
    {21, "Updating macros.rtf"},
    {22, "Downloading files.rtf"},
    {23, "Compiling files.rtf"},
    {24, "TarvexOne preferences.rtf"},
    {30, "Safein options.rtf"},
    {31, "Safein advanced menu.rtf"},
    {32, "Using the Hide button.rtf"},
};

/// The text of a file takes the place of the present one; a file that isn't RTF is plain text.
void loadFile(InfoWindow& window, const std::string& path)
{
    Pane& pane = window.InfoText;
    pane.setText("");
    const std::string bytes = window.editor.platform.files.read(path);
    if (looksLikeRtf(bytes))
        pane.setTextRTF(readRtf(bytes, pane.formats()));
    else
        pane.setText(bytes);
}

void Form_Load(InfoWindow& window)
{
    PositionInfoWindow(window);
    window.form.TopMost = true;
    window.form.markLoaded();
}

void Form_Unload(InfoWindow& window)
{
    SaveInfoWindowPosition(window);
    window.form.markUnloaded();
}

} // namespace

InfoWindow::InfoWindow(Editor& theEditor) : editor(theEditor), InfoText(theEditor.formats)
{
    form.Caption = "Information";
    form.Width = firstWidth;
    form.Height = firstHeight;
    InfoText.Locked = true;
    Command1.Caption = "OK";
}

std::string_view infoPageFile(int index)
{
    const auto* page = std::ranges::find(infoPages, index, &InfoPage::index);
    return page == std::end(infoPages) ? std::string_view() : page->file;
}

void wireInfoWindow(InfoWindow& window)
{
    window.form.Load = [&window] { Form_Load(window); };
    window.form.Unload = [&window] { Form_Unload(window); };
    window.Command1.handler = [&window] { window.form.unload(); };
    window.form.join(window.editor.mum.toolWindows);
}

void ShowInfoPage(InfoWindow& window, int index)
{
    const Steps step;
    const std::string_view file = infoPageFile(index);
    step([&] { loadFile(window, window.editor.platform.programDirectory + "\\info\\" + std::string(file)); });
    step([&] { window.form.open(); });
}

void PositionInfoWindow(InfoWindow& window)
{
    const Editor& editor = window.editor;
    Settings& settings = editor.shared.settings;
    const Desktop& desktop = editor.platform.desktop;
    Form& form = window.form;
    settings.InfoWindowTop = form.Top;
    settings.InfoWindowLeft = form.Left;
    settings.InfoWindowHeight = form.Height;
    settings.InfoWindowWidth = form.Width;
    editor.shared.store.read(Access::PositionInfoWindow, "INFO PositionInfoWindow");
    form.Top = onScreen(settings.InfoWindowTop, desktop.screenHeight());
    form.Left = onScreen(settings.InfoWindowLeft, desktop.screenWidth());
    if (settings.InfoWindowHeight >= leastSize) form.Height = settings.InfoWindowHeight;
    if (settings.InfoWindowWidth >= leastSize) form.Width = settings.InfoWindowWidth;
}

void SaveInfoWindowPosition(InfoWindow& window)
{
    const Form& form = window.form;
    if (form.State == WindowState::Minimised) return;
    Settings& settings = window.editor.shared.settings;
    settings.InfoWindowTop = form.Top;
    settings.InfoWindowLeft = form.Left;
    settings.InfoWindowHeight = form.Height;
    settings.InfoWindowWidth = form.Width;
    window.editor.shared.store.write(Access::SaveInfoWindowPosition, "INFO SaveInfoWindowPosition");
}

void InfoText_MouseMove(InfoWindow& window) { window.editor.status("Some online help for you to peruse!"); }

void Command1_MouseMove(InfoWindow& window) { window.editor.status("Press the OK button when you're done."); }

} // namespace tarvex

#include "language/colour_template.h"

#include "language/base_format.h"

namespace tarvex {

namespace {

void setBaseFormat(const TemplateColouring& work)
{
    Pane& pane = work.TemplateText;
    writeBaseFormat(pane, work.settings, 0);
    pane.Refresh();
    pane.BackColor = work.settings.BackgroundColour;
    setPaneFont(pane, work.settings);
    pane.Refresh();
}

} // namespace

void ColourTemplateText(const TemplateColouring& work)
{
    const Steps step(work.errors, "ColourTemplateText");
    Pane& pane = work.TemplateText;
    Property<std::string>& status = work.mum.StatusBar.Panels(panel::progress).Text;
    if (pane.TextLength() == 0) {
        status = "There's no text to highlight.";
        return;
    }
    const std::int64_t caret = pane.SelStart();
    pane.setSelLength(0);
    if (work.mnuTextToBlack) step(work.mnuTextToBlack);
    status = "Applying colour highlighting to " + work.name + ". Please wait ...";
    ProgressBar& bar = work.mum.ProgressBar1;
    bar.Visible = true;
    bar.Min = 0;
    bar.Max = static_cast<int>(pane.TextLength()) + 1;
    step([&] { setBaseFormat(work); });
    bar.Value = 0;

    float position = 0;
    runPasses({pane, work.settings, position, step, &work.mum, work.held}, templatePasses());

    pane.setSelStart(caret);
    pane.setSelLength(0);
    status = "Done";
    bar.Visible = false;
}

} // namespace tarvex

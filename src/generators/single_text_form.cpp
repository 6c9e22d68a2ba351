#include "generators/single_text_form.h"

#include "platform/windows1252.h"

namespace tarvex {

namespace {

/// Each line end becomes a blank.
void joinLines(Pane& pane)
{
    const std::string& text = pane.Text();
    if (text.find_first_of("\r\n") == std::string::npos) return;
    std::string line;
    line.reserve(text.size());
    for (const char letter : text) {
        if (letter != '\r') line += letter == '\n' ? ' ' : letter;
    }
    pane.setText(line);
}

} // namespace

SingleTextForm::SingleTextForm(Shared& theShared) : shared(theShared)
{
    Form.Caption = "Insert a Rem statement";
    Form.TopMost = true;
    CheckAddCR.Caption = "&Add a carriage return after the Rem statement";
    Command1.Caption = "OK";
    Command2.Caption = "Cancel";
    Command1.handler = [this] { Command1_Click(*this); };
    Command2.handler = [this] { Form.Visible = false; };
    RichTextBox1.Change = [this] { RichTextBox1_Change(*this); };
    m_shown = Form.Visible.changed.connect([this] {
        if (Form.Visible) Form_Load(*this);
    });
}

void Form_Load(SingleTextForm& window)
{
    const Steps step;
    step([&] { window.RichTextBox1.setText(""); });
    step([&] { window.CheckAddCR.Value = window.shared.settings.AddCRtoREM == 1; });
}

void RichTextBox1_Change(SingleTextForm& window)
{
    if (window.tidying) return;
    window.tidying = true;
    const Steps step;
    Pane& box = window.RichTextBox1;
    step([&] { joinLines(box); });
    step([&] {
        const auto end = static_cast<std::int64_t>(box.TextLength());
        box.setSelStart(0);
        box.setSelLength(end);
        box.setSelColor(0);
        box.setSelStart(end);
    });
    window.tidying = false;
}

void Command1_Click(SingleTextForm& window)
{
    const Steps step;
    step([&] { window.shared.HeadingText = " " + utf8FromWindows1252(window.RichTextBox1.Text()); });
    step([&] { window.shared.settings.AddCRtoREM = window.CheckAddCR.Value ? 1 : 0; });
    SaveCRthang(window);
    window.Form.Visible = false;
}

void SaveCRthang(SingleTextForm& window) { window.shared.store.write(Access::SaveCRthang, "REM SaveCRthang"); }

} // namespace tarvex

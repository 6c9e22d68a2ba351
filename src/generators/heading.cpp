#include "generators/heading.h"

#include "generators/comment_texts.h"

namespace tarvex {

Heading::Heading(Shared& theShared) : shared(theShared)
{
    Form.Caption = "Insert a heading";
    Form.TopMost = true;
    Command1[0].Caption = "OK";
    Command1[1].Caption = "Cancel";
    for (int index = 0; index < 2; ++index)
        Command1.at(static_cast<std::size_t>(index)).handler = [this, index] { Command1_Click(*this, index); };
    m_shown = Form.Visible.changed.connect([this] {
        if (Form.Visible) Form_Load(*this);
    });
}

void Form_Load(Heading& window)
{
    const Steps step;
    step([&] { AddHeadingsToList(window.Combo1.Items); });
    step([&] { window.Combo1.Text = ""; });
}

void Command1_Click(Heading& window, int Index)
{
    const Steps step;
    step([&] { window.shared.HeadingText = Index == 0 ? window.Combo1.Text.get() : std::string(); });
    step([&] { window.Form.Visible = false; });
}

void AddHeadingsToList(Property<std::vector<std::string>>& items)
{
    const auto names = headingNames();
    items = std::vector<std::string>(names.begin(), names.end());
}

} // namespace tarvex

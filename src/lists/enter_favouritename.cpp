#include "lists/enter_favouritename.h"

namespace tarvex {

EnterFavouritename::EnterFavouritename(ErrorRecord& theErrors, Favourite& theCurrent)
    : errors(theErrors), current(theCurrent)
{
    Form.Caption = "Enter a name to add to favourites";
    Command1.Caption = "OK";
    Command2.Caption = "Cancel";
    Command1.handler = [this] { FAV_Command1_Click(*this); };
    Command2.handler = [this] { FAV_Command2_Click(*this); };
    Text1.GotFocus = [this] { FAV_Text1_GotFocus(*this); };
    m_textChanged = Text1.Text.changed.connect([this] { Command1.Enabled = !Text1.Text.get().empty(); });
}

void FAV_Form_Load(EnterFavouritename& form, const std::string& proposal)
{
    const Steps step(form.errors, "FAV Form_Load");
    step([&] {
        form.Form.TopMost = true;
        form.Label3.Caption = form.current.joystickPath;
        form.Label5.Caption = form.current.macroPath;
        form.Text1.Text = proposal;
        form.Command1.Enabled = !proposal.empty();
    });
}

void FAV_Command1_Click(EnterFavouritename& form)
{
    const Steps step(form.errors, "FAV Command1_Click");
    step([&] {
        if (form.Text1.Text.get().empty()) return;
        form.current.name = form.Text1.Text;
        form.Form.Visible = false;
    });
}

void FAV_Command2_Click(EnterFavouritename& form)
{
    const Steps step(form.errors, "FAV Command2_Click");
    step([&] { form.Form.Visible = false; });
}

void FAV_Text1_GotFocus(EnterFavouritename& form)
{
    const Steps step(form.errors, "FAV Text1_GotFocus");
    step([&] { form.Text1.SelectAll(); });
}

} // namespace tarvex

#pragma once

#include "platform/controls.h"
#include "shell/errors.h"
#include "shell/setting_text.h"

#include <string>

namespace tarvex {

/// Three texts: what one favourite is.
struct Favourite {
    SettingText name;
    SettingText joystickPath;
    SettingText macroPath;
};

/// The dialogue that asks for the name of a new favourite.
struct EnterFavouritename {
    EnterFavouritename(ErrorRecord& theErrors, Favourite& theCurrent);
    EnterFavouritename(const EnterFavouritename&) = delete;
    EnterFavouritename& operator=(const EnterFavouritename&) = delete;

    ErrorRecord& errors;
    Favourite& current; ///< the paths that it shows, and where the name goes

    tarvex::Form Form;
    Label Label3;    ///< path of the joystick file
    Label Label5;    ///< path of the macro file
    TextBox Text1;   ///< the name; what is proposed stands in it when the dialogue comes up
    Button Command1; ///< takes the name
    Button Command2; ///< cancels

private:
    Connection m_textChanged;
};

/// The dialogue is about to be shown: the paths and a proposal.
void FAV_Form_Load(EnterFavouritename& form, const std::string& proposal);
/// The text, just as it stands, becomes the current name; nothing happens while there is none.
void FAV_Command1_Click(EnterFavouritename& form);
void FAV_Command2_Click(EnterFavouritename& form);
void FAV_Text1_GotFocus(EnterFavouritename& form);

} // namespace tarvex

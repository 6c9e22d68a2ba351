#include "preferences/files_home.h"

namespace tarvex {

FilesHome::FilesHome()
{
    Form.Caption = "Where are your files to live?";
    Question.Caption = "You haven't set the folder of your joystick and macro files yet. As long as there is none, I "
                       "start with the colours that I was born with each time, whatever you choose.";
    Choices[ownFolder].Caption = "In a folder of &mine...";
    Choices[oldInstallation].Caption = "I have an &old installation to import...";
    Choices[later].Caption = "I'll decide &later";
    for (std::size_t i = 0; i < Choices.size(); ++i)
        Choices[i].Click = [this, i] { FILES_Choices_Click(*this, static_cast<int>(i)); };
    Ok.Caption = "OK";
    Ok.handler = [this] {
        answered = true;
        Form.Visible = false;
    };
}

void FILES_Choices_Click(FilesHome& form, int choice)
{
    form.chosen = choice;
    for (std::size_t i = 0; i < form.Choices.size(); ++i) form.Choices[i].Value = static_cast<int>(i) == choice;
}

} // namespace tarvex

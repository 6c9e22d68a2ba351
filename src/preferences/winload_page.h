#pragma once

#include "platform/controls.h"
#include "shell/shared.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarvex {

/// The Sticky page: builds the option string that the download hands to WinLoad out of four pieces, in the order
/// throttle, mouse, blanker, extra. Every control rebuilds the string, also when the program sets it.
struct WinLoadPage {
    explicit WinLoadPage(Shared& theShared);
    WinLoadPage(const WinLoadPage&) = delete;
    WinLoadPage& operator=(const WinLoadPage&) = delete;

    static constexpr int noMouse = 3;

    Shared& shared;
    CheckBox CheckApplyWinLoad;
    CheckBox CheckStatusBarErrors; ///< kept for WinLoad
    Label WinLoadLabel;            ///< the string as it is now
    SSTab SSTab3{"&Throttle", "&Mouse", "&Extra"};
    std::array<OptionButton, 3> WinLoadThrottle;
    std::array<OptionButton, 4> OptionMouse;
    Property<bool> FrameMouseVisible = false; ///< the list of mice and what their buttons are on
    std::array<ListBox, 3> MouseList;         ///< by OptionMouse; one at a time is visible
    std::array<Label, 3> Label5;              ///< the throttle statement on the left, middle and right mouse button
    CheckBox CheckUseBlanker;
    TextBox ExtraText;

    /// The pieces, each with the blank before it; empty without an option.
    std::string throttlePiece;
    std::string mousePiece;
    std::string blankerPiece;
    std::string extraPiece;

private:
    Connection m_extraChanged;
};

/// Joins the pieces, shows them and stores the result as WinLoadString.
void CreateWinLoadString(WinLoadPage& page);
/// Reads the section WinLoad and sets the controls, whose handlers build the string anew.
void GetWinloadStuff(WinLoadPage& page);
/// Takes the controls into the settings and writes the section.
void SaveWinLoadStuff(WinLoadPage& page);

void WinLoadThrottle_Click(WinLoadPage& page, int index);
void OptionMouse_Click(WinLoadPage& page, int index);
/// The chosen entry of the list of one kind of mouse. Without one, or beyond the list: an error for the reporter.
void MouseList_Click(WinLoadPage& page, int kind);
void CheckUseBlanker_Click(WinLoadPage& page);
void ExtraText_Change(WinLoadPage& page);
void CheckApplyWinLoad_Click(WinLoadPage& page);

/// The path names WinLoad: it holds the letters "winld", with regard to case.
bool isWinLoad(const std::string& loaderPath);

} // namespace tarvex

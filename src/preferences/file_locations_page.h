#pragma once

#include "documents/pair/editor.h"
#include "preferences/winload_page.h"

namespace tarvex {

/// The page "File locations": the loader, the folders and programs of the maker, and the controllers.
struct FileLocationsPage {
    FileLocationsPage(Editor& theEditor, SSTab::Page& theSticky);
    FileLocationsPage(const FileLocationsPage&) = delete;
    FileLocationsPage& operator=(const FileLocationsPage&) = delete;

    Editor& editor;
    SSTab::Page& sticky; ///< the page of WinLoad's options, which is for WinLoad only

    Label LoaderLabel;
    ComboBox Text1;  ///< loader; its list holds those that were used before
    Button Command1; ///< looks for the loader
    TextBox Text2;   ///< folder of the maker's programs
    Button Command2; ///< chooses it
    TextBox Text15;  ///< CTFJ
    Button Text15Browse;
    TextBox Text10; ///< what starts the Control Centre
    Button Text10Browse;
    ComboBox ComboJoystick;
    ComboBox ComboThrottle;
    ComboBox ComboRudders;

private:
    Connection m_loaderChanged;
    Connection m_controlCentreChanged;
};

void loadFileLocations(FileLocationsPage& page);
/// Takes the paths into the settings, in lower case.
void takeFileLocations(FileLocationsPage& page);
/// Writes FilesDirectory, for the Launcher.
void SaveFilesPath(Editor& editor);

void PREFS_Command1_Click(FileLocationsPage& page);
void PREFS_Command2_Click(FileLocationsPage& page);

} // namespace tarvex

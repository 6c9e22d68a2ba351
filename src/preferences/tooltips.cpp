#include "preferences/tooltips.h"

#include "shell/extras.h"

#include <vector>

namespace tarvex {

namespace {

struct Tip {
    Property<std::string>& tip;
    const char* text;
    bool always = false;
};

std::vector<Tip> tipsOfFiles(FileLocationsPage& page)
{
    return {
        {page.Command1.ToolTipText, "Looks for the program that loads your files into the joystick"},
        {page.Command2.ToolTipText, "Chooses the folder where your joystick and macro files are"},
        {page.Text15Browse.ToolTipText, "Looks for Ned Marl's CTFJ"},
        {page.Text10Browse.ToolTipText, "Looks for the batch file or program that starts the Control Centre"},
        {page.ComboJoystick.ToolTipText, "Decides on the kind of files, and on what the Composer shows"},
        {page.ComboThrottle.ToolTipText, "Decides on the throttle that the Composer shows"},
        {page.ComboRudders.ToolTipText, "Decides on the rudders that the Composer shows"},
    };
}

std::vector<Tip> tipsOfColours(ColoursPage& page)
{
    return {
        {page.List1.ToolTipText, "Click an item, or press Return on it, to give it another colour"},
        {page.CheckBox1.ToolTipText, "Without it a file is shown as it is until you colour it yourself"},
        {page.Command18.ToolTipText, "Changes the font of both files"},
        {page.CheckFixedPitch.ToolTipText, "Offers only fonts whose characters are equally wide"},
        {page.Command17.ToolTipText, "How to line up slash modifiers"},
    };
}

std::vector<Tip> tipsOfApps(AppsPage& page)
{
    std::vector<Tip> tips{
        {page.Text5Browse.ToolTipText, "Looks for the picture that the image viewer shows"},
        {page.Text6Browse.ToolTipText, "Looks for the text beside the picture"},
    };
    for (std::size_t i = 0; i < AppsPage::programs; ++i) {
        tips.push_back({page.CustomAppNameText[i].ToolTipText, "What the Apps menu calls it"});
        tips.push_back({page.CustomAppPathBrowse[i].ToolTipText, "Looks for the program"});
        tips.push_back({page.CustomAppPathUse[i].ToolTipText, "Shows it on the Apps menu"});
    }
    return tips;
}

std::vector<Tip> tipsOfLists(FavouritesPage& favourites, GamesPage& games)
{
    return {
        {favourites.Command13.ToolTipText, "Takes the chosen favourite off the list; its files stay"},
        {favourites.Command14.ToolTipText, "Gives the chosen favourite this name and these files"},
        {favourites.LoadAppCheckBox.ToolTipText, "Opens it at each start, unless you start with another file"},
        {games.Command12.ToolTipText, "Takes the chosen game off the list; the game stays"},
        {games.Text11.ToolTipText, "The game's program, and any switches behind it"},
        {games.Text4.ToolTipText, "The folder that the game is started in"},
        {games.Text13.ToolTipText, "The joystick file that is downloaded before the game starts"},
    };
}

std::vector<Tip> tipsOfSaving(SavingPage& page)
{
    return {
        {page.Check3[0].ToolTipText, "Saves modified files by itself"},
        {page.Check3[1].ToolTipText, "Keeps what a file held before in the Backup folder"},
        {page.OpenBothChk.ToolTipText, "Opens the file of the same name on the other side, too"},
        {page.SaveBothChk.ToolTipText, "Saves both files whichever one you look at"},
        {page.TxtUndoLevels.ToolTipText, "How many changes can be taken back, from 10 to 30000"},
        {page.Command11.ToolTipText, "Forgets all that could be taken back until now"},
        {page.CheckUndoSave.ToolTipText, "After a save, nothing can be taken back"},
        {page.CheckHighlightOnUndo.ToolTipText, "Shows for a moment which line was changed"},
    };
}

std::vector<Tip> tipsOfMiscellaneous(MiscellaneousPage& page)
{
    return {
        {page.OptionImagesToShow[0].ToolTipText, "Those of the controllers on the File locations page"},
        {page.OptionImagesToShow[1].ToolTipText, "Those of all joysticks, throttles and rudders"},
        {page.OptionImagesToShow[2].ToolTipText, "Those of the joystick that the open file is for"},
        {page.CheckFlattenToolbar[0].ToolTipText, "Shows the edge of a button only under the mouse"},
        {page.CheckFlattenToolbar[1].ToolTipText, "Paints a gradient where no document is"},
        {page.CheckFlattenToolbar[2].ToolTipText, "Puts the buttons that have no room into a second row"},
        {page.CheckUseTCA.ToolTipText, "The joystick analyser command opens the controller analyser"},
        {page.CheckDisableCalibrate.ToolTipText, "Takes it off the Apps menu and the toolbar"},
        {page.WavPlay.ToolTipText, "Needs tarvexbig.wav or tarvexsmall.wav in the folder of Tarvex"},
        {page.CheckExtraToolbar.ToolTipText, "Adds a second set of buttons"},
        {page.CheckButtonsOnStatusBar.ToolTipText, "Says in the status bar what the button under the mouse does"},
        {page.CheckMinimiseAll.ToolTipText, "The tool windows go and come back with the main window"},
        {page.CheckShowTooltips.ToolTipText, "Tips such as this one, here and on the toolbar", true},
        {page.CheckIdentify.ToolTipText, "Ticks the macros that the joystick file uses"},
        {page.CheckAggressiveFocus.ToolTipText, "Even before the windows of other programs"},
        {page.ComboGamesCaption.ToolTipText, "Choose a caption, or write your own; \"&\" stands before its access key"},
        {page.DLYText.ToolTipText, "The number that a new DLY( ) is offered"},
    };
}

std::vector<Tip> tipsOfWinLoad(WinLoadPage& page)
{
    return {
        {page.WinLoadThrottle[0].ToolTipText, "WinLoad's option /TQS"},
        {page.WinLoadThrottle[1].ToolTipText, "WinLoad's option /WCS"},
        {page.CheckApplyWinLoad.ToolTipText, "Gives WinLoad the options below with each download"},
        {page.CheckUseBlanker.ToolTipText, "WinLoad's option /NB"},
        {page.ExtraText.ToolTipText, "Further options, just as WinLoad is to get them"},
    };
}

std::vector<Tip> tipsOfExtras(ExtrasPage& page)
{
    std::vector<Tip> tips{
        {page.DriveBrowse.ToolTipText, "Chooses the folder that the drive stands for"},
        {page.DriveAdd.ToolTipText, "Puts a folder behind the next free letter"},
        {page.DriveReset.ToolTipText, "Gives the drive back the folder that it has without you"},
        {page.OpenFolder.ToolTipText, "Shows the folder in your file manager"},
        {page.Import.ToolTipText, "Brings settings, lists, templates and backups of an old installation along"},
    };
    for (ExtrasPage::RunnerRow& row : page.Runners) {
        tips.push_back({row.Browse.ToolTipText, "Chooses another one than the one found"});
        tips.push_back({row.Test.ToolTipText, "Runs it and shows its version"});
    }
    for (std::size_t i = 0; i < page.Ticks.size(); ++i)
        tips.push_back({page.Ticks[i].ToolTipText, extraTicks()[i].tip});
    return tips;
}

} // namespace

void PREFS_UpdateTooltips(Preferences& preferences)
{
    const bool wanted = preferences.editor.shared.settings.OKtoShowToolTips == 1;
    for (const std::vector<Tip>& tips :
         {tipsOfFiles(preferences.fileLocationsPage), tipsOfColours(preferences.coloursPage),
          tipsOfApps(preferences.appsPage), tipsOfLists(preferences.favouritesPage, preferences.gamesPage),
          tipsOfSaving(preferences.savingPage), tipsOfMiscellaneous(preferences.miscellaneousPage),
          tipsOfWinLoad(preferences.winLoadPage), tipsOfExtras(preferences.extrasPage)}) {
        for (const Tip& tip : tips) tip.tip = wanted || tip.always ? tip.text : "";
    }
}

} // namespace tarvex

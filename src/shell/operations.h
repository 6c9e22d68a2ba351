#pragma once

#include "shell/operation.h"

#include <string>

namespace tarvex {

/// Operations without a menu item of their own that a unit calls in units above or beside it.
struct Operations {
    // the windows
    Operation<> ShowEditor;             ///< loads and shows the document window
    Operation<bool&> QueryUnloadEditor; ///< asks about unsaved files; true cancels the exit
    Operation<> UnloadEditor;
    Operation<const std::string&> UnloadForm; ///< by the window's name
    Operation<> ReleaseGradient;
    Operation<> PaintGradient;
    Operation<> UpdateTooltips; ///< of Mum
    Operation<> ShowExtraButtons;
    Operation<> UpdateToolBarOpenSaveTooltips;
    Operation<> UpdateEditorTooltips;
    Operation<> DamnFontWasChanged; ///< the pane font was changed in the preferences

    Operation<> UpdateCCPButtons; ///< Cut, Copy and Paste follow selection and clipboard

    Operation<const std::string&> HelpKeyword; ///< shows the help on a word in the text, UTF-8
    Operation<int> HelpTopic;                  ///< shows the page of a topic number, see help/help_topics.h
    Operation<> ShowTour;                      ///< shows a newcomer around, where there is a handbook
    Operation<int> ShowInfoPage;               ///< shows a page of the information window

    // language
    Operation<> ApplyColourHighlighting;
    Operation<> ApplyMacroColourHighlighting;
    Operation<> ClearAllForNewMacroFile;
    Operation<> GetEachLineFromMacroFile;
    Operation<> ExtractMacrosAndTitles;
    Operation<> ClearMacroTicks;
    Operation<> IdentifyMacrosUsed;
    Operation<> IdentifyMacrosIfAny; ///< without a word where there is nothing to identify: the user didn't ask for it

    Operation<> CaretLeftLine; ///< the user moved the caret to another line

    // lists
    Operation<> GetPreviousFiles;
    Operation<> GetFavourites;
    Operation<> GetGames;
    Operation<> GetCustomApps;
    Operation<const std::string&> UpdateRecentJFMenuList; ///< the path just saved
    Operation<const std::string&> UpdateRecentMFMenuList;
    Operation<const std::string&> NoteLatestJoystickFile; ///< the path just opened
    Operation<const std::string&> NoteLatestMacroFile;
};

} // namespace tarvex

#pragma once

#include "documents/pair/editor.h"
#include "documents/pair/undo_history.h"
#include "documents/recovery/journal_record.h"
#include "platform/toggle_label.h"
#include "shell/menus.h"
#include "shell/tool_form.h"

#include <array>
#include <string>
#include <vector>

namespace tarvex {

/// The row below the text that searches it.
struct TemplateFind {
    Property<bool> Visible = false;
    TextBox What;
    CheckBox MatchCase;
    CheckBox WholeWord;
    Button Next;
    Button Previous;
    Button Close;
};

/// The Template Editor: a small third editor for templates, tm.cfg and other texts.
struct TemplateForm {
    static constexpr const char* untitled = "untitled.rtf"; ///< the name of a new file
    static constexpr int wrapsAtPane = 0;                   ///< values of RightMargin
    static constexpr int wideMargin = 2000;

    explicit TemplateForm(Editor& theEditor);
    TemplateForm(const TemplateForm&) = delete;
    TemplateForm& operator=(const TemplateForm&) = delete;

    Editor& editor;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"TemplateForm", &WindowOpen};

    Pane TemplateText;
    TextBox Text1;                  ///< the file's name, which the user may type over
    std::array<Button, 3> Command1; ///< open, save, new
    Button Command2;                ///< opens the default template
    Button CmndPrint;
    ToggleLabel ToggleButton1;         ///< "Wrap"
    Property<int> RightMargin = 0;     ///< of the pane
    Property<Colour> ColourLabel1 = 0; ///< the colour that was applied last
    std::function<void()> ColourLabel1_Click;
    TemplateFind Find;

    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuFileNew{"mnuFileNew", "&New"};
    MenuItem mnuFileOpen{"mnuFileOpen", "&Open..."};
    MenuItem mnuFileLoadDefault{"mnuFileLoadDefault", "Open &default template"};
    MenuItem mnuFileSave{"mnuFileSave", "&Save"};
    MenuItem mnuFileSaveAs{"mnuFileSaveAs", "Save &as..."};
    MenuItem mnuFileSetAsDefault{"mnuFileSetAsDefault", "Set as de&fault"};
    MenuItem mnuFilePrint{"mnuFilePrint", "&Print"};
    MenuItem mnuFileClose{"mnuFileClose", "&Close"};
    MenuItem mnuEdit{"mnuEdit", "&Edit"};
    MenuItem mnuUndo{"mnuUndo", "&Undo"};
    MenuItem mnuRedo{"mnuRedo", "&Redo"};
    MenuItem mnuCut{"mnuCut", "Cu&t"};
    MenuItem mnuCopy{"mnuCopy", "&Copy"};
    MenuItem mnuPaste{"mnuPaste", "&Paste"};
    MenuItem mnuSelectAll{"mnuSelectAll", "Select &all"};
    MenuItem mnuFind{"mnuFind", "&Find..."};
    MenuItem mnuFindNext{"mnuFindNext", "Find &next"};
    MenuItem mnuFindPrevious{"mnuFindPrevious", "Find pre&vious"};
    MenuItem mnuEditTmCFG{"mnuEditTmCFG", "Ed&it tm.cfg"};
    MenuItem mnuEdTmpPrefs{"mnuEdTmpPrefs", "Pre&ferences..."};
    MenuItem mnuView{"mnuView", "&View"};
    MenuItem mnuColourApply{"mnuColourApply", "Apply &colours"};
    MenuItem mnuTextToBlack{"mnuTextToBlack", "&Black text"};
    MenuItem mnuViewEditColours{"mnuViewEditColours", "&Edit colours..."};
    MenuItem mnuViewrefreshLayout{"mnuViewrefreshLayout", "&Refresh layout"};
    MenuItem mnuRefreshIndent{"mnuRefreshIndent", "Refresh &indent"};
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuHelpContents{"mnuHelpContents", "&Tarvex help topics"};
    MenuItem mnuPopShow{"mnuPopShow"}; ///< root of the pop-up menu
    MenuItem mnuPopBlack{"mnuPopBlack", "&Black text"};
    MenuItem mnuSetAsDefault{"mnuSetAsDefault", "Set as de&fault"};

    std::string TemplatePath;     ///< the file's folder, with "\" at its end
    std::string TemplateFullName; ///< folder and name
    std::string TemplateName;     ///< as Text1 shows it
    std::int16_t TemplateChanged = 0;
    std::string OpeningRemark; ///< a sentence on the file opened last, for the end of the status text; often empty

    UndoHistory Undo;
    std::int16_t TakeNewLevel = 1; ///< the next change opens an undo level
    std::int16_t IsLoading = 0;    ///< the program itself changes the text
    JournalRecord Journal;         ///< of unsaved edits

    std::vector<MenuEntry> menuBar();
    std::vector<MenuEntry> popUpMenu();
};

} // namespace tarvex

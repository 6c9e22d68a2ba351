#include "templates/template_form.h"

namespace tarvex {

TemplateForm::TemplateForm(Editor& theEditor) : editor(theEditor), TemplateText(theEditor.formats)
{
    form.Caption = "Template Editor";
    Command1[0].Caption = "Open";
    Command1[1].Caption = "Save";
    Command1[2].Caption = "New";
    Command2.Caption = "Open default template";
    CmndPrint.Caption = "Print";
    ToggleButton1.Caption = "Wrap";
    Find.MatchCase.Caption = "Match &case";
    Find.WholeWord.Caption = "W&hole words only";
    Find.Next.Caption = "Find ne&xt";
    Find.Previous.Caption = "Find &previous";
    Find.Close.Caption = "Close";
}

std::vector<MenuEntry> TemplateForm::menuBar()
{
    const MenuEntry divider{};
    return {
        {&mnuFile,
         {},
         {{&mnuFileNew, "Ctrl+N", {}},
          {&mnuFileOpen, "Ctrl+O", {}},
          {&mnuFileLoadDefault, {}, {}},
          divider,
          {&mnuFileSave, "Ctrl+S", {}},
          {&mnuFileSaveAs, {}, {}},
          {&mnuFileSetAsDefault, {}, {}},
          divider,
          {&mnuFilePrint, "Ctrl+P", {}},
          divider,
          {&mnuFileClose, {}, {}}}},
        {&mnuEdit,
         {},
         {{&mnuUndo, "Ctrl+Z", {}},
          {&mnuRedo, "Ctrl+Y", {}},
          divider,
          {&mnuCut, "Ctrl+X", {}},
          {&mnuCopy, "Ctrl+C", {}},
          {&mnuPaste, "Ctrl+V", {}},
          {&mnuSelectAll, "Ctrl+A", {}},
          divider,
          {&mnuFind, "Ctrl+F", {}},
          {&mnuFindNext, "F3", {}},
          {&mnuFindPrevious, "Shift+F3", {}},
          divider,
          {&mnuEditTmCFG, {}, {}},
          {&mnuEdTmpPrefs, {}, {}}}},
        {&mnuView,
         {},
         {{&mnuColourApply, "Ctrl+T", {}},
          {&mnuTextToBlack, {}, {}},
          {&mnuViewEditColours, {}, {}},
          divider,
          {&mnuViewrefreshLayout, "Ctrl+H", {}},
          {&mnuRefreshIndent, {}, {}}}},
        {&mnuHelp, {}, {{&mnuHelpContents, {}, {}}}},
    };
}

std::vector<MenuEntry> TemplateForm::popUpMenu()
{
    const MenuEntry divider{};
    return {{&mnuCut, {}, {}}, {&mnuCopy, {}, {}},        {&mnuPaste, {}, {}}, divider, {&mnuPopBlack, {}, {}},
            divider,           {&mnuSetAsDefault, {}, {}}};
}

} // namespace tarvex

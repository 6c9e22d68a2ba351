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
    };
}

std::vector<MenuEntry> TemplateForm::popUpMenu()
{
    const MenuEntry divider{};
    return {{&mnuCut, {}, {}}, {&mnuCopy, {}, {}},        {&mnuPaste, {}, {}}, divider, {&mnuPopBlack, {}, {}},
            divider,           {&mnuSetAsDefault, {}, {}}};
}

} // namespace tarvex

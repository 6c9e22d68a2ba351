#include "viewer/view_image.h"

namespace tarvex {

ViewImage::ViewImage(Editor& theEditor) : editor(theEditor), select(theEditor) { form.Caption = "Image viewer"; }

std::vector<MenuEntry> ViewImage::menuBar()
{
    const MenuEntry divider{};
    return {
        {&mnuFile,
         {},
         {{&mnuFileSave, "Ctrl+S", {}},
          {&mnuPrint, "Ctrl+P", {}},
          divider,
          {&mnuFileClose, {}, {}},
          {&mnuFileExit, {}, {}}}},
        {&mnuImage,
         {},
         {{&mnuImageLoad, "Ctrl+O", {}},
          {&mnuImageRefresh, "F5", {}},
          divider,
          {&mnuShowSize, {}, {}},
          {&mnuImageEdit, "Ctrl+E", {}}}},
        {&mnuView,
         {},
         {{&mnuZoomIn, "Ctrl++", {}},
          {&mnuZoomOut, "Ctrl+-", {}},
          {&mnuZoomFit, "Ctrl+9", {}},
          {&mnuZoomActual, "Ctrl+0", {}}}},
        {&mnuHelp, {}, {{&mnuHelpContents, {}, {}}}},
    };
}

} // namespace tarvex

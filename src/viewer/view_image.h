#pragma once

#include "documents/pair/editor.h"
#include "platform/pictures.h"
#include "shell/menus.h"
#include "shell/tool_form.h"
#include "viewer/select_picture_form.h"

#include <functional>
#include <memory>
#include <vector>

namespace tarvex {

/// A bar along a picture; its smallest value is 0.
struct ScrollBar {
    Property<bool> Visible = false;
    Property<int> Max = 0;
    Property<int> Value = 0;
    Property<int> LargeChange = 1;
    Property<int> SmallChange = 1;
    std::function<void()> Change; ///< Value is another
};

/// The image viewer. Sizes are in pixels.
struct ViewImage {
    explicit ViewImage(Editor& theEditor);
    ViewImage(const ViewImage&) = delete;
    ViewImage& operator=(const ViewImage&) = delete;

    Editor& editor;
    SelectPictureForm select;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"ViewImage", &WindowOpen};

    int ScaleWidth = 0; ///< inside size below the menus; the view reports it and calls RepositionControls
    int ScaleHeight = 0;
    int BarThickness = 17;
    Property<Placement> Picture2;      ///< the frame
    Property<Placement> Picture3Place; ///< the image inside it, zoomed
    Property<std::shared_ptr<const LoadedPicture>> Picture3;
    ScrollBar HScroll1;
    ScrollBar VScroll1;
    double Zoom = 1;
    std::string SavedAs; ///< where the image shown was saved last; empty: not yet

    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuFileSave{"mnuFileSave", "&Save as bitmap..."};
    MenuItem mnuPrint{"mnuPrint", "&Print"};
    MenuItem mnuFileClose{"mnuFileClose", "&Close"};
    MenuItem mnuFileExit{"mnuFileExit", "E&xit"};
    MenuItem mnuImage{"mnuImage", "&Image"};
    MenuItem mnuImageLoad{"mnuImageLoad", "&Open..."};
    MenuItem mnuImageRefresh{"mnuImageRefresh", "&Refresh"};
    MenuItem mnuShowSize{"mnuShowSize", "&Show size"};
    MenuItem mnuImageEdit{"mnuImageEdit", "&Edit"};
    MenuItem mnuView{"mnuView", "&View"};
    MenuItem mnuZoomIn{"mnuZoomIn", "Zoom &in"};
    MenuItem mnuZoomOut{"mnuZoomOut", "Zoom &out"};
    MenuItem mnuZoomFit{"mnuZoomFit", "&Fit the window"};
    MenuItem mnuZoomActual{"mnuZoomActual", "&Actual size"};
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuHelpContents{"mnuHelpContents", "&Tarvex help topics"};

    std::vector<MenuEntry> menuBar();
};

} // namespace tarvex

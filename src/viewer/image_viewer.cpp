#include "viewer/image_viewer.h"

#include "shell/handler.h"
#include "viewer/image_commands.h"
#include "viewer/image_place.h"

namespace tarvex {

void wireImageViewer(ViewImage& window)
{
    window.mnuImageLoad.handler = on(window, mnuImageLoad_Click);
    window.mnuImageRefresh.handler = on(window, mnuImageRefresh_Click);
    window.mnuShowSize.handler = on(window, mnuShowSize_Click);
    window.mnuImageEdit.handler = on(window, mnuImageEdit_Click);
    window.mnuFileSave.handler = on(window, mnuFileSave_Click);
    window.mnuPrint.handler = on(window, mnuPrint_Click);
    window.mnuFileClose.handler = on(window, mnuFileClose_Click);
    window.mnuFileExit.handler = on(window, mnuFileExit_Click);
    window.mnuHelpContents.handler = [&window] { window.editor.menus.mnuHelpContents.Click(); };
    window.mnuZoomIn.handler = [&window] { zoomAtMiddle(window, zoomStep); };
    window.mnuZoomOut.handler = [&window] { zoomAtMiddle(window, 1 / zoomStep); };
    window.mnuZoomFit.handler = on(window, zoomToFit);
    window.mnuZoomActual.handler = on(window, zoomToActualSize);
    window.HScroll1.Change = on(window, HScroll1_Change);
    window.VScroll1.Change = on(window, VScroll1_Change);
    window.form.Load = [&window] { Form_Load(window); };
    window.form.Unload = [&window] { window.form.markUnloaded(); };
    window.form.join(window.editor.mum.toolWindows, true);
}

void Form_Load(ViewImage& window)
{
    const Steps step(window.editor.shared.errors, "IMAGE Form_Load");
    const std::string& path = window.editor.shared.settings.ImageFilePath.whole();
    step([&] {
        if (!path.empty() && window.editor.platform.files.fileExists(path))
            window.Picture3 = window.editor.platform.pictures.load(path);
    });
    step([&] { RepositionControls(window); });
    window.form.markLoaded();
}

} // namespace tarvex

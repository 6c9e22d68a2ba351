#include "desktop/viewer/viewer_forms.h"

#include "desktop/platform/qt_dialogues.h"
#include "desktop/viewer/select_picture_view.h"
#include "viewer/view_image.h"

namespace tarvex {

void addViewerForms(QtDialogues& dialogues, ViewImage& window, QWidget* parent)
{
    dialogues.addForm("SelectPictureForm",
                      [&form = window.select, parent] { SelectPictureView(form, parent).showModally(); });
}

} // namespace tarvex

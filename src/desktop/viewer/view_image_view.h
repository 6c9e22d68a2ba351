#pragma once

#include "desktop/tool_form_window.h"
#include "viewer/view_image.h"

namespace tarvex {

/// Window of the image viewer.
class ViewImageView : public ToolFormWindow {
    Q_OBJECT
public:
    ViewImageView(ViewImage& window, QWidget* parent);
    QSize sizeHint() const override { return {640, 520}; }

private:
    void addPaneKeys(ViewImage& window);
};

} // namespace tarvex

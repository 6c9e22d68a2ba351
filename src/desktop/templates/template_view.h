#pragma once

#include "desktop/tool_form_window.h"
#include "templates/template_form.h"

#include <string_view>

class QCheckBox;
class QLayout;
class QPushButton;
class QToolButton;

namespace tarvex {

class PaneView;

/// Window of the Template Editor.
class TemplateView : public ToolFormWindow {
    Q_OBJECT
public:
    TemplateView(TemplateForm& window, QWidget* parent);

    QSize sizeHint() const override;

private:
    QLayout* fileRow();
    QLayout* toolRow();
    QWidget* findRow();
    QPushButton* button(Button& state, const char* name);
    QCheckBox* checkBox(CheckBox& state, const char* name);
    QToolButton* colourButton();
    void addPane();
    bool pressKey(std::string_view keys);

    TemplateForm& m_window;
    PaneView* m_pane;
};

} // namespace tarvex

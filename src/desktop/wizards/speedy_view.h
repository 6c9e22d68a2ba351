#pragma once

#include "desktop/tool_form_window.h"
#include "wizards/speedy.h"
#include "wizards/wizard_pages.h"

namespace tarvex {

/// Speedy's window: the steps on tabs.
class SpeedyView : public ToolFormWindow {
    Q_OBJECT
public:
    /// A page for each tab. The window's state outlives this.
    SpeedyView(const std::vector<WizardPage>& pages, Speedy& window, QWidget* parent);

    QSize sizeHint() const override;
};

} // namespace tarvex

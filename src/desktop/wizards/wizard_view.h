#pragma once

#include "desktop/tool_form_window.h"
#include "shell/settings.h"
#include "wizards/macro_maker.h"
#include "wizards/page_turner.h"
#include "wizards/wizard_pages.h"

#include <span>

class QPushButton;
class QStackedWidget;

namespace tarvex {

/// The window of a wizard: a page, and the buttons at its foot.
class WizardView : public ToolFormWindow {
    Q_OBJECT
public:
    struct Parts {
        PageTurner& turner;
        std::span<Button> actions = {};
        MacroMaker* maker = nullptr;
    };
    /// Everything but `pages` outlives the window.
    WizardView(const std::vector<WizardPage>& pages, Parts parts, const Settings& settings, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void keepFocusOnPage(TextBox& box);
    void addFoot(PageTurner& turner);
    void showPage(int page);

    QStackedWidget* m_pages;
    QPushButton* m_next = nullptr;
    QPushButton* m_close = nullptr;
};

} // namespace tarvex

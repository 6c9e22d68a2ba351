#pragma once

#include "composer/insert_options.h"
#include "desktop/tool_form_window.h"

class QLayout;
class QScrollArea;
class QTabWidget;

namespace tarvex {

/// The window of the Composer.
class ComposerView : public ToolFormWindow {
    Q_OBJECT
public:
    ComposerView(InsertOptions& window, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QScrollArea* scrolling(QWidget& parts);
    QTabWidget* makeStatementPages();
    QTabWidget* makeListPages();
    QLayout* makeTicks();
    QLayout* makeFoot();

    InsertOptions& m_window;
};

} // namespace tarvex

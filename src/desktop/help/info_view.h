#pragma once

#include "desktop/tool_form_window.h"
#include "help/info_window.h"

namespace tarvex {

/// Window of the short help texts.
class InfoView : public ToolFormWindow {
    Q_OBJECT
public:
    InfoView(InfoWindow& window, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    InfoWindow& m_window;
    QWidget* m_button;
};

} // namespace tarvex

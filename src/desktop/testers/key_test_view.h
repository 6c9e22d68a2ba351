#pragma once

#include "desktop/tool_form_window.h"
#include "testers/key_test_form.h"

class QLayout;

namespace tarvex {

/// Window of the key tester. All keys go to the tester, and none of them does anything else.
class KeyTestView : public ToolFormWindow {
    Q_OBJECT
public:
    KeyTestView(KeyTestForm& window, QWidget* parent);

protected:
    bool takesKey(const QKeyEvent& event) override;
    void changeEvent(QEvent* event) override;

private:
    QLayout* lists();
    QLayout* below();
    QLayout* lamps();
    QLayout* joystickTexts();

    KeyTestForm& m_window;
};

} // namespace tarvex

#pragma once

#include "desktop/documents/text/pane_view.h"

namespace tarvex {

/// A text box in a dialogue: Tab goes to the next control.
class TextArea : public PaneView {
    Q_OBJECT
public:
    TextArea(Pane& pane, const QString& name, int lines);

    /// Of one line: Return is the dialogue's.
    void leaveReturnToDialogue() { m_returnIsDialogues = true; }

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_lines;
    bool m_returnIsDialogues = false;
};

} // namespace tarvex

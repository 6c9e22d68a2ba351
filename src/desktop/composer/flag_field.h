#pragma once

#include "desktop/bind.h"
#include "documents/text/pane.h"

#include <QLineEdit>

#include <functional>

namespace tarvex {

/// A line that shows a pane of one line: text, selection and background both ways.
class FlagField : public QLineEdit {
    Q_OBJECT
public:
    /// The pane outlives the field. `focused` runs when the keyboard comes.
    FlagField(Pane& pane, std::function<void()> focused, QWidget* parent);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showText();
    void showSelection();
    void showColour();
    void takeText();
    void takeSelection();

    Pane& m_pane;
    std::function<void()> m_focused;
    bool m_following = false; ///< one of the two follows the other just now
    Bindings m_bindings;
};

} // namespace tarvex

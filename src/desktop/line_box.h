#pragma once

#include "desktop/bind.h"

#include <QLineEdit>

namespace tarvex {


/// A text box of one line that reports when it gets and loses the keyboard; a menu that opens doesn't count. Of
/// a text of several lines that is pasted into it the first is kept.
class LineBox : public QLineEdit {
    Q_OBJECT
public:
    /// The state outlives the box.
    LineBox(TextBox& state, const QString& name, Bindings& bindings);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    TextBox& m_state;
};

} // namespace tarvex

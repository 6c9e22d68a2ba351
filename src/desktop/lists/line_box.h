#pragma once

#include "desktop/bind.h"

#include <QLineEdit>

namespace tarvex {

/// A text box of one line that tells when it gets the keyboard. Of a text of several lines that is pasted into it the
/// first is kept.
class LineBox : public QLineEdit {
    Q_OBJECT
public:
    /// The state outlives the box.
    LineBox(TextBox& state, const QString& name, Bindings& bindings);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    TextBox& m_state;
};

} // namespace tarvex

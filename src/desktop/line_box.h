#pragma once

#include "desktop/bind.h"

#include <QLineEdit>

class QValidator;

namespace tarvex {

/// For fields of one line: of a text of several lines that is pasted, the first is kept.
QValidator* firstLineOnly(QObject* parent);

/// A text box of one line that reports when it gets and loses the keyboard; a menu that opens doesn't count.
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

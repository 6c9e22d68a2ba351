#pragma once

#include "desktop/line_box.h"

namespace tarvex {

/// A line for a path: while the user isn't in it, one that is too long is shown with its middle left out, and the whole
/// is its tip.
class PathBox : public LineBox {
    Q_OBJECT
public:
    PathBox(TextBox& state, const QString& name, Bindings& bindings);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvex

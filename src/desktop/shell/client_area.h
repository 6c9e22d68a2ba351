#pragma once

#include "desktop/bind.h"

#include <QWidget>

namespace tarvex {

/// What the frame window holds between its menus and its status bar: the toolbar above the document window. Behind the
/// latter it paints the gradient, if one is wanted.
class ClientArea : public QWidget {
public:
    ClientArea(Property<bool>& gradient, QWidget* toolbar, QWidget* editor, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Property<bool>& m_gradient;
    QWidget* m_editor;
    Bindings m_bindings;
};

} // namespace tarvex

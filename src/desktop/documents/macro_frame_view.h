#pragma once

#include "desktop/bind.h"
#include "documents/editor.h"

#include <QFrame>

#include <memory>
#include <vector>

class QGridLayout;
class QVBoxLayout;

namespace tarvex {

/// FrameMacros: the headings, the list of macros of the chosen heading and the buttons below. Its right edge can be
/// dragged.
class MacroFrameView : public QFrame {
public:
    explicit MacroFrameView(Editor& editor, QWidget* parent = nullptr);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void showLists();
    void addList(CheckListBox& list);
    void addButton(int index);
    void tellMouse(const QMouseEvent& event);

    Editor& m_editor;
    QVBoxLayout* m_lists = nullptr;
    QGridLayout* m_buttons = nullptr;
    bool m_dragging = false;
    Bindings m_bindings;
    Bindings m_listBindings; ///< of the lists that are there now
};

} // namespace tarvex

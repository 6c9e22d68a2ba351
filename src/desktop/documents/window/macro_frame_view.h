#pragma once

#include "desktop/bind.h"
#include "documents/pair/editor.h"

#include <QFrame>

#include <cstddef>
#include <map>

class QComboBox;
class QGridLayout;

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
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QComboBox* makeHeadings();
    QGridLayout* makeButtons();
    QWidget* makeFilter(QWidget& list);
    QWidget* makeButton(std::size_t index);
    void reportMouse(const QMouseEvent& event);
    QRect grip() const;

    Editor& m_editor;
    std::map<const QObject*, std::size_t> m_indexes; ///< of the buttons in Command1
    bool m_dragging = false;
    Bindings m_bindings;
};

} // namespace tarvex

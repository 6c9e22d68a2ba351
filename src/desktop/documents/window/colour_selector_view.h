#pragma once

#include "desktop/tool_form_window.h"
#include "documents/pair/editor.h"

namespace tarvex {

/// ColourSelector as a window that goes with the first click elsewhere.
class ColourSelectorView : public ToolFormWindow {
public:
    ColourSelectorView(Editor& editor, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Editor& m_editor;
};

} // namespace tarvex

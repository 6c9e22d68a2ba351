#pragma once

#include "documents/text/pane.h"

namespace tarvex {

/// A hidden box is shown behind the panes while it works, and is put away empty.
class WorkingBox {
public:
    explicit WorkingBox(Pane& box) : m_box(box) { m_box.Visible = true; }
    ~WorkingBox()
    {
        m_box.setText("");
        m_box.Visible = false;
    }
    WorkingBox(const WorkingBox&) = delete;
    WorkingBox& operator=(const WorkingBox&) = delete;

private:
    Pane& m_box;
};

} // namespace tarvex
